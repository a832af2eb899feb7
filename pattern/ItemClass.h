// What the system knows of an item type: one record per type, filled in by its file in pattern/items/.
//
// A new type is its number in base/Constants.h, its file in pattern/items/, and its line in
// pattern/ItemTable.cpp. Display, pointer and authoring tool ask the record and never the number.
#pragma once

#include "base/Types.h"
#include "pattern/ParmSchema.h"

#include <array>
#include <functional>
#include <optional>
#include <string>

class CDraw;
class CPtrnData;
struct PTRNDATA;

namespace tessary
{

struct ValueLimits;

/// What an item's text is.
enum class ItemText {
    None,       ///< not shown, or written by the program
    Caption,    ///< shown as it stands
    BitmapName, ///< file in the bitmap folder
};

/// An item as it is being authored: its values, without a display and without a cell.
struct ItemDraft {
    const std::int32_t* parm; ///< CONT_PARM values
    const std::array<std::string, LANGUAGE_COUNT>& texts;
    bool bound;                               ///< it has a code
    const std::function<SIZE(int)>& fontCell; ///< pixels of a font number's cell; (0, 0) when not known

    /// Bytes of the longest text, which are half-width characters.
    int longestText() const;
};

/// A field that shows the number of its cell.
struct NumberField {
    int width = 0; ///< half-width characters
    int decimals = 0;
    bool hexadecimal = false;
    bool grouping = false;
    bool entry = false; ///< an operator may edit it
    double minimum = 0; ///< of what may be entered; both 0: the limit table tells
    double maximum = 0;

    bool limited() const { return minimum != 0 || maximum != 0; }
};

/// Receives what is wrong with an item, as a sentence that goes on from its name.
using ItemRemark = std::function<void(const std::string&)>;

/// Every function but `draw`, `erase` and `hit` may be null: the type has no such thing.
struct ItemClass {
    // --- what it is called and what it has ----------------------------------------------------------
    int type = 0;          ///< PtrnType
    const char* name = ""; ///< in the sources of screens
    const char* help = "";
    ItemText text = ItemText::None;
    SchemaTable<ParmSchema> parms; ///< that it alone gives a meaning to
    int fontParm = -1;             ///< entry with its font; -1 none
    int blinkParm = -1;            ///< entry that makes it blink from the start

    // --- on the screen: `item` is a copy with the cell's present values -------------------------------
    /// @param updt  0 full display, 1 tick update
    void (*draw)(CPtrnData& data, CDraw* draw, PTRNDATA* item, int updt) = nullptr;
    void (*erase)(CDraw* draw, const PTRNDATA* item) = nullptr;
    /// @param phase  1 shown, 0 blanked
    void (*blink)(CDraw* draw, const PTRNDATA* item, int phase) = nullptr;

    // --- under the pointer --------------------------------------------------------------------------
    /// 1 when the point hits it.
    int (*hit)(POINT point, const PTRNDATA* item) = nullptr;
    /// What a left press does: takes and returns what CPtrnData::LButtonDown does; null: only the action.
    int (*press)(CPtrnData& data, POINT point, PTRNDATA* item) = nullptr;
    /// What a press on a usable and unlocked control does to its cell; null: it is no control.
    void (*operate)(const PTRNDATA& item) = nullptr;
    /// One wheel click; direction 0 up, other values down. 1 when a value changed.
    int (*wheel)(CPtrnData& data, int direction, PTRNDATA* item) = nullptr;
    /// Of a control that repeats while it is held: the part under the point, and one step of that part (1
    /// when the cell has changed).
    int (*part)(CPtrnData& data, POINT point, PTRNDATA* item) = nullptr;
    int (*step)(const PTRNDATA* item, int part) = nullptr;
    bool entry = false; ///< a field: keyboard entry may edit its cell
    /// Fills in the limits, step and messages that the item itself gives its cell; minimum and maximum both
    /// 0: none.
    void (*limits)(const PTRNDATA& item, ValueLimits* limits) = nullptr;

    // --- for authors --------------------------------------------------------------------------------
    /// Its size when a screen gives none; none when it has to be given.
    std::optional<SIZE> (*naturalSize)(const ItemDraft& draft) = nullptr;
    /// What it covers from its first corner on when that depends on what it shows; null: its rectangle.
    SIZE (*drawnSize)(const ItemDraft& draft) = nullptr;
    int measuredParm = -1; ///< entry that is the bytes of the longest text where a screen gives 0; -1 none
    /// Pixels that a caption within the rectangle needs.
    int (*captionWidth)(const ItemDraft& draft) = nullptr;
    /// Whether it paints every pixel of its rectangle in each of its states; null: never.
    bool (*opaque)(const ItemDraft& draft) = nullptr;
    /// False when the rectangle is too small to be drawn, which would end the program; null: never.
    bool (*fits)(const ItemDraft& draft) = nullptr;
    /// Whatever else is wrong with its values.
    void (*check)(const ItemDraft& draft, const ItemRemark& remark) = nullptr;
    /// The number that it shows; null: none.
    NumberField (*numberField)(const ItemDraft& draft) = nullptr;
    /// Whether a new value is drawn over the one before without wiping it; null: never.
    bool (*overprints)(const ItemDraft& draft) = nullptr;
    bool onlyActs = false;   ///< its action is all that an operator gets from it
    bool wheelSteps = false; ///< the wheel over it steps its value
    int keyParm = -1;        ///< entry that is not 0 where keys of the keyboard operate it; -1 none
    bool frames = false;     ///< other items are laid out in it
    int choiceParm = -1;     ///< entry that no other item of the type with the same cell may share; -1 none
    const char* cornerHelp = "."; ///< ends the message about corners that are exchanged

    /// An attribute, its own or a common one; null when there is none.
    const ParmSchema* parm(const char* wanted) const;
    const ParmSchema* parm(int index) const;
};

/// Fills in a record so that it reads like a table row.
class ItemRow : public ItemClass
{
    template <typename Entry> constexpr ItemRow with(Entry ItemClass::*place, Entry value) const
    {
        ItemRow row = *this;
        row.*place = value;
        return row;
    }

  public:
    constexpr explicit ItemRow(PtrnType number) { type = number; }
    constexpr ItemRow named(const char* value) const { return with(&ItemClass::name, value); }
    constexpr ItemRow helped(const char* value) const { return with(&ItemClass::help, value); }
    constexpr ItemRow shows(ItemText value) const { return with(&ItemClass::text, value); }
    constexpr ItemRow schema(SchemaTable<ParmSchema> value) const { return with(&ItemClass::parms, value); }
    constexpr ItemRow fontAt(int index) const { return with(&ItemClass::fontParm, index); }
    constexpr ItemRow drawnBy(decltype(draw) function) const { return with(&ItemClass::draw, function); }
    constexpr ItemRow erasedBy(decltype(erase) function) const { return with(&ItemClass::erase, function); }
    constexpr ItemRow blinksBy(decltype(blink) function, int index) const
    {
        return with(&ItemClass::blink, function).with(&ItemClass::blinkParm, index);
    }
    constexpr ItemRow hitBy(decltype(hit) function) const { return with(&ItemClass::hit, function); }
    constexpr ItemRow pressedBy(decltype(press) function) const { return with(&ItemClass::press, function); }
    constexpr ItemRow operatedBy(decltype(operate) function) const
    {
        return with(&ItemClass::operate, function);
    }
    constexpr ItemRow turnedBy(decltype(wheel) function) const { return with(&ItemClass::wheel, function); }
    constexpr ItemRow heldBy(decltype(part) partAt, decltype(step) stepOf) const
    {
        return with(&ItemClass::part, partAt).with(&ItemClass::step, stepOf);
    }
    constexpr ItemRow limitedBy(decltype(limits) function) const
    {
        return with(&ItemClass::limits, function);
    }
    constexpr ItemRow takesEntry() const { return with(&ItemClass::entry, true); }
    constexpr ItemRow sizedBy(decltype(naturalSize) function) const
    {
        return with(&ItemClass::naturalSize, function);
    }
    constexpr ItemRow covers(decltype(drawnSize) function) const
    {
        return with(&ItemClass::drawnSize, function);
    }
    constexpr ItemRow measuresTextInto(int index) const { return with(&ItemClass::measuredParm, index); }
    constexpr ItemRow captionNeeds(decltype(captionWidth) function) const
    {
        return with(&ItemClass::captionWidth, function);
    }
    constexpr ItemRow opaqueWhen(decltype(opaque) function) const
    {
        return with(&ItemClass::opaque, function);
    }
    constexpr ItemRow fitsWhen(decltype(fits) function) const { return with(&ItemClass::fits, function); }
    constexpr ItemRow numberOf(decltype(numberField) function) const
    {
        return with(&ItemClass::numberField, function);
    }
    constexpr ItemRow overprintsWhen(decltype(overprints) function) const
    {
        return with(&ItemClass::overprints, function);
    }
    constexpr ItemRow actsOnly() const { return with(&ItemClass::onlyActs, true); }
    constexpr ItemRow stepsByWheel() const { return with(&ItemClass::wheelSteps, true); }
    constexpr ItemRow keysAt(int index) const { return with(&ItemClass::keyParm, index); }
    constexpr ItemRow checkedBy(decltype(check) function) const { return with(&ItemClass::check, function); }
    constexpr ItemRow framesOthers() const { return with(&ItemClass::frames, true); }
    constexpr ItemRow choiceAt(int index) const { return with(&ItemClass::choiceParm, index); }
    constexpr ItemRow exchangedCornersSay(const char* value) const
    {
        return with(&ItemClass::cornerHelp, value);
    }
};

constexpr ItemRow item(PtrnType type)
{
    return ItemRow(type);
}

} // namespace tessary
