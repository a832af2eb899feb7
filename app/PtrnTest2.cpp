#include "app/PtrnTest2.h"

#include "app/Cells.h"
#include "app/Places.h"

namespace
{

static_assert(COLOR_TEXTS.count == COLOR_RADIOS.count);

void SetTextColors()
{
    for (int i = 0; i < COLOR_TEXTS.count; i++)
        Set_Color(COLOR_TEXTS.first + i, Get_iData(COLOR_RADIOS.first + i, nullptr, 0), nullptr, 0);
}

} // namespace

void CPtrnTest2::PtrnInitFunc()
{
    for (int i = 0; i < COLOR_TEXTS.count; i++) {
        Set_iData(COLOR_RADIOS.first + i, 1, nullptr, 0);
        Set_Color(COLOR_TEXTS.first + i, 0, nullptr, 0);
    }
    Set_iData(SAMPLE_VALUE_CELL, 0, nullptr, 0);
}

void CPtrnTest2::PtrnMesgFunc(int no)
{
    CloseOpened(*this);
    if (COLOR_MESSAGES.holds(no))
        SetTextColors();
    else if (no == POPUP_BUTTON_CELL)
        OpenPopupMenu(*this, ItemRect(*this, POPUP_BUTTON_CELL, PTRN_BUTN));
    else
        OpenChildOf(*this, no);

    for (const CheckedCell& row : COLOR_CHECKS)
        if (row.check == no)
            Set_Color(row.cell, Get_iData(no, nullptr, 0), nullptr, 0);
    for (const CheckedCell& row : BLINK_CHECKS)
        if (row.check == no)
            Set_Flikr(row.cell, Get_iData(no, nullptr, 0) ? 1 : 0, nullptr, 0);
}
