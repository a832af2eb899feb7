// What is wrong with the sources, collected so that one run reports everything it finds.
#pragma once

#include "tools/ptn/common/Framework.h"

#include <iosfwd>
#include <set>
#include <string>
#include <vector>

namespace ptn
{

/// A place in a source file; line 0 stands for the file as a whole.
struct Place {
    std::string file;
    int line = 0; ///< from 1
};

class Diagnostics
{
  public:
    /// Adds an error. The same text at the same place is kept once, of whichever item it is.
    /// @param what  UTF-8: what is wrong, and what to do about it
    void error(const Place& place, const std::string& what) { add(place, what, "", errors_); }

    /// Adds a remark that does not stop the build.
    void warning(const Place& place, const std::string& what) { add(place, what, "warning: ", warnings_); }

    /// Adds what another run has found, as remarks that do not stop anything.
    void add(const Diagnostics& others);

    /// Whether there was an error.
    bool failed() const { return errors_ > 0; }
    int errors() const { return errors_; }
    int warnings() const { return warnings_; }

    /// Writes "file:line: text" for each, in the order in which they were found.
    void print(std::ostream& out) const;

  private:
    void add(const Place& place, const std::string& what, const char* kind, int& count);

    std::vector<std::string> lines_;
    std::set<std::string> known_;
    int errors_ = 0;
    int warnings_ = 0;
};

/// " Did you mean 'x'?" with the candidate that is closest to `name` or the only one that it is short for, or
/// nothing when there is none.
std::string Suggestion(const std::string& name, const std::vector<std::string>& candidates);

/// A name in quotes, as messages show it.
std::string Quoted(const std::string& name);

} // namespace ptn
