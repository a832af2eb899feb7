// Mark: an icon in two colours.
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "draw/Resource.h"
#include "pattern/items/ItemDraw.h"

namespace tessary
{

namespace
{

constexpr ParmSchema PARMS[] = {
    parm("color", MARK_COLOR4).color().perState().help("the mark"),
    parm("back", MARK_BACK4).color().perState().enabledBy(MARK_BACKED).help("behind the mark, or none"),
    parm("backed", MARK_BACKED).flag().help("whether the background is painted; set by back"),
    parm("blink", MARK_FLICKER).flag().help("blinks from the start"),
    parm("mark", MARK_NUMBER4).mark().perState().help("which mark"),
    parm("last-mark", MARK_LAST).mark().written().help("the mark drawn last; the program writes it"),
};

void Draw(CPtrnData& data, CDraw* draw, PTRNDATA* item, int updt)
{
    const int back = SelectedBackground(item, MARK_BACK4, MARK_BACKED);
    if (IsDisabled(item)) {
        if (back != -1)
            draw->DrawRect(item->Rect, 0, 0, back, back);
        return;
    }
    if (updt) {
        const int clear = item->Parm[PARM_CLEAR];
        draw->DrawMark(item->Rect, clear, item->Parm[MARK_BACKED] ? clear : -1, item->Parm[MARK_LAST]);
    }
    const int mark = Selected(item, MARK_NUMBER4);
    draw->DrawMark(item->Rect, Selected(item, MARK_COLOR4), back, mark);

    // Stored at once and by every kind of display, so that the next update wipes this mark.
    item->Parm[MARK_LAST] = mark;
    if (!Has(Correction::Layers))
        data.WritePtrnData(item);
    else if (item->Recd >= 0 && item->Recd < data.PtrnCont)
        data.PtrnData[item->Recd].Parm[MARK_LAST] = mark;
}

void Blink(CDraw* draw, const PTRNDATA* item, int phase)
{
    const bool backed = item->Parm[MARK_BACKED] != 0;
    const int back = backed ? Selected(item, MARK_BACK4) : -1;
    const int blank = backed ? back : item->Parm[PARM_CLEAR];
    draw->DrawMark(item->Rect, phase ? Selected(item, MARK_COLOR4) : blank, back,
                   Selected(item, MARK_NUMBER4));
}

std::optional<SIZE> NaturalSize(const ItemDraft& draft)
{
    return MarkSize(draft.parm[MARK_NUMBER4]);
}

bool IsOpaque(const ItemDraft& draft)
{
    return draft.parm[MARK_BACKED] != 0;
}

} // namespace

namespace items
{

extern constexpr ItemClass MARK = item(PTRN_MARK)
                                      .named("mark")
                                      .helped("icon in two colours")
                                      .schema(PARMS)
                                      .drawnBy(Draw)
                                      .erasedBy(EraseRect)
                                      .blinksBy(Blink, MARK_FLICKER)
                                      .hitBy(HitRect)
                                      .sizedBy(NaturalSize)
                                      .opaqueWhen(IsOpaque);

} // namespace items

} // namespace tessary
