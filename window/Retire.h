// When window objects are deleted: after they were exited or replaced, and never while a handler of theirs
// can be on the stack.
#pragma once

#include <cstddef>

class CPtrnDisp;

/// Marks the time in which a toolkit handler or the tick runs. Every handler holds one.
class HandlerScope
{
  public:
    HandlerScope();
    ~HandlerScope();
    HandlerScope(const HandlerScope&) = delete;
    HandlerScope& operator=(const HandlerScope&) = delete;
};

/// Hands over an exited or replaced window. Its object lives on, so that the code that closed it may
/// finish and may still look at it; the newest few stay until others take their place.
void RetirePtrnWnd(CPtrnDisp* wnd);

/// Deletes retired windows with the children still in their slots. Called at the end of a tick; does nothing
/// while that tick interrupts another handler (a message box's own main loop).
/// @param kept  how many of the newest stay; what a screen class holds on to is rarely older
void DeleteRetiredWnd(std::size_t kept = 16);
