#include "app/PtrnTest4.h"

#include "app/Cells.h"
#include "app/Places.h"

namespace
{

constexpr int kSampleTicks = 5;
constexpr int kFirstColor = 50; ///< of the first series; the others follow
constexpr int kFullScale = 100;
constexpr int kBand = 10;                                      ///< a series moves within so many values
constexpr int kLowest[CPtrnTest4::kSeries] = {15, 35, 55, 75}; ///< of each series

/// length x part / whole
int Part(int length, int part, int whole)
{
    return static_cast<int>(std::int64_t{length} * part / whole);
}

} // namespace

void CPtrnTest4::PtrnInitFunc()
{
    Frame = ItemRect(*this, kTrendFrameCell, PTRN_RECT);
    Count = 0;
    Timr = 0;
}

void CPtrnTest4::PtrnDispFunc(CDraw* draw, int update)
{
    if (update) {
        if (++Timr < kSampleTicks)
            return;
        Timr = 0;
    }
    if (IsEmptyRect(Frame))
        return;

    PtrnDispData(draw, kTrendFrameCell, PTRN_RECT);
    TakeSamples();
    for (int series = 0; series < kSeries; series++)
        DrawSeries(draw, series);
    PtrnDispData(draw, kTrendOverlayCell, 0);
    if (Count == kSamples)
        Count = 0;
}

void CPtrnTest4::TakeSamples()
{
    std::uniform_int_distribution<int> within(0, kBand - 1);
    for (int series = 0; series < kSeries; series++)
        Samples[series][Count] = kLowest[series] + within(Random);
    Count++;
}

void CPtrnTest4::DrawSeries(CDraw* draw, int series) const
{
    const auto place = [&](int i) {
        return POINT{Frame.left + Part(Frame.width, i, kSamples),
                     Frame.top + Part(Frame.height, Samples[series][i], kFullScale)};
    };
    for (int i = 1; i < Count; i++) {
        const POINT from = place(i - 1);
        const POINT to = place(i);
        draw->DrawLine(from.x, from.y, to.x, to.y, 0, 1, 0, kFirstColor + series);
    }
}
