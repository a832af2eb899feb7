#include "shell/Instance.h"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <filesystem>
#include <glib.h>
#include <memory>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>

namespace tessary
{

namespace
{

int held = -1; ///< socket whose name stands for the profile

/// The name of a socket that lies in no folder, so that nothing is left behind and no folder has to be
/// writable. The profile itself can not carry a lock: it is replaced whenever it is written.
std::string NameOf(const char* profile)
{
    std::error_code missing;
    const std::string path = std::filesystem::weakly_canonical(profile, missing).string();
    const std::unique_ptr<char, decltype(&g_free)> sum(
        g_compute_checksum_for_string(G_CHECKSUM_SHA256, path.c_str(), -1), g_free);
    return "tessary-" + std::to_string(getuid()) + "-" + sum.get();
}

} // namespace

bool BeOnlyInstance(const char* profile)
{
    EndInstance();
    const int own = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (own < 0)
        return true; // nothing can be told
    const std::string name = NameOf(profile);
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path + 1, name.data(), std::min(name.size(), sizeof address.sun_path - 1));
    const auto size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    if (bind(own, reinterpret_cast<const sockaddr*>(&address), size) != 0 && errno == EADDRINUSE) {
        close(own);
        return false;
    }
    held = own;
    return true;
}

void EndInstance()
{
    if (held >= 0)
        close(std::exchange(held, -1));
}

} // namespace tessary
