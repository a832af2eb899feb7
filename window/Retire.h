// When window objects are deleted: after they were exited or replaced, and never while a handler of theirs
// can be on the stack. And what a window object that is deleted leaves behind in others.
#pragma once

#include "draw/ToolkitTypes.h"

#include <cstddef>

class CPtrnDisp;

namespace tessary
{

/// Marks the time in which a toolkit handler, the tick, or the opening or exit of a window runs.
class HandlerScope
{
  public:
    HandlerScope();
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
};

/// Marks the time in which the toolkit lays a window out, and can not do without it.
class LayoutScope
{
  public:
    LayoutScope();
    ~LayoutScope();
    LayoutScope(const LayoutScope&) = delete;
    LayoutScope& operator=(const LayoutScope&) = delete;
};

/// Destroys a top-level window that no window object knows any more: at once, or at the end of a tick when
/// the toolkit is laying a window out.
void DestroyTop(GtkWidget* top);

/// Destroys those that have been waiting for it.
void DestroyUnwantedTops();

/// Hands over an exited or replaced window. Its object lives on, so that the code that closed it may
/// finish and may still look at it; the newest few stay until others take their place. Handing it over
/// again changes nothing.
void RetirePtrnWnd(CPtrnDisp* wnd);

/// Deletes retired windows with the children still in their slots. A window stays while windows below it
/// are still on the screen: replacing a window does not exit its children. Called at the end of a tick; does
/// nothing while that tick interrupts another handler (a message box's own main loop).
/// @param kept  how many of the newest stay; what a screen class holds on to is rarely older. With 0, for the
///              end of the program, no window stays
void DeleteRetiredWnd(std::size_t kept = 16);

/// Every window object makes itself known as long as it lives. Those that refer to one that goes (as parent,
/// child, application or system window) forget it.
void RegisterPtrnWnd(CPtrnDisp* wnd);
void ForgetPtrnWnd(CPtrnDisp* wnd);

} // namespace tessary
