#include "links/Secret.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessary
{

namespace
{

constexpr std::size_t LONGEST = 1000;

bool IsOurs(const struct stat& status)
{
    return S_ISREG(status.st_mode) && (status.st_mode & 077U) == 0 &&
           (status.st_uid == geteuid() || status.st_uid == 0);
}

} // namespace

bool IsSecret(const std::string& file)
{
    struct stat status {
    };
    return stat(file.c_str(), &status) == 0 && IsOurs(status);
}

bool ReadSecret(const std::string& file, std::string& secret)
{
    const int descriptor = open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0)
        return false;
    struct stat status {
    };
    char bytes[LONGEST + 1];
    const bool ours = fstat(descriptor, &status) == 0 && IsOurs(status);
    const ssize_t size = ours ? read(descriptor, bytes, sizeof bytes) : -1;
    close(descriptor);
    if (size < 0)
        return false;
    secret.assign(bytes, static_cast<std::size_t>(size));
    secret.erase(std::min(secret.find_first_of(std::string("\r\n\0", 3)), secret.size()));
    return secret.size() <= LONGEST;
}

} // namespace tessary
