// A message box of the test's own process, from inside.
#pragma once

#include "base/EucText.h"

#include <functional>
#include <gtk/gtk.h>
#include <memory>
#include <string>
#include <vector>

/// Runs a function once from the main loop, when nothing else is to do.
inline void later(const std::function<void()>& task)
{
    g_idle_add(
        [](gpointer data) -> gboolean {
            const std::unique_ptr<std::function<void()>> owned(static_cast<std::function<void()>*>(data));
            (*owned)();
            return FALSE;
        },
        new std::function<void()>(task));
}

/// The widgets of a type below a container, in their order.
inline std::vector<GtkWidget*> widgets(GtkWidget* top, GType type)
{
    std::vector<GtkWidget*> found;
    if (g_type_is_a(G_OBJECT_TYPE(top), type))
        found.push_back(top);
    if (!GTK_IS_CONTAINER(top))
        return found;
    GList* children = gtk_container_get_children(GTK_CONTAINER(top));
    for (GList* child = children; child; child = child->next)
        for (GtkWidget* widget : widgets(GTK_WIDGET(child->data), type))
            found.push_back(widget);
    g_list_free(children);
    return found;
}

/// The window with that title, EUC-JP; null when there is none.
inline GtkWidget* findBox(const std::string& title)
{
    GtkWidget* found = nullptr;
    GList* list = gtk_window_list_toplevels();
    for (GList* entry = list; entry; entry = entry->next) {
        const char* name = gtk_window_get_title(GTK_WINDOW(entry->data));
        if (name && tessary::Utf8ToEuc(name) == title)
            found = GTK_WIDGET(entry->data);
    }
    g_list_free(list);
    return found;
}

/// What stands on the buttons of a box, from left to right, EUC-JP.
inline std::vector<std::string> buttonLabels(GtkWidget* box)
{
    std::vector<std::string> texts;
    for (GtkWidget* button : widgets(box, GTK_TYPE_BUTTON))
        texts.push_back(tessary::Utf8ToEuc(gtk_button_get_label(GTK_BUTTON(button))));
    return texts;
}
