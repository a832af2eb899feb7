// The sample application's hooks: a generator of moving values for the test screens.
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "window/Registry.h"

namespace
{

// Cells of the sample project.
constexpr int kCounter = 111;
constexpr int kCounterCopy = 1549;
constexpr int kColors[] = {438, 437, 110};

/// Counts up and wraps from `last` to 0.
int CountUp(int& counter, int last)
{
    counter = counter < last ? counter + 1 : 0;
    return counter;
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

    CountUp(timr, 99);
    if (timr % 10 == 0) {
        CountUp(data, 99);
        Set_iData(kCounter, data, nullptr, 0);
        Set_iData(kCounterCopy, data, nullptr, 0);
        Set_Color(kCounter, data < 50 ? 0 : 1, nullptr, 0);
    }
    if (timr % 50 == 0) {
        CountUp(colr, 3);
        for (const int no : kColors)
            Set_wData(no, static_cast<WORD>(colr), nullptr, 0);
    }
}
