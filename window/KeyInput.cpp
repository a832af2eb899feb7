// Editing a field: start, end, store, draw.
#include "base/Coord.h"
#include "base/EucText.h"
#include "base/StateWord.h"
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "config/Edition.h"
#include "config/Profile.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "pattern/ItemCell.h"
#include "pattern/ItemParm.h"
#include "window/FieldEditor.h"
#include "window/InputMethod.h"
#include "window/KeyText.h"
#include "window/PtrnDisp.h"
#include "window/WindowCodes.h"

#include <cstdlib>
#include <string>

using namespace tessary;

namespace
{

std::string NameOf(int dataNo)
{
    char name[SIZE_DTNONAME];
    ConvertDtno(dataNo, name);
    return name;
}

} // namespace

void CPtrnDisp::KeyInputStart(int dataNo, const char* file, int line)
{
    PTRNDATA item;
    if (!PtrnReadData(dataNo, PTRN_CHAR, &item) && !PtrnReadData(dataNo, PTRN_NUMR, &item)) {
        LogText(CATEGORY_WINDOW, file, line, "キー入力開始に失敗  [%s]", NameOf(dataNo).c_str());
        return;
    }
    if (!IsUsable(item.wData) || item.Parm[FIELD_KEYENTRY] != 1)
        return;
    if (file)
        LogText(CATEGORY_WINDOW, file, line, "キー入力開始  [%s]", NameOf(dataNo).c_str());
    KeyInputStart(&item);
}

void CPtrnDisp::KeyInputStart(PTRNDATA* item)
{
    KeyInputStop(0, 0, nullptr, 0);
    if (PtrnKeyStart(item) != 1 || Closed)
        return;
    KeyInputStop(0, 0, nullptr, 0); // what the hook may have started itself

    KeyInputMode = 1;
    KeyInputPtrn = *item;
    KeyInputCode = 0;
    OR_wData(item->DataNo, STATE_FROZEN, nullptr, 0);
    if (Has(Correction::EntryReplaces)) {
        StartEditor();
    } else {
        CopyText(KeyInputText, item->Type == PTRN_CHAR ? item->Text : ConvertNumrData(item));
        ShowKeyInput();
        KeyInputPost = item->Type == PTRN_NUMR ? KeyFieldWidth(*item) : 0;
    }
    DesktopMethod().start(this);
}

int CPtrnDisp::KeyInputStop(unsigned int key, int flags, const char* file, int line)
{
    if (KeyInputMode != 1)
        return 1;
    ClearErrorMesg();
    if (KeyInputCheck(static_cast<int>(key)) == 0)
        return 0;
    if (file)
        LogText(CATEGORY_WINDOW, file, line, "キー入力終了  [%s]", NameOf(KeyInputPtrn.DataNo).c_str());

    if (Editor) {
        DropKeyInput();
        RestoreField();
    } else {
        PTRNDATA item = KeyInputPtrn;
        if (Draw) {
            KeyInputDisp(Draw.get(), DRAW_NO_CURSOR);
            ReadCell(&item);
            PtrnData->DispPtrnData(Draw.get(), &item, 1);
        }
        DropKeyInput();
    }
    if (key != 0)
        PtrnKeyFunc(static_cast<int>(key), flags, &KeyInputPtrn);
    return 1;
}

void CPtrnDisp::DropKeyInput()
{
    if (KeyInputMode != 1)
        return;
    KeyInputMode = 0;
    Editor.reset();
    AND_wData(KeyInputPtrn.DataNo, static_cast<WORD>(~STATE_FROZEN), nullptr, 0);
    DesktopMethod().stop(this);
}

int CPtrnDisp::KeyInputCheck(int key)
{
    if (key == 0 || key == KEYVAL_ESCAPE)
        return 1;
    if (Editor)
        return StoreEdited();
    const int no = KeyInputPtrn.DataNo;
    if (KeyInputPtrn.Type == PTRN_NUMR) {
        const float value = KeyInputPtrn.Parm[FIELD_HEX] ? static_cast<float>(atoh(KeyInputText))
                                                         : static_cast<float>(std::atof(KeyInputText));
        if (ChckLimtData(no, value, nullptr, 0) != 1)
            return 0;
        Set_fData(no, value, nullptr, 0);
    } else {
        DropTrailingBlank(KeyInputText, KeyFieldWidth(KeyInputPtrn));
        Set_sData(no, KeyInputText, nullptr, 0);
    }
    return 1;
}

void CPtrnDisp::KeyEntry(unsigned int key, int flags)
{
    if (ChildWnd1)
        ChildWnd1->KeyEntry(key, flags);
    if (ChildWnd2)
        ChildWnd2->KeyEntry(key, flags);
    if (KeyInputMode != 1)
        return;
    if (Editor)
        EditorKey(key, flags);
    else
        PlainKey(key, flags);
}

/// A key of plain entry, in which a number shifts through its field like in a calculator.
void CPtrnDisp::PlainKey(unsigned int key, int flags)
{
    const int nav = KeyInputPtrn.Parm[FIELD_NAVIGATION];
    switch (key) {
    case KEYVAL_BACKSPACE:
    case KEYVAL_DELETE:
        KeyInputDelete(key);
        return;
    case KEYVAL_RETURN:
    case KEYVAL_ESCAPE:
    case KEYVAL_TAB:
        KeyInputStop(key, flags, nullptr, 0);
        return;
    case KEYVAL_LEFT:
    case KEYVAL_RIGHT:
        KeyInputShift(key, flags, nav);
        return;
    case KEYVAL_UP:
        if (nav & NAV_UP)
            KeyInputStop(key, flags, nullptr, 0);
        return;
    case KEYVAL_DOWN:
        if (nav & NAV_DOWN)
            KeyInputStop(key, flags, nullptr, 0);
        return;
    default:
        break;
    }

    const unsigned char byte = static_cast<unsigned char>(key & 0xFF);
    if (KeyInputPtrn.Type == PTRN_NUMR) {
        if (NumericKey(KeyInputPtrn, KeyInputText, KeyInputPost, byte))
            KeyInputInsert(byte, 0);
    } else if (IsEucHalf(byte)) {
        if (KeyInputCode) {
            KeyInputInsert(KeyInputCode, byte);
            KeyInputCode = 0;
        } else {
            KeyInputCode = byte;
        }
    } else if (PrintableKey(byte)) {
        KeyInputInsert(byte, 0);
    }
}

void CPtrnDisp::KeyInputInsert(unsigned int c1, unsigned int c2)
{
    if (Editor) {
        std::string character(1, static_cast<char>(c1));
        if (c2)
            character += static_cast<char>(c2);
        TypeCharacter(character);
        return;
    }
    KeyInputPost = InsertKey(KeyInputPtrn, KeyInputText, KeyInputPost, c1, c2);
    ShowKeyInput();
}

void CPtrnDisp::KeyInputDelete(unsigned int key)
{
    if (Editor) {
        EditorKey(key, 0);
        return;
    }
    KeyInputPost = DeleteKey(KeyFieldWidth(KeyInputPtrn), KeyInputText, KeyInputPost, key);
    ShowKeyInput();
}

void CPtrnDisp::KeyInputShift(unsigned int key, int flags, int nav)
{
    if (Editor) {
        EditorKey(key, flags);
        return;
    }
    const int moved = ShiftKey(KeyInputPtrn, KeyInputText, KeyInputPost, key);
    if (moved == KeyInputPost) {
        if (nav & (key == KEYVAL_LEFT ? NAV_LEFT : NAV_RIGHT))
            KeyInputStop(key, flags, nullptr, 0);
        return;
    }
    KeyInputDisp(Draw.get(), DRAW_BACK | DRAW_TEXT | DRAW_NO_CURSOR);
    KeyInputPost = moved;
    HideKeyCursor();
}

void CPtrnDisp::ShowKeyInput()
{
    KeyInputDisp(Draw.get(), DRAW_BACK | DRAW_TEXT);
    HideKeyCursor();
}

/// Of a part of the display that is drawn anew: the field in edit as it is.
void CPtrnDisp::RedrawKeyInput(CDraw* draw)
{
    if (KeyInputMode == 1)
        KeyInputDisp(draw, DRAW_BACK | DRAW_TEXT | (KeyInputFlag ? DRAW_CURSOR : 0));
}

/// The text has been drawn without the cursor, which appears at the next tick.
void CPtrnDisp::HideKeyCursor()
{
    KeyInputFlag = 0;
    KeyInputTimr = KEYCURSOR_OFF;
    DesktopMethod().move(this);
}

void CPtrnDisp::KeyTimer(CDraw* draw)
{
    if (KeyInputMode != 1)
        return;
    ++KeyInputTimr;
    if (KeyInputTimr < (KeyInputFlag ? KEYCURSOR_ON : KEYCURSOR_OFF))
        return;
    KeyInputFlag = !KeyInputFlag;
    KeyInputTimr = 0;
    if (Editor)
        RestoreField();
    else
        KeyInputDisp(draw, KeyInputFlag ? DRAW_CURSOR : DRAW_NO_CURSOR);
}

void CPtrnDisp::KeyReset()
{
    if (ChildWnd1)
        ChildWnd1->KeyReset();
    if (ChildWnd2)
        ChildWnd2->KeyReset();
    if (KeyInputMode == 1)
        KeyInputStop(0, 0, nullptr, 0);
}

void CPtrnDisp::KeyInputDisp(CDraw* draw, int mode)
{
    if (!draw)
        return;
    const PTRNDATA& item = KeyInputPtrn;
    const int font = item.Parm[TEXT_FONT];
    const int color = Header(HEDR_EDIT_COLOR);
    const int back = Header(HEDR_EDIT_BACK);
    const SIZE cell = FontCell(font);
    const int x = item.Parm[PARM_X1];
    const int y = item.Parm[PARM_Y1];
    const int bottom = Shift(y, cell.cy);
    const int text = Shift(x, cell.cx * EditIndent());
    const int cursor = Shift(text, cell.cx * KeyInputPost);

    if (mode & DRAW_BACK)
        draw->DrawRect(x, y, Shift(x, cell.cx * KeyFieldWidth(item)), bottom, 0, 0, back, back);
    if (mode & DRAW_TEXT)
        draw->DrawText(text, y, font, color, back, KeyInputText);
    if (mode & DRAW_CURSOR)
        draw->DrawLine(cursor, y, cursor, bottom, 0, 1, 0, color);
    if (mode & DRAW_NO_CURSOR)
        draw->DrawLine(cursor, y, cursor, bottom, 0, 1, 0, back);
}
