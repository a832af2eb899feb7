// The wiring table, "Haisenhyo": a header in the project's sources and one line of a CSV file per wire.
#pragma once

#include "tools/ptn/yaml/Source.h"

#include <filesystem>
#include <string>

namespace ptn
{

class Wiring
{
  public:
    /// Reads the section "wiring": the header's texts "system", "delivery", "work", "board" and "comment",
    /// and "table", a CSV file below `folder` whose first line names the columns.
    void read(const Source& section, const std::filesystem::path& folder, Diagnostics& diagnostics);

    bool given() const { return given_; }

    std::string bytes() const { return bytes_; }
    /// @return false, with the reason reported, when the file is not as long as it says
    bool load(const std::string& bytes, const Place& place, Diagnostics& diagnostics);
    /// The section and the CSV file, which is called `table`.
    std::string yaml(const std::string& table) const;
    std::string csv() const;

  private:
    void readTable(const std::filesystem::path& file, const Place& place, Diagnostics& diagnostics);

    bool given_ = false;
    std::string bytes_;
};

} // namespace ptn
