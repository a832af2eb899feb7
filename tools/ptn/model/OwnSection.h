// A section of the sources that an application adds to those of the tool: data of its own, with a file of
// its own in the project directory.
#pragma once

#include "tools/ptn/common/Files.h"
#include "tools/ptn/yaml/Source.h"

#include <filesystem>
#include <optional>
#include <string>

namespace ptn
{

class OwnSection
{
  public:
    OwnSection() = default;
    virtual ~OwnSection() = default;
    OwnSection(const OwnSection&) = delete;
    OwnSection& operator=(const OwnSection&) = delete;

    /// Reads the section; what is wrong is reported.
    /// @param folder  of the sources, for files that the section names
    virtual void read(const Source& section, const std::filesystem::path& folder,
                      Diagnostics& diagnostics) = 0;

    /// The file in the project directory; none without such a section.
    virtual std::optional<std::string> bytes() const = 0;

    /// Takes the file apart again.
    /// @return false, with the reason reported, when it is damaged
    virtual bool load(const std::string& bytes, const Place& place, Diagnostics& diagnostics) = 0;

    /// Appends the section to the file of the sources that it belongs into, "tables.yaml" as a rule, and adds
    /// what it names. Without such a section it adds nothing.
    virtual void emit(FileMap& sources) const = 0;
};

} // namespace ptn
