// Japanese text entry: while a text field is in edit, the desktop's input method sees the keys first. What it
// commits is converted to EUC-JP and typed byte by byte, as if by keys; its own window, which shows what is
// being composed, stands at the field's cursor.
//
// Without an input method, in numeric fields and while nothing is in edit, no key passes through here.
#pragma once

#include "draw/ToolkitPtr.h"

#include <gtk/gtk.h>

class CPtrnDisp;

namespace tessary
{

/// The input method of the process: its one context, the field that it serves and the key it looks at.
class InputMethod
{
  public:
    InputMethod() = default;
    ~InputMethod();
    InputMethod(const InputMethod&) = delete;
    InputMethod& operator=(const InputMethod&) = delete;

    /// Puts another input method in the place of the desktop's, and ends what was being composed.
    /// @param context  kept until the next call; null returns to the desktop's, which is looked for at the
    ///                 next text field
    void replace(GtkIMContext* context);

    /// An edit has started, its cursor or text has changed, or it has ended.
    void start(CPtrnDisp* wnd);
    void move(const CPtrnDisp* wnd);
    void stop(const CPtrnDisp* wnd);

    /// Offers a key press or release to the input method.
    /// @param top  the top-level window that has received it
    /// @return true when the method has taken it; a key that it would only type as it is counts as not taken
    bool filter(GtkWidget* top, GdkEventKey* event);

    /// The window's connection to the server goes: the method must let go of it.
    void release(GtkWidget* top);

  private:
    static void commit(GtkIMContext* context, const char* utf8, InputMethod* self);
    void use(GtkIMContext* context);
    void drop();
    void attach(GdkWindow* window);
    void setClient(GdkWindow* window);
    void type(const char* utf8);

    ObjectPtr<GtkIMContext> context_;      ///< made for the first edit of a text field
    bool replaced_ = false;                ///< it is not the desktop's
    CPtrnDisp* edited_ = nullptr;          ///< whose text field is in edit; null when none is
    GdkWindow* client_ = nullptr;          ///< what the method knows as receiving the keys
    bool serves_ = false;                  ///< there is a method behind the context
    const GdkEventKey* offered_ = nullptr; ///< the key that the method is looking at
    bool returned_ = false;                ///< it has only given back that key's own character
};

/// The one that the windows share. It lives as long as the program.
InputMethod& DesktopMethod();

} // namespace tessary
