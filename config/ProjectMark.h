// A file that stands in a project directory as long as it is being written: whoever finds it there has one
// that is half old and half new.
#pragma once

namespace tessary
{

constexpr char UNFINISHED_MARK[] = ".ptn-unfinished";

} // namespace tessary
