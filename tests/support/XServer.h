// A private X server for the tests of one process.
#pragma once

#include <string>

class XServer
{
  public:
    /// Starts Xvfb (1280 x 1024, 24 bits, arrow cursor) on a free display and sets DISPLAY; once per process.
    /// The server ends with the process, however that ends. Ends the process with a clear text when no
    /// server comes up.
    static void ensure();

    /// Name of the display, such as ":3"; empty before ensure().
    static const std::string& display();
};
