// The blinking of items: shown for FLIKER_ON ticks, blanked for FLIKER_OFF ticks, for ever.
#include "config/Edition.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

using namespace tessary;

namespace
{

bool Flickers(const ItemClass& type, const PTRNDATA& item)
{
    return type.blink && IsUsable(item) &&
           (item.Parm[type.blinkParm] != 0 || (item.wData & STATE_FLICKER) != 0);
}

} // namespace

bool tessary::Blinks(const PTRNDATA& item)
{
    const ItemClass* type = FindItemClass(item.Type);
    return type && IsUsable(item) &&
           ((item.wData & STATE_FLICKER) != 0 || (type->blinkParm >= 0 && item.Parm[type->blinkParm] != 0));
}

void CPtrnData::FlikPtrnData(CDraw* draw)
{
    if (++FlikerTimr < (FlikerFlag ? FLIKER_ON : FLIKER_OFF))
        return;
    FlikerTimr = 0;
    FlikerFlag = FlikerFlag ? 0 : 1;

    if (Has(Correction::Blinking)) {
        FlikLayers(draw);
        return;
    }
    // In file order, with the state of the last display or update rather than the cell's of this moment.
    for (int i = 0; i < PtrnCont; ++i) {
        const ItemClass* type = FindItemClass(PtrnData[i].Type);
        if (type && Flickers(*type, PtrnData[i]))
            type->blink(draw, &PtrnData[i], FlikerFlag);
    }
}
