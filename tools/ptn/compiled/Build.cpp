#include "tools/ptn/compiled/Build.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/source/ProjectSource.h"
#include "tools/ptn/source/ScreenSource.h"

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

// The whole project directory, in memory.
OutputFiles ProjectFiles(const ProjectSource& project, const std::vector<Pattern>& patterns)
{
    OutputFiles files;
    files["PtrnCode"] = project.codes.bytes();
    files["PtrnColr"] = project.resources.colorBytes();
    files["PtrnMark"] = project.resources.markBytes();
    if (!project.messages.empty())
        files["MesgData.prf"] = project.messages.bytes();
    if (!project.limits.empty())
        files["LimtData.prf"] = project.limits.bytes();
    for (const auto& bitmap : project.bitmaps)
        files["Bitmap/" + bitmap.first] = bitmap.second;
    for (const Pattern& pattern : patterns)
        files[pattern.name + ".ptn"] = PatternBytes(pattern);
    return files;
}

// Files that the program writes itself once it runs.
OutputFiles Seeds(const ProjectSource& project)
{
    OutputFiles seeds;
    if (project.flags.given())
        seeds["PtrnFlag"] = project.flags.bytes(project.codes);
    if (project.wiring.given())
        seeds["Haisenhyo"] = project.wiring.bytes();
    return seeds;
}

// The program does not look for these tables where its profile says that the project is.
void CheckTablePlace(const ProjectSource& project, const fs::path& folder, Diagnostics& diagnostics)
{
    if (folder.filename() != "ProjPath" && (!project.messages.empty() || !project.limits.empty()))
        diagnostics.warning({folder.string(), 0},
                            "the program reads messages and limits from a folder 'ProjPath' beside which it "
                            "is started. Call the output ProjPath.");
}

} // namespace

std::optional<OutputReport> Build(const fs::path& source, const fs::path& output, Diagnostics& diagnostics)
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
    if (diagnostics.failed())
        return std::nullopt;
    try {
        return WriteOutput(folder, ProjectFiles(project, patterns), Seeds(project), profile, profileBytes);
    } catch (const fs::filesystem_error& problem) {
        diagnostics.error({problem.path1().string(), 0},
                          problem.code().message() + ". Check the folder's rights and space.");
        return std::nullopt;
    }
}

} // namespace ptn
