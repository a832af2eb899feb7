// Push button.
#include "base/Coord.h"
#include "draw/DrawCntl.h"
#include "pattern/items/ItemDraw.h"
#include "pattern/Press.h"

#include <X11/keysym.h>

namespace tessary
{

namespace
{

constexpr ParmSchema PARMS[] = {
    parm("light", BUTN_LIGHT).color().help("upper and left edge"),
    parm("dark", BUTN_DARK).color().help("lower and right edge"),
    parm("face", BUTN_FACE).color().help("the area"),
    parm("color", BUTN_CAPTION).color().help("the caption"),
    parm("color-locked", BUTN_CAPTION_LOCKED).color().help("the caption while the button is locked"),
    parm("indented", BUTN_POST_ON)
        .flag()
        .help("caption from the left edge instead of centred; set by indent"),
    parm("indent", BUTN_POST)
        .pixels(-1, COORDINATE_MAX)
        .enabledBy(BUTN_POST_ON)
        .help("from the left edge to the caption, or none"),
    parm("font", BUTN_FONT).font().help("the caption's font"),
    parm("edge", BUTN_WIDTH).thickness().initial(2).help("thickness of the edges"),
    parm("key", BUTN_KEY).number(0, 12).help("function key that presses the button; 0 for none"),
    parm("default", BUTN_DEFAULT)
        .flag()
        .since(Correction::KeysToFront)
        .help("whether Return presses it while nothing is in edit"),
    parm("cancel", BUTN_CANCEL)
        .flag()
        .since(Correction::KeysToFront)
        .help("whether Escape presses it while nothing is in edit"),
};

void Draw(CPtrnData&, CDraw* draw, PTRNDATA* item, int)
{
    if (IsDisabled(item)) {
        EraseRect(draw, item);
        return;
    }
    const int caption = item->Parm[IsLocked(item) ? BUTN_CAPTION_LOCKED : BUTN_CAPTION];
    const int post = item->Parm[BUTN_POST_ON] ? item->Parm[BUTN_POST] : -1;
    draw->DrawButn(item->Rect, item->Parm[BUTN_WIDTH], item->Parm[BUTN_LIGHT], item->Parm[BUTN_DARK],
                   item->Parm[BUTN_FACE], caption, post, item->Parm[BUTN_FONT], item->Text);
}

/// Only its action counts.
void Operate(const PTRNDATA&) {}

int CaptionWidth(const ItemDraft& draft)
{
    const int indent = draft.parm[BUTN_POST_ON] ? draft.parm[BUTN_POST] : 0;
    return Saturate(std::int64_t{indent} +
                    std::int64_t{draft.fontCell(draft.parm[BUTN_FONT]).cx} * draft.longestText());
}

} // namespace

namespace items
{

extern constexpr ItemClass PUSH_BUTTON = item(PTRN_BUTN)
                                             .named("button")
                                             .helped("push button")
                                             .shows(ItemText::Caption)
                                             .schema(PARMS)
                                             .keysAt(BUTN_KEY)
                                             .fontAt(BUTN_FONT)
                                             .drawnBy(Draw)
                                             .erasedBy(EraseRect)
                                             .hitBy(HitRect)
                                             .pressedBy(PressControl)
                                             .operatedBy(Operate)
                                             .actsOnly()
                                             .captionNeeds(CaptionWidth)
                                             .opaqueWhen(AlwaysOpaque);

} // namespace items

} // namespace tessary

int CPtrnData::SetButtonKey(int key, PTRNDATA* item)
{
    if (key < XK_F1 || key > XK_F12)
        return 0;
    const int number = key - XK_F1 + 1;
    for (int i = 0; i < PtrnCont; ++i)
        if (PtrnData[i].Type == PTRN_BUTN && !tessary::IsHidden(PtrnData[i]) &&
            PtrnData[i].Parm[tessary::BUTN_KEY] == number) {
            *item = PtrnData[i];
            return 1;
        }
    return 0;
}
