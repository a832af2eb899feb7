// Files that are part of the program.
#pragma once

#include <string_view>
#include <vector>

namespace ptn
{

/// A file as it lay in the sources when the program was built.
struct EmbeddedFile {
    const char* name; ///< below its folder, with '/'
    std::string_view bytes;
};

} // namespace ptn
