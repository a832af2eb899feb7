// The order in which the items of a pattern are drawn, and tested in reverse.
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/Layers.h"
#include "pattern/PtrnData.h"

#include <algorithm>
#include <tuple>

using namespace tessary;

void CPtrnData::BuildDrawOrder()
{
    DrawOrder.clear();
    for (int i = 0; i < PtrnCont; ++i) {
        const int rank = tessary::ItemRank(PtrnData[i].Type);
        if (rank >= 0)
            DrawOrder.push_back({PtrnData[i].Parm[PARM_PASS], rank, i});
    }
    std::sort(DrawOrder.begin(), DrawOrder.end(), [](const Place& one, const Place& other) {
        return std::tie(one.Pass, one.Rank, one.Recd) < std::tie(other.Pass, other.Rank, other.Recd);
    });
    const bool sameItems = OrderedData == PtrnData && OrderedCont == PtrnCont;
    OrderedData = PtrnData;
    OrderedCont = PtrnCont;
    if (!sameItems)
        Shown.reset();
    else if (Shown)
        OrderLayers();
}

void CPtrnData::RenewDrawOrder()
{
    const auto stale = [this](const Place& place) {
        const PTRNDATA& item = PtrnData[place.Recd];
        return place.Pass != item.Parm[PARM_PASS] || place.Rank != tessary::ItemRank(item.Type);
    };
    // Items of unknown type have no place; one that has become known is missed by nothing else.
    const auto known = [this] {
        return std::count_if(PtrnData, PtrnData + PtrnCont,
                             [](const PTRNDATA& item) { return tessary::ItemRank(item.Type) >= 0; });
    };
    if (OrderedData != PtrnData || OrderedCont != PtrnCont ||
        static_cast<std::ptrdiff_t>(DrawOrder.size()) != known() ||
        std::any_of(DrawOrder.begin(), DrawOrder.end(), stale))
        BuildDrawOrder();
}

CPtrnData::Places CPtrnData::PassPlaces(int pass)
{
    return {TypePlaces(pass, 0).first, TypePlaces(pass, CONT_PTRN - 1).second};
}

CPtrnData::Places CPtrnData::TypePlaces(int pass, int rank)
{
    // The members are public: somebody may have put another array in place.
    if (OrderedData != PtrnData || OrderedCont != PtrnCont)
        BuildDrawOrder();
    const auto before = [](const Place& one, const Place& other) {
        return std::tie(one.Pass, one.Rank) < std::tie(other.Pass, other.Rank);
    };
    return std::equal_range(DrawOrder.cbegin(), DrawOrder.cend(), Place{pass, rank, 0}, before);
}
