// What other programs of the display and the display itself may do to a panel, and what it makes of that.
#pragma once

namespace tessary
{

/// To be called once, when the toolkit has been started. From then on
/// - the loss of the X server and an error that it reports end the program with status 1, with the log on the
///   disk, a line there and one on standard error;
/// - events that no server sends, but another program has made up, are dropped before the toolkit looks at
///   them. Messages of window managers and input methods, which come the same way, pass;
/// - the screen saver does not begin as long as the program runs.
void GuardDisplay();

/// To be called in every tick: when another program has destroyed the application window, ends the program as
/// EndProgram() does, with status 1 and a line in the log and on standard error.
void NoticeLostWindow();

} // namespace tessary
