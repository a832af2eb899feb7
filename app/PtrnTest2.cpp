#include "app/PtrnTest2.h"

#include "app/Cells.h"
#include "app/Places.h"

namespace
{

static_assert(kColorTexts.count == kColorRadios.count);

void SetTextColors()
{
    for (int i = 0; i < kColorTexts.count; i++)
        Set_Color(kColorTexts.first + i, Get_iData(kColorRadios.first + i, nullptr, 0), nullptr, 0);
}

} // namespace

void CPtrnTest2::PtrnInitFunc()
{
    for (int i = 0; i < kColorTexts.count; i++) {
        Set_iData(kColorRadios.first + i, 1, nullptr, 0);
        Set_Color(kColorTexts.first + i, 0, nullptr, 0);
    }
    Set_iData(kSampleValueCell, 0, nullptr, 0);
}

void CPtrnTest2::PtrnMesgFunc(int no)
{
    CloseOpened(*this);
    if (kColorMessages.holds(no))
        SetTextColors();
    else if (no == kPopupButtonCell)
        OpenPopupMenu(*this, ItemRect(*this, kPopupButtonCell, PTRN_BUTN));
    else
        OpenChildOf(*this, no);

    for (const CheckedCell& row : kColorChecks)
        if (row.check == no)
            Set_Color(row.cell, Get_iData(no, nullptr, 0), nullptr, 0);
    for (const CheckedCell& row : kBlinkChecks)
        if (row.check == no)
            Set_Flikr(row.cell, Get_iData(no, nullptr, 0) ? 1 : 0, nullptr, 0);
}
