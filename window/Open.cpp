// Opening and closing a pattern window.
#include "base/EucText.h"
#include "comndata/PtrnCode.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "shell/LogText.h"
#include "window/PtrnDisp.h"

#include <algorithm>
#include <cstdio>

namespace
{

RECT RectAt(int x, int y, int width, int height)
{
    const auto edge = [](int from, int extent) {
        return static_cast<int>(static_cast<unsigned>(from) + static_cast<unsigned>(extent));
    };
    RECT rect{};
    rect.left = x;
    rect.top = y;
    rect.right = edge(x, width);
    rect.bottom = edge(y, height);
    rect.width = width;
    rect.height = height;
    return rect;
}

} // namespace

CPtrnDisp::CPtrnDisp() = default;

CPtrnDisp::~CPtrnDisp()
{
    DestroyWidget();
    ReleaseBuffer();
    delete PtrnData;
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

void CPtrnDisp::LoadPattern(CPtrnDisp* parent, const char* name, int kind)
{
    ParentWnd = parent;
    PtrnNo = ConvertPtrn(name);
    PtrnType = kind;
    CopyText(PtrnName, name);

    delete PtrnData;
    PtrnData = new CPtrnData(PtrnName);
    if (Header(HEDR_WIDTH) < 1 || Header(HEDR_HEIGHT) < 1)
        LogText("PTRNDISP", nullptr, 0, "パターンを表示できない  [%s]", PtrnName);
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
    if (!Widget)
        return;
    if (ChildWnd1)
        ChildWnd1->PtrnExit();
    if (ChildWnd2)
        ChildWnd2->PtrnExit();

    if (PtrnType > KIND_APPLICATION) {
        char key[32];
        std::snprintf(key, sizeof key, "WINDOW%03d", PtrnNo);
        ProfileWrite(ProfName, "WINDOW", key, "ii", &WindRect.left, &WindRect.top);
    }
    PtrnExitFunc();
    DestroyWidget();
}

void CPtrnDisp::DestroyWidget()
{
    if (Widget)
        gtk_widget_destroy(Widget); // Widget_Destroy clears the members
}

void CPtrnDisp::ReleaseBuffer()
{
    Draw.reset();
    if (Pixmap)
        g_object_unref(Pixmap);
    Pixmap = nullptr;
}
