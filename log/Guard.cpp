#include "log/Guard.h"

#include "log/Category.h"
#include "log/Logfile.h"
#include "log/LogText.h"

#include <exception>

namespace tessary
{

ExceptionSink CaughtSink;

namespace
{

/// Of the exception that is being handled.
std::string TextOfCaught()
{
    try {
        throw;
    } catch (const std::exception& caught) {
        return caught.what();
    } catch (...) {
        return "unknown";
    }
}

} // namespace

void TakeException() noexcept
{
    try {
        const std::string text = TextOfCaught();
        LogText(CATEGORY_SYSTEM, nullptr, 0, "例外が発生した。  [%s]", text.c_str());
        if (CaughtSink)
            CaughtSink(text);
    } catch (...) { // no memory for the text, either
        LogfileWrite(CATEGORY_SYSTEM, "例外が発生した。", nullptr, 0);
    }
}

} // namespace tessary
