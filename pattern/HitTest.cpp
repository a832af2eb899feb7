// Which item lies under the pointer.
#include "draw/HitTest.h"

#include "base/Coord.h"
#include "base/EucText.h"
#include "draw/DrawCntl.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

int CPtrnData::TestPtrnData(POINT point)
{
    const int found = TestPtrnData(point, 1);
    return found >= 0 ? found : TestPtrnData(point, 0);
}

int CPtrnData::TestPtrnData(POINT point, int top)
{
    BuildDrawOrder(); // as for a full display: a type or pass may have been changed in place
    // Types from the topmost down, but items of one type from the first in the file on, although the last
    // of them is drawn on top.
    for (int rank = CONT_PTRN - 1; rank >= 0; --rank) {
        const auto [first, last] = TypePlaces(top, rank);
        for (auto place = first; place != last; ++place) {
            PTRNDATA& item = PtrnData[place->Recd];
            if ((item.wData & (STATE_HIDDEN | STATE_FROZEN)) != 0)
                continue;
            // An item that neither does nor shows anything lets the pointer through.
            if (item.ID_Type == 0 && item.DataNo == 0)
                continue;
            if (TestPtrnData(point, &item))
                return item.Recd;
        }
    }
    return -1;
}

int CPtrnData::TestPtrnData(POINT point, PTRNDATA* item)
{
    const ItemOps* ops = FindItemOps(item->Type);
    return ops ? (this->*ops->Test)(point, item) : 0;
}

int CPtrnData::TestPtrnData01(POINT point, PTRNDATA* item)
{
    return TestRect(point, item->Rect);
}

int CPtrnData::TestPtrnData02(POINT point, PTRNDATA* item)
{
    // The ordered corners: a rising line is tested along the falling diagonal of its box.
    return TestLine(point, item->Rect);
}

int CPtrnData::TestPtrnData06(POINT point, PTRNDATA* item)
{
    const SIZE cell = FontCell(item->Parm[TEXT_FONT]);
    const std::int64_t width = std::int64_t{cell.cx} * item->Parm[FIELD_WIDTH];
    const int right = Saturate(item->Parm[PARM_X1] + width);
    const int bottom = Shift(item->Parm[PARM_Y1], cell.cy);
    return TestRect(point, SetRect(item->Parm[PARM_X1], item->Parm[PARM_Y1], right, bottom));
}

int CPtrnData::TestPtrnData10(POINT point, PTRNDATA* item)
{
    const int height = FontCell(item->Parm[CHECK_FONT]).cy;
    const int left = item->Parm[PARM_X1];
    const int top = item->Parm[PARM_Y1];
    if (PointInRect(point, left, top, Shift(left, height), Shift(top, height)))
        return 1;
    const int label = Shift(left, Saturate(std::int64_t{3} * height / 2));
    return TestText(point, label, top, item->Parm[CHECK_FONT], item->Text);
}
