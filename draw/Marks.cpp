// Marks: from the bits of the project's file to XPM text.
#include "draw/Images.h"
#include "draw/Resource.h"
#include "draw/ResourceLoad.h"

#include "base/EucText.h"

#include <cstdio>
#include <cstring>

using namespace tessary;

MARKDATA MarkData[CONT_MARK];
MARK_XPM Mark_XPM[CONT_MARK + CONT_BUILTINMARK];

const int MarkXsize[CONT_MARKGROUP] = {16, 16, 32, 32, 64, 32, 64};
const int MarkYsize[CONT_MARKGROUP] = {32, 32, 32, 32, 32, 64, 64};

namespace
{

constexpr int FIRST_ROW = 3; // after the header and two colour lines

void DrawRow(char* line, const MARKDATA& bits, int first, int width)
{
    for (int column = 0; column < width; ++column) {
        const int bit = first + column;
        line[column] = bits.mark[bit / 8] & 1 << bit % 8 ? 'X' : '.';
    }
    line[width] = '\0';
}

void CopyLines(MARK_XPM& entry, char* const (&lines)[CONT_BUILTINLINE])
{
    for (int line = 0; line < CONT_BUILTINLINE; ++line)
        CopyText(entry.data[line], lines[line]);
}

} // namespace

void MarkDataSet()
{
    for (int mark = 0; mark < CONT_MARK; ++mark) {
        const int width = MarkXsize[mark / SIZE_MARKGROUP];
        const int height = MarkYsize[mark / SIZE_MARKGROUP];
        auto& lines = Mark_XPM[mark].data;
        std::snprintf(lines[0], sizeof lines[0], "%d %d 2 1", width, height);
        lines[1][0] = '\0';
        lines[2][0] = '\0';
        for (int row = 0; row < height; ++row)
            DrawRow(lines[FIRST_ROW + row], MarkData[mark], row * width, width);
    }
}

void MarkDataInit()
{
    for (MARK_XPM& entry : Mark_XPM)
        for (int line = 0; line < CONT_MARKLINE; ++line)
            entry.mark[line] = entry.data[line];

    CopyLines(Mark_XPM[CONT_MARK + 0], XPM_Radio_OFF);
    CopyLines(Mark_XPM[CONT_MARK + 1], XPM_Radio_ON);
    CopyLines(Mark_XPM[CONT_MARK + 2], XPM_Check_OFF);
    CopyLines(Mark_XPM[CONT_MARK + 3], XPM_Check_ON);
}

void tessary::MarkExit()
{
    std::memset(MarkData, 0, sizeof MarkData);
    std::memset(Mark_XPM, 0, sizeof Mark_XPM);
}

SIZE tessary::MarkSize(int mark)
{
    if (mark < 0 || mark >= CONT_MARK)
        return {16, 16};
    return {MarkXsize[mark / SIZE_MARKGROUP], MarkYsize[mark / SIZE_MARKGROUP]};
}
