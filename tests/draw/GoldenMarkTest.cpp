// Marks, drawn from a table of the test's own: every mark has an outline on its outermost pixels, a corner
// that tells which way up it is, and its number.
#include "draw/Resource.h"
#include "tests/support/Golden.h"
#include "tests/support/Sheet.h"

#include <array>
#include <cstring>

using namespace tessary;

namespace
{

/// Rows of a digit, the highest of three bits leftmost.
constexpr std::array<std::array<int, 5>, 10> DIGITS = {{
    {7, 5, 5, 5, 7},
    {2, 6, 2, 2, 7},
    {7, 1, 7, 4, 7},
    {7, 1, 3, 1, 7},
    {5, 5, 7, 1, 1},
    {7, 4, 7, 1, 7},
    {7, 4, 7, 5, 7},
    {7, 1, 2, 2, 2},
    {7, 5, 7, 5, 7},
    {7, 5, 7, 1, 7},
}};

int width(int mark)
{
    return MarkXsize[mark / SIZE_MARKGROUP];
}

int height(int mark)
{
    return MarkYsize[mark / SIZE_MARKGROUP];
}

void setBit(int mark, int x, int y)
{
    const int bit = y * width(mark) + x;
    MarkData[mark].mark[bit / 8] |= static_cast<BYTE>(1 << bit % 8);
}

void putSquare(int mark, int x, int y, int side)
{
    for (int v = 0; v < side; v++)
        for (int u = 0; u < side; u++)
            setBit(mark, x + u, y + v);
}

/// The number in three digits, as wide as the mark has room for.
void putNumber(int mark)
{
    const int scale = width(mark) / 16;
    const int left = (width(mark) - 11 * scale) / 2;
    const int top = (height(mark) - 5 * scale) / 2;
    int place = 0;
    for (const int digit : {mark / 100, mark / 10 % 10, mark % 10}) {
        for (int row = 0; row < 5; row++)
            for (int column = 0; column < 3; column++)
                if (DIGITS[static_cast<std::size_t>(digit)][static_cast<std::size_t>(row)] & 4 >> column)
                    putSquare(mark, left + (place * 4 + column) * scale, top + row * scale, scale);
        place++;
    }
}

void makeMark(int mark)
{
    for (int x = 0; x < width(mark); x++) {
        setBit(mark, x, 0);
        setBit(mark, x, height(mark) - 1);
    }
    for (int y = 0; y < height(mark); y++) {
        setBit(mark, 0, y);
        setBit(mark, width(mark) - 1, y);
    }
    for (int y = 1; y < 8; y++)
        for (int x = 1; x < 8 - y; x++)
            setBit(mark, x, y);
    putNumber(mark);
}

class GoldenMarks : public testing::Test
{
  protected:
    GoldenMarks()
    {
        useSheet();
        std::memset(MarkData, 0, sizeof MarkData);
        for (int mark = 0; mark < CONT_MARK; mark++)
            makeMark(mark);
        MarkDataSet();
        MarkDataInit();
    }
};

} // namespace

TEST_F(GoldenMarks, of_all_groups_and_the_built_in_ones_in_their_own_size)
{
    constexpr int edge = 1012;
    Sheet sheet(edge, 796);
    int x = 6;
    int y = 6;
    for (int mark = 0; mark < CONT_MARK + CONT_BUILTINMARK; mark++) {
        const bool builtin = mark >= CONT_MARK;
        const int w = builtin ? 16 : width(mark);
        const int h = builtin ? 16 : height(mark);
        if (x + w > edge - 6 || (mark % SIZE_MARKGROUP == 0 && mark)) {
            x = 6;
            y += height(mark - 1) + 4;
        }
        sheet->DrawMark(x, y, x + w, y + h, NAVY, mark % 2 ? YELLOW : -1, mark);
        x += w + 4;
    }
    expectGolden(sheet.picture(), "marks");
}

// Scaled down, a transparent mark keeps only those pixels that are opaque throughout: lines of one pixel go.
TEST_F(GoldenMarks, scaled_to_other_sizes_with_and_without_background)
{
    Sheet sheet(586, 390);
    const struct {
        int numerator;
        int denominator;
    } scales[] = {{1, 2}, {3, 4}, {1, 1}, {5, 4}, {2, 1}};
    int y = 6;
    for (const auto& scale : scales) {
        int x = 6;
        for (const int mark : {0, 123, 234, 265, 349}) {
            const int w = width(mark) * scale.numerator / scale.denominator;
            const int h = height(mark) * scale.numerator / scale.denominator;
            sheet->DrawMark(x, y, x + w, y + h, MAROON, WHITE, mark);
            x += w + 6;
            if (scale.numerator == 2)
                continue;
            sheet->DrawMark(x, y, x + w, y + h, MAROON, -1, mark);
            x += w + 6;
        }
        y += 64 * scale.numerator / scale.denominator + 6;
    }
    expectGolden(sheet.picture(), "marks-scaled");
}

TEST_F(GoldenMarks, of_radio_buttons_and_check_boxes_at_the_heights_of_fonts)
{
    Sheet sheet(330, 264);
    int y = 6;
    for (const int size : {14, 16, 20, 24, 32, 48, 64}) {
        int x = 6;
        for (int mark = CONT_MARK; mark < CONT_MARK + CONT_BUILTINMARK; mark++) {
            sheet->DrawMark(x, y, x + size, y + size, BLACK, size > 32 ? WHITE : -1, mark);
            x += size + 8;
            if (size > 32)
                continue;
            sheet->DrawMark(x, y, x + size, y + size, BLUE, WHITE, mark);
            x += size + 8;
        }
        y += size + 6;
    }
    expectGolden(sheet.picture(), "marks-builtin");
}
