// Lines, frames, ellipses, group boxes, buttons and the shaded fill.
#include "tests/support/Golden.h"
#include "tests/support/Sheet.h"

namespace
{

class GoldenShapes : public testing::Test
{
  protected:
    GoldenShapes() { useSheet(); }
};

constexpr int SOLID = 0;
constexpr int CENTRED = 0;
constexpr int INSIDE = 1;
constexpr int OUTSIDE = 2;
const int FOMTS[] = {CENTRED, INSIDE, OUTSIDE};

} // namespace

/// Red ticks stand where a line of width 1 runs.
TEST_F(GoldenShapes, lines_of_all_types_places_and_widths)
{
    Sheet sheet(660, 490);
    const auto tick = [&](int x1, int y1, int x2, int y2) {
        sheet->DrawLine(x1, y1, x2, y2, SOLID, 1, CENTRED, RED);
    };
    int y = 14;
    for (int type = 0; type < 3; type++)
        for (const int fomt : FOMTS) {
            int x = 14;
            for (const int wide : {1, 2, 3, 5, 8}) {
                sheet->DrawLine(x, y + 20, x + 60, y + 20, type, wide, fomt, NAVY);
                tick(x - 6, y + 20, x - 1, y + 20);
                tick(x + 61, y + 20, x + 66, y + 20);
                sheet->DrawLine(x + 80, y, x + 80, y + 40, type, wide, fomt, NAVY);
                tick(x + 80, y - 6, x + 80, y - 1);
                tick(x + 80, y + 41, x + 80, y + 46);
                sheet->DrawLine(x + 92, y + 2, x + 116, y + 38, type, wide, fomt, GREEN);
                x += 130;
            }
            y += 53;
        }
    expectGolden(sheet.picture(), "shapes-lines");
}

TEST_F(GoldenShapes, slanted_lines_of_every_direction)
{
    Sheet sheet(520, 260);
    int x = 130;
    for (const int wide : {1, 4}) {
        for (const auto& [dx, dy] : {std::pair{120, 40},
                                     {120, 120},
                                     {40, 120},
                                     {-40, 120},
                                     {-120, 120},
                                     {-120, 40},
                                     {-120, -40},
                                     {-120, -120},
                                     {-40, -120},
                                     {40, -120},
                                     {120, -120},
                                     {120, -40}})
            sheet->DrawLine(x + dx / 6, 130 + dy / 6, x + dx, 130 + dy, wide == 1 ? SOLID : 2, wide, CENTRED,
                            wide == 1 ? NAVY : MAROON);
        x += 260;
    }
    expectGolden(sheet.picture(), "shapes-slanted");
}

TEST_F(GoldenShapes, rectangles_and_ellipses_of_all_places_and_widths)
{
    Sheet sheet(640, 460);
    int y = 16;
    for (const int fomt : FOMTS) {
        for (const bool filled : {false, true}) {
            int x = 16;
            for (const int wide : {0, 1, 2, 3, 6}) {
                const int fill = filled ? SKY : -1;
                sheet->DrawRect(x, y, x + 44, y + 44, wide, fomt, NAVY, fill);
                sheet->DrawCrcl(x + 62, y, x + 106, y + 44, wide, fomt, NAVY, fill);
                x += 126;
            }
            y += 74;
        }
    }
    expectGolden(sheet.picture(), "shapes-frames");
}

TEST_F(GoldenShapes, ellipses_from_one_pixel_to_flat_ones)
{
    Sheet sheet(520, 150);
    int x = 8;
    for (int size = 0; size <= 12; size++) {
        sheet->DrawCrcl(x, 8, x + size, 8 + size, 1, CENTRED, BLACK, -1);
        sheet->DrawCrcl(x, 28, x + size, 28 + size, 0, CENTRED, RED, RED);
        sheet->DrawCrcl(x, 48, x + size, 48 + size, 1, CENTRED, BLACK, YELLOW);
        x += size + 8;
    }
    sheet->DrawCrcl(200, 8, 500, 28, 2, INSIDE, NAVY, LIME);
    sheet->DrawCrcl(200, 36, 220, 136, 2, INSIDE, NAVY, LIME);
    sheet->DrawCrcl(240, 36, 340, 136, 5, INSIDE, NAVY, LIME);
    sheet->DrawCrcl(360, 56, 500, 116, 1, CENTRED, NAVY, -1);
    expectGolden(sheet.picture(), "shapes-ellipses");
}

TEST_F(GoldenShapes, group_boxes_and_buttons)
{
    Sheet sheet(560, 250);
    sheet->DrawGbox(10, 10, 130, 80, 2, 2, 2, 2, WHITE, GREY, WHITE, GREY, SILVER);   // raised
    sheet->DrawGbox(150, 10, 270, 80, 2, 2, 2, 2, GREY, WHITE, GREY, WHITE, SILVER);  // sunk
    sheet->DrawGbox(290, 10, 410, 80, 4, 8, 12, 16, RED, GREEN, BLUE, YELLOW, WHITE); // every edge its own
    sheet->DrawGbox(430, 10, 550, 80, 0, 0, 0, 0, RED, RED, RED, RED, SKY);           // face only
    sheet->DrawButn(10, 100, 130, 140, 2, WHITE, GREY, SILVER, BLACK, -1, 1, "運転");
    sheet->DrawButn(150, 100, 270, 140, 3, WHITE, CHARCOAL, NAVY, WHITE, -1, 2, "Stop");
    sheet->DrawButn(290, 100, 410, 140, 1, SKY, NAVY, BLUE, YELLOW, 12, 1, "左寄せ");
    sheet->DrawButn(430, 100, 550, 140, 6, LIME, GREEN, PAPER, MAROON, 60, 0, "60 から");
    sheet->DrawButn(10, 160, 130, 230, 2, WHITE, GREY, SILVER, BLACK, -1, 0, "");
    sheet->DrawButn(150, 160, 270, 230, 2, WHITE, GREY, SILVER, BLACK, -1, 2, "gjpqy");
    sheet->DrawButn(290, 160, 350, 200, 2, WHITE, GREY, SILVER, RED, -1, 1, "幅より長い文字");
    sheet->DrawButn(430, 160, 550, 230, 30, WHITE, GREY, SILVER, BLACK, -1, 1, "厚い縁");
    expectGolden(sheet.picture(), "shapes-buttons");
}

TEST_F(GoldenShapes, shaded_fills_darken_downwards)
{
    Sheet sheet(500, 280);
    int x = 10;
    for (const int colr : {WHITE, SKY, BLUE, ORANGE, BLACK}) {
        sheet->DrawRect(x, 10, x + 80, 270, colr);
        sheet->DrawRect(x + 82, 10, x + 90, 42, colr);
        x += 96;
    }
    expectGolden(sheet.picture(), "shapes-shaded");
}
