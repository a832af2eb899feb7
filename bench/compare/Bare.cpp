// The fields drawn with nothing but the calls that a panel's fields end in: the floor of the comparison.
#include "bench/compare/Fields.h"

#include <clocale>
#include <cstdio>
#include <ctime>
#include <X11/Xlib.h>

namespace
{

Display* display;
Window window;
Pixmap buffer;
GC gc;
XFontSet font;

unsigned long Pixel(Rgb color)
{
    return static_cast<unsigned long>(color.red) << 16 | static_cast<unsigned long>(color.green) << 8 |
           color.blue;
}

void Fill(Rgb color, int x, int y, int width, int height)
{
    XSetForeground(display, gc, Pixel(color));
    XFillRectangle(display, buffer, gc, x, y, static_cast<unsigned>(width), static_cast<unsigned>(height));
}

/// The field, the box behind the text, the text.
void DrawField(int field, const std::string& text)
{
    const int x = FieldLeft(field);
    const int y = FieldTop(field);
    const int length = static_cast<int>(text.size());
    Fill(FIELD_COLOR, x, y, FIELD_WIDTH, FIELD_HEIGHT);
    XRectangle ink;
    XRectangle line;
    XmbTextExtents(font, text.c_str(), length, &ink, &line);
    Fill(FIELD_COLOR, x, y, line.width, FIELD_HEIGHT);
    XSetForeground(display, gc, Pixel(TEXT_COLOR));
    XmbDrawString(display, buffer, font, gc, x, y + (FIELD_HEIGHT - ink.height) / 2 - ink.y, text.c_str(),
                  length);
}

void Show()
{
    XCopyArea(display, buffer, window, gc, 0, 0, SCREEN_WIDTH, SCREEN_HEIGHT, 0, 0);
    XFlush(display);
}

void Tick()
{
    const int tick = NextTick();
    if (IsQuiet() && tick > 1)
        return;
    for (int field = 0; field < FIELD_COUNT; field++)
        DrawField(field, " " + FieldText(tick, field));
    Show();
}

bool LoadFont()
{
    char** missing = nullptr;
    int missingCount = 0;
    char* substitute = nullptr;
    font = XCreateFontSet(display, "-*-fixed-medium-r-normal--14-*-*-*-c-*-*-*", &missing, &missingCount,
                          &substitute);
    if (missing)
        XFreeStringList(missing);
    return font != nullptr;
}

void Open()
{
    window = XCreateSimpleWindow(display, DefaultRootWindow(display), 0, 0, SCREEN_WIDTH, SCREEN_HEIGHT, 0, 0,
                                 Pixel(BODY_COLOR));
    buffer = XCreatePixmap(display, window, SCREEN_WIDTH, SCREEN_HEIGHT,
                           static_cast<unsigned>(DefaultDepth(display, DefaultScreen(display))));
    gc = XCreateGC(display, buffer, 0, nullptr);
    XSetGraphicsExposures(display, gc, False);
    Fill(BODY_COLOR, 0, 0, SCREEN_WIDTH, SCREEN_HEIGHT);
    XSelectInput(display, window, ExposureMask);
    XMapWindow(display, window);
    XEvent event;
    XWindowEvent(display, window, ExposureMask, &event);
}

/// @param next  advanced by a tick
void WaitForTick(timespec& next)
{
    next.tv_nsec += TICK_MILLISECONDS * 1000000L;
    if (next.tv_nsec >= 1000000000L) {
        next.tv_nsec -= 1000000000L;
        next.tv_sec++;
    }
    clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &next, nullptr);
}

} // namespace

int main()
{
    if (!std::setlocale(LC_CTYPE, "ja_JP.eucJP"))
        std::setlocale(LC_CTYPE, "");
    display = XOpenDisplay(nullptr);
    if (!display || !LoadFont()) {
        std::fprintf(stderr, "compare_bare: no X server, or no font\n");
        return 1;
    }
    Open();
    timespec next{};
    clock_gettime(CLOCK_MONOTONIC, &next);
    for (;;) {
        Tick();
        WaitForTick(next);
    }
}
