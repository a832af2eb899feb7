// Opening and closing a pattern window.
#include "base/Coord.h"
#include "base/EucText.h"
#include "comndata/PtrnCode.h"
#include "config/Edition.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "log/Category.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/Buffer.h"
#include "window/FieldEditor.h"
#include "window/PtrnDisp.h"
#include "window/Retire.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <utility>

using namespace tessary;

namespace
{

/// Without SetRect, which would turn a pattern of negative size around.
RECT RectAt(int x, int y, int width, int height)
{
    return {x, y, Shift(x, width), Shift(y, height), width, height};
}

/// The nearest place at which a part of that size lies on the display, with its beginning if it is larger.
int Reachable(int place, int size, int display)
{
    return std::max(0, std::min(place, display - size));
}

/// The display may have become smaller since the place was remembered.
void BringToDisplay(const CPtrnDisp& wnd, SIZE size, int& x, int& y)
{
    const POINT place = {Reachable(x, size.cx, DispSizeX), Reachable(y, size.cy, DispSizeY)};
    if (place.x == x && place.y == y)
        return;
    LogText(CATEGORY_WINDOW, nullptr, 0, "ウィンドウを画面内に移動  [%s / (%d,%d) → (%d,%d)]", wnd.PtrnName,
            x, y, place.x, place.y);
    x = place.x;
    y = place.y;
}

} // namespace

CPtrnDisp::CPtrnDisp()
{
    RegisterPtrnWnd(this);
}

CPtrnDisp::~CPtrnDisp()
{
    DestroyWidget();
    ReleaseBuffer();
    ReleasePattern();
    ForgetPtrnWnd(this);
}

void CPtrnDisp::PtrnInitFunc() {}
void CPtrnDisp::PtrnExitFunc() {}
void CPtrnDisp::PtrnDispFunc(CDraw*, int) {}
void CPtrnDisp::PtrnTimrFunc() {}
void CPtrnDisp::PtrnMesgFunc(int) {}
void CPtrnDisp::PtrnRbtnFunc(int) {}
int CPtrnDisp::PtrnMouseFunc(POINT, int, int)
{
    return 0;
}
int CPtrnDisp::PtrnKeyInput(int, int)
{
    return 0;
}
int CPtrnDisp::PtrnKeyStart(PTRNDATA*)
{
    return 1;
}
void CPtrnDisp::PtrnKeyFunc(int, int, PTRNDATA*) {}

/// The public pointer is itself the owner: a screen class may put another pattern in its place.
void CPtrnDisp::ReleasePattern()
{
    delete std::exchange(PtrnData, nullptr);
}

void CPtrnDisp::LoadPattern(CPtrnDisp* parent, const char* name, int kind)
{
    const std::string pattern(name ? name : ""); // what it points to may be replaced here
    DestroyWidget();
    static unsigned opened = 0; // only their order counts, so that it may go on for ever
    Opened = ++opened;
    Exited = false;
    Closed = false;
    ParentWnd = parent;
    PtrnNo = ConvertPtrn(pattern.c_str());
    PtrnType = kind;
    CopyText(PtrnName, pattern.c_str());
    TakePattern(pattern.c_str());
}

/// Loads the pattern of that name in place of the one that is there.
void CPtrnDisp::TakePattern(const char* name)
{
    ReleasePattern();
    PtrnData = new CPtrnData(name);
    PtrnData->DrawBelow = [this](CDraw* draw) {
        if (DrawArea)
            FillGround(DrawArea, draw);
    };
    PtrnData->DrawAbove = [this](CDraw* draw) { RedrawKeyInput(draw); };

    const int width = Header(HEDR_WIDTH);
    const int height = Header(HEDR_HEIGHT);
    const SIZE shown = BoundedBuffer(width, height);
    if (width < 1 || height < 1)
        LogText(CATEGORY_WINDOW, nullptr, 0, "パターンを表示できない  [%s]", PtrnName);
    else if (shown.cx < width || shown.cy < height)
        LogText(CATEGORY_WINDOW, nullptr, 0, "パターンが大きすぎる  [%s / %d x %d]", PtrnName, width, height);
}

void CPtrnDisp::PlaceWindow()
{
    const int width = Header(HEDR_WIDTH);
    const int height = Header(HEDR_HEIGHT);
    int x = 0;
    int y = 0;
    if (Header(HEDR_KIND) != 0 && Header(HEDR_REMEMBER) == 0) {
        x = Header(HEDR_LEFT);
        y = Header(HEDR_TOP);
    } else if (Header(HEDR_KIND) != 0) {
        char key[32];
        std::snprintf(key, sizeof key, "WINDOW%03d", PtrnNo);
        ProfileRead(ProfName, "WINDOW", key, "ii", &x, &y);
        if (x == 0 && y == 0) { // never saved
            x = static_cast<int>((static_cast<std::int64_t>(DispSizeX) - width) / 2);
            y = static_cast<int>((static_cast<std::int64_t>(DispSizeY) - height) / 2);
        } else if (Has(Correction::ReachablePlace)) {
            BringToDisplay(*this, {width, height}, x, y);
        }
    }
    WindRect = RectAt(x, y, width, height);
}

void CPtrnDisp::PtrnDispInit(CPtrnDisp* parent, const char* name, int kind)
{
    LoadPattern(parent, name, kind);
    PlaceWindow();
    PtrnDispStart(this, parent ? parent->Widget : nullptr, WindRect);
}

void CPtrnDisp::PtrnDispInit(CPtrnDisp* parent, const char* name, int kind, int x, int y)
{
    LoadPattern(parent, name, kind);
    WindRect = RectAt(x, y, Header(HEDR_WIDTH), Header(HEDR_HEIGHT));
    PtrnDispStart(this, parent ? parent->Widget : nullptr, WindRect);
}

void CPtrnDisp::PtrnDispInit(CPtrnDisp* parent, const char* name, int kind, RECT rect)
{
    LoadPattern(parent, name, kind);
    WindRect = rect;
    PtrnDispStart(this, parent ? parent->Widget : nullptr, WindRect);
}

void CPtrnDisp::PtrnInit()
{
    PtrnInitFunc();
    CursorType = Header(HEDR_CURSOR);
}

void CPtrnDisp::PtrnExit()
{
    if (Exited)
        return;
    Exited = true; // the exit hook may close the window again
    const HandlerScope scope;
    ExitChildren();

    if (PtrnType > KIND_APPLICATION) {
        char key[32];
        std::snprintf(key, sizeof key, "WINDOW%03d", PtrnNo);
        ProfileWrite(ProfName, "WINDOW", key, "ii", &WindRect.left, &WindRect.top);
    }
    PtrnExitFunc();
    ExitChildren(); // what the hook has opened
    DestroyWidget();
}

void CPtrnDisp::ExitChildren()
{
    if (ChildWnd1)
        ChildWnd1->PtrnExit();
    if (ChildWnd2)
        ChildWnd2->PtrnExit();
}
