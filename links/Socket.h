// The tick's side of a socket for other processes.
#pragma once

#include "links/Link.h"
#include "links/SocketServer.h"

#include <map>
#include <memory>

namespace tessary
{

class Socket : public Link
{
  public:
    Socket(const LinkConnection& connection, Looks& looks, Looks::Who who);
    ~Socket() override;

    void tick(double now) override;
    void stop() override;
    void end(std::chrono::steady_clock::time_point deadline) override;

  private:
    /// A cell that clients watch, as they know it.
    struct Watched {
        std::string name;
        double number = 0.0;
        std::string text;
        std::vector<std::uint64_t> clients;
    };

    void handle(const ClientRequest& request);
    void watch(std::uint64_t client, const SocketRequest& request);
    void forget(std::uint64_t client);
    void tellChanges();
    void answer(std::uint64_t client, const std::string& line);
    void answerCell(std::uint64_t client, int cell, const std::string& name);
    void push(ClientAnswer& answer);

    std::shared_ptr<SocketServer> server_;
    std::map<int, Watched> watched_; ///< by data number
    std::size_t watches_ = 0;
    std::deque<ClientAnswer> answers_; ///< that the ring had no place for
    std::string problem_;
    bool begun_ = false;
    bool told_ = false; ///< something in this tick
};

} // namespace tessary
