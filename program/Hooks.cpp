// Registry and hooks of the program without code: every pattern of the project is known, and what is in the
// cells comes from the operator and from whatever the hooks call here.
#include "program/Hooks.h"

#include "base/EucText.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/ReadyMadeWnd.h"
#include "pattern/PtrnHedr.h"
#include "program/Reload.h"
#include "shell/Refusal.h"
#include "tessary_plant.h"
#include "window/Registry.h"

using namespace tessary;

std::string tessary::StartScreen;

namespace
{

/// A panel that shows nothing helps nobody, and without code nothing will open a window later.
bool HasStartScreen()
{
    if (StartScreen.empty())
        StartScreen = ProfileReadAsc(ProfName, "PTRN", "PTRNSTART");
    PTRNHEDR header;
    if (ReadHedr(StartScreen.c_str(), &header))
        return true;
    const std::string name = EucToUtf8(StartScreen);
    RefuseStart({"最初の画面［" + StartScreen + "］がありません。",
                 name.empty()
                     ? "The profile names no screen to begin with. Set PTRNSTART in its section [PTRN], or "
                       "name a screen with --screen."
                     : "The project has no screen '" + name +
                           "' to begin with. Name another one with --screen, or as PTRNSTART in the "
                           "section [PTRN] of the profile.",
                 1});
    return false;
}

// The cells that live in the plant. Where this was built without the libraries of the protocols there are
// none.
#ifdef TESSARY_PLANT
bool BeginLinks()
{
    return LinksInit(nullptr) == 1;
}

void EndLinks()
{
    LinksExit();
}

void MoveLinks()
{
    LinksTimr();
}
#else
bool BeginLinks()
{
    return true;
}

void EndLinks() {}

void MoveLinks() {}
#endif

bool HasLinks()
{
    if (BeginLinks())
        return true;
    RefuseStart({"プロジェクトの接続設定（PtrnLink）が壊れています。",
                 "The links of the project, PtrnLink, can not be read. Build it again; the log tells more.",
                 1});
    return false;
}

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return NewReadyMadeWnd(name);
}

int UserInit()
{
    NoteProject();
    return HasStartScreen() && HasLinks() ? 1 : 0;
}

void UserExit()
{
    EndLinks();
}

void UserTimr()
{
    // The links know cells by number, which may be other ones afterwards.
    ReloadTimr(EndLinks, [] { BeginLinks(); });
    MoveLinks();
}
