// The sources that all screens share.
#pragma once

#include "tools/ptn/CodeTable.h"
#include "tools/ptn/Profile.h"
#include "tools/ptn/Resources.h"
#include "tools/ptn/Styles.h"

#include <filesystem>
#include <map>
#include <string>

struct ProjectSource {
    std::string program = "panel"; ///< the profile is called after it
    CodeTable codes;
    Resources resources;
    Styles styles;
    ProfileSource profile;
    std::map<std::string, std::string> bitmaps; ///< bytes by EUC-JP name
};

/// Reads the folder: its *.yaml files, whose sections may be spread over the files as one likes, and the
/// files in "bitmaps".
ProjectSource ReadProject(const std::filesystem::path& folder, Diagnostics& diagnostics);

/// The *.yaml files of a folder in the order of their names; none when there is no such folder.
std::vector<std::string> YamlFiles(const std::filesystem::path& folder);
