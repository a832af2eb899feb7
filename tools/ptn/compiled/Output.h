// Putting the files of a build in place, all or none.
#pragma once

#include "tools/ptn/common/Files.h"
#include "tools/ptn/compiled/Seeds.h"

#include <filesystem>
#include <optional>
#include <string>

namespace ptn
{

/// A file outside of the project directory.
struct LooseFile {
    std::filesystem::path path;
    std::string bytes;
};

/// What a build has changed of the project directory and the profile.
struct OutputReport {
    int files = 0; ///< that the build consists of
    int written = 0;
    int removed = 0;
    std::filesystem::path profile;
};

/// Brings a project directory and the profile up to date. Files of the build before that are not made any
/// more are removed; everything else there stays. All files are on the disk before the first of them takes
/// its place. While they do, tessary::UNFINISHED_MARK stands in the folder: a build that is killed then
/// leaves it, the panel refuses such a project, and the next build makes it whole. Who else builds into the
/// folder is waited for.
/// @param files  those that the build alone writes, relative to the project directory
/// @param seeds  files that the program goes on writing, see compiled/Seeds.h; a warning tells which of the
///               program's have stayed although their sources have changed
/// @param header  the constants for the program, when they are wanted
/// A signal to end that arrives meanwhile has its effect afterwards.
/// Throws std::filesystem::filesystem_error when something can not be written.
OutputReport WriteOutput(const std::filesystem::path& folder, const FileMap& files, const FileMap& seeds,
                         const LooseFile& profile, const std::optional<LooseFile>& header, Reseed reseed,
                         Diagnostics& diagnostics);

} // namespace ptn
