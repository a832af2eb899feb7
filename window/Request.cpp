#include "window/Request.h"

#include "base/BuiltIn.h"
#include "base/Coord.h"
#include "config/Edition.h"
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "log/Category.h"
#include "log/Logfile.h"
#include "log/LogText.h"
#include "window/FieldEntry.h"
#include "window/MaintenanceWnd.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Retire.h"

#include <string>

using namespace tessary;

int SystemStop;
int WaitTimer;

namespace
{

/// Takes a window out of the slot of the system window. Another one that a hook has opened in the meantime
/// stays there.
void EmptySystemSlot(CPtrnDisp* wnd)
{
    if (SystmWnd == wnd) {
        SystmWnd = nullptr;
        SystemWnd = 0;
    }
    RetirePtrnWnd(wnd);
}

void CloseSystemWnd()
{
    if (CPtrnDisp* old = SystmWnd) {
        old->PtrnExit();
        EmptySystemSlot(old);
    }
}

/// Takes the system window down at once: neither its exit hook runs nor its position is saved.
void DropSystemWnd()
{
    if (CPtrnDisp* old = SystmWnd) {
        EmptySystemSlot(old);
        old->DestroyWidget();
    }
}

void OpenSystemWnd(CPtrnDisp* wnd, const char* name)
{
    DropSystemWnd(); // one that the exit hook of the one before has opened
    SystmWnd = wnd;
    SystemWnd = 1;
    wnd->PtrnDispInit(AppliWnd, name, KIND_SYSTEM);
}

/// One of the framework's own patterns; `make` is called only when its file is there.
template <class Make> void OpenBuiltInWnd(const char* name, Make make)
{
    CloseSystemWnd();
    if (FileExist(ProjPath, (std::string(name) + ".ptn").c_str()))
        OpenSystemWnd(make(), name);
}

} // namespace

void PtrnDispTopWnd(const char* name, const char* file, int line)
{
    const std::string pattern(name ? name : ""); // the registry may use the buffer that it lies in
    CPtrnDisp* wnd = GetPtrnWnd(pattern.c_str());
    if (!wnd) {
        LogText(CATEGORY_SYSTEM, file, line, "最上位ウィンドウ表示に失敗  [%s]", pattern.c_str());
        return;
    }
    if (file)
        LogText(CATEGORY_SYSTEM, file, line, "最上位ウィンドウ表示  [%s]", pattern.c_str());

    CPtrnDisp* old = AppliWnd;
    AppliWnd = wnd;
    wnd->PtrnDispInit(nullptr, pattern.c_str(), KIND_APPLICATION);
    if (old) {
        old->PtrnExit();
        RetirePtrnWnd(old);
    }
}

void PtrnDispSysWnd(const char* name, const char* file, int line)
{
    const std::string pattern(name ? name : "");
    CloseSystemWnd();
    if (pattern.empty()) {
        if (file)
            LogfileWrite(CATEGORY_SYSTEM, "システムウィンドウを閉じる。", file, line);
        return;
    }

    CPtrnDisp* wnd = GetPtrnWnd(pattern.c_str());
    if (!wnd) {
        LogText(CATEGORY_SYSTEM, file, line, "システムウィンドウ表示に失敗  [%s]", pattern.c_str());
        return;
    }
    if (file)
        LogText(CATEGORY_SYSTEM, file, line, "システムウィンドウ表示  [%s]", pattern.c_str());
    OpenSystemWnd(wnd, pattern.c_str());
}

void PtrnDispVersnWnd()
{
    OpenBuiltInWnd(tessary::VERSION_PATTERN, [] { return new CPtrnDisp; });
}

void PtrnDispMenteWnd()
{
    OpenBuiltInWnd(tessary::MAINTENANCE_PATTERN, tessary::NewMaintenanceWnd);
}

void ReqSystemStop(const char* file, int line)
{
    SystemStop = 1;
    if (file)
        LogfileWrite(CATEGORY_SYSTEM, "システム停止要求", file, line);

    // The setting is in seconds, the countdown in ticks.
    const int seconds = ProfileReadInt(ProfName, "TESSARY", "WAITTIMER");
    WaitTimer = seconds ? Saturate(std::int64_t{seconds} * 10) : 10;

    DropSystemWnd();
    const std::string notice = ProfileReadAsc(ProfName, "PTRN", "PTRNSTOP");
    if (!notice.empty())
        PtrnDispSysWnd(notice.c_str(), nullptr, 0);
}

void ReqKeyEntry(unsigned int key, unsigned int flags)
{
    if (Has(Correction::KeysToFront)) {
        PanelKey(key, static_cast<int>(flags), KeyIsHeld());
        return;
    }
    if (AppliWnd)
        AppliWnd->KeyEntry(key, static_cast<int>(flags));
    if (SystmWnd)
        SystmWnd->KeyEntry(key, static_cast<int>(flags));
}

void ReqKeyReset()
{
    if (AppliWnd)
        AppliWnd->KeyReset();
    if (SystmWnd)
        SystmWnd->KeyReset();
}

void ReqHardCopy(const char* file, int line)
{
    if (file)
        LogfileWrite(CATEGORY_SYSTEM, "ハードコピー要求", file, line);
}
