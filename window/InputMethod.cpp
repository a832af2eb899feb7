#include "window/InputMethod.h"

#include "base/Coord.h"
#include "base/EucText.h"
#include "draw/DrawCntl.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

/// The one input context of the process; made for the first edit of a text field.
GtkIMContext* method;
/// It is not the desktop's.
bool replaced;
/// The window whose text field is in edit; null when none is.
CPtrnDisp* edited;
/// The window that the method knows as receiving the keys, and whether there is a method behind it.
GdkWindow* client;
bool serves;
/// The key that the method is looking at, and whether it has only given back its own character.
const GdkEventKey* offered;
bool returned;

std::string CharacterOf(const GdkEventKey& event)
{
    char text[8] = "";
    if (const guint32 character = gdk_keyval_to_unicode(event.keyval))
        g_unichar_to_utf8(character, text);
    return text;
}

/// Half-width katakana have no two-byte form: their full-width forms are typed.
std::string WideKatakana(const std::string& utf8)
{
    const auto narrow = [](gunichar character) { return character >= 0xFF61 && character <= 0xFF9F; };
    std::string wide;
    for (const char* at = utf8.c_str(); *at;) {
        const char* const begin = at;
        const bool isNarrow = narrow(g_utf8_get_char(at));
        while (*at && narrow(g_utf8_get_char(at)) == isNarrow)
            at = g_utf8_next_char(at);
        if (!isNarrow) {
            wide.append(begin, at);
            continue;
        }
        char* normal = g_utf8_normalize(begin, at - begin, G_NORMALIZE_NFKC);
        wide += normal;
        g_free(normal);
    }
    return wide;
}

/// One character in the form in which a field holds it; empty when there is none.
std::string FieldForm(const std::string& character)
{
    bool ok = false;
    const std::string euc = Utf8ToEuc(character, &ok);
    const auto half = [&](std::size_t at) { return IsEucHalf(static_cast<unsigned char>(euc[at])); };
    const bool plain = euc.size() == 1 && euc[0] >= 0x20 && euc[0] < 0x7F;
    const bool wide = euc.size() == 2 && half(0) && half(1);
    return ok && (plain || wide) ? euc : "";
}

void TypeText(const char* utf8)
{
    if (!g_utf8_validate(utf8, -1, nullptr))
        return;
    const std::string text = WideKatakana(utf8);
    edited->KeyInputCode = 0; // half a character that a key has left
    for (const char* at = text.c_str(); *at; at = g_utf8_next_char(at)) {
        const auto length = static_cast<std::size_t>(g_utf8_next_char(at) - at);
        const std::string euc = FieldForm(std::string(at, length));
        if (euc.empty())
            LogText("PTRNDISP", nullptr, 0, "入力できない文字  [U+%04X]", g_utf8_get_char(at));
        for (const unsigned char byte : euc)
            ReqKeyEntry(byte, 0);
    }
}

void Commit(GtkIMContext*, const char* utf8, gpointer)
{
    if (!edited)
        return;
    if (offered && CharacterOf(*offered) == utf8)
        returned = true;
    else
        TypeText(utf8);
}

void Use(GtkIMContext* context)
{
    method = context;
    // What is being composed is shown by the method itself, at the place that it is told.
    gtk_im_context_set_use_preedit(method, FALSE);
    g_signal_connect(method, "commit", G_CALLBACK(Commit), nullptr);
}

void SetClient(GdkWindow* window)
{
    if (client == window)
        return;
    if (client)
        gtk_im_context_focus_out(method);
    client = window;
    gtk_im_context_set_client_window(method, client);
    if (client)
        gtk_im_context_focus_in(method);
}

/// The toolkit's own composing and the X library's (which is there without any server of a method) are no
/// input methods: keys keep what they are.
bool IsMethod(const char* id)
{
    if (!id || std::strcmp(id, "gtk-im-context-simple") == 0 || std::strcmp(id, "gtk-im-context-none") == 0)
        return false;
    if (std::strcmp(id, "xim") != 0)
        return true;
    const char* const modifiers = std::getenv("XMODIFIERS");
    const char* const server = modifiers ? std::strstr(modifiers, "@im=") : nullptr;
    const std::string name = server ? server + std::strlen("@im=") : "";
    return !name.empty() && name != "none" && name != "local";
}

/// Tells the method where the keys come from. Which method the desktop has can change at any time.
void Attach(GdkWindow* window)
{
    if (!method)
        Use(gtk_im_multicontext_new());
    SetClient(window);
    serves = replaced || IsMethod(gtk_im_multicontext_get_context_id(GTK_IM_MULTICONTEXT(method)));
}

void DropMethod()
{
    if (!method)
        return;
    SetClient(nullptr);
    g_signal_handlers_disconnect_by_func(method, reinterpret_cast<gpointer>(Commit), nullptr);
    g_object_unref(method);
    method = nullptr;
}

} // namespace

void SetInputMethod(GtkIMContext* context)
{
    DropMethod();
    edited = nullptr;
    replaced = context != nullptr;
    if (context)
        Use(GTK_IM_CONTEXT(g_object_ref(context)));
}

void InputMethodStart(CPtrnDisp* wnd)
{
    if (wnd->KeyInputPtrn.Type != PTRN_CHAR)
        return;
    edited = wnd;
    if (wnd->Widget && GTK_WIDGET_REALIZED(wnd->Widget)) // else the first key will do it
        Attach(wnd->Widget->window);
    InputMethodMove(wnd);
}

void InputMethodMove(const CPtrnDisp* wnd)
{
    if (edited != wnd || !client || !serves)
        return;
    const PTRNDATA& item = wnd->KeyInputPtrn;
    const SIZE cell = FontCell(item.Parm[TEXT_FONT]);
    int left = 0;
    int top = 0;
    gdk_window_get_origin(client, &left, &top);
    const std::int64_t x = std::int64_t{wnd->WindRect.left} - wnd->Offset.x - left + item.Parm[PARM_X1] +
                           std::int64_t{cell.cx} * wnd->KeyInputPost;
    const std::int64_t y = std::int64_t{wnd->WindRect.top} - wnd->Offset.y - top + item.Parm[PARM_Y1];
    GdkRectangle place = {Saturate(x), Saturate(y), 1, cell.cy};
    gtk_im_context_set_cursor_location(method, &place);
}

void InputMethodStop(const CPtrnDisp* wnd)
{
    if (edited != wnd)
        return;
    edited = nullptr; // what the method still commits comes too late
    if (!client)
        return;
    gtk_im_context_reset(method);
    SetClient(nullptr);
}

bool InputMethodFilter(GtkWidget* top, GdkEventKey* event)
{
    if (!edited)
        return false;
    if (client != top->window) {
        Attach(top->window);
        InputMethodMove(edited);
    }
    if (!serves)
        return false;
    offered = event;
    returned = false;
    const bool taken = gtk_im_context_filter_keypress(method, event);
    offered = nullptr;
    return taken && !returned;
}

void InputMethodRelease(GtkWidget* top)
{
    if (client && client == top->window)
        SetClient(nullptr);
}
