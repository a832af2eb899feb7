// Names in messages.
#pragma once

#include <string>
#include <vector>

namespace ptn
{

/// A name in quotes, as messages show it.
std::string Quoted(const std::string& name);

/// " Did you mean 'x'?" with the candidate that is closest to `name` or the only one that it is short for, or
/// nothing when there is none. Small and capital letters count as alike.
std::string Suggestion(const std::string& name, const std::vector<std::string>& candidates);

} // namespace ptn
