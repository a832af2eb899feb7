// The thread of a socket for other processes: takes their lines apart, and sends them answers. Cells are
// touched on the tick alone.
#pragma once

#include "links/Background.h"
#include "links/Exchange.h"
#include "links/SocketLine.h"

#include <chrono>
#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <string>

namespace tessary
{

/// From a client to the tick.
struct ClientRequest {
    std::uint64_t client = 0;
    bool gone = false; ///< the client; there is no request
    SocketRequest request;
};

/// From the tick to a client.
struct ClientAnswer {
    enum class Kind { Line, Cell, List };
    std::uint64_t client = 0;
    Kind kind = Kind::Line;
    std::string text; ///< the line; of a cell: its name
    double number = 0.0;
    std::string cellText; ///< EUC-JP
};

class SocketServer : public std::enable_shared_from_this<SocketServer>
{
  public:
    static constexpr std::size_t CLIENTS_MAX = 16;
    static constexpr std::size_t LINE_MAX_BYTES = 4096;
    static constexpr std::size_t OUTPUT_MAX = 256U << 10U; ///< a client that lets more lie is dropped

    SocketServer(std::string path, CellCodes codes);
    ~SocketServer();
    SocketServer(const SocketServer&) = delete;
    SocketServer& operator=(const SocketServer&) = delete;

    /// Makes the socket, which only its owner can use.
    /// @return what is wrong; empty when it listens
    std::string open();
    void wake() { thread_.wake(); }
    void stop() { thread_.stop(); }
    /// Throws what the thread has ended by, if it was an exception.
    void rethrow() { thread_.rethrow(); }
    void end(std::chrono::steady_clock::time_point deadline) { thread_.end(deadline); }

    Ring<ClientRequest> requests{1024};
    Ring<ClientAnswer> answers{4096};

  private:
    struct Client {
        int descriptor = -1;
        std::string input;
        std::string output;
        std::deque<SocketRequest> waiting; ///< that the ring had no place for
        bool drop = false;
    };

    void loop();
    void waitForSomething();
    void accept();
    void takeAnswers();
    void receive(Client& client);
    void takeLines(Client& client);
    void handOver(std::uint64_t number, Client& client);
    void send(Client& client);
    void dropClients();
    std::string listing() const;

    std::string path_;
    CellCodes codes_;
    int listening_ = -1;
    std::map<std::uint64_t, Client> clients_;
    std::deque<std::uint64_t> gone_; ///< that the tick has not been told yet
    std::uint64_t last_ = 0;         ///< number of the newest client
    Background thread_;
};

} // namespace tessary
