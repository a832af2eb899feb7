#include "tools/ptn/compiled/Staging.h"

#include "tools/ptn/common/Files.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <set>
#include <sys/file.h>
#include <unistd.h>
#include <utility>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

const char* const PREFIX = ".ptn-";
constexpr std::size_t RANDOM_LETTERS = 6; ///< of a temporary folder's name

[[noreturn]] void Fail(const char* what, const fs::path& path, int reason)
{
    throw fs::filesystem_error(what, path, std::error_code(reason, std::generic_category()));
}

/// Open for this object alone.
class Opened
{
  public:
    Opened(const fs::path& path, int flags) : number(open(path.c_str(), flags | O_CLOEXEC))
    {
        if (number < 0)
            Fail("can not be opened", path, errno);
    }
    ~Opened() { close(number); }
    Opened(const Opened&) = delete;
    Opened& operator=(const Opened&) = delete;

    const int number;
};

void Sync(const fs::path& path, int flags)
{
    const Opened file(path, flags);
    if (fsync(file.number) != 0)
        Fail("can not be brought to the disk", path, errno);
}

void WriteToDisk(const fs::path& file, const std::string& bytes)
{
    WriteBytes(file, bytes);
    Sync(file, O_RDONLY);
}

// Found out before anything is moved.
void RefuseFolder(const fs::path& path)
{
    std::error_code missing;
    if (fs::is_directory(fs::symlink_status(path, missing)))
        Fail("is a folder", path, EISDIR);
}

const fs::path& WithoutOldStaging(const fs::path& folder)
{
    std::vector<fs::path> old;
    for (const auto& entry : fs::directory_iterator(folder)) {
        const std::string name = entry.path().filename().string();
        if (name.compare(0, std::char_traits<char>::length(PREFIX), PREFIX) == 0 &&
            name.size() == std::char_traits<char>::length(PREFIX) + RANDOM_LETTERS &&
            fs::is_directory(entry.symlink_status()))
            old.push_back(entry.path());
    }
    for (const fs::path& path : old)
        fs::remove_all(path);
    return folder;
}

} // namespace

MadeFolder::MadeFolder(const fs::path& path) : path_(path), made_(fs::create_directories(path)) {}

MadeFolder::~MadeFolder()
{
    std::error_code notEmpty;
    if (made_)
        fs::remove(path_, notEmpty);
}

FolderLock::FolderLock(const fs::path& folder) : folder_(open(folder.c_str(), O_DIRECTORY | O_CLOEXEC))
{
    if (folder_ < 0)
        Fail("can not be opened", folder, errno);
    while (flock(folder_, LOCK_EX) != 0)
        if (errno != EINTR)
            break; // a file system without locks
}

FolderLock::~FolderLock()
{
    close(folder_);
}

Staging::Staging(const fs::path& folder) : folder_(folder), temporary_(PREFIX, WithoutOldStaging(folder)) {}

void Staging::add(const std::string& name, const std::string& bytes)
{
    const fs::path target = folder_ / name;
    std::error_code missing;
    const bool isLink = fs::is_symlink(target, missing);
    if (!isLink && ReadBytes(target) == bytes)
        return;
    if (!StaysInside(folder_, name))
        Fail("lies behind a link", target, ELOOP);
    RefuseFolder(target);
    WriteToDisk(temporary_.path() / std::to_string(names_.size()), bytes);
    names_.push_back(name);
}

void Staging::mark(const std::string& name, const std::string& bytes)
{
    WriteToDisk(temporary_.path() / name, bytes);
    fs::rename(temporary_.path() / name, folder_ / name);
    SyncFolder(folder_);
}

void Staging::unmark(const std::string& name) const
{
    if (fs::remove(folder_ / name))
        SyncFolder(folder_);
}

int Staging::moveIn()
{
    std::set<fs::path> folders;
    for (std::size_t i = 0; i < names_.size(); ++i) {
        const fs::path target = folder_ / names_[i];
        if (fs::create_directories(target.parent_path()))
            folders.insert(target.parent_path().parent_path());
        fs::rename(temporary_.path() / std::to_string(i), target);
        folders.insert(target.parent_path());
    }
    for (const fs::path& folder : folders)
        SyncFolder(folder);
    return static_cast<int>(std::exchange(names_, {}).size());
}

LooseStaging::LooseStaging(const fs::path& file, const std::string& bytes)
    : folder_(file.parent_path()), file_(file)
{
    if (ReadBytes(file) == bytes)
        return;
    RefuseFolder(file);
    if (!replacement_.begin(file.string()))
        Fail("can not be replaced", file, errno);
    WriteBytes(replacement_.path(), bytes);
}

bool LooseStaging::moveIn()
{
    if (replacement_.path().empty())
        return false;
    if (!replacement_.commit())
        Fail("can not be replaced", file_, errno);
    return true;
}

void SyncFolder(const fs::path& folder)
{
    Sync(folder, O_RDONLY | O_DIRECTORY);
}

bool StaysInside(const fs::path& folder, const fs::path& name)
{
    if (name.is_absolute() || name.empty() || std::find(name.begin(), name.end(), "..") != name.end())
        return false;
    fs::path path = folder;
    const fs::path parents = name.parent_path();
    return std::none_of(parents.begin(), parents.end(), [&path](const fs::path& part) {
        std::error_code missing;
        return fs::is_symlink(path /= part, missing);
    });
}

} // namespace ptn
