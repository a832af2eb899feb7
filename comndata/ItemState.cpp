#include "comndata/ItemState.h"

#include "base/Constants.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "log/Category.h"
#include "log/LogText.h"

using namespace tessary;

namespace
{

/// Sets or clears a bit of the state and records which of the two it was.
/// @param bit         one of the STATE_... masks
/// @param set, clear  what the log says; the name of the data number follows
void SwitchState(int no, int bit, bool on, const char* set, const char* clear, const char* file, int line)
{
    if (on)
        OR_wData(no, static_cast<WORD>(bit), nullptr, 0);
    else
        AND_wData(no, static_cast<WORD>(~bit), nullptr, 0);

    char name[SIZE_DTNONAME];
    if (file && ConvertDtno(no, name))
        LogText(CATEGORY_WINDOW, file, line, "%s  [%s]", on ? set : clear, name);
}

} // namespace

void Set_Color(int no, int colour, const char* file, int line)
{
    LockComnData();
    const int others = Get_wData(no, nullptr, 0) & ~STATE_COLOR;
    Set_wData(no, static_cast<WORD>(others | (colour & STATE_COLOR)), nullptr, 0);
    UnlockComnData();

    char name[SIZE_DTNONAME];
    if (file && ConvertDtno(no, name))
        LogText(CATEGORY_WINDOW, file, line, "表示色設定  [%s / %d]", name, colour);
}

void Set_Flikr(int no, int on, const char* file, int line)
{
    SwitchState(no, STATE_FLICKER, on == 1, "点滅表示設定", "通常表示設定", file, line);
}

void Set_Disable(int no, int on, int mode, const char* file, int line)
{
    const int bit = mode == 1 ? STATE_HIDDEN : STATE_DISABLE;
    SwitchState(no, bit, on == 1, "非表示設定", "表示設定", file, line);
}
