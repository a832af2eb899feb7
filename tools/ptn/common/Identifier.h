// Names of a project as names in C++.
#pragma once

#include <set>
#include <string>

namespace ptn
{

/// What a name is called in C++. Letters of any script and digits stay, everything between them becomes one
/// "_"; a digit in front gets an "n" before it, a name without letters and digits is "unnamed", and words
/// that mean something in C++ or in the header itself get a "_" behind them. Different names may give the
/// same.
/// @param utf8  the name
std::string Identifier(const std::string& utf8);

/// What the names of one scope are called, each differently.
class Identifiers
{
  public:
    /// As Identifier; from the second name on that gives the same, with "_2", "_3" and so on behind it.
    std::string take(const std::string& utf8);

  private:
    std::set<std::string> taken_;
};

/// Whether `identifier` is what `Identifiers` calls a name.
bool IsIdentifierOf(const std::string& identifier, const std::string& utf8);

} // namespace ptn
