// Which of the panel's windows is in front.
#pragma once

class CPtrnDisp;

namespace tessary
{

/// The system window, else the child opened last that blocks or holds the pointer, else the application
/// window. Null before there is one.
CPtrnDisp* FrontWnd();

} // namespace tessary
