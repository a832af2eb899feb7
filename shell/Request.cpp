#include "shell/Request.h"

#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/PtrnMente.h"
#include "shell/Logfile.h"
#include "shell/LogText.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Retire.h"

#include <string>

CPtrnDisp* AppliWnd;
CPtrnDisp* SystmWnd;
int SystemWnd;
int SystemStop;
int WaitTimer;

namespace
{

constexpr char kLog[] = "SYSTEM";

void CloseSystemWnd()
{
    if (CPtrnDisp* old = SystmWnd) {
        old->PtrnExit();
        SystmWnd = nullptr;
        SystemWnd = 0;
        RetirePtrnWnd(old);
    }
}

void OpenSystemWnd(CPtrnDisp* wnd, const char* name)
{
    SystmWnd = wnd;
    SystemWnd = 1;
    wnd->PtrnDispInit(AppliWnd, name, 3);
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
    CPtrnDisp* wnd = GetPtrnWnd(name);
    if (!wnd) {
        LogText(kLog, file, line, "最上位ウィンドウ表示に失敗  [%s]", name);
        return;
    }
    if (file)
        LogText(kLog, file, line, "最上位ウィンドウ表示  [%s]", name);

    CPtrnDisp* old = AppliWnd;
    AppliWnd = wnd;
    wnd->PtrnDispInit(nullptr, name, 0);
    if (old) {
        old->PtrnExit();
        RetirePtrnWnd(old);
    }
}

void PtrnDispSysWnd(const char* name, const char* file, int line)
{
    CloseSystemWnd();
    if (!name[0]) {
        if (file)
            LogfileWrite(kLog, "システムウィンドウを閉じる。", file, line);
        return;
    }

    CPtrnDisp* wnd = GetPtrnWnd(name);
    if (!wnd) {
        LogText(kLog, file, line, "システムウィンドウ表示に失敗  [%s]", name);
        return;
    }
    if (file)
        LogText(kLog, file, line, "システムウィンドウ表示  [%s]", name);
    OpenSystemWnd(wnd, name);
}

void PtrnDispVersnWnd()
{
    OpenBuiltInWnd("バージョン情報", [] { return new CPtrnDisp; });
}

void PtrnDispMenteWnd()
{
    OpenBuiltInWnd("メンテナンス", [] { return new CPtrnMente; });
}

void ReqSystemStop(const char* file, int line)
{
    SystemStop = 1;
    if (file)
        LogfileWrite(kLog, "システム停止要求", file, line);

    // The setting is in seconds, the countdown in ticks.
    const unsigned seconds = static_cast<unsigned>(ProfileReadInt(ProfName, "TESSARY", "WAITTIMER"));
    WaitTimer = seconds ? static_cast<int>(seconds * 10u) : 10;

    // Taken down at once: neither its exit hook runs nor its position is saved.
    if (CPtrnDisp* old = SystmWnd) {
        SystmWnd = nullptr;
        SystemWnd = 0;
        old->DestroyWidget();
        RetirePtrnWnd(old);
    }

    const std::string notice = ProfileReadAsc(ProfName, "PTRN", "PTRNSTOP");
    if (!notice.empty())
        PtrnDispSysWnd(notice.c_str(), nullptr, 0);
}

void ReqKeyEntry(unsigned int key, unsigned int flags)
{
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
        LogfileWrite(kLog, "ハードコピー要求", file, line);
}
