// The blinking of items: shown for FLIKER_ON ticks, blanked for FLIKER_OFF ticks, for ever.
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/Press.h"
#include "pattern/PtrnData.h"

namespace
{

bool Flickers(const PTRNDATA& item)
{
    return IsUsable(item) && (item.Parm[TEXT_FLICKER] != 0 || (item.wData & STATE_FLICKER) != 0);
}

} // namespace

void CPtrnData::FlikPtrnData(CDraw* draw)
{
    static_assert(static_cast<int>(TEXT_FLICKER) == static_cast<int>(MARK_FLICKER));

    if (++FlikerTimr < (FlikerFlag ? FLIKER_ON : FLIKER_OFF))
        return;
    FlikerTimr = 0;
    FlikerFlag = FlikerFlag ? 0 : 1;

    // In file order, with the state of the last display or update rather than the cell's of this moment.
    for (int i = 0; i < PtrnCont; ++i) {
        const ItemOps* ops = FindItemOps(PtrnData[i].Type);
        if (ops && ops->Flik && Flickers(PtrnData[i])) {
            PTRNDATA item = PtrnData[i];
            (this->*ops->Flik)(draw, &item, FlikerFlag);
        }
    }
}
