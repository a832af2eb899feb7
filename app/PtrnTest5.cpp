#include "app/PtrnTest5.h"

#include "app/Cells.h"
#include "app/Input.h"
#include "app/Places.h"

namespace
{

/// What lights up each of the areas while the pointer is over it.
struct Gesture {
    int button;
    int state;
};
constexpr Gesture GESTURES[] = {
    {MOUSE_NONE, MODIFIER_NONE},
    {MOUSE_NONE, MODIFIER_SHIFT},
    {MOUSE_LEFT, MODIFIER_SHIFT},
    {MOUSE_RIGHT, MODIFIER_CONTROL},
};
static_assert(sizeof GESTURES / sizeof GESTURES[0] == MOUSE_AREAS.count);

} // namespace

// The count of cells that are cleared follows from the code that a lamp belongs to: one large code that holds
// all lamps is cleared from the first one on, small ones with high numbers keep what they have.
void CPtrnTest5::PtrnInitFunc()
{
    Clear_AllData(LEFT_LAMPS.first, nullptr, 0);
    Clear_AllData(RIGHT_LAMPS.first, nullptr, 0);
}

void CPtrnTest5::PtrnMesgFunc(int no)
{
    CloseOpened(*this);
    if (LEFT_LAMPS.holds(no))
        EOR_wData(no, 1, nullptr, 0);
    else
        OpenChildOf(*this, no);
}

void CPtrnTest5::PtrnRbtnFunc(int no)
{
    CloseOpened(*this);
    if (RIGHT_LAMPS.holds(no))
        EOR_wData(no, 1, nullptr, 0);
}

int CPtrnTest5::PtrnMouseFunc(POINT pt, int button, int state)
{
    PTRNDATA item;
    const bool overItem = PtrnTestData(pt, &item) == 1;
    CursorType = overItem ? CURSOR_CROSS : CURSOR_ARROW;
    if (!overItem && button == MOUSE_RIGHT && state == MODIFIER_NONE)
        OpenPopupMenu(*this, SetRect(pt.x, pt.y, pt.x, pt.y));

    int overArea = 0;
    for (int i = 0; i < MOUSE_AREAS.count; i++) {
        const int no = MOUSE_AREAS.first + i;
        const bool under = PtrnTestData(pt, no, PTRN_RECT) == 1;
        const bool lit = under && button == GESTURES[i].button && state == GESTURES[i].state;
        Set_Color(no, lit ? 1 : 0, nullptr, 0);
        overArea |= under;
    }
    return overArea;
}
