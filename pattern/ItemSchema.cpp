#include "pattern/ItemSchema.h"

#include "pattern/ItemParm.h"

#include <cstring>
#include <limits>

namespace
{

/// Pixels that the drawing primitives accept as the thickness of lines, frames and edges.
constexpr int MAX_WIDTH = 98;
/// The X protocol's coordinates are 16 bits wide.
constexpr int MAX_COORDINATE = 32767;
constexpr int MAX_ROWS = 1000000;

// Builds one row of the tables below so that it reads: name and place, kind with its range, default, help.
class Row
{
  public:
    constexpr Row(const char* name, int index)
    {
        row_.name = name;
        row_.index = index;
    }

    constexpr Row color() const { return kind(ParmKind::Color, 0, CONT_COLR - 1); }
    constexpr Row optionalColor() const { return kind(ParmKind::OptionalColor, -1, CONT_COLR - 1); }
    constexpr Row font() const { return kind(ParmKind::Font, 0, CONT_FONT - 1); }
    constexpr Row mark() const { return kind(ParmKind::Mark, 0, CONT_MARK + 3); }
    constexpr Row pixels(int minimum, int maximum) const { return kind(ParmKind::Pixels, minimum, maximum); }
    constexpr Row coordinate() const { return pixels(-MAX_COORDINATE - 1, MAX_COORDINATE); }
    constexpr Row count(int minimum, int maximum) const { return kind(ParmKind::Count, minimum, maximum); }
    constexpr Row flag() const { return kind(ParmKind::Flag, 0, 1); }
    constexpr Row number(int minimum, int maximum) const { return kind(ParmKind::Number, minimum, maximum); }
    constexpr Row number() const
    {
        return number(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }

    template <std::size_t N> constexpr Row choice(const ParmChoice (&choices)[N]) const
    {
        Row made = kind(ParmKind::Choice, choices[0].value, choices[N - 1].value);
        made.row_.choices = choices;
        return made;
    }

    template <std::size_t N> constexpr Row bits(const ParmChoice (&choices)[N]) const
    {
        int all = 0;
        for (const ParmChoice& choice : choices)
            all |= choice.value;
        Row made = kind(ParmKind::Bits, 0, all);
        made.row_.choices = choices;
        return made;
    }

    /// Four variants, one per colour selection.
    constexpr Row perState() const
    {
        Row made = *this;
        made.row_.count = 4;
        return made;
    }

    constexpr Row initial(int value) const
    {
        Row made = *this;
        made.row_.initial = value;
        return made;
    }

    /// Has an effect only while the flag at `index` is set.
    constexpr Row enabledBy(int index) const
    {
        Row made = *this;
        made.row_.enable = index;
        return made;
    }

    constexpr ParmSchema help(const char* text) const
    {
        ParmSchema made = row_;
        made.help = text;
        return made;
    }

  private:
    constexpr Row kind(ParmKind kind, int minimum, int maximum) const
    {
        Row made = *this;
        made.row_.kind = kind;
        made.row_.minimum = minimum;
        made.row_.maximum = maximum;
        return made;
    }

    ParmSchema row_;
};

constexpr Row parm(const char* name, int index)
{
    return Row(name, index);
}

constexpr ParmChoice growNames[] = {{"both", 0}, {"inside", 1}, {"outside", 2}};
constexpr ParmChoice dashNames[] = {{"solid", 0}, {"long", 1}, {"short", 2}};
constexpr ParmChoice passNames[] = {{"back", 0}, {"front", 1}};
constexpr ParmChoice barDirectionNames[] = {{"vertical", 0}, {"horizontal", 1}};
constexpr ParmChoice scrollDirectionNames[] = {{"horizontal", 0}, {"vertical", 1}};
constexpr ParmChoice navigationNames[] = {{"up", 1}, {"down", 2}, {"left", 4}, {"right", 8}};
constexpr ParmChoice placementNames[] = {{"origin", 0}, {"framed", 1}, {"plain", 2}};
constexpr ParmChoice clockNames[] = {{"none", 0},         {"date", 1},       {"minutes", 2},
                                     {"seconds", 3},      {"kanji-date", 4}, {"kanji-minutes", 5},
                                     {"kanji-seconds", 6}};

constexpr ParmSchema commonParms[] = {
    parm("x1", PARM_X1).coordinate().help("left edge; of texts the start"),
    parm("y1", PARM_Y1).coordinate().help("upper edge; of texts the top of the line"),
    parm("x2", PARM_X2).coordinate().help("right edge"),
    parm("y2", PARM_Y2).coordinate().help("lower edge"),
    parm("pass", PARM_PASS).choice(passNames).help("drawn before or after all items of the other pass"),
    parm("clear", PARM_CLEAR)
        .color()
        .help("what the item is painted over with when it is hidden or disabled"),
};

constexpr ParmSchema groupBoxParms[] = {
    parm("face", GBOX_FACE4).color().perState().help("the area"),
    parm("top", GBOX_TOP4).color().perState().help("upper edge"),
    parm("bottom", GBOX_BOTTOM4).color().perState().help("lower edge"),
    parm("left", GBOX_LEFT4).color().perState().help("left edge"),
    parm("right", GBOX_RIGHT4).color().perState().help("right edge"),
    parm("top-width", GBOX_TOP_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the upper edge"),
    parm("bottom-width", GBOX_BOTTOM_WIDTH)
        .pixels(0, MAX_WIDTH)
        .initial(1)
        .help("thickness of the lower edge"),
    parm("left-width", GBOX_LEFT_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the left edge"),
    parm("right-width", GBOX_RIGHT_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the right edge"),
};

constexpr ParmSchema lineParms[] = {
    parm("color", LINE_COLOR4).color().perState().help("the line"),
    parm("grow", LINE_FOMT).choice(growNames).help("where a thick line grows: inside is left of or above it"),
    parm("dash", LINE_TYPE).choice(dashNames).help("solid, or dashes of 12 or of 4 pixels"),
    parm("width", LINE_WIDTH).pixels(1, MAX_WIDTH).initial(1).help("thickness"),
};

constexpr ParmSchema shapeParms[] = {
    parm("outline", SHAPE_OUTLINE4).color().perState().help("the outline"),
    parm("fill", SHAPE_FILL4).optionalColor().perState().enabledBy(SHAPE_FILLED).help("the inside, or none"),
    parm("filled", SHAPE_FILLED).flag().help("whether the inside is painted; set by fill"),
    parm("grow", SHAPE_FOMT).choice(growNames).help("where a thick outline grows"),
    parm("width", SHAPE_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the outline; 0 for none"),
};

constexpr ParmSchema barGraphParms[] = {
    parm("bar", BARG_BAR4).color().perState().help("the bar or needle"),
    parm("back", BARG_BACK4).color().perState().help("behind the bar"),
    parm("frame", BARG_FRAME_COLOR).color().help("the frame"),
    parm("direction", BARG_HORIZONTAL).choice(barDirectionNames).help("grows upwards or to the right"),
    parm("needle", BARG_NEEDLE_WIDTH)
        .pixels(0, MAX_WIDTH)
        .help("thickness of a needle drawn instead of a bar"),
    parm("frame-width", BARG_FRAME_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the frame"),
    parm("minimum", BARG_MINIMUM).number().help("value of an empty bar; both 0: from the limit table"),
    parm("maximum", BARG_MAXIMUM).number().initial(100).help("value of a full bar"),
};

// What the three text types share.
constexpr ParmSchema textColor = parm("color", TEXT_COLOR4).color().perState().help("the text");
constexpr ParmSchema textBack =
    parm("back", TEXT_BACK4).color().perState().enabledBy(TEXT_BACKED).help("behind the text; blinks in it");
constexpr ParmSchema textBacked =
    parm("backed", TEXT_BACKED).flag().help("whether the background is painted; set by back");
constexpr ParmSchema textBlink = parm("blink", TEXT_FLICKER).flag().help("blinks from the start");
constexpr ParmSchema textFont = parm("font", TEXT_FONT).font().help("the text's font");
constexpr ParmSchema fieldWidth =
    parm("width", FIELD_WIDTH).count(1, SIZE_PTRNTEXT).initial(10).help("half-width characters of the field");
constexpr ParmSchema fieldEntry =
    parm("entry", FIELD_KEYENTRY).flag().help("whether a click starts keyboard entry");
constexpr ParmSchema fieldNavigation =
    parm("navigation", FIELD_NAVIGATION).bits(navigationNames).help("arrow keys that end keyboard entry");

constexpr ParmSchema textParms[] = {
    textColor,
    textBack,
    textBacked,
    textBlink,
    textFont,
    parm("width", FIELD_WIDTH)
        .count(0, SIZE_PTRNTEXT)
        .help("half-width characters that a click may hit; 0: as long as the text"),
};

constexpr ParmSchema variableTextParms[] = {
    textColor, textBack, textBacked, textBlink, textFont, fieldWidth, fieldEntry, fieldNavigation,
};

constexpr ParmSchema numericParms[] = {
    textColor,
    textBack,
    textBacked,
    textBlink,
    textFont,
    fieldWidth,
    parm("decimals", FIELD_DECIMALS).count(0, SIZE_PTRNTEXT).help("digits after the point"),
    fieldEntry,
    parm("zero-fill", FIELD_ZEROFILL).flag().help("leading zeros instead of blanks"),
    parm("grouping", FIELD_GROUPING).flag().help("a comma for every three digits, without decimals only"),
    parm("hex", FIELD_HEX).flag().help("hexadecimal"),
    fieldNavigation,
};

constexpr ParmSchema buttonParms[] = {
    parm("light", BUTN_LIGHT).color().help("upper and left edge"),
    parm("dark", BUTN_DARK).color().help("lower and right edge"),
    parm("face", BUTN_FACE).color().help("the area"),
    parm("color", BUTN_CAPTION).color().help("the caption"),
    parm("color-locked", BUTN_CAPTION_LOCKED).color().help("the caption while the button is locked"),
    parm("indented", BUTN_POST_ON)
        .flag()
        .help("caption from the left edge instead of centred; set by indent"),
    parm("indent", BUTN_POST)
        .pixels(-1, MAX_COORDINATE)
        .enabledBy(BUTN_POST_ON)
        .help("from the left edge to the caption, or none"),
    parm("font", BUTN_FONT).font().help("the caption's font"),
    parm("edge", BUTN_WIDTH).pixels(0, MAX_WIDTH).initial(2).help("thickness of the edges"),
    parm("key", BUTN_KEY).number(0, 12).help("function key that presses the button; 0 for none"),
};

// What radio buttons and check boxes share.
constexpr ParmSchema checkColor = parm("color", CHECK_COLOR).color().help("mark and caption");
constexpr ParmSchema checkColorLocked =
    parm("color-locked", CHECK_COLOR_LOCKED).color().help("mark and caption while locked");
constexpr ParmSchema checkBack =
    parm("back", CHECK_BACK).optionalColor().enabledBy(CHECK_BACKED).help("behind mark and caption, or none");
constexpr ParmSchema checkBackLocked = parm("back-locked", CHECK_BACK_LOCKED)
                                           .optionalColor()
                                           .enabledBy(CHECK_BACKED)
                                           .help("the same while locked");
constexpr ParmSchema checkBacked =
    parm("backed", CHECK_BACKED).flag().help("whether the background is painted; set by back");
constexpr ParmSchema checkFont =
    parm("font", CHECK_FONT).font().help("the caption's font; its height sizes the mark");

constexpr ParmSchema radioParms[] = {
    checkColor,
    checkColorLocked,
    checkBack,
    checkBackLocked,
    checkBacked,
    checkFont,
    parm("value", RDIO_VALUE).number().help("the value that this button stands for"),
};

constexpr ParmSchema checkParms[] = {
    checkColor, checkColorLocked, checkBack, checkBackLocked, checkBacked, checkFont,
};

constexpr ParmSchema bitmapParms[] = {
    parm("key-color", BMAP_KEY_COLOR)
        .color()
        .enabledBy(BMAP_KEYED)
        .help("colour that is transparent, or none"),
    parm("keyed", BMAP_KEYED).flag().help("whether one colour is transparent; set by key-color"),
};

constexpr ParmSchema markParms[] = {
    parm("color", MARK_COLOR4).color().perState().help("the mark"),
    parm("back", MARK_BACK4).color().perState().enabledBy(MARK_BACKED).help("behind the mark, or none"),
    parm("backed", MARK_BACKED).flag().help("whether the background is painted; set by back"),
    parm("blink", MARK_FLICKER).flag().help("blinks from the start"),
    parm("mark", MARK_NUMBER4).mark().perState().help("which mark"),
    parm("last-mark", MARK_LAST).mark().help("the mark drawn last; the program writes it"),
};

constexpr ParmSchema scrollBarParms[] = {
    parm("light", SBAR_LIGHT).color().help("upper and left edges"),
    parm("dark", SBAR_DARK).color().help("lower and right edges"),
    parm("face", SBAR_FRAME).color().help("the bar"),
    parm("thumb", SBAR_THUMB).color().help("the thumb"),
    parm("arrows", SBAR_ARROWS).flag().initial(1).help("whether there are buttons for lines"),
    parm("pages", SBAR_PAGES).flag().help("whether there are buttons for pages"),
    parm("direction", SBAR_VERTICAL).choice(scrollDirectionNames).help("which way it scrolls"),
    parm("edge", SBAR_WIDTH).pixels(0, MAX_WIDTH).initial(1).help("thickness of the edges"),
    parm("visible", SBAR_VISIBLE).count(0, MAX_ROWS).initial(10).help("entries that are visible at a time"),
    parm("total", SBAR_TOTAL)
        .count(0, MAX_ROWS)
        .initial(100)
        .help("entries in all; no bar while all are visible"),
    parm("line-step", SBAR_LINE_STEP)
        .count(0, MAX_ROWS)
        .initial(1)
        .help("step of arrow buttons, keys and wheel"),
    parm("page-step", SBAR_PAGE_STEP).count(0, MAX_ROWS).initial(10).help("step of page buttons and keys"),
    parm("trough-step", SBAR_TROUGH_STEP)
        .count(0, MAX_ROWS)
        .initial(10)
        .help("step of a click beside the thumb"),
    parm("current", SBAR_ROLE1).flag().help("whether a click makes it the current scroll bar"),
    parm("keys", SBAR_KEYS).flag().help("whether it takes the scroll keys"),
};

constexpr ParmSchema spinParms[] = {
    parm("minimum", SPIN_MINIMUM).number().help("lower bound; both 0: from the limit table, on clicks only"),
    parm("maximum", SPIN_MAXIMUM).number().initial(100).help("upper bound"),
};

constexpr ItemSchema itemSchemas[] = {
    {PTRN_GBOX, "group-box", ItemText::None, groupBoxParms, "area with four edges"},
    {PTRN_LINE, "line", ItemText::None, lineParms, "straight line, from the upper left to the lower right"},
    {PTRN_RECT, "rectangle", ItemText::None, shapeParms, "rectangle with outline and inside"},
    {PTRN_CRCL, "circle", ItemText::None, shapeParms, "circle or ellipse in its rectangle"},
    {PTRN_BARG, "bar-graph", ItemText::None, barGraphParms, "bar or needle that follows a value"},
    {PTRN_FCHR, "text", ItemText::Caption, textParms, "text that stays"},
    {PTRN_CHAR, "variable-text", ItemText::None, variableTextParms, "text of a cell"},
    {PTRN_NUMR, "numeric", ItemText::None, numericParms, "number of a cell"},
    {PTRN_BUTN, "button", ItemText::Caption, buttonParms, "push button"},
    {PTRN_RDIO, "radio", ItemText::Caption, radioParms, "one of several choices of a cell"},
    {PTRN_CHCK, "check", ItemText::Caption, checkParms, "switches a cell between 0 and 1"},
    {PTRN_BMAP, "bitmap", ItemText::BitmapName, bitmapParms, "picture from the bitmap folder"},
    {PTRN_MARK, "mark", ItemText::None, markParms, "icon in two colours"},
    {PTRN_SBAR, "scroll-bar", ItemText::None, scrollBarParms, "edits the index of the first visible entry"},
    {PTRN_SPIN, "spin", ItemText::None, spinParms, "steps a value up and down"},
};

constexpr ParmSchema headerParms[] = {
    parm("placement", HEDR_KIND)
        .choice(placementNames)
        .help("at the display's origin, or placed with or without frame"),
    parm("width", HEDR_WIDTH).pixels(1, MAX_COORDINATE).initial(1024).help("of the pattern"),
    parm("height", HEDR_HEIGHT).pixels(1, MAX_COORDINATE).initial(768).help("of the pattern"),
    parm("remember", HEDR_REMEMBER).flag().help("opens where it was closed, instead of at left and top"),
    parm("left", HEDR_LEFT).coordinate().help("where the window opens"),
    parm("top", HEDR_TOP).coordinate().help("where the window opens"),
    parm("no-drag", HEDR_NO_DRAG).flag().help("whether a framed window can not be dragged by its title bar"),
    parm("title-height", HEDR_TITLE_HEIGHT)
        .pixels(0, MAX_COORDINATE)
        .help("height of the title bar; 0 for none"),
    parm("title-color", HEDR_TITLE_COLOR).color().help("title and clock"),
    parm("title-back", HEDR_TITLE_BACK).color().help("title bar"),
    parm("title-font", HEDR_TITLE_FONT).font().help("the title's font; its height sizes the buttons"),
    parm("title-centered", HEDR_TITLE_CENTERED).flag().help("title in the middle instead of at the left"),
    parm("logo-button", HEDR_LOGO).flag().help("whether the logo is a button in the title bar"),
    parm("hardcopy-button", HEDR_HARDCOPY).flag().help("whether the title bar has a hard-copy button"),
    parm("logo-left", HEDR_LOGO_LEFT).flag().help("left click on the logo opens the version window"),
    parm("logo-right", HEDR_LOGO_RIGHT).flag().help("right click on the logo opens the maintenance window"),
    parm("clock", HEDR_CLOCK).choice(clockNames).help("date and time in the title bar"),
    parm("clock-font", HEDR_CLOCK_FONT).font().help("the clock's font"),
    parm("body-color", HEDR_BODY_COLOR).color().help("below the title bar"),
    parm("body-shaded", HEDR_BODY_SHADED).flag().help("darkens the body downwards, almost to black"),
    parm("band-height", HEDR_BAND_HEIGHT)
        .pixels(0, MAX_COORDINATE)
        .help("height of the band at the foot; 0 for none"),
    parm("band-color", HEDR_BAND_COLOR).color().help("the band at the foot"),
    parm("frame-width", HEDR_FRAME_WIDTH).pixels(0, MAX_WIDTH).help("frame of a framed window; 0 for none"),
    parm("frame-color", HEDR_FRAME_COLOR).color().help("the frame"),
    parm("cursor", HEDR_CURSOR).number(0, 7).help("pointer cursor"),
    parm("modeless", HEDR_MODELESS).flag().help("of a child window: its parent stays usable"),
    parm("edit-color", HEDR_EDIT_COLOR).color().help("text and cursor of the field in edit"),
    parm("edit-back", HEDR_EDIT_BACK).color().help("behind the field in edit"),
};

constexpr ActionSchema actions[] = {
    {0, "none", false, "nothing"},
    {1, "message", false, "sends the data number to this window's screen class"},
    {2, "message-child", false, "sends it to the child window"},
    {3, "message-child-2", false, "sends it to child window 2, which does not receive it"},
    {4, "message-parent", false, "sends it to the parent window"},
    {5, "open-child-1", true, "opens a pattern as child window 1"},
    {6, "open-child-2", true, "opens a pattern as child window 2"},
    {7, "open-system", true, "opens a pattern as the system window"},
    {8, "open-application", true, "opens a pattern as the application window"},
    {9, "close", false, "closes this window"},
    {10, "close-child-1", false, "closes child window 1"},
    {11, "close-child-2", false, "closes child window 2"},
    {12, "close-system", false, "closes the system window"},
    {13, "version", false, "opens the version window"},
    {14, "maintenance", false, "opens the maintenance window"},
    {15, "hardcopy", false, "requests a hard copy"},
    {16, "stop", false, "stops the system"},
};

template <typename Table, typename Matches>
auto Find(const Table& table, Matches matches) -> decltype(table.begin())
{
    for (const auto& row : table)
        if (matches(row))
            return &row;
    return nullptr;
}

bool Named(const char* rowName, const char* name)
{
    return std::strcmp(rowName, name) == 0;
}

} // namespace

static_assert(sizeof itemSchemas / sizeof *itemSchemas == CONT_PTRN);

SchemaTable<ItemSchema> ItemSchemas()
{
    return itemSchemas;
}

SchemaTable<ParmSchema> CommonParms()
{
    return commonParms;
}

SchemaTable<ParmSchema> HeaderParms()
{
    return headerParms;
}

SchemaTable<ActionSchema> Actions()
{
    return actions;
}

const ItemSchema* FindItemSchema(const char* name)
{
    return Find(ItemSchemas(), [&](const ItemSchema& row) { return Named(row.name, name); });
}

const ItemSchema* FindItemSchema(int type)
{
    return Find(ItemSchemas(), [&](const ItemSchema& row) { return row.type == type; });
}

const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, const char* name)
{
    return Find(parms, [&](const ParmSchema& row) { return Named(row.name, name); });
}

const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, int index)
{
    return Find(parms,
                [&](const ParmSchema& row) { return row.index <= index && index < row.index + row.count; });
}

const ParmSchema* FindItemParm(const ItemSchema& item, const char* name)
{
    const ParmSchema* own = FindParm(item.parms, name);
    return own ? own : FindParm(CommonParms(), name);
}

const ParmSchema* FindItemParm(const ItemSchema& item, int index)
{
    const ParmSchema* own = FindParm(item.parms, index);
    return own ? own : FindParm(CommonParms(), index);
}

const ActionSchema* FindAction(const char* name)
{
    return Find(Actions(), [&](const ActionSchema& row) { return Named(row.name, name); });
}

const ActionSchema* FindAction(int code)
{
    return Find(Actions(), [&](const ActionSchema& row) { return row.code == code; });
}
