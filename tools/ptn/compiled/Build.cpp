#include "tools/ptn/compiled/Build.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/compiled/CellsHeader.h"
#include "tools/ptn/source/ReadProject.h"
#include "tools/ptn/source/ScreenSource.h"
#include "tools/ptn/source/Sections.h"

#include <cstring>
#include <vector>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

// A folder as it stands in the profile: absolute, without a slash at its end.
fs::path FolderPath(const fs::path& folder)
{
    const fs::path path = fs::absolute(folder).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

// The files of the sections that are written so.
FileMap SectionFiles(const ProjectSource& project, ProjectFile kind)
{
    FileMap files;
    for (const auto& section : Sections())
        if (section->kind() == kind)
            if (auto bytes = section->bytes(project))
                files[section->file()] = std::move(*bytes);
    return files;
}

// What of the project directory is the build's alone, in memory.
FileMap MadeFiles(const ProjectSource& project, const std::vector<Pattern>& patterns)
{
    FileMap files = SectionFiles(project, ProjectFile::Made);
    for (const auto& bitmap : project.bitmaps)
        files["Bitmap/" + bitmap.first] = bitmap.second;
    for (const Pattern& pattern : patterns)
        files[pattern.name + ".ptn"] = PatternBytes(pattern);
    return files;
}

// The program does not look for these tables where its profile says that the project is.
void CheckTablePlace(const ProjectSource& project, const fs::path& folder, Diagnostics& diagnostics)
{
    if (folder.filename() != "ProjPath" && (!project.messages.empty() || !project.limits.empty()))
        diagnostics.warning({folder.string(), 0},
                            "the program reads messages and limits from a folder 'ProjPath' beside which it "
                            "is started. Call the output ProjPath.");
}

// Somebody's own file may have the same name.
void CheckHeaderPlace(const fs::path& header, Diagnostics& diagnostics)
{
    const std::string before = ReadBytes(header).value_or("");
    if (before.compare(0, std::strlen(CELLS_HEADER_MARK), CELLS_HEADER_MARK) != 0 && !before.empty())
        diagnostics.error(
            {header.string(), 0},
            "this file was not made by 'ptn build'. Move it away, or name another place for the "
            "constants with --header.");
}

} // namespace

fs::path DefaultHeader(const fs::path& output)
{
    return FolderPath(output).parent_path() / "cells.h";
}

std::optional<OutputReport> Build(const fs::path& source, const fs::path& output, const fs::path& header,
                                  Diagnostics& diagnostics)
{
    const fs::path folder = FolderPath(output);
    std::error_code missing;
    if (fs::equivalent(source, folder, missing)) {
        diagnostics.error({output.string(), 0},
                          "this is the folder of the sources. Name another for the output.");
        return std::nullopt;
    }

    const ProjectSource project = ReadProject(source, diagnostics);
    const std::vector<Pattern> patterns = ReadScreens(source, project, diagnostics).patterns;
    const fs::path profile = folder.parent_path() / (project.program + ".ini");
    const std::string profileBytes =
        project.profile.bytes(folder.parent_path().string(), folder.filename().string(), project.resources,
                              ReadBytes(profile).value_or(""), diagnostics);
    CheckTablePlace(project, folder, diagnostics);
    CheckHeaderPlace(header, diagnostics);
    if (diagnostics.failed())
        return std::nullopt;
    std::optional<LooseFile> constants;
    if (!header.empty())
        constants = {fs::absolute(header), CellsHeader(project, patterns)};
    return WriteOutput(folder, MadeFiles(project, patterns), SectionFiles(project, ProjectFile::Seed),
                       {profile, profileBytes}, constants);
}

} // namespace ptn
