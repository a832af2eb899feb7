#include "tests/support/Screen.h"

#include "draw/Resource.h"
#include "shell/Request.h"
#include "shell/Startup.h"
#include "window/Retire.h"

#include <algorithm>

Screen::Screen()
{
    useToolkit();
    std::string colors;
    for (int number = 0; number < CONT_COLR; number++)
        for (int shift = 16; shift >= 0; shift -= 8)
            colors += int32(static_cast<int>((color(number) >> shift) & 0xFF) * 257);
    project.write("PtrnColr", colors);
    project.write("PtrnMark", std::string(CONT_MARK * SIZE_MARK, '\0'));
    project.set("TESSARY", "DISPSIZE", "1280,1024");
    project.set("FONT", "FONTNAME0", "-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
    TestApplication::reset();
    TestApplication::window = [this](const std::string& name) -> CPtrnDisp* {
        if (std::find(known.begin(), known.end(), name) == known.end())
            return nullptr;
        return new RecordingWnd(calls);
    };
}

Screen::~Screen()
{
    for (CPtrnDisp* wnd : {SystmWnd, AppliWnd}) {
        if (wnd) {
            wnd->PtrnExit();
            RetirePtrnWnd(wnd);
        }
    }
    AppliWnd = nullptr;
    SystmWnd = nullptr;
    SystemWnd = 0;
    SystemStop = 0;
    WaitTimer = 0;
    DeleteRetiredWnd(0);
    DrawCntlExit();
    TestApplication::reset();
}

std::uint32_t Screen::color(int number)
{
    // Spread over the cube, so that neighbours differ in every channel.
    const auto channel = [&](int factor) { return static_cast<std::uint32_t>((number * factor + 17) % 256); };
    return channel(37) << 16 | channel(91) << 8 | channel(151);
}

void Screen::know(const Pattern& pattern)
{
    pattern.save(project);
    known.push_back(pattern.name());
}

void Screen::start()
{
    project.start();
    DrawCntlInit();
}

CPtrnDisp* Screen::openTop(const std::string& name)
{
    PtrnDispTopWnd(name.c_str(), nullptr, 0);
    if (AppliWnd)
        waitShown(AppliWnd);
    return AppliWnd;
}

void Screen::waitShown(CPtrnDisp* wnd)
{
    user.waitFor(
        [&] {
            const auto windows = user.windows();
            return wnd->Pixmap && std::any_of(windows.begin(), windows.end(), [&](const ScreenWindow& shown) {
                       return shown.x == wnd->WindRect.left && shown.y == wnd->WindRect.top &&
                              shown.title == wnd->PtrnName;
                   });
        },
        std::string("the window ") + wnd->PtrnName);
    user.settle();
}

void Screen::tick(int count)
{
    for (int i = 0; i < count; i++)
        Timer_Event(nullptr);
    user.settle();
}
