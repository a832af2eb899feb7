// New files of a folder, complete and on the disk before the first of them takes its place.
#pragma once

#include "config/Replacement.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <filesystem>
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

/// Who else builds into the folder is waited for. It ends with the object, or with its process.
class FolderLock
{
  public:
    explicit FolderLock(const std::filesystem::path& folder);
    ~FolderLock();
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;

  private:
    int folder_;
};

/// New files, written into a hidden folder first and moved to their places when everything is complete. What
/// is not moved is removed again.
class Staging
{
  public:
    /// Removes what a build that was killed has left.
    /// @param folder  where the files will go, under a FolderLock
    explicit Staging(const std::filesystem::path& folder);

    /// Writes a file unless the folder has it with the same bytes already. Nothing is written through a link.
    void add(const std::string& name, const std::string& bytes);

    bool empty() const { return names_.empty(); }

    /// Puts a file into the folder that tells of the change in progress, on the disk before anything moves,
    /// and takes it away again.
    void mark(const std::string& name, const std::string& bytes);
    void unmark(const std::string& name) const;

    /// Moves the files in, in the order in which they were added, and brings them to the disk.
    /// @return how many there were
    int moveIn();

  private:
    std::filesystem::path folder_;
    TemporaryFolder temporary_; ///< within the folder; files can only be moved within one file system
    std::vector<std::string> names_;
};

/// A file outside of the folder that goes along with it.
class LooseStaging
{
  public:
    /// Does nothing when the file has these bytes already.
    LooseStaging(const std::filesystem::path& file, const std::string& bytes);

    /// @return whether there was anything to do
    bool moveIn();

  private:
    MadeFolder folder_;
    std::filesystem::path file_;
    tessary::Replacement replacement_;
};

/// Brings the names in a folder to the disk.
void SyncFolder(const std::filesystem::path& folder);

/// Whether a name within a folder leads neither out of it nor through a link.
bool StaysInside(const std::filesystem::path& folder, const std::filesystem::path& name);

} // namespace ptn
