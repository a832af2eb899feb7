// What a screen class reads and sets of its own pattern: view offset, scroll bars, items, headers.
#include "base/StateWord.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/PtrnCode.h"
#include "config/Edition.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "pattern/ItemCell.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnHedr.h"
#include "window/PtrnDisp.h"
#include "window/WindowCodes.h"

#include <cstring>
#include <string>

using namespace tessary;

void CPtrnDisp::PtrnSetOffset(int target, int x, int y, const char* file, int line)
{
    if (target != VIEW_SELF) {
        CPtrnDisp* const other = target == VIEW_CHILD1   ? ChildWnd1
                                 : target == VIEW_CHILD2 ? ChildWnd2
                                 : target == VIEW_PARENT ? ParentWnd
                                                         : nullptr;
        if (other)
            other->PtrnSetOffset(VIEW_SELF, x, y, nullptr, 0);
        return;
    }
    Offset = {x, y};
    PtrnUpdate();
    if (file)
        LogText(CATEGORY_WINDOW, file, line, "表示開始位置設定  [%d / (%d,%d)]", target, x, y);
}

void CPtrnDisp::PtrnSetScroll(int dataNo, int total, int pos, const char* file, int line)
{
    char name[SIZE_DTNONAME] = "";
    const int named = ConvertDtno(dataNo, name);

    PTRNDATA bar;
    if (!PtrnReadData(dataNo, PTRN_SBAR, &bar)) {
        LogText(CATEGORY_WINDOW, file, line, "スクロールバー設定エラー  [%s]", name);
        return;
    }
    bar.Parm[SBAR_TOTAL] = total;
    PtrnWriteData(&bar);

    const int visible = bar.Parm[SBAR_VISIBLE];
    if (total > visible) {
        Set_Disable(bar.DataNo, 0, 1, nullptr, 0);
        // A position past the end snaps back to the top, not to the last page.
        if (pos < 0 || std::int64_t{pos} + visible > total)
            pos = 0;
        Set_iData(bar.DataNo, pos, nullptr, 0);
    } else {
        Set_Disable(bar.DataNo, 1, 1, nullptr, 0);
    }
    if (file && named)
        LogText(CATEGORY_WINDOW, file, line, "スクロールバー設定  [%s / (%d,%d)]", name, total, pos);
}

void CPtrnDisp::PtrnDispData(CDraw* draw, int dataNo, int type)
{
    if (Has(Correction::Layers)) {
        PtrnData->RedrawPtrnData(draw, dataNo, type);
        return;
    }
    for (int i = 0; i < PtrnData->PtrnCont; i++) {
        PTRNDATA item = PtrnData->PtrnData[i];
        if (item.DataNo != dataNo || (type != 0 && item.Type != type))
            continue;
        ReadCell(&item);
        if (IsHidden(item.wData))
            PtrnData->ClerPtrnData(draw, &item);
        else
            PtrnData->DispPtrnData(draw, &item, 1);
        PtrnData->WritePtrnData(&item);
    }
}

int CPtrnDisp::PtrnTestData(POINT pt, PTRNDATA* out)
{
    const int index = PtrnData->TestPtrnData(pt);
    if (index < 0)
        return 0;
    *out = PtrnData->PtrnData[index];
    return 1;
}

int CPtrnDisp::PtrnTestData(POINT pt, int dataNo, int type)
{
    for (int i = 0; i < PtrnData->PtrnCont; i++) {
        PTRNDATA& item = PtrnData->PtrnData[i];
        if (item.Type == type && item.DataNo == dataNo && !IsHidden(item.wData) &&
            PtrnData->TestPtrnData(pt, &item))
            return 1;
    }
    return 0;
}

PTRNHEDR CPtrnDisp::PtrnReadHedr()
{
    return PtrnData->PtrnHedr;
}

int CPtrnDisp::PtrnReadHedr(const char* name, PTRNHEDR* out)
{
    return ReadHedr(name, out);
}

int CPtrnDisp::PtrnReadData(int dataNo, int type, PTRNDATA* out)
{
    return PtrnData->ReadPtrnData(dataNo, type, out);
}

void CPtrnDisp::PtrnWriteData(PTRNDATA* item)
{
    PtrnData->WritePtrnData(item);
}
