// Test screen "graphs": a trend that the screen class draws itself, in the frame of an item.
#pragma once

#include "tessary.h"

#include <random>

class CPtrnTest4 : public CPtrnDisp
{
  public:
    static constexpr int SERIES = 4;
    static constexpr int SAMPLES = 100; ///< across the frame

    void PtrnInitFunc() override;
    void PtrnDispFunc(CDraw* draw, int update) override;

  private:
    RECT Frame{};  ///< empty without the frame item
    int Count = 0; ///< samples taken so far in this sweep
    int Timr = 0;  ///< ticks since the last sample
    int Samples[SERIES][SAMPLES] = {};
    std::minstd_rand Random;

    void TakeSamples();
    void DrawSeries(CDraw* draw, int series) const;
};
