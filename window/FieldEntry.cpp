#include "window/FieldEntry.h"

#include "base/Coord.h"
#include "base/EucText.h"
#include "base/StateWord.h"
#include "comndata/ComnData.h"
#include "comndata/MesgData.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "pattern/Limits.h"
#include "pattern/NumberText.h"
#include "window/FieldEditor.h"
#include "window/Front.h"
#include "window/KeyText.h"
#include "window/PtrnDisp.h"
#include "window/Slots.h"
#include "window/WindowCodes.h"

#include <algorithm>
#include <gdk/gdk.h>
#include <gdk/gdkkeysyms.h>
#include <vector>

namespace tessary
{

namespace
{

/// Calls `visit` with a window and those below it, until one of them is what is looked for.
template <class Visit> CPtrnDisp* FindWnd(CPtrnDisp* wnd, Visit visit)
{
    if (!wnd || visit(wnd))
        return wnd;
    for (CPtrnDisp* child : {wnd->ChildWnd1, wnd->ChildWnd2})
        if (CPtrnDisp* found = child ? FindWnd(child, visit) : nullptr)
            return found;
    return nullptr;
}

/// By the state of the cell at this moment, not that of the last tick.
bool CanBePressed(const PTRNDATA& item)
{
    return IsOperable(Get_wData(item.DataNo, nullptr, 0));
}

/// Presses the first button of a window for which `wanted` holds.
template <class Wanted> bool PressButton(CPtrnDisp* wnd, Wanted wanted)
{
    const CPtrnData& data = *wnd->PtrnData;
    for (int i = 0; i < data.PtrnCont; ++i) {
        PTRNDATA item = data.PtrnData[i];
        if (item.Type != PTRN_BUTN || !wanted(item) || !CanBePressed(item))
            continue;
        ClearErrorMesg();
        wnd->ExecMessage(&item);
        return true;
    }
    return false;
}

/// The bars that were used last come first.
void MoveScrollBar(CPtrnDisp* wnd, int key)
{
    CPtrnData& data = *wnd->PtrnData;
    std::vector<int> order{data.ScrollPtrn2, data.ScrollPtrn3};
    for (int i = 0; i < data.PtrnCont; ++i)
        order.push_back(i);
    for (const int recd : order) {
        if (recd < 0 || recd >= data.PtrnCont)
            continue;
        PTRNDATA bar = data.PtrnData[recd];
        const bool taken = bar.Type == PTRN_SBAR && bar.Parm[SBAR_KEYS] && CanBePressed(bar);
        if (!taken || !data.ConvScrollKey(key, &bar))
            continue;
        wnd->ExecMessage(&bar);
        return;
    }
}

void FrontKey(CPtrnDisp* wnd, unsigned int key, bool repeated)
{
    if (key >= GDK_F1 && key <= GDK_F12) {
        const int number = static_cast<int>(key - GDK_F1) + 1;
        if (!repeated)
            PressButton(wnd, [number](const PTRNDATA& item) { return item.Parm[BUTN_KEY] == number; });
        return;
    }
    switch (key) {
    case KEYVAL_RETURN:
    case KEYVAL_ESCAPE:
        if (!repeated)
            PressButton(wnd, [key](const PTRNDATA& item) {
                return item.Parm[key == KEYVAL_RETURN ? BUTN_DEFAULT : BUTN_CANCEL] != 0;
            });
        return;
    case KEYVAL_LEFT:
    case KEYVAL_RIGHT:
    case KEYVAL_UP:
    case KEYVAL_DOWN:
    case GDK_Page_Up:
    case GDK_Page_Down:
        MoveScrollBar(wnd, static_cast<int>(key));
        return;
    default:
        return;
    }
}

bool IsStopButton(const CPtrnDisp& wnd, POINT pt)
{
    const int index = wnd.PtrnData->TestPtrnData(pt);
    return index >= 0 && wnd.PtrnData->PtrnData[index].ID_Type == ACTION_STOP;
}

RECT FieldArea(const PTRNDATA& item)
{
    const SIZE cell = FontCell(item.Parm[TEXT_FONT]);
    const int x = item.Parm[PARM_X1];
    const int y = item.Parm[PARM_Y1];
    return SetRect(x, y, Saturate(x + std::int64_t{cell.cx} * KeyFieldWidth(item)), Shift(y, cell.cy));
}

/// The key pressed last, and whether it has been reported more than once. A held key is the one pressed last.
unsigned pressedKey;
bool held;

} // namespace

bool KeyIsHeld()
{
    return held;
}

KeyReport::KeyReport(unsigned code)
{
    held = code != 0 && code == pressedKey; // made up keys have none
    pressedKey = code;
}

KeyReport::~KeyReport()
{
    held = false;
}

void NoteKeyRelease(unsigned code)
{
    if (code == pressedKey)
        pressedKey = 0;
}

CPtrnDisp* EditedWnd()
{
    const auto isEdited = [](const CPtrnDisp* wnd) { return wnd->KeyInputMode == 1; };
    CPtrnDisp* found = FindWnd(SystmWnd, isEdited);
    return found ? found : FindWnd(AppliWnd, isEdited);
}

void PanelKey(unsigned int key, int flags, bool repeated)
{
    if (CPtrnDisp* edited = EditedWnd())
        edited->KeyEntry(key, flags);
    else if (CPtrnDisp* front = FrontWnd())
        FrontKey(front, key, repeated);
}

bool StoreBeforePress(CPtrnDisp* wnd, POINT pt)
{
    CPtrnDisp* edited = EditedWnd();
    if (!edited)
        return true;
    if (edited == wnd && PointInRect(pt, FieldArea(edited->KeyInputPtrn))) {
        edited->PlaceKeyCursor(pt);
        return false;
    }
    return edited->KeyInputStop(KEYVAL_RETURN, 0, nullptr, 0) == 1 || IsStopButton(*wnd, pt);
}

std::string CharacterOfKey(unsigned int key)
{
    const guint32 unicode = gdk_keyval_to_unicode(key);
    if (unicode < 0x20 || unicode == 0x7F)
        return "";
    char utf8[8] = "";
    g_unichar_to_utf8(unicode, utf8);
    bool ok = false;
    const std::string euc = Utf8ToEuc(utf8, &ok);
    const bool plain = euc.size() == 1 && euc[0] >= 0x20 && euc[0] < 0x7F;
    return ok && (plain || (euc.size() == 2 && EucCharacter(euc.c_str()) == 2)) ? euc : "";
}

void TypeCharacter(CPtrnDisp* wnd, const std::string& character)
{
    wnd->TypeCharacter(character);
}

} // namespace tessary

using namespace tessary;

namespace
{

FieldEditor::Field FieldOf(const PTRNDATA& item)
{
    FieldEditor::Field field;
    field.width = KeyFieldWidth(item);
    if (item.Type == PTRN_NUMR) {
        field.kind = item.Parm[FIELD_HEX] ? FieldEditor::Kind::Hexadecimal : FieldEditor::Kind::Number;
        field.decimals = item.Parm[FIELD_DECIMALS];
    }
    return field;
}

/// What an edit starts with, which is what the field shows: empty where that is no number.
std::string FirstText(const PTRNDATA& item)
{
    if (item.Type == PTRN_NUMR)
        return PlainNumberText(&item);
    const std::string text = Get_sData(item.DataNo, nullptr, 0);
    return text.substr(0, EucCut(text.c_str(), static_cast<std::size_t>(KeyFieldWidth(item))));
}

const char* InLanguageOfPanel(const char* japanese, const char* english)
{
    return Language == 0 ? japanese : english;
}

bool IsEntryField(const PTRNDATA& item)
{
    const ItemClass* type = FindItemClass(item.Type);
    return type && type->entry && item.Parm[FIELD_KEYENTRY] == 1 && item.ID_Code[0] &&
           IsUsable(Get_wData(item.DataNo, nullptr, 0));
}

} // namespace

void CPtrnDisp::StartEditor()
{
    Editor = std::make_unique<FieldEditor>(FieldOf(KeyInputPtrn), FirstText(KeyInputPtrn));
    KeyInputCode = 0;
    ShowEditor();
}

/// The members that screen classes see follow the editor. The cursor appears at the next tick.
void CPtrnDisp::ShowEditor()
{
    CopyText(KeyInputText, Editor->text().c_str());
    KeyInputPost = Editor->cursor();
    HideKeyCursor();
    RestoreField();
}

/// Shows the field as it is now, in edit or not, without a trace of what it was before.
void CPtrnDisp::RestoreField()
{
    if (!Draw)
        return;
    RECT area = FieldArea(KeyInputPtrn);
    area.right = Shift(area.right, 1); // the cursor may stand behind the last character
    area.bottom = Shift(area.bottom, 1);
    PtrnData->RestoreArea(Draw.get(), area);
}

void CPtrnDisp::ChangeText(bool (tessary::FieldEditor::*change)())
{
    if ((Editor.get()->*change)())
        ShowEditor();
    else
        gdk_beep();
}

void CPtrnDisp::MoveCursor(bool (tessary::FieldEditor::*step)())
{
    (Editor.get()->*step)();
    ShowEditor();
}

void CPtrnDisp::TypeCharacter(const std::string& character)
{
    if (Editor && !character.empty() && Editor->type(character))
        ShowEditor();
    else
        gdk_beep();
}

void CPtrnDisp::PlaceKeyCursor(POINT pt)
{
    const int cell = FontCell(KeyInputPtrn.Parm[TEXT_FONT]).cx;
    const int start = Shift(KeyInputPtrn.Parm[PARM_X1], cell * EditIndent());
    Editor->place(cell > 0 ? (pt.x - start + cell / 2) / cell : 0);
    ShowEditor();
}

int CPtrnDisp::EditIndent() const
{
    if (!Editor || KeyInputPtrn.Type != PTRN_NUMR)
        return 0;
    return std::max(KeyFieldWidth(KeyInputPtrn) - static_cast<int>(Editor->text().size()), 0);
}

/// Left and Right at the ends of the text end the input where the field's flags say so.
void CPtrnDisp::MoveOrEnd(unsigned int key, int flags, bool (tessary::FieldEditor::*step)(), int flag)
{
    const int before = Editor->cursor();
    const bool moved = (Editor.get()->*step)();
    if (!moved && Editor->cursor() == before && (KeyInputPtrn.Parm[FIELD_NAVIGATION] & flag))
        KeyInputStop(key, flags, nullptr, 0);
    else
        ShowEditor();
}

void CPtrnDisp::StoreAndGo(unsigned int key, int flags, int direction)
{
    const int from = KeyInputPtrn.Recd;
    if (KeyInputStop(key, flags, nullptr, 0) != 1 || Closed || KeyInputMode == 1)
        return;
    const int count = PtrnData->PtrnCont;
    for (int step = 1; step <= count; ++step) {
        const int recd = ((from + direction * step) % count + count) % count;
        if (!IsEntryField(PtrnData->PtrnData[recd]))
            continue;
        PTRNDATA item = PtrnData->PtrnData[recd];
        KeyInputStart(&item);
        return;
    }
}

void CPtrnDisp::EditorKey(unsigned int key, int flags)
{
    const int nav = KeyInputPtrn.Parm[FIELD_NAVIGATION];
    switch (key) {
    case KEYVAL_BACKSPACE:
        ChangeText(&FieldEditor::removeBefore);
        return;
    case KEYVAL_DELETE:
        ChangeText(&FieldEditor::removeAfter);
        return;
    case KEYVAL_RETURN:
    case KEYVAL_ESCAPE:
        KeyInputStop(key, flags, nullptr, 0);
        return;
    case KEYVAL_TAB:
        StoreAndGo(key, flags, flags == MODIFIER_SHIFT ? -1 : 1);
        return;
    case KEYVAL_LEFT:
        MoveOrEnd(key, flags, &FieldEditor::left, NAV_LEFT);
        return;
    case KEYVAL_RIGHT:
        MoveOrEnd(key, flags, &FieldEditor::right, NAV_RIGHT);
        return;
    case KEYVAL_UP:
        if (nav & NAV_UP)
            StoreAndGo(key, flags, -1);
        return;
    case KEYVAL_DOWN:
        if (nav & NAV_DOWN)
            StoreAndGo(key, flags, 1);
        return;
    case GDK_Home:
        MoveCursor(&FieldEditor::home);
        return;
    case GDK_End:
        MoveCursor(&FieldEditor::end);
        return;
    default:
        break;
    }
    // With Control or Alt a letter is a command of something else.
    const std::string character = CharacterOfKey(key);
    if (!character.empty() && flags != MODIFIER_CONTROL && flags != MODIFIER_ALT)
        TypeCharacter(character);
}

/// Checks and stores what was edited. @return 0 when it was refused: the error line says why
int CPtrnDisp::StoreEdited()
{
    const int no = KeyInputPtrn.DataNo;
    if (!Editor->isChanged())
        return 1;
    if (KeyInputPtrn.Type != PTRN_NUMR) {
        std::string text = Editor->text();
        text.erase(text.find_last_not_of(' ') + 1);
        Set_sData(no, text.c_str(), nullptr, 0);
        return 1;
    }
    if (!Editor->isComplete()) {
        DispErrorMesg(InLanguageOfPanel("数値を入力してください", "Enter a number"));
        return 0;
    }
    if (!Editor->fits()) {
        DispErrorMesg(InLanguageOfPanel("桁数が多すぎます", "The number does not fit its field"));
        return 0;
    }
    if (!AcceptByLimits(KeyInputPtrn, Editor->value()))
        return 0;
    Set_dData(no, Editor->value(), nullptr, 0);
    return 1;
}
