#include "app/PtrnTest1.h"

namespace
{
constexpr int BLINK_TICKS = 50;
}

void CPtrnTest1::PtrnInitFunc()
{
    for (int i = 0; i < BLINK_MARKS.count; i++) {
        Set_Flikr(BLINK_MARKS.first + i, 0, nullptr, 0);
        BlinkTimr[i] = 0;
    }
}

void CPtrnTest1::PtrnMesgFunc(int no)
{
    if (!BLINK_MARKS.holds(no))
        return;
    EOR_wData(no, 1, nullptr, 0);
    Set_Flikr(no, 1, nullptr, 0);
    BlinkTimr[no - BLINK_MARKS.first] = BLINK_TICKS;
}

void CPtrnTest1::PtrnTimrFunc()
{
    for (int i = 0; i < BLINK_MARKS.count; i++)
        if (BlinkTimr[i] > 0 && --BlinkTimr[i] == 0)
            Set_Flikr(BLINK_MARKS.first + i, 0, nullptr, 0);
}
