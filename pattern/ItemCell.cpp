#include "pattern/ItemCell.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"

void tessary::ReadCell(PTRNDATA* item)
{
    item->wData = Get_wData(item->DataNo, nullptr, 0);
    item->fData = Get_fData(item->DataNo, nullptr, 0);
    CopyText(item->sData, Get_sData(item->DataNo, nullptr, 0));
}
