// A list with a menu that opens beside a button, and a child window that tells its parent what was chosen.
#include <tessary/tessary.h>

#include <cstring>

namespace
{

constexpr int MENU_BUTTON = 100;
constexpr int DETAIL_BUTTON = 101;
constexpr int CHOSEN = 102; ///< number of the chosen entry
constexpr int ALARM = 110;  ///< not 0 while there is an alarm

class ListWnd : public CPtrnDisp
{
  public:
    void PtrnMesgFunc(int no) override
    {
        if (no == MENU_BUTTON)
            OpenMenu();
        else if (no == DETAIL_BUTTON)
            PtrnDispChild(2, "Detail", nullptr, 0);
        else if (no == CHOSEN) // sent by the menu
            PtrnCloseWnd(1, nullptr, 0);
    }

  private:
    void OpenMenu()
    {
        PTRNDATA button;
        if (PtrnReadData(MENU_BUTTON, PTRN_BUTN, &button) != 1)
            return;
        // Items lie in the pattern, popups on the screen.
        const int dx = WindRect.left - Offset.x;
        const int dy = WindRect.top - Offset.y;
        const RECT beside = SetRect(button.Rect.left + dx, button.Rect.top + dy, button.Rect.right + dx,
                                    button.Rect.bottom + dy);
        PtrnDispPopup(1, "Menu", beside, nullptr, 0);
    }
};

class MenuWnd : public CPtrnDisp
{
  public:
    // The entries of the menu have the cells 103 and up, and the action "message".
    void PtrnMesgFunc(int no) override
    {
        Set_iData(CHOSEN, no - CHOSEN, nullptr, 0);
        PtrnSendMessage(3, CHOSEN, nullptr, 0); // 3: the parent. It closes this window.
    }
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    if (std::strcmp(name, "List") == 0)
        return new ListWnd;
    if (std::strcmp(name, "Menu") == 0)
        return new MenuWnd;
    for (const char* plain : {"Detail", "Alarm", "Stop"})
        if (std::strcmp(name, plain) == 0)
            return new CPtrnDisp;
    return nullptr;
}

int UserInit()
{
    return 1;
}

void UserExit() {}

// An alarm covers whatever is shown, until it has gone.
void UserTimr()
{
    static bool shown = false;
    const bool alarm = Get_iData(ALARM, nullptr, 0) != 0;
    if (alarm != shown)
        PtrnDispSysWnd(alarm ? "Alarm" : "", __FILE__, __LINE__);
    shown = alarm;
}
