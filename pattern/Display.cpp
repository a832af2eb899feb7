// Which items are drawn, in which order and with which data.
#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "pattern/ItemTable.h"
#include "pattern/PtrnData.h"

#include <cstring>

using namespace tessary;

namespace
{

/// What every number outside the store reads.
constexpr COMNDATA noCell{};

const COMNDATA& CellOf(const PTRNDATA& item)
{
    return CheckComnData(item.DataNo, nullptr, 0) ? ComnData[item.DataNo] : noCell;
}

/// A cell may hold one byte more than the cached copy, which then is what Get_sData makes of it.
bool SameText(const PTRNDATA& item, const char* text)
{
    if (!text)
        return item.sData[0] == '\0';
    return std::strcmp(text, item.sData) == 0 ||
           std::strcmp(Get_sData(item.DataNo, nullptr, 0), item.sData) == 0;
}

/// Looks at the cell in place: this is all that a tick costs for an item that has not changed. A value that
/// is no number differs from itself, so its items are drawn at every tick.
bool ShowsItsCell(const PTRNDATA& item)
{
    const COMNDATA& cell = CellOf(item);
    return item.wData == cell.wData && item.fData == cell.fData && SameText(item, cell.sData);
}

void ReadCell(PTRNDATA* item)
{
    item->wData = Get_wData(item->DataNo, nullptr, 0);
    item->fData = Get_fData(item->DataNo, nullptr, 0);
    CopyText(item->sData, Get_sData(item->DataNo, nullptr, 0));
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
    UpdtPtrnData(draw, 0);
    UpdtPtrnData(draw, 1);
}

void CPtrnData::UpdtPtrnData(CDraw* draw, int top)
{
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
    if (const tessary::ItemClass* type = tessary::FindItemClass(item->Type))
        type->draw(*this, draw, item, updt);
}

void CPtrnData::ClerPtrnData(CDraw* draw, PTRNDATA* item)
{
    if (const tessary::ItemClass* type = tessary::FindItemClass(item->Type))
        type->erase(draw, item);
}
