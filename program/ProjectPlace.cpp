#include "program/ProjectPlace.h"

#include "config/Profile.h"

#include <algorithm>
#include <vector>

namespace fs = std::filesystem;

namespace tessary
{

namespace
{

using Paths = std::vector<fs::path>;

Paths ProfilesIn(const fs::path& folder)
{
    Paths profiles;
    std::error_code unreadable;
    for (const auto& entry : fs::directory_iterator(folder, unreadable))
        if (entry.path().extension() == ".ini" && entry.is_regular_file(unreadable))
            profiles.push_back(entry.path());
    std::sort(profiles.begin(), profiles.end());
    return profiles;
}

/// Whether a profile names the folder as its project. A relative name counts from the profile's folder, where
/// the program works.
bool Names(const fs::path& profile, const fs::path& folder)
{
    std::error_code missing;
    return fs::equivalent(profile.parent_path() / ProfileReadAsc(profile.c_str(), "TESSARY", "PROJECT"),
                          folder, missing);
}

ProjectPlace OnlyOne(const Paths& profiles, const std::string& where)
{
    if (profiles.size() == 1)
        return {profiles[0], ""};
    if (profiles.empty())
        return {"",
                "There is no profile " + where +
                    ". Name a profile (*.ini), the folder that it lies in, or its project directory; \"ptn "
                    "run\" builds a project from its sources and shows it."};
    std::string names;
    for (const fs::path& profile : profiles)
        names += (names.empty() ? "" : ", ") + profile.filename().string();
    return {"", "There is more than one profile " + where + ": " + names + ". Name one of them."};
}

} // namespace

ProjectPlace FindProject(const fs::path& argument)
{
    std::error_code missing;
    const fs::path given = fs::absolute(argument.empty() ? fs::path(".") : argument).lexically_normal();
    const fs::path path = given.has_filename() ? given : given.parent_path();
    if (!fs::exists(path, missing))
        return {"", "'" + argument.string() + "' does not exist. Name a profile or a folder that is there."};
    if (!fs::is_directory(path, missing)) {
        if (path.extension() == ".ini")
            return {path, ""};
        return {"", "'" + argument.string() +
                        "' is no profile, whose name ends with \".ini\". Name one, or the folder of one."};
    }
    const Paths inside = ProfilesIn(path);
    if (!inside.empty())
        return OnlyOne(inside, "in '" + path.string() + "'");
    Paths beside = ProfilesIn(path.parent_path());
    beside.erase(std::remove_if(beside.begin(), beside.end(),
                                [&](const fs::path& profile) { return !Names(profile, path); }),
                 beside.end());
    return OnlyOne(beside, "in '" + path.string() + "', and none beside it that names it");
}

} // namespace tessary
