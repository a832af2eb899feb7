// The pictures that are part of the program, and the pointer cursors made of them.
#include "draw/Images.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"
#include "tests/support/Golden.h"
#include "tests/support/Project.h"
#include "tests/support/Sheet.h"

using namespace tessary;

namespace
{

struct Image {
    char** lines;
    int width; ///< height is 32
};

const Image IMAGES[] = {
    {XPM_Printer, 32},     {XPM_SpinButn, 16},    {XPM_LeftArrow1, 32}, {XPM_LeftArrow2, 32},
    {XPM_RightArrow1, 32}, {XPM_RightArrow2, 32}, {XPM_UpArrow1, 32},   {XPM_UpArrow2, 32},
    {XPM_DownArrow1, 32},  {XPM_DownArrow2, 32},
};

class GoldenImages : public testing::Test
{
  protected:
    GoldenImages()
    {
        useSheet();
        XPM_DataInit();
    }
    ~GoldenImages() override { XPM_DataExit(); }

    static void drawRow(Sheet& sheet, int y, int height)
    {
        int x = 6;
        for (const Image& image : IMAGES) {
            const int width = image.width * height / 32;
            sheet->DrawXpm(x, y, x + width, y + height, image.lines);
            x += width + 6;
        }
    }

    Project project; // without colours for the images
};

bool bit(const char* bits, int x, int y)
{
    return static_cast<unsigned char>(bits[y * 4 + x / 8]) >> x % 8 & 1;
}

/// A cursor as the pointer shows it, its hot spot red.
Picture cursor(int number, std::uint32_t ground, std::uint32_t front, std::uint32_t back)
{
    Picture picture(32, 32, ground);
    for (int y = 0; y < 32; y++)
        for (int x = 0; x < 32; x++)
            if (bit(CursorMask[number], x, y))
                picture.set(x, y, bit(CursorData[number], x, y) ? front : back);
    return picture.set(CursorHome[number].x, CursorHome[number].y, 0xFF0000);
}

} // namespace

TEST_F(GoldenImages, in_their_own_size)
{
    Sheet sheet(372, 44);
    drawRow(sheet, 6, 32);
    expectGolden(enlarged(sheet.picture(), 2), "images");
}

TEST_F(GoldenImages, scaled_to_the_sizes_of_buttons)
{
    Sheet sheet(520, 190);
    int y = 6;
    for (const int height : {14, 16, 20, 24, 28, 48}) {
        drawRow(sheet, y, height);
        y += height + 6;
    }
    expectGolden(sheet.picture(), "images-scaled");
}

TEST_F(GoldenImages, of_cursors_on_light_and_dark_ground)
{
    constexpr int zoom = 4;
    constexpr int step = 32 * zoom + 4;
    Picture sheet(4 + 4 * step, 4 + 4 * step, 0x606060);
    for (int number = 0; number < CONT_CURSOR; number++) {
        const int x = 4 + number % 4 * step;
        const int y = 4 + number / 4 * 2 * step;
        sheet.paste(x, y, enlarged(cursor(number, 0xF4F1E8, 0x102A54, 0xFFFFFF), zoom));
        sheet.paste(x, y + step, enlarged(cursor(number, 0x303030, 0x102A54, 0xFFFFFF), zoom));
    }
    expectGolden(sheet, "cursors");
}
