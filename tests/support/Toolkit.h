// The toolkit on the tests' own X server.
#pragma once

#include "tests/support/XServer.h"

#include <gtk/gtk.h>

/// To be called before anything of the toolkit; further calls do nothing. The process keeps the locale
/// that main() has set.
inline void useToolkit()
{
    static const bool READY = [] {
        XServer::ensure();
        gtk_disable_setlocale();
        gtk_init(nullptr, nullptr);
        gdk_rgb_init();
        return true;
    }();
    static_cast<void>(READY);
}
