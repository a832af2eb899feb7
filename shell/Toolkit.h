// The start of the toolkit without what others would have it load.
#pragma once

namespace tessary
{

/// As gtk_init_check(), but no library is loaded that GTK_MODULES or the settings of the X server (XSETTINGS)
/// name: whoever may put them there could run code in the panel. That is so as long as the program runs. An
/// input method is loaded as usual, but for what the toolkit's list of installed ones does not have.
bool OpenToolkit(int* argc, char*** argv);

} // namespace tessary
