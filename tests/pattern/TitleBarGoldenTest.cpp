// The frame of a pattern in all its variants: title bar, logo, hard-copy button, clock, body, band, frame.
#include "tests/pattern/LoadedPattern.h"
#include "tests/support/Golden.h"
#include "tests/support/Sheet.h"

#include <filesystem>

using namespace tessary;

namespace
{

constexpr int T = 30;
constexpr int GAP = 6;

class GoldenFrame : public LoadedPattern
{
  protected:
    GoldenFrame()
    {
        useSheet();
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/logo.ppm", ppm(16, 16, [](int x, int y) {
                          const bool edge = x == 0 || y == 0 || x == 15 || y == 15;
                          return edge ? 0xFFFFFFu : (x < 8) == (y < 8) ? 0xD0282Cu : 0xF2D024u;
                      }));
        project.write("Bitmap/body.ppm", ppm(32, 16, [](int x, int y) {
                          const bool edge = x == 0 || y == 0 || x == 31 || y == 15;
                          return edge ? 0xD0282Cu : static_cast<unsigned>(x * 8 << 8 | y * 16);
                      }));
        const int sunday[] = {2025, 3, 2, 0, 9, 5, 7};
        for (int i = 0; i < 7; i++)
            Set_iData(DTNO_SYSCALN + i, sunday[i], nullptr, 0);
    }

    template <class Color> static std::string ppm(int width, int height, Color color)
    {
        std::string bytes = "P6\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
        for (int y = 0; y < height; y++)
            for (int x = 0; x < width; x++)
                for (int shift = 16; shift >= 0; shift -= 8)
                    bytes += static_cast<char>(color(x, y) >> shift);
        return bytes;
    }

    static Pattern frame(int width, int height)
    {
        return Pattern("p")
            .size(width, height)
            .title("運転監視 Plant 1")
            .logo("logo.ppm")
            .header(HEDR_TITLE_HEIGHT, T)
            .header(HEDR_TITLE_COLOR, WHITE)
            .header(HEDR_TITLE_BACK, NAVY)
            .header(HEDR_TITLE_FONT, 1)
            .header(HEDR_CLOCK_FONT, 0)
            .header(HEDR_BODY_COLOR, SKY)
            .header(HEDR_BAND_COLOR, SILVER)
            .header(HEDR_FRAME_COLOR, MAROON);
    }

    /// The pattern with some ground right of it and below it, so that what is drawn beyond it is seen.
    Picture show(const Pattern& pattern, int width, int height)
    {
        Sheet sheet(width + GAP, height + GAP);
        load(pattern);
        data().DispTitle(sheet.draw());
        return sheet.picture();
    }
};

/// Puts pictures below each other.
class Column
{
  public:
    Column(int width, int height) : sheet_(width, height, 0xFFFFFF) {}
    void add(const Picture& picture)
    {
        ASSERT_LE(y_ + picture.height(), sheet_.height());
        sheet_.paste(GAP, y_, picture);
        y_ += picture.height() + GAP;
    }
    const Picture& sheet() const { return sheet_; }

  private:
    Picture sheet_;
    int y_ = GAP;
};

} // namespace

TEST_F(GoldenFrame, title_bars_with_logo_and_hard_copy_button)
{
    constexpr int W = 400;
    constexpr int H = 40;
    Column column(W + 3 * GAP, 8 * (H + 2 * GAP) + GAP);
    for (const int centered : {0, 1})
        for (const int logo : {0, 1})
            for (const int hardcopy : {0, 1})
                column.add(show(frame(W, H)
                                    .header(HEDR_TITLE_CENTERED, centered)
                                    .header(HEDR_LOGO, logo)
                                    .header(HEDR_HARDCOPY, hardcopy),
                                W, H));
    expectGolden(column.sheet(), "titlebar");
}

TEST_F(GoldenFrame, clocks_in_all_formats)
{
    constexpr int W = 460;
    constexpr int H = 36;
    Column column(W + 3 * GAP, 12 * (H + 2 * GAP) + GAP);
    for (int format = 1; format <= 6; format++)
        for (const int hardcopy : {0, 1})
            column.add(show(frame(W, H)
                                .header(HEDR_CLOCK, format)
                                .header(HEDR_CLOCK_FONT, hardcopy)
                                .header(HEDR_HARDCOPY, hardcopy),
                            W, H));
    expectGolden(column.sheet(), "titlebar-clocks");
}

TEST_F(GoldenFrame, title_bars_in_the_size_of_every_font)
{
    constexpr int W = 760;
    constexpr int H = 58;
    Column column(W + 3 * GAP, 5 * (H + 2 * GAP) + GAP);
    const auto bar = [](int font, int height, int clockFont) {
        return frame(W, H)
            .header(HEDR_TITLE_HEIGHT, height)
            .header(HEDR_TITLE_FONT, font)
            .header(HEDR_CLOCK_FONT, clockFont)
            .header(HEDR_CLOCK, 6)
            .header(HEDR_LOGO, 1)
            .header(HEDR_HARDCOPY, 1);
    };
    column.add(show(bar(0, 24, 0), W, H));
    column.add(show(bar(1, 24, 1), W, H));
    column.add(show(bar(2, 48, 1), W, H));
    column.add(show(bar(2, 32, 2), W, H));
    column.add(show(bar(2, 20, 0), W, H)); // lower than its font
    expectGolden(column.sheet(), "titlebar-fonts");
}

TEST_F(GoldenFrame, bodies_bands_and_outer_frames)
{
    constexpr int W = 200;
    constexpr int H = 90;
    const auto shaded = [](Pattern pattern) { return pattern.header(HEDR_BODY_SHADED, 1); };
    const auto imaged = [](Pattern pattern) { return pattern.bitmap("body.ppm"); };
    const auto banded = [](Pattern pattern) { return pattern.header(HEDR_BAND_HEIGHT, 20); };
    const auto bare = [](Pattern pattern) { return pattern.header(HEDR_TITLE_HEIGHT, 0); };
    const auto framed = [](Pattern pattern, int wide) {
        return pattern.header(HEDR_KIND, 1).header(HEDR_FRAME_WIDTH, wide);
    };
    const Pattern plain = frame(W, H);
    const std::vector<std::vector<Pattern>> rows = {
        {plain, shaded(plain), imaged(plain)},
        {banded(plain), banded(shaded(plain)), banded(imaged(plain))},
        {framed(plain, 1), framed(shaded(plain), 3), framed(imaged(plain), 6)},
        {framed(banded(plain), 6), framed(banded(shaded(plain)), 1), framed(banded(imaged(plain)), 3)},
        {bare(plain), bare(banded(shaded(plain))), framed(bare(banded(imaged(plain))), 3)},
    };
    Picture sheet(3 * (W + 2 * GAP) + GAP, 5 * (H + 2 * GAP) + GAP, 0xFFFFFF);
    int y = GAP;
    for (const auto& row : rows) {
        int x = GAP;
        for (const Pattern& pattern : row) {
            sheet.paste(x, y, show(pattern, W, H));
            x += W + 2 * GAP;
        }
        y += H + 2 * GAP;
    }
    expectGolden(sheet, "titlebar-bodies");
}
