// C++ source, as far as it names something.
#pragma once

#include <string>
#include <vector>

namespace ptn
{

struct CppSource {
    std::vector<std::string> texts; ///< what stands in double quotes, raw texts included
    std::string code;               ///< the rest, without comments and characters in quotes
};

/// Takes source apart; what stands in a comment is in neither part.
CppSource ReadCpp(const std::string& source);

} // namespace ptn
