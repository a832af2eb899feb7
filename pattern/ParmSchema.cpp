#include "pattern/ParmSchema.h"

#include "pattern/ItemParm.h"

#include <algorithm>
#include <cstring>

namespace tessary
{

namespace
{

constexpr ParmChoice PASS_NAMES[] = {{"back", 0}, {"front", 1}};
constexpr ParmChoice PLACEMENT_NAMES[] = {{"origin", 0}, {"framed", 1}, {"plain", 2}};
constexpr ParmChoice CLOCK_NAMES[] = {{"none", 0},         {"date", 1},       {"minutes", 2},
                                      {"seconds", 3},      {"kanji-date", 4}, {"kanji-minutes", 5},
                                      {"kanji-seconds", 6}};

constexpr ParmSchema COMMON_PARMS[] = {
    parm("x1", PARM_X1).coordinate().help("left edge; of texts the start"),
    parm("y1", PARM_Y1).coordinate().help("upper edge; of texts the top of the line"),
    parm("x2", PARM_X2).coordinate().help("right edge"),
    parm("y2", PARM_Y2).coordinate().help("lower edge"),
    parm("pass", PARM_PASS).choice(PASS_NAMES).help("drawn before or after all items of the other pass"),
    parm("clear", PARM_CLEAR)
        .color()
        .help("what the item is painted over with when it is hidden or disabled"),
};

constexpr ParmSchema HEADER_PARMS[] = {
    parm("placement", HEDR_KIND)
        .choice(PLACEMENT_NAMES)
        .help("at the display's origin, or placed with or without frame"),
    parm("width", HEDR_WIDTH).pixels(1, COORDINATE_MAX).initial(1024).help("of the pattern"),
    parm("height", HEDR_HEIGHT).pixels(1, COORDINATE_MAX).initial(768).help("of the pattern"),
    parm("remember", HEDR_REMEMBER).flag().help("opens where it was closed, instead of at left and top"),
    parm("left", HEDR_LEFT).coordinate().help("where the window opens"),
    parm("top", HEDR_TOP).coordinate().help("where the window opens"),
    parm("no-drag", HEDR_NO_DRAG).flag().help("whether a framed window can not be dragged by its title bar"),
    parm("title-height", HEDR_TITLE_HEIGHT)
        .pixels(0, COORDINATE_MAX)
        .help("height of the title bar; 0 for none"),
    parm("title-color", HEDR_TITLE_COLOR).color().help("title and clock"),
    parm("title-back", HEDR_TITLE_BACK).color().help("title bar"),
    parm("title-font", HEDR_TITLE_FONT).font().help("the title's font; its height sizes the buttons"),
    parm("title-centered", HEDR_TITLE_CENTERED).flag().help("title in the middle instead of at the left"),
    parm("logo-button", HEDR_LOGO).flag().help("whether the logo is a button in the title bar"),
    parm("hardcopy-button", HEDR_HARDCOPY).flag().help("whether the title bar has a hard-copy button"),
    parm("logo-left", HEDR_LOGO_LEFT).flag().help("left click on the logo opens the version window"),
    parm("logo-right", HEDR_LOGO_RIGHT).flag().help("right click on the logo opens the maintenance window"),
    parm("clock", HEDR_CLOCK).choice(CLOCK_NAMES).help("date and time in the title bar"),
    parm("clock-font", HEDR_CLOCK_FONT).font().help("the clock's font"),
    parm("body-color", HEDR_BODY_COLOR).color().help("below the title bar"),
    parm("body-shaded", HEDR_BODY_SHADED).flag().help("darkens the body downwards, almost to black"),
    parm("band-height", HEDR_BAND_HEIGHT)
        .pixels(0, COORDINATE_MAX)
        .help("height of the band at the foot; 0 for none"),
    parm("band-color", HEDR_BAND_COLOR).color().help("the band at the foot"),
    parm("frame-width", HEDR_FRAME_WIDTH).thickness().help("frame of a framed window; 0 for none"),
    parm("frame-color", HEDR_FRAME_COLOR).color().help("the frame"),
    parm("cursor", HEDR_CURSOR).number(0, 7).help("pointer cursor"),
    parm("modeless", HEDR_MODELESS).flag().help("of a child window: its parent stays usable"),
    parm("edit-color", HEDR_EDIT_COLOR).color().help("text and cursor of the field in edit"),
    parm("edit-back", HEDR_EDIT_BACK).color().help("behind the field in edit"),
};

template <typename Matches> const ParmSchema* Find(SchemaTable<ParmSchema> parms, Matches matches)
{
    const auto found = std::find_if(parms.begin(), parms.end(), matches);
    return found == parms.end() ? nullptr : found;
}

} // namespace

SchemaTable<ParmSchema> CommonParms()
{
    return COMMON_PARMS;
}

SchemaTable<ParmSchema> HeaderParms()
{
    return HEADER_PARMS;
}

const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, const char* name)
{
    return Find(parms, [name](const ParmSchema& row) { return std::strcmp(row.name, name) == 0; });
}

const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, int index)
{
    return Find(parms, [index](const ParmSchema& row) {
        return row.index <= index && index < row.index + row.count;
    });
}

} // namespace tessary
