// The shaded fill.
#include "draw/Resource.h"
#include "tests/draw/Drawing.h"

namespace
{

class DrawShade : public Drawing
{
};

/// Colour of a shade as the display shows it: the high bytes of c - (k * c) / 256.
std::uint32_t shade(const COLRDATA& full, int k)
{
    const auto part = [k](int c) { return static_cast<std::uint32_t>((c - k * c / 256) & 0xFFFF) >> 8; };
    return part(full.red) << 16 | part(full.green) << 8 | part(full.blue);
}

TEST_F(DrawShade, darkens_from_the_full_colour_downwards)
{
    for (const int height : {1, 2, 7, 28}) {
        canvas.clear();
        canvas->DrawRect(4, 1, 36, 1 + height, 40);
        Picture expected = canvas.blank();
        for (int r = 0; r < height; r++)
            expected.row(4, 36, 1 + r, shade(ColrData[40], r * 255 / height));
        EXPECT_TRUE(same(canvas.picture(), expected)) << height;
        EXPECT_EQ(canvas.picture().at(4, 1), color(40));
    }
}

TEST_F(DrawShade, uses_the_colour_as_read_from_the_file)
{
    DrawColr[40].red = DrawColr[40].green = DrawColr[40].blue = 0;
    ColrData[40] = {0x12000, -0x4000, 65535}; // beyond 16 bits, negative, largest
    canvas->DrawRect(RECT{0, 0, 40, 30, -5, 0}, 40);
    Picture expected = canvas.blank();
    for (int r = 0; r < 30; r++)
        expected.row(0, 40, r, shade(ColrData[40], r * 255 / 30));
    EXPECT_TRUE(same(canvas.picture(), expected));
}

TEST_F(DrawShade, without_rows_draws_nothing)
{
    canvas->DrawRect(4, 10, 36, 10, 40);
    canvas->DrawRect(4, 12, 36, 10, 40);
    canvas->DrawRect(4, INT32_MAX, 36, INT32_MIN, 40);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawShade, of_a_colour_outside_the_table_draws_nothing)
{
    for (const int colr : {-1, CONT_COLR, INT32_MAX, INT32_MIN})
        canvas->DrawRect(4, 2, 36, 20, colr);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

TEST_F(DrawShade, of_an_absurd_height_visits_only_the_rows_that_show)
{
    canvas->DrawRect(4, -1000000000, 36, 1000000000, 40);
    const Picture expected = canvas.blank().fill(4, 0, 36, 30, shade(ColrData[40], 127));
    EXPECT_TRUE(same(canvas.picture(), expected));
    canvas.clear();
    canvas->DrawRect(INT32_MIN, INT32_MIN, INT32_MAX, INT32_MAX, 40);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 40, 30, shade(ColrData[40], 127))));
    canvas.clear();
    canvas->DrawRect(4, 100, 36, 200, 40);
    canvas->DrawRect(4, -200, 36, -100, 40);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank()));
}

} // namespace
