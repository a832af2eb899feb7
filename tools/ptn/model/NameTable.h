// Numbers that have names: colours, fonts, marks.
#pragma once

#include "tools/ptn/common/Diagnostics.h"
#include "tools/ptn/yaml/Source.h"

#include <map>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

class NameTable
{
  public:
    /// @param what   how messages call one of them, such as "color"
    /// @param limit  numbers run from `first` to limit - 1
    NameTable(const char* what, int limit, int first = 0) : what_(what), limit_(limit), first_(first) {}

    void add(const std::string& name, int number);

    /// The number that a source names, by name or by number; anything that is not defined is reported.
    std::optional<int> find(const Source& source, const Subject& attribute, Diagnostics& diagnostics) const;

    const char* what() const { return what_; }
    int limit() const { return limit_; }
    int first() const { return first_; }
    /// All numbers that are defined, in their order, and their names.
    const std::map<int, std::string>& names() const { return names_; }
    bool has(const std::string& name) const { return numbers_.count(name) > 0; }
    /// The name of a number; empty when it is not defined.
    std::string nameOf(int number) const;

  private:
    const char* what_;
    int limit_;
    int first_;
    std::map<std::string, int> numbers_;
    std::map<int, std::string> names_;
};

/// One entry of a section such as "colors".
struct NumberedEntry {
    std::string name;
    int number = 0;
    Place place;
    std::string key; ///< which of the keys the value was given with; the first one in the short form
    Source value;
    std::map<std::string, Source> extras;
};

/// Reads a section whose entries are "name: value" or "name: {no: number, <key>: value}" and adds their
/// names to the table. Without "no", numbers follow the entry before, beginning with the first.
/// @param keys  those that a value may be given with; the first is the one that messages recommend
/// @param extras  further keys of the long form
/// Reported and left out: numbers out of range or used twice, names that could be taken for a number.
std::vector<NumberedEntry> NumberedEntries(const Source& section, const std::vector<std::string>& keys,
                                           NameTable& table, Diagnostics& diagnostics,
                                           const std::vector<std::string>& extras = {});

} // namespace ptn
