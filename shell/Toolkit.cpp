#include "shell/Toolkit.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <cstring>
#include <gtk/gtk.h>

namespace tessary
{

namespace
{

using GetProperty = void (*)(GObject*, guint, GValue*, GParamSpec*);
GetProperty toolkitsOwn;

/// A theme names an engine, which is a library, and may itself be named by a path.
bool NamesLibraries(const char* setting)
{
    constexpr std::array NAMES = {"gtk-modules", "gtk-theme-name", "gtk-key-theme-name"};
    return std::any_of(NAMES.begin(), NAMES.end(),
                       [&](const char* name) { return std::strcmp(name, setting) == 0; });
}

bool IsSetByServer(const char* setting)
{
    GValue value = G_VALUE_INIT;
    g_value_init(&value, G_TYPE_STRING);
    const bool set = gdk_screen_get_setting(gdk_screen_get_default(), setting, &value);
    g_value_unset(&value);
    return set;
}

/// The toolkit's settings, but for those of the server that name libraries: these are what they are without
/// it.
void Get(GObject* settings, guint id, GValue* value, GParamSpec* property)
{
    if (NamesLibraries(property->name) && IsSetByServer(property->name))
        g_param_value_set_default(property, value);
    else
        toolkitsOwn(settings, id, value, property);
}

/// The toolkit asks its settings through their class, at its start and at each change.
void TakeOverSettings()
{
    if (toolkitsOwn)
        return;
    auto* const type = G_OBJECT_CLASS(g_type_class_ref(GTK_TYPE_SETTINGS));
    toolkitsOwn = type->get_property;
    type->get_property = Get;
}

/// While it opens a display the toolkit asks the server itself for modules, in a handler without data.
GdkDisplay* OpenDisplay()
{
    GdkDisplayManager* const manager = gdk_display_manager_get();
    const auto handler = static_cast<GSignalMatchType>(G_SIGNAL_MATCH_ID | G_SIGNAL_MATCH_DATA);
    const guint opened = g_signal_lookup("display-opened", GDK_TYPE_DISPLAY_MANAGER);
    g_signal_handlers_block_matched(manager, handler, opened, 0, nullptr, nullptr, nullptr);
    GdkDisplay* const display = gdk_display_open(gdk_get_display_arg_name());
    g_signal_handlers_unblock_matched(manager, handler, opened, 0, nullptr, nullptr, nullptr);
    return display;
}

} // namespace

bool OpenToolkit(int* argc, char*** argv)
{
    unsetenv("GTK_MODULES");
    if (!gtk_parse_args(argc, argv))
        return false;
    TakeOverSettings();
    GdkDisplay* const display = OpenDisplay();
    if (!display)
        return false;
    gdk_display_manager_set_default_display(gdk_display_manager_get(), display);
    return true;
}

} // namespace tessary
