#include "dialogs/MessageBox.h"

#include "base/EucText.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "dialogs/BoxPlace.h"
#include "draw/Scale.h"
#include "log/Guard.h"

#include <algorithm>
#include <cmath>
#include <gdk/gdkkeysyms.h>
#include <gtk/gtk.h>
#include <string>
#include <vector>

using namespace tessary;

gint MessageButnNo;

namespace
{

constexpr std::size_t TEXT_LIMIT = 1000; // bytes; more than that does not fit a screen
constexpr int BORDER = 10;

struct Button {
    const char* label;
    void (*clicked)(GtkWidget*, gpointer);
};

/// Texts of the buttons.
struct Labels {
    const char* confirm;
    const char* yes;
    const char* no;
    const char* cancel;
};

Labels ButtonLabels()
{
    if (Has(Correction::MessageBox) && Language != 0)
        return {" OK ", " Yes ", " No ", " Cancel "};
    return {" 確認 ", " はい ", " いいえ ", " キャンセル "};
}

std::vector<Button> ButtonsOf(int type)
{
    const Labels labels = ButtonLabels();
    const Button confirm{labels.confirm, Guarded<Message_Button1>::call};
    const Button yes{labels.yes, Guarded<Message_Button1>::call};
    const Button no{labels.no, Guarded<Message_Button2>::call};
    const Button cancel{labels.cancel, Guarded<Message_Button3>::call};
    switch (type) {
    case 1:
        return {confirm};
    case 2:
        return {yes, no};
    case 3:
        return {yes, no, cancel};
    default:
        return {};
    }
}

std::string ToolkitText(const char* text)
{
    return text ? EucToUtf8(std::string(text, EucCut(text, TEXT_LIMIT))) : "";
}

/// The box grows with the panel, but is never harder to read than the desktop's own.
double Growth()
{
    return std::max(1.0, DisplayScale().factor());
}

int Grown(int pixels)
{
    return static_cast<int>(std::lround(pixels * Growth()));
}

/// What its text is shown with, beside what it is given. The caller owns the list.
PangoAttrList* GrownText()
{
    PangoAttrList* attributes = pango_attr_list_new();
    if (Growth() > 1)
        pango_attr_list_insert(attributes, pango_attr_scale_new(Growth()));
    return attributes;
}

void Grow(GtkLabel* label)
{
    if (Growth() <= 1)
        return;
    PangoAttrList* attributes = GrownText();
    gtk_label_set_attributes(label, attributes);
    pango_attr_list_unref(attributes);
}

void Pack(GtkWidget* box, GtkWidget* child)
{
    gtk_box_pack_start(GTK_BOX(box), child, FALSE, FALSE, 0);
    gtk_widget_show(child);
}

GtkWidget* NewWindow(const char* title)
{
    GtkWidget* window = gtk_window_new(GTK_WINDOW_TOPLEVEL);
    gtk_window_set_type_hint(GTK_WINDOW(window), GDK_WINDOW_TYPE_HINT_DIALOG);
    gtk_window_set_modal(GTK_WINDOW(window), TRUE);
    gtk_window_set_position(GTK_WINDOW(window), GTK_WIN_POS_CENTER);
    gtk_window_set_title(GTK_WINDOW(window), ToolkitText(title).c_str());
    gtk_container_set_border_width(GTK_CONTAINER(window), Grown(BORDER));
    gtk_widget_realize(window);
    gdk_window_set_decorations(gtk_widget_get_window(window), GDK_DECOR_TITLE);
    g_signal_connect(window, "destroy", G_CALLBACK(Guarded<Message_Destroy>::call), nullptr);
    return window;
}

void Wrap(GtkLabel* label, int width)
{
    // A path is no word: a hyphen at the end of its line would look like part of it.
    PangoAttrList* attributes = GrownText();
    pango_attr_list_insert(attributes, pango_attr_insert_hyphens_new(FALSE));
    gtk_label_set_attributes(label, attributes);
    pango_attr_list_unref(attributes);
    gtk_label_set_line_wrap(label, TRUE);
    gtk_label_set_line_wrap_mode(label, PANGO_WRAP_WORD_CHAR);
    gtk_widget_set_size_request(GTK_WIDGET(label), width, -1);
}

GtkWidget* NewLabel(const char* text)
{
    GtkWidget* label = gtk_label_new(ToolkitText(text).c_str());
    Grow(GTK_LABEL(label));
    const int room = gdk_screen_width() - 4 * Grown(BORDER);
    GtkRequisition wanted;
    gtk_widget_size_request(label, &wanted);
    if (wanted.width > room)
        Wrap(GTK_LABEL(label), room);
    return label;
}

GtkWidget* NewButtonRow(int type, GtkWidget* window)
{
    GtkWidget* row = gtk_hbox_new(FALSE, Grown(10));
    for (const Button& button : ButtonsOf(type)) {
        GtkWidget* widget = gtk_button_new_with_label(ToolkitText(button.label).c_str());
        Grow(GTK_LABEL(gtk_bin_get_child(GTK_BIN(widget))));
        g_signal_connect(widget, "clicked", G_CALLBACK(button.clicked), window);
        Pack(row, widget);
    }
    return row;
}

void Close(int button, gpointer window)
{
    MessageButnNo = button;
    gtk_widget_destroy(GTK_WIDGET(window));
}

/// Escape presses the last button, whose number is that of the type. Return is the toolkit's business: it
/// presses the first button unless the focus has been moved to another.
gboolean PressKey(GtkWidget* window, GdkEventKey* event, gpointer type)
{
    const int last = GPOINTER_TO_INT(type);
    if (event->keyval != GDK_Escape || ButtonsOf(last).empty())
        return FALSE;
    Close(last, window);
    return TRUE;
}

/// What the box does beside edition 1.
void Correct(GtkWidget* window, int type)
{
    g_signal_connect(window, "key-press-event", G_CALLBACK(Guarded<PressKey>::call), GINT_TO_POINTER(type));
    PlaceOverPanel(window);
}

} // namespace

int MessageBox(const char* title, const char* text, int, int type)
{
    MessageButnNo = 0;
    GtkWidget* window = NewWindow(title);
    GtkWidget* column = gtk_vbox_new(FALSE, Grown(20));
    Pack(column, NewLabel(text));
    Pack(column, NewButtonRow(type, window));
    gtk_container_add(GTK_CONTAINER(window), column);
    gtk_widget_show(column);
    if (Has(Correction::MessageBox))
        Correct(window, type);
    gtk_widget_show(window);
    gtk_grab_add(window);
    gtk_main();
    return MessageButnNo;
}

void Message_Button1(GtkWidget*, gpointer window)
{
    Close(1, window);
}

void Message_Button2(GtkWidget*, gpointer window)
{
    Close(2, window);
}

void Message_Button3(GtkWidget*, gpointer window)
{
    Close(3, window);
}

void Message_Destroy(GtkWidget* widget)
{
    gtk_main_quit();
    gtk_grab_remove(widget);
}
