// Line. It is erased by its own shape, so that what lies around it stays.
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "pattern/items/ItemDraw.h"

namespace tessary
{

namespace
{

constexpr ParmChoice GROW_NAMES[] = {{"both", 0}, {"inside", 1}, {"outside", 2}};
constexpr ParmChoice DASH_NAMES[] = {{"solid", 0}, {"long", 1}, {"short", 2}};

constexpr ParmSchema PARMS[] = {
    parm("color", LINE_COLOR4).color().perState().help("the line"),
    parm("grow", LINE_FOMT)
        .choice(GROW_NAMES)
        .help("where a thick line grows: inside is left of or above it"),
    parm("dash", LINE_TYPE).choice(DASH_NAMES).fatal().help("solid, or dashes of 12 or of 4 pixels"),
    parm("width", LINE_WIDTH).thickness(1).initial(1).help("thickness"),
};

void DrawIn(CDraw* draw, const PTRNDATA* item, int colr)
{
    draw->DrawLine(item->Rect, item->Parm[LINE_TYPE], item->Parm[LINE_WIDTH], item->Parm[LINE_FOMT], colr);
}

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    DrawIn(draw, item, Selected(item, LINE_COLOR4));
}

void Erase(CDraw* draw, const PTRNDATA* item)
{
    DrawIn(draw, item, item->Parm[PARM_CLEAR]);
}

int Hit(POINT point, const PTRNDATA* item)
{
    // The ordered corners: a rising line is tested along the falling diagonal of its box.
    return TestLine(point, item->Rect);
}

} // namespace

namespace items
{

extern constexpr ItemClass LINE = item(PTRN_LINE)
                                      .named("line")
                                      .helped("straight line, from the upper left to the lower right")
                                      .schema(PARMS)
                                      .drawnBy(Draw)
                                      .erasedBy(Erase)
                                      .hitBy(Hit)
                                      .exchangedCornersSay("; no line rises to the right.");

} // namespace items

} // namespace tessary
