#include "tests/support/Screen.h"

#include "draw/Resource.h"
#include "shell/Startup.h"
#include "window/Request.h"
#include "window/Retire.h"

#include <algorithm>

using namespace tessary;

std::set<RecordingWnd*> RecordingWnd::alive;

void RecordingWnd::record(const std::string& name, std::initializer_list<int> values)
{
    std::string call = name;
    for (const int value : values)
        call += " " + std::to_string(value);
    calls_.push_back(call);
}

void RecordingWnd::PtrnInitFunc()
{
    record("init");
    if (hooks_.init)
        hooks_.init(*this);
}

void RecordingWnd::PtrnExitFunc()
{
    record("exit");
    if (hooks_.exit)
        hooks_.exit(*this);
}

void RecordingWnd::PtrnDispFunc(CDraw* draw, int mode)
{
    record("disp", {mode});
    if (hooks_.disp)
        hooks_.disp(*this, draw, mode);
}

void RecordingWnd::PtrnTimrFunc()
{
    record("timr");
    if (hooks_.timr)
        hooks_.timr(*this);
}

void RecordingWnd::PtrnMesgFunc(int mesg)
{
    record("mesg", {mesg});
    if (hooks_.mesg)
        hooks_.mesg(*this, mesg);
}

void RecordingWnd::PtrnRbtnFunc(int dataNo)
{
    record("rbtn", {dataNo});
    if (hooks_.rbtn)
        hooks_.rbtn(*this, dataNo);
}

int RecordingWnd::PtrnMouseFunc(POINT pt, int button, int flags)
{
    if (button != 0)
        record("mouse " + std::to_string(button) + " " + std::to_string(pt.x) + "," + std::to_string(pt.y),
               {flags});
    return hooks_.mouse ? hooks_.mouse(*this, pt, button, flags) : 0;
}

int RecordingWnd::PtrnKeyStart(PTRNDATA* item)
{
    record("keystart", {item->DataNo});
    return hooks_.keyStart ? hooks_.keyStart(*this, item) : 1;
}

void RecordingWnd::PtrnKeyFunc(int key, int flags, PTRNDATA* item)
{
    record("keyfunc", {key, flags, item->DataNo});
    if (hooks_.keyFunc)
        hooks_.keyFunc(*this, key, flags, item);
}

namespace
{

/// Whatever the toolkit complains about is a mistake of ours.
void failWithComplaint(const char* domain, GLogLevelFlags level, const char* message, void*)
{
    if (level & (G_LOG_LEVEL_WARNING | G_LOG_LEVEL_CRITICAL))
        ADD_FAILURE() << (domain ? domain : "") << ": " << message;
    else
        g_log_default_handler(domain, level, message, nullptr);
}

} // namespace

Screen::Screen()
{
    useToolkit();
    g_log_set_default_handler(failWithComplaint, nullptr);
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
        return new RecordingWnd(calls, hooks);
    };
}

Screen::~Screen()
{
    hooks = {};
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
    gdk_flush(); // else the windows stay on the screen until a later test asks the server for something
    DrawCntlExit();
    TestApplication::reset();
    g_log_set_default_handler(g_log_default_handler, nullptr);
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

CPtrnDisp* Screen::openSystem(const std::string& name)
{
    PtrnDispSysWnd(name.c_str(), nullptr, 0);
    if (SystmWnd)
        waitShown(SystmWnd);
    return SystmWnd;
}

CPtrnDisp* Screen::openChild(CPtrnDisp* parent, int which, const std::string& name)
{
    parent->PtrnDispChild(which, name.c_str(), nullptr, 0);
    CPtrnDisp* child = which == 1 ? parent->ChildWnd1 : parent->ChildWnd2;
    if (child)
        waitShown(child);
    return child;
}

CPtrnDisp* Screen::openChild(CPtrnDisp* parent, int which, const std::string& name, int x, int y)
{
    parent->PtrnDispChild(which, name.c_str(), x, y, nullptr, 0);
    CPtrnDisp* child = which == 1 ? parent->ChildWnd1 : parent->ChildWnd2;
    if (child)
        waitShown(child);
    return child;
}

void Screen::waitShown(CPtrnDisp* wnd)
{
    user.waitFor(
        [&] {
            const auto windows = user.windows();
            return wnd->Pixmap && std::any_of(windows.begin(), windows.end(), [&](const ScreenWindow& shown) {
                       return shown.title == wnd->PtrnName && isAtPlace(wnd, shown);
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

void Screen::moveTo(const CPtrnDisp* wnd, int x, int y)
{
    const POINT place = onDisplay(wnd, x, y);
    user.move(place.x, place.y);
    user.settle();
}

void Screen::press(const CPtrnDisp* wnd, int x, int y, unsigned button)
{
    moveTo(wnd, x, y);
    user.press(button);
    user.settle();
}

void Screen::release(unsigned button)
{
    user.release(button);
    user.settle();
}

void Screen::click(const CPtrnDisp* wnd, int x, int y, unsigned button)
{
    press(wnd, x, y, button);
    release(button);
}

void Screen::key(unsigned long symbol, std::initializer_list<unsigned long> modifiers)
{
    user.key(symbol, modifiers);
    user.settle();
}

void Screen::type(const std::string& text)
{
    user.type(text);
    user.settle();
}

std::uint32_t Screen::pixel(const CPtrnDisp* wnd, int x, int y)
{
    const POINT place = onDisplay(wnd, x, y);
    return user.pixel(place.x, place.y);
}

POINT Screen::onDisplay(const CPtrnDisp* wnd, int x, int y) const
{
    return {wnd->WindRect.left + x, wnd->WindRect.top + y};
}

bool Screen::isAtPlace(const CPtrnDisp* wnd, const ScreenWindow& shown) const
{
    return shown.x == wnd->WindRect.left && shown.y == wnd->WindRect.top;
}

std::uint32_t Screen::bufferPixel(const CPtrnDisp* wnd, int x, int y)
{
    return bufferPicture(wnd, x, y, 1, 1).at(0, 0);
}

Picture Screen::bufferPicture(const CPtrnDisp* wnd, int x, int y, int width, int height)
{
    GdkPixbuf* pixbuf = gdk_pixbuf_get_from_drawable(nullptr, wnd->Pixmap, gdk_colormap_get_system(), x, y, 0,
                                                     0, width, height);
    Picture picture(width, height, 0);
    for (int row = 0; row < height; row++) {
        const guchar* rgb = gdk_pixbuf_get_pixels(pixbuf) + row * gdk_pixbuf_get_rowstride(pixbuf);
        for (int column = 0; column < width; column++, rgb += gdk_pixbuf_get_n_channels(pixbuf))
            picture.set(column, row, static_cast<std::uint32_t>(rgb[0] << 16 | rgb[1] << 8 | rgb[2]));
    }
    g_object_unref(pixbuf);
    return picture;
}

Calls Screen::callsOf(std::initializer_list<const char*> names) const
{
    Calls result;
    std::copy_if(calls.begin(), calls.end(), std::back_inserter(result), [&](const std::string& call) {
        const std::string name = call.substr(0, call.find(' '));
        return std::any_of(names.begin(), names.end(), [&](const char* wanted) { return name == wanted; });
    });
    return result;
}
