// Group box: a bevelled panel behind other items.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

namespace tessary
{

namespace
{

constexpr ParmSchema PARMS[] = {
    parm("face", GBOX_FACE4).color().perState().help("the area"),
    parm("top", GBOX_TOP4).color().perState().help("upper edge"),
    parm("bottom", GBOX_BOTTOM4).color().perState().help("lower edge"),
    parm("left", GBOX_LEFT4).color().perState().help("left edge"),
    parm("right", GBOX_RIGHT4).color().perState().help("right edge"),
    parm("top-width", GBOX_TOP_WIDTH).thickness().initial(1).help("thickness of the upper edge"),
    parm("bottom-width", GBOX_BOTTOM_WIDTH).thickness().initial(1).help("thickness of the lower edge"),
    parm("left-width", GBOX_LEFT_WIDTH).thickness().initial(1).help("thickness of the left edge"),
    parm("right-width", GBOX_RIGHT_WIDTH).thickness().initial(1).help("thickness of the right edge"),
};

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    draw->DrawGbox(item->Rect, item->Parm[GBOX_TOP_WIDTH], item->Parm[GBOX_BOTTOM_WIDTH],
                   item->Parm[GBOX_LEFT_WIDTH], item->Parm[GBOX_RIGHT_WIDTH], Selected(item, GBOX_TOP4),
                   Selected(item, GBOX_BOTTOM4), Selected(item, GBOX_LEFT4), Selected(item, GBOX_RIGHT4),
                   Selected(item, GBOX_FACE4));
}

} // namespace

namespace items
{

extern constexpr ItemClass GROUP_BOX = item(PTRN_GBOX)
                                           .named("group-box")
                                           .helped("area with four edges")
                                           .schema(PARMS)
                                           .drawnBy(Draw)
                                           .erasedBy(EraseRect)
                                           .hitBy(HitRect)
                                           .pressedBy(PressShape)
                                           .opaqueWhen(AlwaysOpaque)
                                           .framesOthers();

} // namespace items

} // namespace tessary
