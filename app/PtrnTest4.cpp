#include "app/PtrnTest4.h"

#include "app/Cells.h"
#include "app/Places.h"

namespace
{

constexpr int SAMPLE_TICKS = 5;
constexpr int FIRST_COLOR = 50; ///< of the first series; the others follow
constexpr int FULL_SCALE = 100;
constexpr int BAND = 10;                                     ///< a series moves within so many values
constexpr int LOWEST[CPtrnTest4::SERIES] = {15, 35, 55, 75}; ///< of each series

/// length x part / whole
int Part(int length, int part, int whole)
{
    return static_cast<int>(std::int64_t{length} * part / whole);
}

} // namespace

void CPtrnTest4::PtrnInitFunc()
{
    Frame = ItemRect(*this, TREND_FRAME_CELL, PTRN_RECT);
    Count = 0;
    Timr = 0;
}

void CPtrnTest4::PtrnDispFunc(CDraw* draw, int update)
{
    if (update) {
        if (++Timr < SAMPLE_TICKS)
            return;
        Timr = 0;
    }
    if (IsEmptyRect(Frame))
        return;

    PtrnDispData(draw, TREND_FRAME_CELL, PTRN_RECT);
    TakeSamples();
    for (int series = 0; series < SERIES; series++)
        DrawSeries(draw, series);
    PtrnDispData(draw, TREND_OVERLAY_CELL, 0);
    if (Count == SAMPLES)
        Count = 0;
}

void CPtrnTest4::TakeSamples()
{
    std::uniform_int_distribution<int> within(0, BAND - 1);
    for (int series = 0; series < SERIES; series++)
        Samples[series][Count] = LOWEST[series] + within(Random);
    Count++;
}

void CPtrnTest4::DrawSeries(CDraw* draw, int series) const
{
    const auto place = [&](int i) {
        return POINT{Frame.left + Part(Frame.width, i, SAMPLES),
                     Frame.top + Part(Frame.height, Samples[series][i], FULL_SCALE)};
    };
    for (int i = 1; i < Count; i++) {
        const POINT from = place(i - 1);
        const POINT to = place(i);
        draw->DrawLine(from.x, from.y, to.x, to.y, 0, 1, 0, FIRST_COLOR + series);
    }
}
