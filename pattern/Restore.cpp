// Drawing parts of the display anew: whenever an item changes, what lies below it in its area is drawn first,
// and what lies above it afterwards.
#include "draw/DrawCntl.h"
#include "draw/DrawScope.h"
#include "pattern/ItemCell.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/ItemTable.h"
#include "pattern/Layers.h"
#include "pattern/PtrnData.h"

#include <array>

using namespace tessary;

namespace
{

void AddBoth(std::vector<Box>& areas, const std::pair<Box, Box>& pair)
{
    if (Meet(pair.first, pair.second)) {
        areas.push_back(Around(pair.first, pair.second));
    } else {
        areas.push_back(pair.first);
        areas.push_back(pair.second);
    }
}

bool ShowsItsCell(const PTRNDATA& item)
{
    const COMNDATA& cell = CellOf(item);
    return item.wData == cell.wData &&
           SameNumber(static_cast<double>(item.fData), static_cast<double>(cell.fData)) &&
           SameText(item, cell.sData);
}

bool ShowsItsDigits(const PTRNDATA& item, const Layers& layers)
{
    return SameNumber(layers.number(item.Recd), HasCell(item.DataNo) ? StoredNumber(item.DataNo) : 0);
}

/// Keeps the layout of the scroll bar that was handled last, which may be dragged at the moment, while others
/// are drawn.
class KeptBar
{
  public:
    explicit KeptBar(CPtrnData& data) : data_(data), kept_(copy()) {}
    ~KeptBar()
    {
        const auto parts = all();
        for (std::size_t i = 0; i < parts.size(); ++i)
            *parts[i] = kept_[i];
    }
    KeptBar(const KeptBar&) = delete;
    KeptBar& operator=(const KeptBar&) = delete;

  private:
    std::array<RECT*, 6> all() const
    {
        return {&data_.SCrect1, &data_.SCrect2, &data_.SCrect3,
                &data_.SCrect4, &data_.SCrect5, &data_.SCrect6};
    }
    std::array<RECT, 6> copy() const
    {
        return {data_.SCrect1, data_.SCrect2, data_.SCrect3, data_.SCrect4, data_.SCrect5, data_.SCrect6};
    }

    CPtrnData& data_;
    const std::array<RECT, 6> kept_;
};

} // namespace

bool CPtrnData::IsOnDisplay(const PTRNDATA& item) const
{
    return !IsHidden(item) && !(Blanked && Blinks(item));
}

void CPtrnData::OrderLayers()
{
    std::vector<int> order;
    order.reserve(DrawOrder.size());
    for (const Place& place : DrawOrder)
        order.push_back(place.Recd);
    Shown->setOrder(order);
}

/// Where the item is drawn; its text becomes the one that it shows.
Box CPtrnData::MeasureItem(CDraw* draw, PTRNDATA* item)
{
    ExtentScope extent(draw->gc, ExtentScope::ONLY_MEASURED);
    if (!IsHidden(*item))
        DispPtrnData(draw, item, 0);
    return Common(extent.extent(), WholeOf(draw->window));
}

/// A display that was not drawn through this object is taken for one that shows the cells as they are.
Layers& CPtrnData::LayersOn(CDraw* draw)
{
    if (OrderedData != PtrnData || OrderedCont != PtrnCont)
        BuildDrawOrder();
    if (Shown)
        return *Shown;
    const Box whole = WholeOf(draw->window);
    Shown = std::make_unique<Layers>(PtrnCont, SIZE{whole.right, whole.bottom});
    OrderLayers();
    const KeptBar bar(*this);
    for (const Place& place : DrawOrder) {
        if (place.Pass != 0 && place.Pass != 1)
            continue; // no display of everything draws it
        PTRNDATA item = PtrnData[place.Recd];
        Shown->setNumber(place.Recd, static_cast<double>(item.fData));
        ReadCell(&item);
        Shown->setArea(place.Recd, MeasureItem(draw, &item));
    }
    return *Shown;
}

void CPtrnData::DispLayers(CDraw* draw, int top)
{
    const Box whole = WholeOf(draw->window);
    if (!Shown) {
        Shown = std::make_unique<Layers>(PtrnCont, SIZE{whole.right, whole.bottom});
        OrderLayers();
    }
    const auto [first, last] = PassPlaces(top);
    for (auto place = first; place != last; ++place) {
        PTRNDATA item = PtrnData[place->Recd];
        const bool neverShown = (item.wData & STATE_NEVER) != 0;
        ReadCell(&item);
        const ExtentScope extent(draw->gc,
                                 IsOnDisplay(item) ? ExtentScope::DRAWN : ExtentScope::ONLY_MEASURED);
        if (!IsHidden(item))
            DispPtrnData(draw, &item, 0);
        Shown->setArea(item.Recd, Common(extent.extent(), whole));
        if (neverShown) { // as in every edition, only the first display is stored
            WritePtrnData(&item);
            Shown->setNumber(item.Recd, Get_dData(item.DataNo, nullptr, 0));
        }
    }
}

std::pair<Box, Box> CPtrnData::ChangeItem(CDraw* draw, PTRNDATA* item)
{
    Layers& layers = LayersOn(draw);
    const std::pair<Box, Box> areas = {layers.area(item->Recd), MeasureItem(draw, item)};
    layers.setArea(item->Recd, areas.second);
    layers.setNumber(item->Recd, Get_dData(item->DataNo, nullptr, 0));
    WritePtrnData(item);
    return areas;
}

void CPtrnData::UpdtLayers(CDraw* draw, std::initializer_list<int> passes)
{
    Layers& layers = LayersOn(draw);
    std::vector<Box> areas;
    const KeptBar bar(*this);
    // As long as floats tell all there is no need to look at the digits of every item.
    const bool finer = cellDigits.finer != 0 || layers.anyFiner();
    for (const int pass : passes) {
        const auto [first, last] = PassPlaces(pass);
        for (auto place = first; place != last; ++place) {
            const PTRNDATA& shown = PtrnData[place->Recd];
            if (!shown.ID_Code[0] || (ShowsItsCell(shown) && (!finer || ShowsItsDigits(shown, layers))))
                continue;
            PTRNDATA item = shown;
            ReadCell(&item);
            if (item.wData & STATE_FROZEN) {
                layers.setNumber(item.Recd, Get_dData(item.DataNo, nullptr, 0));
                WritePtrnData(&item);
            } else {
                AddBoth(areas, ChangeItem(draw, &item));
            }
        }
    }
    RestoreAreas(draw, areas);
}

void CPtrnData::RedrawPtrnData(CDraw* draw, int dataNo, int type)
{
    std::vector<Box> areas;
    const KeptBar bar(*this);
    for (int i = 0; i < PtrnCont; ++i) {
        PTRNDATA item = PtrnData[i];
        if (item.DataNo != dataNo || (type != 0 && item.Type != type))
            continue;
        ReadCell(&item);
        AddBoth(areas, ChangeItem(draw, &item));
    }
    RestoreAreas(draw, areas);
}

void CPtrnData::FlikLayers(CDraw* draw)
{
    Blanked = FlikerFlag == 0;
    std::vector<Box> areas;
    for (int i = 0; i < PtrnCont; ++i)
        if (Blinks(PtrnData[i]))
            areas.push_back(LayersOn(draw).area(i));
    RestoreAreas(draw, areas);
}

void CPtrnData::RestoreClock(CDraw* draw)
{
    if (!Shown) { // a display is beginning
        DrawClock(draw);
        return;
    }
    const Box before = Shown->clock;
    {
        const ExtentScope extent(draw->gc, ExtentScope::ONLY_MEASURED);
        DrawClock(draw);
        Shown->clock = Common(extent.extent(), WholeOf(draw->window));
    }
    RestoreAreas(draw, {Around(before, Shown->clock)});
}

void CPtrnData::RestoreArea(CDraw* draw, const RECT& area)
{
    LayersOn(draw);
    RestoreAreas(draw, {Common(BoxOf(area), WholeOf(draw->window))});
}

void CPtrnData::RestoreAreas(CDraw* draw, const std::vector<Box>& areas)
{
    const KeptBar bar(*this);
    for (const Box& area : WithoutCovered(areas)) {
        const ClipScope clip(draw->gc, area);
        RestoreTitle(draw, area);
        for (const int recd : LayersOn(draw).meeting(area))
            RestoreItem(draw, recd, area);
        if (DrawAbove)
            DrawAbove(draw);
    }
}

/// Draws the part of an item that lies within the clip. Its cell may have changed since it was drawn as a
/// whole, so that this part is somewhere else.
void CPtrnData::RestoreItem(CDraw* draw, int recd, const Box& clip)
{
    PTRNDATA item = PtrnData[recd];
    ReadCell(&item);
    if (!IsOnDisplay(item))
        return;
    const ExtentScope extent(draw->gc, ExtentScope::DRAWN);
    DispPtrnData(draw, &item, 0);
    const Box part = Common(extent.extent(), clip);
    if (!Contains(Shown->area(recd), part))
        Shown->setArea(recd, Around(Shown->area(recd), part));
}
