// The fields in GTK+ 2, the toolkit whose windows and events the framework uses: labels at fixed places, each
// in a box of its own for its background. A quiet tick of it is the floor of a panel's.
#include "bench/compare/Fields.h"

#include <gtk/gtk.h>
#include <vector>

namespace
{

GdkColor Color(Rgb color)
{
    const auto wide = [](unsigned char part) { return static_cast<guint16>(part * 257); };
    return {0, wide(color.red), wide(color.green), wide(color.blue)};
}

struct Field {
    GtkWidget* box;
    GtkWidget* label;
    float shown;
};

Field NewField(int field)
{
    GtkWidget* const box = gtk_event_box_new();
    GtkWidget* const label = gtk_label_new(FieldText(0, field).c_str());
    const GdkColor text = Color(TEXT_COLOR);
    const GdkColor back = Color(FIELD_COLOR);
    PangoFontDescription* const font = pango_font_description_from_string(FONT_NAME);
    pango_font_description_set_absolute_size(font, FONT_PIXELS * PANGO_SCALE);
    gtk_widget_modify_font(label, font);
    pango_font_description_free(font);
    gtk_widget_modify_fg(label, GTK_STATE_NORMAL, &text);
    gtk_widget_modify_bg(box, GTK_STATE_NORMAL, &back);
    gtk_misc_set_alignment(GTK_MISC(label), 1.0F, 0.5F);
    gtk_container_add(GTK_CONTAINER(box), label);
    gtk_widget_set_size_request(box, FIELD_WIDTH, FIELD_HEIGHT);
    return {box, label, FieldValue(0, field)};
}

gboolean Tick(void* data)
{
    auto& fields = *static_cast<std::vector<Field>*>(data);
    const int next = NextTick();
    const int tick = IsQuiet() ? 0 : next;
    for (int field = 0; field < FIELD_COUNT; field++) {
        Field& one = fields[static_cast<std::size_t>(field)];
        if (one.shown != FieldValue(tick, field)) { // a field that is the same is not touched
            one.shown = FieldValue(tick, field);
            gtk_label_set_text(GTK_LABEL(one.label), FieldText(tick, field).c_str());
        }
    }
    return TRUE;
}

} // namespace

int main(int argc, char** argv)
{
    gtk_init(&argc, &argv);
    GtkWidget* const window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    const GdkColor back = Color(BODY_COLOR);
    gtk_widget_modify_bg(window, GTK_STATE_NORMAL, &back);
    gtk_window_set_decorated(GTK_WINDOW(window), FALSE);
    gtk_window_set_default_size(GTK_WINDOW(window), SCREEN_WIDTH, SCREEN_HEIGHT);
    GtkWidget* const body = gtk_fixed_new();
    gtk_container_add(GTK_CONTAINER(window), body);
    std::vector<Field> fields;
    for (int field = 0; field < FIELD_COUNT; field++) {
        fields.push_back(NewField(field));
        gtk_fixed_put(GTK_FIXED(body), fields.back().box, FieldLeft(field), FieldTop(field));
    }
    gtk_widget_show_all(window);
    g_timeout_add(TICK_MILLISECONDS, Tick, &fields);
    gtk_main();
}
