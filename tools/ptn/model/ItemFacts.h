// What the class of an item says of it, without a display.
#pragma once

#include "pattern/ItemTable.h"
#include "tools/ptn/model/Pattern.h"
#include "tools/ptn/model/Resources.h"

#include <functional>
#include <optional>

namespace ptn
{

/// For the moment: refers to the item and the resources. An item of an unknown type has no facts.
class ItemFacts
{
  public:
    ItemFacts(const PatternItem& item, const Resources& resources);
    ItemFacts(const ItemFacts&) = delete;
    ItemFacts& operator=(const ItemFacts&) = delete;

    /// Null for an unknown type.
    const ItemClass* type() const { return type_; }
    /// Bytes of the longest text.
    int longestText() const { return draft_.longestText(); }
    /// The size of what it shows; none for items that fill whatever space they get.
    std::optional<SIZE> naturalSize() const;
    /// What it covers when it is drawn, in all its languages.
    RECT drawnRect() const;
    /// Whether what it shows decides how large it is.
    bool isText() const { return type_ && type_->drawnSize; }
    /// Whether it can be drawn in its rectangle.
    bool fits() const { return !type_ || !type_->fits || type_->fits(draft_); }
    /// Whether it paints every pixel of its rectangle, in each of its states.
    bool isOpaque() const { return type_ && type_->opaque && type_->opaque(draft_); }
    /// Whether others are laid out in it.
    bool isFrame() const { return type_ && type_->frames; }
    /// Pixels that its caption needs; 0 for none.
    int captionWidth() const { return type_ && type_->captionWidth ? type_->captionWidth(draft_) : 0; }
    /// Its font; -1 for none.
    int font() const { return type_ && type_->fontParm >= 0 ? draft_.parm[type_->fontParm] : -1; }
    /// The number that it shows; none for items that show none.
    std::optional<NumberField> number() const;
    /// Whether a new value of its cell is drawn over the one before.
    bool overprints() const
    {
        return draft_.bound && type_ && type_->overprints && type_->overprints(draft_);
    }
    /// Whether the wheel over it steps a value.
    bool wheelSteps() const { return type_ && type_->wheelSteps; }
    /// Whether keys of the keyboard operate it.
    bool takesKeys() const { return type_ && type_->keyParm >= 0 && draft_.parm[type_->keyParm] != 0; }
    /// Whether it blinks from the start.
    bool blinks() const { return type_ && type_->blinkParm >= 0 && draft_.parm[type_->blinkParm] != 0; }
    /// Its place in the order of drawing; those of the same place are drawn in the order of the file.
    int drawOrder() const;
    /// Tells what is wrong with its values beside their ranges.
    void check(const ItemRemark& remark) const;

  private:
    const ItemClass* type_;
    std::function<SIZE(int)> fontCell_;
    ItemDraft draft_;
};

} // namespace ptn
