#include "window/InputMethod.h"

#include "base/Coord.h"
#include "base/EucText.h"
#include "config/Edition.h"
#include "draw/DrawCntl.h"
#include "draw/Scale.h"
#include "log/Category.h"
#include "log/Guard.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "window/FieldEntry.h"
#include "window/PtrnDisp.h"
#include "window/Request.h"

#include <cstdlib>
#include <cstring>
#include <string>

namespace tessary
{

namespace
{

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

} // namespace

InputMethod::~InputMethod()
{
    drop();
}

void InputMethod::replace(GtkIMContext* context)
{
    drop();
    edited_ = nullptr;
    replaced_ = context != nullptr;
    if (context)
        use(GTK_IM_CONTEXT(g_object_ref(context)));
}

void InputMethod::use(GtkIMContext* context)
{
    context_.reset(context);
    // What is being composed is shown by the method itself, at the place that it is told.
    gtk_im_context_set_use_preedit(context, FALSE);
    g_signal_connect(context, "commit", G_CALLBACK(Guarded<commit>::call), this);
}

void InputMethod::drop()
{
    if (!context_)
        return;
    setClient(nullptr);
    g_signal_handlers_disconnect_by_func(context_.get(), reinterpret_cast<gpointer>(Guarded<commit>::call),
                                         this);
    context_.reset();
}

/// Tells the method where the keys come from. Which method the desktop has can change at any time.
void InputMethod::attach(GdkWindow* window)
{
    if (!context_)
        use(gtk_im_multicontext_new());
    setClient(window);
    serves_ = replaced_ || IsMethod(gtk_im_multicontext_get_context_id(GTK_IM_MULTICONTEXT(context_.get())));
}

void InputMethod::setClient(GdkWindow* window)
{
    if (client_ == window)
        return;
    if (client_)
        gtk_im_context_focus_out(context_.get());
    client_ = window;
    gtk_im_context_set_client_window(context_.get(), client_);
    if (client_)
        gtk_im_context_focus_in(context_.get());
}

void InputMethod::commit(GtkIMContext*, const char* utf8, InputMethod* self)
{
    if (!self->edited_)
        return;
    if (self->offered_ && CharacterOf(*self->offered_) == utf8)
        self->returned_ = true;
    else
        self->type(utf8);
}

void InputMethod::type(const char* utf8)
{
    if (!g_utf8_validate(utf8, -1, nullptr))
        return;
    const std::string text = WideKatakana(utf8);
    edited_->KeyInputCode = 0; // half a character that a key has left
    for (const char* at = text.c_str(); *at; at = g_utf8_next_char(at)) {
        const auto length = static_cast<std::size_t>(g_utf8_next_char(at) - at);
        const std::string euc = FieldForm(std::string(at, length));
        if (euc.empty())
            LogText(CATEGORY_WINDOW, nullptr, 0, "入力できない文字  [U+%04X]", g_utf8_get_char(at));
        if (Has(Correction::EntryKeys)) {
            if (!euc.empty() && edited_)
                TypeCharacter(edited_, euc);
            continue;
        }
        for (const unsigned char byte : euc)
            ReqKeyEntry(byte, 0);
    }
}

void InputMethod::start(CPtrnDisp* wnd)
{
    if (wnd->KeyInputPtrn.Type != PTRN_CHAR)
        return;
    edited_ = wnd;
    if (wnd->Widget && GTK_WIDGET_REALIZED(wnd->Widget)) // else the first key will do it
        attach(wnd->Widget->window);
    move(wnd);
}

void InputMethod::move(const CPtrnDisp* wnd)
{
    if (edited_ != wnd || !client_ || !serves_)
        return;
    const PTRNDATA& item = wnd->KeyInputPtrn;
    const SIZE cell = FontCell(item.Parm[TEXT_FONT]);
    int left = 0;
    int top = 0;
    gdk_window_get_origin(client_, &left, &top);
    const std::int64_t x = std::int64_t{wnd->WindRect.left} - wnd->Offset.x + item.Parm[PARM_X1] +
                           std::int64_t{cell.cx} * wnd->KeyInputPost;
    const std::int64_t y = std::int64_t{wnd->WindRect.top} - wnd->Offset.y + item.Parm[PARM_Y1];
    const POINT cursor = DisplayScale().toDisplay({Saturate(x), Saturate(y)});
    GdkRectangle place = {Shift(cursor.x, -left), Shift(cursor.y, -top), 1, DisplayScale().length(cell.cy)};
    gtk_im_context_set_cursor_location(context_.get(), &place);
}

void InputMethod::stop(const CPtrnDisp* wnd)
{
    if (edited_ != wnd)
        return;
    edited_ = nullptr; // what the method still commits comes too late
    if (!client_)
        return;
    gtk_im_context_reset(context_.get());
    setClient(nullptr);
}

bool InputMethod::filter(GtkWidget* top, GdkEventKey* event)
{
    if (!edited_)
        return false;
    if (client_ != top->window) {
        attach(top->window);
        move(edited_);
    }
    if (!serves_)
        return false;
    offered_ = event;
    returned_ = false;
    const bool taken = gtk_im_context_filter_keypress(context_.get(), event);
    offered_ = nullptr;
    return taken && !returned_;
}

void InputMethod::release(GtkWidget* top)
{
    if (client_ && client_ == top->window)
        setClient(nullptr);
}

InputMethod& DesktopMethod()
{
    static InputMethod& method = *new InputMethod; // the display goes before the program's statics would
    return method;
}

} // namespace tessary
