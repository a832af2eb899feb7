// The sample application's hooks: a generator of moving values for the test screens, and what the stop window
// says.
#include "app/Cells.h"
#include "tessary.h"

namespace
{

/// Counts up and wraps from `last` to 0.
int CountUp(int& counter, int last)
{
    counter = counter < last ? counter + 1 : 0;
    return counter;
}

/// The stop window asks at first and is shown again as the notice of the stop. Nothing takes that back, so
/// that the window offers nothing any more.
void TellStop()
{
    static bool told = false;
    const bool stopping = WaitTimer != 0;
    if (told == stopping)
        return;
    told = stopping;
    Set_Disable(STOP_ASK_CELL, stopping, 1, nullptr, 0);
    Set_Color(STOP_TELL_CELL, stopping, nullptr, 0);
}

} // namespace

int UserInit()
{
    return 1;
}

void UserExit() {}

void UserTimr()
{
    static int timr = 0;
    static int data = 0;
    static int colr = 0;

    TellStop();

    CountUp(timr, 99);
    if (timr % 10 == 0) {
        CountUp(data, 99);
        Set_iData(COUNTER_CELL, data, nullptr, 0);
        Set_iData(COUNTER_COPY_CELL, data, nullptr, 0);
        Set_Color(COUNTER_CELL, data < 50 ? 0 : 1, nullptr, 0);
    }
    if (timr % 50 == 0) {
        CountUp(colr, 3);
        for (const int no : COLOR_STEP_CELLS)
            Set_wData(no, static_cast<WORD>(colr), nullptr, 0);
    }
}
