#include "links/SocketServer.h"

#include "links/Address.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>
#include <vector>

namespace tessary
{

namespace
{

constexpr std::size_t WAITING_MAX = 4096; ///< requests of one client

bool AddressOf(const std::string& path, sockaddr_un& address)
{
    if (path.empty() || path.size() > SOCKET_PATH_MAX)
        return false;
    address = {};
    address.sun_family = AF_UNIX;
    std::memcpy(address.sun_path, path.data(), path.size());
    return true;
}

const sockaddr* Plain(const sockaddr_un& address)
{
    return reinterpret_cast<const sockaddr*>(&address);
}

/// Removes a socket that a program has left which was killed. @return what is in the way otherwise
std::string RemoveOld(const std::string& path, const sockaddr_un& address)
{
    struct stat status {
    };
    if (lstat(path.c_str(), &status) != 0)
        return "";
    if (!S_ISSOCK(status.st_mode))
        return "a file of that name is there";
    const int probe = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const bool used = connect(probe, Plain(address), sizeof address) == 0 || errno == EAGAIN;
    close(probe);
    if (used)
        return "another program has it";
    unlink(path.c_str());
    return "";
}

/// Whether the other side is the same user, or the administrator.
bool IsOwn(int descriptor)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(descriptor, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           (peer.uid == geteuid() || peer.uid == 0);
}

} // namespace

SocketServer::SocketServer(std::string path, CellCodes codes)
    : path_(std::move(path)), codes_(std::move(codes))
{
}

SocketServer::~SocketServer()
{
    for (const auto& [number, client] : clients_)
        close(client.descriptor);
    if (listening_ >= 0) {
        close(listening_);
        unlink(path_.c_str());
    }
}

std::string SocketServer::open()
{
    sockaddr_un address{};
    if (!AddressOf(path_, address))
        return "its path is too long";
    if (std::string problem = RemoveOld(path_, address); !problem.empty())
        return problem;
    const int descriptor = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
    const mode_t before = umask(0177); // nobody else may come in between
    const bool bound = bind(descriptor, Plain(address), sizeof address) == 0;
    const int error = errno;
    umask(before);
    if (!bound || listen(descriptor, CLIENTS_MAX) != 0) {
        close(descriptor);
        return std::strerror(error);
    }
    listening_ = descriptor;
    thread_.start([self = shared_from_this()] { self->loop(); });
    return "";
}

void SocketServer::loop()
{
    while (!thread_.stopping()) {
        waitForSomething();
        takeAnswers();
        for (auto& [number, client] : clients_) {
            handOver(number, client);
            send(client);
        }
        dropClients();
    }
}

void SocketServer::waitForSomething()
{
    std::vector<pollfd> polled = {{thread_.wakeUp(), POLLIN, 0}, {listening_, POLLIN, 0}};
    bool held = !gone_.empty();
    for (const auto& [number, client] : clients_) {
        // Nothing more is read of a client whose requests wait.
        const bool reads = client.waiting.empty();
        held = held || !reads;
        polled.push_back({client.descriptor,
                          static_cast<short>((reads ? POLLIN : 0) | (client.output.empty() ? 0 : POLLOUT)),
                          0});
    }
    poll(polled.data(), polled.size(), held ? 50 : 60000);
    if (polled[0].revents)
        thread_.takeWake();
    std::size_t at = 2;
    for (auto& [number, client] : clients_) {
        const short events = polled[at++].revents;
        if (events & (POLLIN | POLLHUP | POLLERR))
            receive(client);
    }
    if (polled[1].revents)
        accept();
}

void SocketServer::accept()
{
    const int descriptor = accept4(listening_, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
    if (descriptor < 0)
        return;
    if (clients_.size() >= CLIENTS_MAX || !IsOwn(descriptor)) {
        close(descriptor);
        return;
    }
    clients_[++last_].descriptor = descriptor;
}

void SocketServer::receive(Client& client)
{
    char buffer[LINE_MAX_BYTES];
    const ssize_t size = recv(client.descriptor, buffer, sizeof buffer, 0);
    if (size > 0)
        client.input.append(buffer, static_cast<std::size_t>(size));
    else if (size == 0 || (errno != EAGAIN && errno != EINTR))
        client.drop = true;
    takeLines(client);
}

void SocketServer::takeLines(Client& client)
{
    std::size_t begin = 0;
    for (std::size_t end; (end = client.input.find('\n', begin)) != std::string::npos; begin = end + 1)
        for (SocketRequest& request : ParseSocketLine(client.input.substr(begin, end - begin), codes_))
            client.waiting.push_back(std::move(request));
    client.input.erase(0, begin);
    if (client.input.size() > LINE_MAX_BYTES || client.waiting.size() > WAITING_MAX)
        client.drop = true;
}

void SocketServer::handOver(std::uint64_t number, Client& client)
{
    while (!client.waiting.empty()) {
        ClientRequest request{number, false, client.waiting.front()};
        if (!requests.push(request))
            return;
        client.waiting.pop_front();
    }
}

void SocketServer::takeAnswers()
{
    for (ClientAnswer answer; answers.pop(answer);) {
        const auto found = clients_.find(answer.client);
        if (found == clients_.end())
            continue;
        std::string& output = found->second.output;
        switch (answer.kind) {
        case ClientAnswer::Kind::Line:
            output += answer.text + "\n";
            break;
        case ClientAnswer::Kind::Cell:
            output += CellLine(answer.text, answer.number, answer.cellText) + "\n";
            break;
        case ClientAnswer::Kind::List:
            output += listing();
            break;
        }
        if (output.size() > OUTPUT_MAX)
            found->second.drop = true;
    }
}

std::string SocketServer::listing() const
{
    std::string lines;
    for (const auto& [code, cells] : codes_)
        lines += code + " " + std::to_string(cells.second) + "\n";
    return lines + "end\n";
}

void SocketServer::send(Client& client)
{
    while (!client.output.empty() && !client.drop) {
        const ssize_t size = ::send(client.descriptor, client.output.data(), client.output.size(),
                                    MSG_NOSIGNAL | MSG_DONTWAIT);
        if (size <= 0) {
            client.drop = errno != EAGAIN && errno != EINTR;
            return;
        }
        client.output.erase(0, static_cast<std::size_t>(size));
    }
}

void SocketServer::dropClients()
{
    for (auto client = clients_.begin(); client != clients_.end();) {
        if (!client->second.drop) {
            ++client;
            continue;
        }
        close(client->second.descriptor);
        gone_.push_back(client->first);
        client = clients_.erase(client);
    }
    while (!gone_.empty()) {
        ClientRequest request{gone_.front(), true, {}};
        if (!requests.push(request))
            return;
        gone_.pop_front();
    }
}

} // namespace tessary
