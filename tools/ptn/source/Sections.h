// The table of sections: what a project consists of beside its screens and bitmaps.
//
// Each section tells how it is read from the sources, what its file in the project directory is called, how
// that is made and taken apart, and how it becomes a source again. An application adds sections of its own:
//
//     const SectionRegistration<Recipes> registration("recipes", "Recipes", ProjectFile::Made);
//
// in a source file that its CMakeLists.txt hands to `ptn_sections`.
#pragma once

#include "tools/ptn/source/ProjectSource.h"

#include <memory>
#include <set>
#include <vector>

namespace ptn
{

/// What a section is read from.
struct SectionSource {
    const Entry& entry;
    const std::filesystem::path& folder; ///< of the sources
    Diagnostics& diagnostics;

    const Source& value() const { return entry.value; }
};

/// Numbers that the patterns of a compiled project name.
struct UsedNumbers {
    std::set<int> colors;
    std::set<int> marks;
};

/// What a section is loaded from.
struct SectionFile {
    std::optional<std::string> bytes; ///< none when there is no such file
    const UsedNumbers& used;
    Place place;
    Diagnostics& diagnostics;

    std::string text() const { return bytes.value_or(""); }
};

/// Who writes a section's file in the project directory.
enum class ProjectFile {
    None, ///< there is no such file
    Made, ///< the build alone
    Seed, ///< the program goes on writing it, so that the build writes it only when its sources have changed
};

/// One row. What it knows of a project is in the project, so that one row serves all.
class Section
{
  public:
    Section(const char* name, const char* file, ProjectFile kind) : name_(name), file_(file), kind_(kind) {}
    virtual ~Section() = default;
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    /// In the sources.
    const char* name() const { return name_; }
    /// In the project directory; null without one.
    const char* file() const { return file_; }
    ProjectFile kind() const { return kind_; }

    /// Reads the section; what is wrong is reported.
    virtual void read(ProjectSource& to, const SectionSource& from) const = 0;
    /// The file; none when there is to be none.
    virtual std::optional<std::string> bytes(const ProjectSource&) const { return std::nullopt; }
    /// Takes the file apart; what is wrong is reported.
    virtual void load(ProjectSource&, const SectionFile&) const {}
    /// Whether two of its files mean the same.
    virtual bool same(const std::string& one, const std::string& other) const { return one == other; }
    /// Appends the section to its file of the sources. What only a person can have written adds nothing.
    virtual void emit(const ProjectSource&, FileMap&) const {}

  private:
    const char* name_;
    const char* file_;
    ProjectFile kind_;
};

/// All rows, in the order in which they are read.
const std::vector<std::unique_ptr<Section>>& Sections();

/// Adds a row for a section that an application holds.
/// @param make  a new object that holds the section of one project
void AddSection(const char* name, const char* file, ProjectFile kind, std::unique_ptr<OwnSection> (*make)());

/// An object of it, outside of any function, adds the row of the section that objects of class Held hold.
template <class Held> class SectionRegistration
{
  public:
    /// @param name  in the sources
    /// @param file  in the project directory
    SectionRegistration(const char* name, const char* file, ProjectFile kind)
    {
        AddSection(name, file, kind,
                   []() -> std::unique_ptr<OwnSection> { return std::make_unique<Held>(); });
    }
};

} // namespace ptn
