#include "app/PtrnTest1.h"

namespace
{
constexpr int kBlinkTicks = 50;
}

void CPtrnTest1::PtrnInitFunc()
{
    for (int i = 0; i < kBlinkMarks.count; i++) {
        Set_Flikr(kBlinkMarks.first + i, 0, nullptr, 0);
        BlinkTimr[i] = 0;
    }
}

void CPtrnTest1::PtrnMesgFunc(int no)
{
    if (!kBlinkMarks.holds(no))
        return;
    EOR_wData(no, 1, nullptr, 0);
    Set_Flikr(no, 1, nullptr, 0);
    BlinkTimr[no - kBlinkMarks.first] = kBlinkTicks;
}

void CPtrnTest1::PtrnTimrFunc()
{
    for (int i = 0; i < kBlinkMarks.count; i++)
        if (BlinkTimr[i] > 0 && --BlinkTimr[i] == 0)
            Set_Flikr(kBlinkMarks.first + i, 0, nullptr, 0);
}
