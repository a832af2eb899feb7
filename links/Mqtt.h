// The thread of a connection to an MQTT broker.
#pragma once

#include "links/Link.h"
#include "links/Worker.h"

#include <map>
#include <memory>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

struct mosquitto;
struct mosquitto_message;

namespace tessary
{

class Mqtt : public Worker
{
  public:
    Mqtt(const LinkConnection& connection, const std::vector<LinkCell>& cells,
         std::shared_ptr<Exchange> exchange);

  protected:
    Failure run() override;

  private:
    /// A point that a topic has the values of.
    struct Reader {
        std::size_t point;
        std::size_t first; ///< index of its first cell
        std::size_t count; ///< of its cells
    };

    std::optional<Failure> open();
    std::optional<Failure> secure();
    std::optional<Failure> serve();
    std::optional<Failure> failureOf(int code) const;
    void sayOffline();

    void subscribe();
    void publishOrders();
    void finishAll(Cause cause);

    void onConnect(int code);
    void onMessage(const mosquitto_message& message);
    void onPublish(int number);
    void onSubscribe(int number, const int* granted, int count);
    void setProblem(std::size_t point, Cause cause);

    std::vector<LinkCell> cells_;
    std::unordered_map<std::string, std::vector<Reader>> readers_; ///< by topic
    std::vector<Cause> problems_;                                  ///< by point
    std::unique_ptr<mosquitto, void (*)(mosquitto*)> client_;
    std::optional<int> answer_;                           ///< of the broker to the connection
    std::map<int, std::vector<std::string>> subscribing_; ///< topics by number of the request
    std::map<int, Order> underway_;                       ///< by number of the message
    std::set<int> early_;                                 ///< confirmed while they were being sent
    std::uint64_t sent_ = 0;                              ///< number of the last order
    Clock::time_point connectBy_;
};

} // namespace tessary
