#include "pattern/ItemTable.h"

#include "pattern/Press.h"
#include "pattern/ScrollBar.h"
#include "pattern/SpinButn.h"

#include <array>
#include <iterator>

namespace
{

/// Names the entries of a row, so that the table can be read without its declaration.
class Row : public ItemOps
{
    // Before its users: some compilers can not evaluate the table otherwise.
    template <typename Entry> constexpr Row with(Entry ItemOps::*place, Entry value) const
    {
        Row row = *this;
        row.*place = value;
        return row;
    }

  public:
    constexpr explicit Row(PtrnType type) { Type = type; }
    constexpr Row disp(decltype(Disp) member) const { return with(&ItemOps::Disp, member); }
    constexpr Row dispUpdt(decltype(DispUpdt) member) const { return with(&ItemOps::DispUpdt, member); }
    constexpr Row cler(decltype(Cler) member) const { return with(&ItemOps::Cler, member); }
    constexpr Row flik(decltype(Flik) member) const { return with(&ItemOps::Flik, member); }
    constexpr Row test(decltype(Test) member) const { return with(&ItemOps::Test, member); }
    constexpr Row press(decltype(Press) function) const { return with(&ItemOps::Press, function); }
    constexpr Row held(decltype(Part) part, decltype(Step) step) const
    {
        return with(&ItemOps::Part, part).with(&ItemOps::Step, step);
    }
};

using P = CPtrnData;

} // namespace

// clang-format off
constexpr ItemOps ItemTable[] = {
    Row(PTRN_GBOX).disp(&P::DispPtrnData01).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01)
        .press(PressShape),
    Row(PTRN_RECT).disp(&P::DispPtrnData03).cler(&P::ClerPtrnData03).test(&P::TestPtrnData01)
        .press(PressShape),
    Row(PTRN_CRCL).disp(&P::DispPtrnData04).cler(&P::ClerPtrnData04).test(&P::TestPtrnData01)
        .press(PressShape),
    Row(PTRN_BARG).disp(&P::DispPtrnData05).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01),
    Row(PTRN_LINE).disp(&P::DispPtrnData02).cler(&P::ClerPtrnData02).test(&P::TestPtrnData02),
    Row(PTRN_BMAP).disp(&P::DispPtrnData12).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01),
    Row(PTRN_MARK).dispUpdt(&P::DispPtrnData13).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01)
        .flik(&P::FlikPtrnData13),
    Row(PTRN_SBAR).dispUpdt(&P::DispPtrnData14).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01)
        .press(PressScrollBar).held(&P::TestScrollBar, StepScrollBar),
    Row(PTRN_SPIN).disp(&P::DispPtrnData15).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01)
        .press(PressSpinButn).held(&P::TestSpinButn, StepSpinButn),
    Row(PTRN_BUTN).disp(&P::DispPtrnData09).cler(&P::ClerPtrnData01).test(&P::TestPtrnData01)
        .press(PressControl),
    Row(PTRN_RDIO).dispUpdt(&P::DispPtrnData10).cler(&P::ClerPtrnData10).test(&P::TestPtrnData10)
        .press(PressControl),
    Row(PTRN_CHCK).dispUpdt(&P::DispPtrnData11).cler(&P::ClerPtrnData10).test(&P::TestPtrnData10)
        .press(PressControl),
    Row(PTRN_FCHR).dispUpdt(&P::DispPtrnData06).cler(&P::ClerPtrnData06).test(&P::TestPtrnData06)
        .press(PressLabel).flik(&P::FlikPtrnData06),
    Row(PTRN_CHAR).dispUpdt(&P::DispPtrnData07).cler(&P::ClerPtrnData06).test(&P::TestPtrnData06)
        .press(PressField).flik(&P::FlikPtrnData06),
    Row(PTRN_NUMR).dispUpdt(&P::DispPtrnData08).cler(&P::ClerPtrnData06).test(&P::TestPtrnData06)
        .press(PressField).flik(&P::FlikPtrnData06),
};
// clang-format on

namespace
{

/// Ranks by type number.
constexpr std::array<int, CONT_PTRN + 1> Ranks()
{
    std::array<int, CONT_PTRN + 1> ranks{};
    for (int& rank : ranks)
        rank = -1;
    for (int rank = 0; rank < CONT_PTRN; ++rank)
        ranks[static_cast<std::size_t>(TypeTabl[rank])] = rank;
    return ranks;
}
constexpr std::array<int, CONT_PTRN + 1> ranks = Ranks();

constexpr bool HasEveryType()
{
    for (int rank = 0; rank < CONT_PTRN; ++rank)
        if (ItemTable[rank].Type != TypeTabl[rank] || ranks[static_cast<std::size_t>(rank) + 1] < 0)
            return false;
    return true;
}
static_assert(std::size(ItemTable) == CONT_PTRN && HasEveryType());

} // namespace

int ItemRank(int type)
{
    return type >= 1 && type <= CONT_PTRN ? ranks[static_cast<std::size_t>(type)] : -1;
}

const ItemOps* FindItemOps(int type)
{
    const int rank = ItemRank(type);
    return rank < 0 ? nullptr : &ItemTable[rank];
}
