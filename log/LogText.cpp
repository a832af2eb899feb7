#include "log/LogText.h"

#include "log/Logfile.h"

#include <cstdarg>
#include <cstdio>

namespace tessary
{

void LogText(const char* mesg1, const char* file, int line, const char* format, ...)
{
    char text[256];
    std::va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(text, sizeof text, format, arguments);
    va_end(arguments);
    LogfileWrite(mesg1, text, file, line);
}

} // namespace tessary
