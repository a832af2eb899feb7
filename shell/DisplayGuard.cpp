#include "shell/DisplayGuard.h"

#include "log/Category.h"
#include "log/Guard.h"
#include "log/Logfile.h"
#include "shell/ProgramEnd.h"
#include "shell/Refusal.h"
#include "window/Events.h"

#include <gdk/gdkx.h>
#include <gtk/gtk.h>
#include <string>
#include <unistd.h>
#include <X11/extensions/scrnsaver.h>

namespace tessary
{

namespace
{

constexpr int STATUS_LOST = 1;

/// The display can not be used any more, and so neither can the toolkit.
[[noreturn]] void EndWithoutDisplay(const char* logged, const std::string& told)
{
    LogfileWrite(CATEGORY_SYSTEM, logged, nullptr, 0);
    LogfileExit();
    Tell(told);
    _exit(STATUS_LOST);
}

int LoseServer(Display*)
{
    EndWithoutDisplay("Ｘサーバとの接続が切れた。",
                      "The connection to the X server is lost. Start the panel again when it is back.");
}

int TakeError(Display* display, XErrorEvent* error)
{
    char text[128] = "";
    XGetErrorText(display, error->error_code, text, sizeof text);
    EndWithoutDisplay("Ｘサーバがエラーを返した。",
                      "The X server reports \"" + std::string(text) + "\" for request " +
                          std::to_string(error->request_code) +
                          ". Another program may have taken a window away. Start the panel again.");
}

/// Window managers and input methods send these events themselves, and the toolkit checks them. Everything
/// else that was sent by a program is none of ours.
bool MayBeSent(const XEvent& event)
{
    constexpr int FIRST_KEYCODE = 8;
    constexpr int LAST_KEYCODE = 255;
    switch (event.type) {
    case ClientMessage:
        return event.xclient.format == 32 || event.xclient.format == 8; // 8: input methods
    case ConfigureNotify:
        return true;
    case KeyPress:
    case KeyRelease:
        return event.xkey.keycode >= FIRST_KEYCODE && event.xkey.keycode <= LAST_KEYCODE;
    default:
        return false;
    }
}

GdkFilterReturn DropMadeUp(GdkXEvent* xevent, GdkEvent*, gpointer)
{
    const XEvent& event = *static_cast<const XEvent*>(xevent);
    return event.xany.send_event && !MayBeSent(event) ? GDK_FILTER_REMOVE : GDK_FILTER_CONTINUE;
}

} // namespace

void GuardDisplay()
{
    XSetIOErrorHandler(LoseServer);
    XSetErrorHandler(TakeError);
    gdk_window_add_filter(nullptr, Guarded<DropMadeUp>::call, nullptr);
    Display* const display = GDK_DISPLAY_XDISPLAY(gdk_display_get_default());
    int event = 0;
    int error = 0;
    if (XScreenSaverQueryExtension(display, &event, &error))
        XScreenSaverSuspend(display, True); // ends with the connection, however that ends
}

void NoticeLostWindow()
{
    if (!TakeLostWindow())
        return;
    LogfileWrite(CATEGORY_SYSTEM, "ウィンドウが他のプログラムに破棄された。", nullptr, 0);
    Fail("The panel's window was destroyed by another program. Start the panel again.", STATUS_LOST);
    EndProgram();
}

} // namespace tessary
