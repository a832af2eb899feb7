// The fields as a panel: a program with a pattern, started like any other with the profile beside it.
#include "bench/compare/Fields.h"
#include "comndata/ComnData.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"

CPtrnDisp* GetPtrnWnd(const char*)
{
    return new CPtrnDisp;
}
int UserInit()
{
    return 1;
}
void UserExit() {}

void UserTimr()
{
    const int next = NextTick();
    const int tick = IsQuiet() ? 0 : next; // the plant's values are set also when they are the same
    for (int field = 0; field < FIELD_COUNT; field++)
        Set_fData(DTNO_SYSTEM + field, FieldValue(tick, field), nullptr, 0);
}
