// No exception leaves what a library calls back: the toolkit and the X library are of C, and an exception
// that comes to them ends the program where it stands, with the log in memory.
#pragma once

#include <string>
#include <type_traits>

namespace tessary
{

/// What becomes of the program when an exception was caught; null: it goes on. The shell enters itself here.
/// @param text  of the exception
using ExceptionSink = void (*)(const std::string& text);
extern ExceptionSink CaughtSink;

/// To be called where an exception has been caught: writes its text into the log and hands it to CaughtSink.
void TakeException() noexcept;

/// Calls, and takes the exception that comes out.
/// @param otherwise  the result then
template <class Call, class Result> Result Guard(const Call& call, Result otherwise) noexcept
{
    try {
        return call();
    } catch (...) {
        TakeException();
    }
    return otherwise;
}

template <class Call> void Guard(const Call& call) noexcept
{
    try {
        call();
    } catch (...) {
        TakeException();
    }
}

/// A function as a library may call it: Guarded<Function>::call, whose result is 0 when an exception was
/// taken, or `Otherwise`.
template <auto Function, auto... Otherwise> struct Guarded;

template <class Result, class... Arguments, Result (*Function)(Arguments...), auto... Otherwise>
struct Guarded<Function, Otherwise...> {
    static Result call(Arguments... arguments) noexcept
    {
        if constexpr (std::is_void_v<Result>)
            Guard([&] { Function(arguments...); });
        else
            return Guard([&] { return Function(arguments...); }, Result{Otherwise...});
    }
};

} // namespace tessary
