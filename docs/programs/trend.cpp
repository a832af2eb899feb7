// A trend: a sample of a cell every second, drawn as a line into the frame of a rectangle of the pattern.
#include <tessary/tessary.h>

#include <algorithm>
#include <cstring>
#include <deque>

namespace
{

constexpr int SPEED = 100;
constexpr int TREND_FRAME = 101; ///< a filled rectangle
constexpr int LINE_COLOR = 7;    ///< of the project's colours
constexpr int SAMPLES = 60;
constexpr float FULL_SCALE = 100;
constexpr int TICKS_OF_SAMPLE = 10;

class TrendWnd : public CPtrnDisp
{
  public:
    void PtrnTimrFunc() override
    {
        if (++Ticks % TICKS_OF_SAMPLE != 0)
            return;
        Samples.push_back(Get_fData(SPEED, nullptr, 0));
        if (Samples.size() > SAMPLES)
            Samples.pop_front();
        Changed = true;
    }

    // Mode 0: everything has just been painted, the trend is missing. Mode 1: a tick; most have nothing to
    // do.
    void PtrnDispFunc(CDraw* draw, int mode) override
    {
        if (mode == 1 && !Changed)
            return;
        Changed = false;
        PTRNDATA frame;
        if (PtrnReadData(TREND_FRAME, PTRN_RECT, &frame) != 1)
            return;
        PtrnDispData(draw, TREND_FRAME, PTRN_RECT); // covers the line drawn before
        for (std::size_t i = 1; i < Samples.size(); ++i) {
            const POINT from = Place(frame.Rect, i - 1);
            const POINT to = Place(frame.Rect, i);
            draw->DrawLine(from.x, from.y, to.x, to.y, 0, 1, 0, LINE_COLOR);
        }
    }

  private:
    POINT Place(const RECT& frame, std::size_t i) const
    {
        const float part = std::min(std::max(Samples[i] / FULL_SCALE, 0.0F), 1.0F);
        const int x = frame.left + frame.width * static_cast<int>(i) / (SAMPLES - 1);
        const int y = frame.bottom - static_cast<int>(static_cast<float>(frame.height) * part);
        return {x, y};
    }

    std::deque<float> Samples;
    int Ticks = 0;
    bool Changed = false;
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return std::strcmp(name, "Trend") == 0 ? new TrendWnd : nullptr;
}

int UserInit()
{
    return 1;
}

void UserExit() {}

void UserTimr() {}
