// Files that a build makes once and that the panel goes on writing: log flags, the wiring table. What the
// operator has saved there is worth more than a source.
#pragma once

#include "tools/ptn/common/Files.h"

#include <filesystem>
#include <string>
#include <vector>

namespace ptn
{

/// What happens to files of which both the source and the panel have made something new.
enum class Reseed {
    Never,  ///< the panel's stay
    Always, ///< those of the sources take their places, and copies with the time in their names stay
};

struct SeedPlan {
    FileMap files;                 ///< to be written
    FileMap copies;                ///< of what they take the places of, by new names
    std::string list;              ///< what the next build has to know
    std::vector<std::string> kept; ///< the panel's, though their sources have changed
};

/// Tells which files are to be written: those that are missing, those that the panel has left as they were
/// written, and with Reseed::Always all that differ.
/// @param list  of the build before; may be empty
SeedPlan PlanSeeds(const std::filesystem::path& folder, const FileMap& seeds, const std::string& list,
                   Reseed reseed);

} // namespace ptn
