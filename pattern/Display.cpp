// Which items are drawn, in which order and with which data.
#include "pattern/ItemCell.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

using namespace tessary;

namespace
{

/// Looks at the cell in place: this is all that a tick costs for an item that has not changed. A value that
/// is no number differs from itself, so its items are drawn at every tick.
bool ShowsItsCell(const PTRNDATA& item)
{
    const COMNDATA& cell = CellOf(item);
    return item.wData == cell.wData && item.fData == cell.fData && SameText(item, cell.sData);
}

} // namespace

void CPtrnData::DispPtrnData(CDraw* draw)
{
    DispPtrnData(draw, 0);
    DispPtrnData(draw, 1);
}

void CPtrnData::DispPtrnData(CDraw* draw, int top)
{
    RenewDrawOrder(); // the records are public: a type or pass may have been changed in place
    if (Has(Correction::Layers)) {
        DispLayers(draw, top);
        return;
    }
    const auto [first, last] = PassPlaces(top);
    for (auto place = first; place != last; ++place) {
        PTRNDATA item = PtrnData[place->Recd];
        const bool neverShown = (item.wData & STATE_NEVER) != 0;
        ReadCell(&item);
        ShowPtrnData(draw, &item, 0);
        // Only the first display stores what it drew. Later ones leave the cached values alone, so that the
        // update goes on comparing with what it saw itself.
        if (neverShown)
            WritePtrnData(&item);
    }
}

void CPtrnData::UpdtPtrnData(CDraw* draw)
{
    if (Has(Correction::Layers)) {
        UpdtLayers(draw, {0, 1});
        return;
    }
    UpdtPtrnData(draw, 0);
    UpdtPtrnData(draw, 1);
}

void CPtrnData::UpdtPtrnData(CDraw* draw, int top)
{
    if (Has(Correction::Layers)) {
        UpdtLayers(draw, {top});
        return;
    }
    const auto [first, last] = PassPlaces(top);
    for (auto place = first; place != last; ++place) {
        const PTRNDATA& shown = PtrnData[place->Recd];
        if (!shown.ID_Code[0] || ShowsItsCell(shown))
            continue;
        PTRNDATA item = shown;
        ReadCell(&item);
        if (!(item.wData & STATE_FROZEN))
            ShowPtrnData(draw, &item, 1);
        WritePtrnData(&item);
    }
}

void CPtrnData::ShowPtrnData(CDraw* draw, PTRNDATA* item, int updt)
{
    if (item->wData & STATE_HIDDEN)
        ClerPtrnData(draw, item);
    else
        DispPtrnData(draw, item, updt);
}

void CPtrnData::DispPtrnData(CDraw* draw, PTRNDATA* item, int updt)
{
    if (const ItemClass* type = FindItemClass(item->Type))
        type->draw(*this, draw, item, updt);
}

void CPtrnData::ClerPtrnData(CDraw* draw, PTRNDATA* item)
{
    if (const ItemClass* type = FindItemClass(item->Type))
        type->erase(draw, item);
}
