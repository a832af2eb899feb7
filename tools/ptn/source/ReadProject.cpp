#include "tools/ptn/source/ReadProject.h"

#include "base/Constants.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/source/Sections.h"

#include <algorithm>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

std::vector<std::string> SectionNames()
{
    std::vector<std::string> names;
    for (const auto& section : Sections())
        names.push_back(section->name());
    return names;
}

// Every section of the project's files, wherever it stands.
std::map<std::string, Entry> ReadSections(const fs::path& folder, Diagnostics& diagnostics)
{
    const std::vector<std::string> sectionNames = SectionNames();
    std::map<std::string, Entry> sections;
    const std::vector<std::string> files = YamlFiles(folder);
    if (files.empty())
        diagnostics.error({folder.string(), 0},
                          "this folder has no *.yaml file. Name the folder of the sources.");
    CheckYamlNames(folder, diagnostics);
    for (const std::string& file : files) {
        const std::optional<Source> source = ReadYaml(file, diagnostics);
        if (!source)
            continue;
        for (const Entry& entry : Entries(*source, "the file", diagnostics)) {
            if (std::find(sectionNames.begin(), sectionNames.end(), entry.name) == sectionNames.end()) {
                ReportUnknown(entry, "unknown section", sectionNames, "Screens go into the folder 'screens'.",
                              diagnostics);
                continue;
            }
            const auto added = sections.emplace(entry.name, entry);
            if (!added.second) {
                const Place& first = added.first->second.place;
                diagnostics.error(entry.place, fmt::format("section '{}' is already in {}:{}. Join the two.",
                                                           entry.name, first.file, first.line));
            }
        }
    }
    return sections;
}

FileMap Bitmaps(const fs::path& folder, Diagnostics& diagnostics)
{
    FileMap bitmaps;
    CheckReadable(folder, diagnostics);
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing)) {
        const std::string name = entry.path().filename().string();
        if (name[0] == '.')
            continue;
        const Place place{entry.path().string(), 0};
        const std::optional<std::string> bytes = ReadBytes(entry.path());
        if (!bytes)
            diagnostics.error(place, fs::is_regular_file(entry.path(), missing)
                                         ? WhyUnread(entry.path())
                                         : "not a file that can be read. Move it out of the folder.");
        else if (const auto euc = ToEucFileName(name, SIZE_PTRNTEXT, "the file's name", place, diagnostics))
            bitmaps.emplace(*euc, *bytes);
    }
    return bitmaps;
}

} // namespace

ProjectSource ReadProject(const fs::path& folder, Diagnostics& diagnostics)
{
    ProjectSource project;
    const std::map<std::string, Entry> entries = ReadSections(folder, diagnostics);
    for (const auto& section : Sections())
        if (const auto entry = entries.find(section->name()); entry != entries.end())
            section->read(project, {entry->second, folder, diagnostics});
    project.bitmaps = Bitmaps(folder / "bitmaps", diagnostics);
    return project;
}

} // namespace ptn
