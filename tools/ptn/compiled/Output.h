// Putting the files of a build in place, all or none.
#pragma once

#include "tools/ptn/common/Files.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace ptn
{

/// A folder that goes again when it was not there before and has stayed empty.
class MadeFolder
{
  public:
    explicit MadeFolder(const std::filesystem::path& path);
    ~MadeFolder();
    MadeFolder(const MadeFolder&) = delete;
    MadeFolder& operator=(const MadeFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
    bool made_;
};

/// New files, written into a hidden folder first and moved to their places when everything is complete. What
/// is not moved is removed again, and so is the folder itself when it was made for them.
class Staging
{
  public:
    /// @param folder  where the files will go; made when needed
    explicit Staging(const std::filesystem::path& folder);

    /// Writes a file unless the folder has it with the same bytes already.
    void add(const std::string& name, const std::string& bytes);

    /// Moves the files in. @return how many there were
    int moveIn();

  private:
    MadeFolder folder_;
    TemporaryFolder temporary_; ///< within the folder; files can only be moved within one file system
    std::vector<std::string> names_;
};

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
/// more are removed; everything else there stays.
/// @param files  those that the build alone writes, relative to the project directory
/// @param seeds  files that the program goes on writing: they are written when they are missing or when
///               they have changed since the build that wrote them last; what the program has made of them
///               stays otherwise
/// @param header  the constants for the program, when they are wanted
/// A signal to end that arrives meanwhile has its effect afterwards.
/// Throws std::filesystem::filesystem_error when something can not be written; nothing has been moved then.
OutputReport WriteOutput(const std::filesystem::path& folder, const FileMap& files, const FileMap& seeds,
                         const LooseFile& profile, const std::optional<LooseFile>& header);

} // namespace ptn
