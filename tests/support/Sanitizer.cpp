#include "tests/support/Sanitizer.h"

const char* const LEAK_SUPPRESSIONS = "leak:libfontconfig\n"
                                      "leak:libpango\n"
                                      "leak:libcairo\n"
                                      "leak:libglib-2.0\n"
                                      "leak:libgobject-2.0\n"
                                      "leak:libgtk-x11-2.0\n"
                                      "leak:libgdk-x11-2.0\n"
                                      "leak:libgdk_pixbuf-2.0\n"
                                      "leak:libX11\n"
                                      "leak:libXi\n"
                                      "leak:libdbus\n";
