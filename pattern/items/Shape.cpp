// Rectangle and circle. Each is erased by its own shape, so that what lies around it stays.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

#include <algorithm>

namespace tessary
{

namespace
{

constexpr ParmChoice GROW_NAMES[] = {{"both", 0}, {"inside", 1}, {"outside", 2}};

constexpr ParmSchema PARMS[] = {
    parm("outline", SHAPE_OUTLINE4).color().perState().help("the outline"),
    parm("fill", SHAPE_FILL4).optionalColor().perState().enabledBy(SHAPE_FILLED).help("the inside, or none"),
    parm("filled", SHAPE_FILLED).flag().help("whether the inside is painted; set by fill"),
    parm("grow", SHAPE_FOMT).choice(GROW_NAMES).help("where a thick outline grows"),
    parm("width", SHAPE_WIDTH).thickness().initial(1).help("thickness of the outline; 0 for none"),
};

void DrawRectangle(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    draw->DrawRect(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT],
                   Selected(item, SHAPE_OUTLINE4), SelectedBackground(item, SHAPE_FILL4, SHAPE_FILLED));
}

void EraseRectangle(CDraw* draw, const PTRNDATA* item)
{
    draw->DrawRect(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT], item->Parm[PARM_CLEAR],
                   item->Parm[PARM_CLEAR]);
}

void DrawCircle(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    draw->DrawCrcl(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT],
                   Selected(item, SHAPE_OUTLINE4), SelectedBackground(item, SHAPE_FILL4, SHAPE_FILLED));
}

void EraseCircle(CDraw* draw, const PTRNDATA* item)
{
    draw->DrawCrcl(item->Rect, item->Parm[SHAPE_WIDTH], item->Parm[SHAPE_FOMT], item->Parm[PARM_CLEAR],
                   item->Parm[PARM_CLEAR]);
}

bool IsFilled(const ItemDraft& draft)
{
    const std::int32_t* fill = draft.parm + SHAPE_FILL4;
    return draft.parm[SHAPE_FILLED] && std::none_of(fill, fill + 4, [](int color) { return color < 0; });
}

constexpr ItemRow Shape(PtrnType type)
{
    return item(type).schema(PARMS).hitBy(HitRect).pressedBy(PressShape);
}

} // namespace

namespace items
{

extern constexpr ItemClass RECTANGLE = Shape(PTRN_RECT)
                                           .named("rectangle")
                                           .helped("rectangle with outline and inside")
                                           .drawnBy(DrawRectangle)
                                           .erasedBy(EraseRectangle)
                                           .opaqueWhen(IsFilled)
                                           .framesOthers();

extern constexpr ItemClass CIRCLE = Shape(PTRN_CRCL)
                                        .named("circle")
                                        .helped("circle or ellipse in its rectangle")
                                        .drawnBy(DrawCircle)
                                        .erasedBy(EraseCircle);

} // namespace items

} // namespace tessary
