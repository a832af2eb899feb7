// Bitmap: a picture from the project's folder.
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"

namespace tessary
{

namespace
{

constexpr ParmSchema PARMS[] = {
    parm("key-color", BMAP_KEY_COLOR)
        .color()
        .enabledBy(BMAP_KEYED)
        .help("colour that is transparent, or none"),
    parm("keyed", BMAP_KEYED).flag().help("whether one colour is transparent; set by key-color"),
};

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    draw->DrawBmap(item->Rect, item->Parm[BMAP_KEYED] ? item->Parm[BMAP_KEY_COLOR] : -1, item->Text);
}

bool IsOpaque(const ItemDraft& draft)
{
    return draft.parm[BMAP_KEYED] == 0 && !draft.texts[0].empty();
}

} // namespace

namespace items
{

extern constexpr ItemClass BITMAP = item(PTRN_BMAP)
                                        .named("bitmap")
                                        .helped("picture from the bitmap folder")
                                        .shows(ItemText::BitmapName)
                                        .schema(PARMS)
                                        .drawnBy(Draw)
                                        .erasedBy(EraseRect)
                                        .hitBy(HitRect)
                                        .opaqueWhen(IsOpaque);

} // namespace items

} // namespace tessary
