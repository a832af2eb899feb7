#include "config/Replacement.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <sys/file.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace tessary
{

namespace
{

/// An open file, closed at the end.
class Descriptor
{
  public:
    explicit Descriptor(int number) : number_(number) {}
    ~Descriptor()
    {
        const int reason = errno;
        if (number_ >= 0)
            close(number_);
        errno = reason;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    int number() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    int release() { return std::exchange(number_, -1); }

  private:
    int number_;
};

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    return slash == std::string::npos ? "." : path.substr(0, slash + 1);
}

/// What a path stands for in the end, also when that does not exist.
std::string FollowLinks(std::string path)
{
    constexpr int MOST = 40; // as many as the system follows
    std::error_code none;
    for (int i = 0; i < MOST && std::filesystem::is_symlink(path, none); i++) {
        const std::filesystem::path target = std::filesystem::read_symlink(path, none);
        path = target.is_absolute() ? target.string() : (FolderOf(path) + "/" + target.string());
    }
    return path;
}

bool CopyAll(int from, int to)
{
    for (;;) {
        constexpr std::size_t PIECE = 1U << 20U;
        const ssize_t copied = sendfile(to, from, nullptr, PIECE);
        if (copied < 0 && errno == EINTR)
            continue;
        if (copied <= 0)
            return copied == 0;
    }
}

/// Another owner is taken over where the system lets us, the group at least; either may be refused.
void KeepOwner(int file, const struct stat& old)
{
    if (fchown(file, old.st_uid, old.st_gid) != 0 && fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0)
        errno = 0;
}

/// Mode of a file that is new: what the process allows.
mode_t NewMode()
{
    const mode_t mask = umask(0);
    umask(mask);
    return static_cast<mode_t>(0666 & ~mask);
}

} // namespace

Replacement::~Replacement()
{
    if (!temporary_.empty())
        unlink(temporary_.c_str());
    if (lock_ >= 0)
        close(lock_);
}

bool Replacement::begin(const std::string& path)
{
    target_ = FollowLinks(path);
    const Descriptor old(open(target_.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat status = {};
    if (old.isOpen() ? fstat(old.number(), &status) != 0 : errno != ENOENT)
        return false;
    if (old.isOpen() && !S_ISREG(status.st_mode)) {
        errno = EINVAL;
        return false;
    }

    if (!make(target_ + ".new"))
        return false;
    if (!old.isOpen())
        return fchmod(lock_, NewMode()) == 0;
    KeepOwner(lock_, status);
    return CopyAll(old.number(), lock_) && fchmod(lock_, status.st_mode & 07777U) == 0;
}

/// One name, so that nothing is left for ever when the machine stops meanwhile. Who else is writing the same
/// file is waited for, by a lock that ends with its process.
bool Replacement::make(const std::string& path)
{
    for (;;) {
        Descriptor made(open(path.c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC, 0600));
        if (!made.isOpen() || flock(made.number(), LOCK_EX) != 0)
            return false;
        struct stat locked = {};
        struct stat named = {};
        const bool own = fstat(made.number(), &locked) == 0 && stat(path.c_str(), &named) == 0 &&
                         locked.st_ino == named.st_ino && locked.st_dev == named.st_dev;
        if (!own)
            continue; // the other one has put it in its place
        temporary_ = path;
        lock_ = made.release();
        return ftruncate(lock_, 0) == 0;
    }
}

bool Replacement::commit()
{
    if (fsync(lock_) != 0 || rename(temporary_.c_str(), target_.c_str()) != 0)
        return false;
    temporary_.clear();
    // From here on the new file is there; whether its name has reached the disk the folder tells.
    const Descriptor folder(open(FolderOf(target_).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.isOpen() && fsync(folder.number()) == 0;
}

} // namespace tessary
