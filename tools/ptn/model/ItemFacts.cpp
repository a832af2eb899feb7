#include "tools/ptn/model/ItemFacts.h"

#include "pattern/ItemParm.h"

#include <algorithm>

namespace ptn
{

ItemFacts::ItemFacts(const PatternItem& item, const Resources& resources)
    : type_(FindItemClass(item.record.Type)),
      fontCell_([&resources](int font) { return resources.fontCell(font); }), draft_{item.record.Parm,
                                                                                     item.texts,
                                                                                     !item.code.empty(),
                                                                                     fontCell_}
{
}

std::optional<SIZE> ItemFacts::naturalSize() const
{
    return type_ && type_->naturalSize ? type_->naturalSize(draft_) : std::nullopt;
}

RECT ItemFacts::drawnRect() const
{
    const std::int32_t* parm = draft_.parm;
    if (!isText())
        return SetRect(parm[PARM_X1], parm[PARM_Y1], parm[PARM_X2], parm[PARM_Y2]);
    // Where it ends beyond all windows does not matter.
    const SIZE size = type_->drawnSize(draft_);
    const auto end = [](int start, int length) {
        return static_cast<int>(std::clamp<long long>(0LL + start + length, -40000, 40000));
    };
    return SetRect(parm[PARM_X1], parm[PARM_Y1], end(parm[PARM_X1], size.cx), end(parm[PARM_Y1], size.cy));
}

std::optional<NumberField> ItemFacts::number() const
{
    return type_ && type_->numberField ? std::optional(type_->numberField(draft_)) : std::nullopt;
}

int ItemFacts::drawOrder() const
{
    const int rank = type_ ? ItemRank(type_->type) : -1;
    return draft_.parm[PARM_PASS] == 1 ? CONT_PTRN + rank : rank;
}

void ItemFacts::check(const ItemRemark& remark) const
{
    if (type_ && type_->check)
        type_->check(draft_, remark);
}

} // namespace ptn
