// The fields in GTK 3: labels at fixed places.
#include "bench/compare/Fields.h"

#include <gtk/gtk.h>
#include <vector>

namespace
{

std::string Color(Rgb color)
{
    char text[16];
    std::snprintf(text, sizeof text, "#%02x%02x%02x", color.red, color.green, color.blue);
    return text;
}

void UseStyle()
{
    const std::string style = "window { background: " + Color(BODY_COLOR) +
                              "; } label { background: " + Color(FIELD_COLOR) +
                              "; color: " + Color(TEXT_COLOR) + "; font: " + std::to_string(FONT_PIXELS) +
                              "px " + FONT_NAME + "; }";
    GtkCssProvider* const provider = gtk_css_provider_new();
    gtk_css_provider_load_from_data(provider, style.c_str(), -1, nullptr);
    gtk_style_context_add_provider_for_screen(gdk_screen_get_default(), GTK_STYLE_PROVIDER(provider),
                                              GTK_STYLE_PROVIDER_PRIORITY_APPLICATION);
    g_object_unref(provider);
}

GtkWidget* NewField(int field)
{
    GtkWidget* const label = gtk_label_new(FieldText(0, field).c_str());
    gtk_label_set_xalign(GTK_LABEL(label), 1.0F);
    gtk_widget_set_size_request(label, FIELD_WIDTH, FIELD_HEIGHT);
    return label;
}

gboolean Tick(void* data)
{
    const auto& labels = *static_cast<std::vector<GtkWidget*>*>(data);
    const int tick = NextTick();
    if (IsQuiet() && tick > 1)
        return TRUE;
    for (int field = 0; field < FIELD_COUNT; field++)
        gtk_label_set_text(GTK_LABEL(labels[static_cast<std::size_t>(field)]),
                           FieldText(tick, field).c_str());
    return TRUE;
}

} // namespace

int main(int argc, char** argv)
{
    gtk_init(&argc, &argv);
    UseStyle();
    GtkWidget* const window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_default_size(GTK_WINDOW(window), SCREEN_WIDTH, SCREEN_HEIGHT);
    GtkWidget* const body = gtk_fixed_new();
    gtk_container_add(GTK_CONTAINER(window), body);
    std::vector<GtkWidget*> labels;
    for (int field = 0; field < FIELD_COUNT; field++) {
        labels.push_back(NewField(field));
        gtk_fixed_put(GTK_FIXED(body), labels.back(), FieldLeft(field), FieldTop(field));
    }
    gtk_widget_show_all(window);
    g_timeout_add(TICK_MILLISECONDS, Tick, &labels);
    gtk_main();
}
