#include "tests/support/SlowDisplay.h"

#include <cstddef>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace
{

/// The socket of a display as libX11 looks for it first.
std::pair<sockaddr_un, socklen_t> address(const std::string& display)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    const std::string path = "/tmp/.X11-unix/X" + display.substr(1);
    std::memcpy(&address.sun_path[1], path.data(), path.size()); // behind a zero: a name without a file
    return {address, static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1 + path.size())};
}

struct Pair {
    int from;
    int to;
};

/// @return false when the sender has gone
bool pass(const Pair& ends, std::size_t most)
{
    std::vector<char> block(most);
    const ssize_t length = read(ends.from, block.data(), block.size());
    for (ssize_t sent = 0; sent < length;) {
        const ssize_t written =
            send(ends.to, block.data() + sent, static_cast<std::size_t>(length - sent), MSG_NOSIGNAL);
        if (written <= 0)
            return false;
        sent += written;
    }
    return length > 0;
}

} // namespace

SlowDisplay::SlowDisplay(const std::string& server, std::chrono::milliseconds late, std::size_t block)
    : server_(server), late_(late), block_(block)
{
    listener_ = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    for (int number = 200; number < 300 && name_.empty(); ++number) {
        const auto [place, length] = address(":" + std::to_string(number));
        if (bind(listener_, reinterpret_cast<const sockaddr*>(&place), length) == 0)
            name_ = ":" + std::to_string(number);
    }
    listen(listener_, 5);
    thread_ = std::thread([this] { serve(); });
}

SlowDisplay::~SlowDisplay()
{
    ended_ = true;
    thread_.join();
    close(listener_);
}

void SlowDisplay::serve()
{
    std::vector<Pair> pairs;
    while (!ended_) {
        std::vector<pollfd> polled = {{listener_, POLLIN, 0}};
        for (const Pair& ends : pairs)
            polled.push_back({ends.from, POLLIN, 0});
        if (poll(polled.data(), polled.size(), 20) <= 0)
            continue;
        std::this_thread::sleep_for(late_);
        for (std::size_t i = pairs.size(); i-- > 0;) {
            if (!polled[i + 1].revents || pass(pairs[i], block_))
                continue;
            // The two directions of a connection are neighbours.
            const std::size_t first = i / 2 * 2;
            close(pairs[first].from);
            close(pairs[first].to);
            pairs.erase(pairs.begin() + static_cast<std::ptrdiff_t>(first),
                        pairs.begin() + static_cast<std::ptrdiff_t>(first) + 2);
            i = first;
        }
        if (polled[0].revents) {
            const int client = accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
            const int server = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
            const auto [place, length] = address(server_);
            if (connect(server, reinterpret_cast<const sockaddr*>(&place), length) == 0) {
                pairs.push_back({client, server});
                pairs.push_back({server, client});
            } else {
                close(client);
                close(server);
            }
        }
    }
    for (std::size_t i = 0; i < pairs.size(); i += 2) {
        close(pairs[i].from);
        close(pairs[i].to);
    }
}
