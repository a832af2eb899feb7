#include "tools/ptn/compiled/Build.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/compiled/CellsHeader.h"
#include "tools/ptn/source/ReadProject.h"
#include "tools/ptn/source/ScreenSource.h"
#include "tools/ptn/source/Sections.h"

#include <algorithm>
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

bool IsWithin(const fs::path& folder, const fs::path& outer)
{
    return std::mismatch(outer.begin(), outer.end(), folder.begin(), folder.end()).first == outer.end();
}

// Whether the output may lie there: it would be taken for sources, or hold them. A folder for builds in that
// of the sources is as good as any other.
bool CheckOutputPlace(const fs::path& source, const fs::path& folder, const std::string& output,
                      Diagnostics& diagnostics)
{
    const Place place{output, 0};
    const fs::path from = FolderPath(fs::weakly_canonical(source));
    const fs::path to = FolderPath(fs::weakly_canonical(folder));
    if (from == to) {
        diagnostics.error(place, "this is the folder of the sources. Name another for the output.");
        return false;
    }
    if (IsWithin(from, to)) {
        diagnostics.error(place, "the sources lie in this folder. Name another for the output.");
        return false;
    }
    for (const char* part : {"screens", "bitmaps"})
        if (IsWithin(to, from / part)) {
            diagnostics.error(place,
                              fmt::format("lies in '{}' of the sources, which the next build reads. Name "
                                          "another folder, such as build/ProjPath.",
                                          part));
            return false;
        }
    if (to.parent_path() == from)
        diagnostics.warning(place,
                            "the profile, which goes beside the output, is written among the sources. Name a "
                            "folder such as build/ProjPath.");
    return true;
}

} // namespace

fs::path DefaultHeader(const fs::path& output)
{
    return FolderPath(output).parent_path() / "cells.h";
}

std::optional<OutputReport> Build(const fs::path& source, const fs::path& output, const fs::path& header,
                                  Diagnostics& diagnostics, Reseed reseed)
{
    const fs::path folder = FolderPath(output);
    if (!CheckOutputPlace(source, folder, output.string(), diagnostics))
        return std::nullopt;

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
                       {profile, profileBytes}, constants, reseed, diagnostics);
}

} // namespace ptn
