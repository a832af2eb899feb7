// Which item lies under the pointer.
#include "draw/HitTest.h"

#include "base/Coord.h"
#include "base/EucText.h"
#include "draw/DrawCntl.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

using namespace tessary;

int CPtrnData::TestPtrnData(POINT point)
{
    const int found = TestPtrnData(point, 1);
    return found >= 0 ? found : TestPtrnData(point, 0);
}

int CPtrnData::TestPtrnData(POINT point, int top)
{
    RenewDrawOrder(); // as for a full display: a type or pass may have been changed in place
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
    const tessary::ItemClass* type = tessary::FindItemClass(item->Type);
    return type ? type->hit(point, item) : 0;
}
