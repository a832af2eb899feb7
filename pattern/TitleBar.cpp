// The frame of every pattern: title bar with logo, title, clock and hard-copy button, body background, bottom
// band and outer frame; all from the header parameters.
#include "pattern/TitleBar.h"

#include "base/Box.h"
#include "base/Coord.h"
#include "comndata/ClockCells.h"
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "draw/Images.h"
#include "log/Clock.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"

#include <cstdio>
#include <iterator>

using namespace tessary;

const char* const Week1[7] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
const char* const Week2[7] = {"日", "月", "火", "水", "木", "金", "土"};

namespace
{

/// First of the clock formats with Japanese weekday names.
constexpr int CLOCK_JAPANESE = 4;

/// Formats 1..6; those without the time leave the last arguments unused.
constexpr const char* CLOCK_FORMATS[] = {
    "%04d/%02d/%02d (%s)",
    "%04d/%02d/%02d (%s) %02d:%02d",
    "%04d/%02d/%02d (%s) %02d:%02d:%02d",
    "%04d年%02d月%02d日 (%s)",
    "%04d年%02d月%02d日 (%s) %02d時%02d分",
    "%04d年%02d月%02d日 (%s) %02d時%02d分%02d秒",
};

/// The clock stands in the title bar, so a pattern without the bar has none; formats outside 1..6 show none.
bool HasClock(const PTRNHEDR& header)
{
    const int format = header.Parm1[HEDR_CLOCK];
    return header.Parm1[HEDR_TITLE_HEIGHT] && format >= 1 &&
           format <= static_cast<int>(std::size(CLOCK_FORMATS));
}

/// Fills a box; nothing when a header that does not fit its own pattern leaves none.
void Fill(CDraw* draw, int x1, int y1, int x2, int y2, int colr)
{
    if (x1 <= x2 && y1 <= y2)
        draw->DrawRect(x1, y1, x2, y2, 0, 0, colr, colr);
}

/// Space above the title's line, which is centred in the bar.
int TitleMargin(const PTRNHEDR& header, int line)
{
    return Saturate((std::int64_t{header.Parm1[HEDR_TITLE_HEIGHT]} - line) / 2);
}

void DrawTitleText(CDraw* draw, const PTRNHEDR& header, int x0, int line, int margin)
{
    const int font = header.Parm1[HEDR_TITLE_FONT];
    const SIZE size = draw->GetTextSize(font, header.PtrnName);
    const int x = header.Parm1[HEDR_TITLE_CENTERED]
                      ? Saturate((std::int64_t{header.Parm1[HEDR_WIDTH]} - size.cx) / 2)
                      : Shift(x0, line / 2);
    draw->DrawText(x, margin, font, header.Parm1[HEDR_TITLE_COLOR], header.Parm1[HEDR_TITLE_BACK],
                   header.PtrnName);
}

void DrawBody(CDraw* draw, const PTRNHEDR& header)
{
    const int width = header.Parm1[HEDR_WIDTH];
    const int height = header.Parm1[HEDR_HEIGHT];
    const int top = header.Parm1[HEDR_TITLE_HEIGHT];
    const int bottom = Saturate(std::int64_t{height} - header.Parm1[HEDR_BAND_HEIGHT]);
    const int colr = header.Parm1[HEDR_BODY_COLOR];
    if (header.BmapName[0]) {
        if (width >= 0 && top <= bottom)
            draw->DrawBmap(0, top, width, bottom, -1, header.BmapName);
    } else if (header.Parm1[HEDR_BODY_SHADED]) {
        draw->DrawRect(0, top, width, bottom, colr);
    } else {
        Fill(draw, 0, top, width, bottom, colr);
    }
    if (header.Parm1[HEDR_BAND_HEIGHT])
        Fill(draw, 0, bottom, width, height, header.Parm1[HEDR_BAND_COLOR]);
}

void DrawOuterFrame(CDraw* draw, const PTRNHEDR& header)
{
    const int width = header.Parm1[HEDR_WIDTH];
    const int height = header.Parm1[HEDR_HEIGHT];
    if (header.Parm1[HEDR_KIND] == 1 && header.Parm1[HEDR_FRAME_WIDTH] && width >= 0 && height >= 0)
        draw->DrawRect(0, 0, width, height, header.Parm1[HEDR_FRAME_WIDTH], 1, header.Parm1[HEDR_FRAME_COLOR],
                       -1);
}

} // namespace

int tessary::ClockLength(int format)
{
    if (format < 1 || format > static_cast<int>(std::size(CLOCK_FORMATS)))
        return 0;
    const char* const name = format < CLOCK_JAPANESE ? Week1[0] : Week2[0];
    return std::snprintf(nullptr, 0, CLOCK_FORMATS[format - 1], 2000, 1, 1, name, 0, 0, 0);
}

/// Fills the bar and draws everything in it but the clock.
void CPtrnData::DrawTitleBar(CDraw* draw)
{
    const auto& parm = PtrnHedr.Parm1;
    Fill(draw, 0, 0, parm[HEDR_WIDTH], parm[HEDR_TITLE_HEIGHT], parm[HEDR_TITLE_BACK]);
    const int line = FontCell(parm[HEDR_TITLE_FONT]).cy;
    const int margin = TitleMargin(PtrnHedr, line);
    int x0 = 0;
    if (parm[HEDR_LOGO] && PtrnHedr.LogoName[0]) {
        LogoMarkButn = SetRect(margin, margin, Shift(margin, line), Shift(margin, line));
        draw->DrawBmap(LogoMarkButn, -1, PtrnHedr.LogoName);
        x0 = Shift(line, margin);
    }
    DrawTitleText(draw, PtrnHedr, x0, line, margin);
    PtrnCalnPos = margin;
    if (parm[HEDR_HARDCOPY]) {
        const int right = Saturate(std::int64_t{parm[HEDR_WIDTH]} - margin);
        HardCopyButn = SetRect(Shift(right, -line), margin, right, Shift(margin, line));
        draw->DrawXpm(HardCopyButn, XPM_Printer);
        PtrnCalnPos = Saturate(2 * std::int64_t{margin} + line);
    }
}

void CPtrnData::DispTitle(CDraw* draw)
{
    if (PtrnHedr.Parm1[HEDR_TITLE_HEIGHT]) {
        DrawTitleBar(draw);
        DispCalender(draw);
    }
    DrawBody(draw, PtrnHedr);
    DrawOuterFrame(draw, PtrnHedr);
}

void CPtrnData::RestoreTitle(CDraw* draw, const Box& area)
{
    // The body covers what sticks out of the bar, unless its bitmap does not cover it.
    const bool bare = PtrnHedr.BmapName[0] != '\0';
    if (bare && DrawBelow)
        DrawBelow(draw);
    const int height = PtrnHedr.Parm1[HEDR_TITLE_HEIGHT];
    if (height && (bare || area.top < height)) {
        DrawTitleBar(draw);
        if (HasClock(PtrnHedr))
            DrawClock(draw);
    }
    DrawBody(draw, PtrnHedr);
    DrawOuterFrame(draw, PtrnHedr);
}

void CPtrnData::DispCalender(CDraw* draw)
{
    if (!HasClock(PtrnHedr))
        return;
    int caln[7];
    Get_Caln(caln);
    if (caln[6] == PtrnCalnSec)
        return;
    PtrnCalnSec = caln[6];
    if (Has(Correction::Layers))
        RestoreClock(draw);
    else
        DrawClock(draw);
}

void CPtrnData::DrawClock(CDraw* draw)
{
    int caln[7];
    Get_Caln(caln);
    const auto [year, month, day, weekday, hour, minute, second] = caln;
    const auto& parm = PtrnHedr.Parm1;
    const auto& names = parm[HEDR_CLOCK] < CLOCK_JAPANESE ? Week1 : Week2;
    const char* const name = weekday >= 0 && weekday < 7 ? names[weekday] : "";
    char text[128];
    std::snprintf(text, sizeof text, CLOCK_FORMATS[parm[HEDR_CLOCK] - 1], year, month, day, name, hour,
                  minute, second);

    // The box behind the text erases the one drawn before, which is as long.
    const int font = parm[HEDR_CLOCK_FONT];
    const SIZE size = draw->GetTextSize(font, text);
    const int x = Saturate(std::int64_t{parm[HEDR_WIDTH]} - size.cx - PtrnCalnPos);
    const int y = Saturate((std::int64_t{parm[HEDR_TITLE_HEIGHT]} - size.cy) / 2);
    draw->DrawText(x, y, font, parm[HEDR_TITLE_COLOR], parm[HEDR_TITLE_BACK], text);
}

int CPtrnData::TestTitle(POINT point, int butn)
{
    const auto& parm = PtrnHedr.Parm1;
    if (parm[HEDR_TITLE_HEIGHT] == 0 ||
        !PointInRect(point, SetRect(0, 0, parm[HEDR_WIDTH], parm[HEDR_TITLE_HEIGHT])))
        return 0;
    if (butn == 0)
        return 1;
    if (parm[HEDR_LOGO] && PointInRect(point, LogoMarkButn))
        return (butn == 1 && parm[HEDR_LOGO_LEFT]) || (butn == 2 && parm[HEDR_LOGO_RIGHT]);
    if (parm[HEDR_HARDCOPY] && PointInRect(point, HardCopyButn))
        return 2;
    return parm[HEDR_KIND] == 1 ? 3 : 0;
}
