// Fixed text, variable text and numeric field.
#include "base/Coord.h"
#include "base/EucText.h"
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Limits.h"
#include "pattern/Press.h"
#include "pattern/RealParm.h"

#include <algorithm>
#include <cstring>

namespace tessary
{

namespace
{

constexpr ParmChoice NAVIGATION_NAMES[] = {
    {"up", NAV_UP}, {"down", NAV_DOWN}, {"left", NAV_LEFT}, {"right", NAV_RIGHT}};

// What the three text types share.
constexpr ParmSchema COLOR = parm("color", TEXT_COLOR4).color().perState().help("the text");
constexpr ParmSchema BACK = parm("back", TEXT_BACK4)
                                .color()
                                .perState()
                                .enabledBy(TEXT_BACKED)
                                .usedByBlinking()
                                .help("behind the text; blinks in it");
constexpr ParmSchema BACKED =
    parm("backed", TEXT_BACKED).flag().help("whether the background is painted; set by back");
constexpr ParmSchema BLINK = parm("blink", TEXT_FLICKER).flag().help("blinks from the start");
constexpr ParmSchema FONT = parm("font", TEXT_FONT).font().help("the text's font");
constexpr ParmSchema WIDTH =
    parm("width", FIELD_WIDTH).count(1, SIZE_PTRNTEXT).initial(10).help("half-width characters of the field");
constexpr ParmSchema ENTRY =
    parm("entry", FIELD_KEYENTRY).flag().help("whether a click starts keyboard entry");
constexpr ParmSchema NAVIGATION =
    parm("navigation", FIELD_NAVIGATION).bits(NAVIGATION_NAMES).help("arrow keys that end keyboard entry");

constexpr ParmSchema TEXT_PARMS[] = {
    COLOR,
    BACK,
    BACKED,
    BLINK,
    FONT,
    parm("width", FIELD_WIDTH)
        .count(0, SIZE_PTRNTEXT)
        .help("half-width characters that a click may hit; 0: as long as the text"),
};

constexpr ParmSchema VARIABLE_PARMS[] = {COLOR, BACK, BACKED, BLINK, FONT, WIDTH, ENTRY, NAVIGATION};

constexpr ParmSchema NUMERIC_PARMS[] = {
    COLOR,
    BACK,
    BACKED,
    BLINK,
    FONT,
    WIDTH,
    parm("decimals", FIELD_DECIMALS).count(0, SIZE_PTRNTEXT).help("digits after the point"),
    ENTRY,
    parm("zero-fill", FIELD_ZEROFILL).flag().help("leading zeros instead of blanks"),
    parm("grouping", FIELD_GROUPING).flag().help("a comma for every three digits, without decimals only"),
    parm("hex", FIELD_HEX).flag().help("hexadecimal"),
    parm("minimum", FIELD_MINIMUM)
        .real()
        .since(Correction::LimitsBind)
        .help("lowest number that may be entered; minimum and maximum both 0: from the limit table"),
    parm("maximum", FIELD_MAXIMUM)
        .real()
        .since(Correction::LimitsBind)
        .help("highest number that may be entered"),
    parm("step", FIELD_STEP)
        .positiveReal()
        .since(Correction::LimitsBind)
        .help("between two numbers that may be entered; 0: any"),
    parm("message", FIELD_MESSAGE)
        .message()
        .since(Correction::LimitsBind)
        .help("message about a number that is refused"),
    NAVIGATION,
};

int Background(const PTRNDATA* item)
{
    return SelectedBackground(item, TEXT_BACK4, TEXT_BACKED);
}

void DrawText(CDraw* draw, const PTRNDATA* item, int colr, int behind)
{
    draw->DrawText(item->Parm[PARM_X1], item->Parm[PARM_Y1], item->Parm[TEXT_FONT], colr, behind, item->Text);
}

/// Draws the text, or blanks it when the item is disabled. Without a background nothing can be blanked and
/// the old picture stays.
void DrawState(CDraw* draw, const PTRNDATA* item)
{
    const int behind = Background(item);
    if (!IsDisabled(item))
        DrawText(draw, item, Selected(item, TEXT_COLOR4), behind);
    else if (behind != -1 && Has(Correction::Layers))
        DrawText(draw, item, behind, behind); // as large as the text, not only as its ink
    else if (behind != -1)
        draw->ClearText(item->Parm[PARM_X1], item->Parm[PARM_Y1], item->Parm[TEXT_FONT], behind, item->Text);
}

/// Draws a field whose text changes: the whole field is painted first, so that a shorter text leaves nothing
/// of a longer one before it.
void DrawField(CDraw* draw, const PTRNDATA* item)
{
    const int behind = Background(item);
    if ((!IsDisabled(item) || Has(Correction::Layers)) && behind != -1) {
        const SIZE cell = FontCell(item->Parm[TEXT_FONT]);
        const std::int64_t wide = std::int64_t{cell.cx} * std::max(0, item->Parm[FIELD_WIDTH]);
        const int x = item->Parm[PARM_X1];
        const int y = item->Parm[PARM_Y1];
        draw->DrawRect(x, y, Saturate(x + wide), Shift(y, cell.cy), 0, 0, behind, behind);
    }
    DrawState(draw, item);
}

/// Bytes of `text` that a field of `limit` bytes showed before it was cut rightly. Only the two bytes at the
/// cut are looked at: when both may belong to two-byte characters, one byte less is shown.
std::size_t FieldCut(const char* text, std::size_t limit)
{
    const std::size_t length = std::strlen(text);
    if (length <= limit)
        return length;
    const auto half = [text](std::size_t at) { return IsEucHalf(static_cast<unsigned char>(text[at])); };
    return limit > 0 && half(limit - 1) && half(limit) ? limit - 1 : limit;
}

std::size_t ShownBytes(const char* text, std::size_t limit)
{
    return Has(Correction::TextCut) ? EucCut(text, limit) : FieldCut(text, limit);
}

void DrawFixed(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    DrawState(draw, item);
}

void DrawVariable(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    const int limit = std::clamp(item->Parm[FIELD_WIDTH], 0, SIZE_PTRNTEXT);
    CopyText(item->Text, ShownBytes(item->sData, static_cast<std::size_t>(limit)) + 1, item->sData);
    DrawField(draw, item);
}

void DrawNumeric(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    CopyText(item->Text, ConvertNumrData(item));
    DrawField(draw, item);
}

void Erase(CDraw* draw, const PTRNDATA* item)
{
    DrawText(draw, item, item->Parm[PARM_CLEAR], item->Parm[PARM_CLEAR]);
}

// Blinks on the background colour even when the item is otherwise drawn without background, and with the text
// drawn last, not a fresh one.
void Blink(CDraw* draw, const PTRNDATA* item, int phase)
{
    const int behind = Selected(item, TEXT_BACK4);
    DrawText(draw, item, phase ? Selected(item, TEXT_COLOR4) : behind, behind);
}

int Hit(POINT point, const PTRNDATA* item)
{
    const SIZE cell = FontCell(item->Parm[TEXT_FONT]);
    const std::int64_t wide = std::int64_t{cell.cx} * item->Parm[FIELD_WIDTH];
    const int right = Saturate(item->Parm[PARM_X1] + wide);
    const int bottom = Shift(item->Parm[PARM_Y1], cell.cy);
    return TestRect(point, SetRect(item->Parm[PARM_X1], item->Parm[PARM_Y1], right, bottom));
}

SIZE CharactersSize(const ItemDraft& draft, int characters)
{
    const SIZE cell = draft.fontCell(draft.parm[TEXT_FONT]);
    return {Saturate(std::int64_t{cell.cx} * characters), cell.cy};
}

SIZE FieldSize(const ItemDraft& draft)
{
    return CharactersSize(draft, draft.parm[FIELD_WIDTH]);
}

SIZE WholeText(const ItemDraft& draft)
{
    return CharactersSize(draft, draft.longestText());
}

std::optional<SIZE> NaturalSize(const ItemDraft& draft)
{
    return FieldSize(draft);
}

void Limits(const PTRNDATA& item, ValueLimits* limits)
{
    limits->minimum = static_cast<double>(RealParm(item.Parm[FIELD_MINIMUM]));
    limits->maximum = static_cast<double>(RealParm(item.Parm[FIELD_MAXIMUM]));
    limits->step = static_cast<double>(RealParm(item.Parm[FIELD_STEP]));
    limits->below = limits->above = item.Parm[FIELD_MESSAGE];
}

void CheckFixed(const ItemDraft& draft, const ItemRemark& remark)
{
    const int room = draft.parm[FIELD_WIDTH];
    if (room > 0 && draft.longestText() > room)
        remark("its text has " + std::to_string(draft.longestText()) +
               " half-width characters and its field " + std::to_string(room) +
               ". Shorten it, or make 'width' larger.");
}

void CheckEntry(const ItemDraft& draft, const ItemRemark& remark)
{
    if (draft.parm[FIELD_KEYENTRY] == 1 && !draft.bound)
        remark("'entry' has nowhere to store what is typed. Name a cell with 'data'.");
    else
        CheckBound(draft, remark);
}

void CheckNumeric(const ItemDraft& draft, const ItemRemark& remark)
{
    CheckEntry(draft, remark);
    // No number with decimals is shorter than "0.00".
    const int decimals = draft.parm[FIELD_DECIMALS];
    const long long needed = decimals + 2LL;
    if (!draft.parm[FIELD_HEX] && decimals > 0 && draft.parm[FIELD_WIDTH] < needed)
        remark("its field has " + std::to_string(draft.parm[FIELD_WIDTH]) + " characters; a number with " +
               std::to_string(decimals) + " decimals needs " + std::to_string(needed) +
               " or more. Make 'width' larger.");
}

NumberField Number(const ItemDraft& draft)
{
    NumberField field;
    field.width = draft.parm[FIELD_WIDTH];
    field.decimals = draft.parm[FIELD_DECIMALS];
    field.hexadecimal = draft.parm[FIELD_HEX] != 0;
    field.grouping = draft.parm[FIELD_GROUPING] != 0;
    field.entry = draft.parm[FIELD_KEYENTRY] == 1;
    field.minimum = static_cast<double>(RealParm(draft.parm[FIELD_MINIMUM]));
    field.maximum = static_cast<double>(RealParm(draft.parm[FIELD_MAXIMUM]));
    return field;
}

bool HasNoBackground(const ItemDraft& draft)
{
    return draft.parm[TEXT_BACKED] == 0;
}

constexpr ItemRow TextItem(PtrnType type)
{
    return item(type)
        .fontAt(TEXT_FONT)
        .erasedBy(Erase)
        .blinksBy(Blink, TEXT_FLICKER)
        .hitBy(Hit)
        .sizedBy(NaturalSize);
}

} // namespace

namespace items
{

extern constexpr ItemClass FIXED_TEXT = TextItem(PTRN_FCHR)
                                            .named("text")
                                            .helped("text that stays")
                                            .shows(ItemText::Caption)
                                            .schema(TEXT_PARMS)
                                            .drawnBy(DrawFixed)
                                            .pressedBy(PressLabel)
                                            .covers(WholeText)
                                            .measuresTextInto(FIELD_WIDTH)
                                            .checkedBy(CheckFixed);

extern constexpr ItemClass VARIABLE_TEXT = TextItem(PTRN_CHAR)
                                               .named("variable-text")
                                               .helped("text of a cell")
                                               .schema(VARIABLE_PARMS)
                                               .drawnBy(DrawVariable)
                                               .pressedBy(PressField)
                                               .takesEntry()
                                               .covers(FieldSize)
                                               .overprintsWhen(HasNoBackground)
                                               .checkedBy(CheckEntry);

extern constexpr ItemClass NUMERIC_FIELD = TextItem(PTRN_NUMR)
                                               .named("numeric")
                                               .helped("number of a cell")
                                               .schema(NUMERIC_PARMS)
                                               .drawnBy(DrawNumeric)
                                               .limitedBy(Limits)
                                               .pressedBy(PressField)
                                               .takesEntry()
                                               .covers(FieldSize)
                                               .numberOf(Number)
                                               .overprintsWhen(HasNoBackground)
                                               .checkedBy(CheckNumeric);

} // namespace items

} // namespace tessary
