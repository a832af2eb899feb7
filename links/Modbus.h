// The thread of a Modbus connection.
#pragma once

#include "links/ModbusPlan.h"
#include "links/Worker.h"

#include <functional>
#include <memory>
#include <optional>
#include <queue>

struct _modbus;

namespace tessary
{

class Modbus : public Worker
{
  public:
    Modbus(const LinkConnection& connection, const std::vector<LinkCell>& cells,
           std::shared_ptr<Exchange> exchange);

  protected:
    Failure run() override;
    void interrupt() override;

  private:
    /// A request, by the time when it is to be sent.
    using Due = std::pair<Clock::time_point, std::size_t>;
    /// How a request has ended.
    enum class Answer { Good, Refused, Busy, None };

    std::optional<Failure> open();
    void close();
    void plan();
    std::optional<Failure> serve();
    std::optional<Failure> idle(Clock::time_point until);
    std::optional<Failure> poll(std::size_t index);
    std::optional<Failure> carryOut(const Order& order);

    Answer ask(const std::function<int()>& request);
    Answer read(const ModbusRequest& request);
    Answer write(const Order& order);
    void split(std::size_t index, Clock::time_point due);
    void take(const PlannedCell& cell, int first);
    void setProblem(std::size_t cell, Cause cause);
    Failure failure() const;
    const LinkPoint& pointOf(std::size_t cell) const;

    std::vector<LinkCell> cells_;
    std::vector<PlannedCell> planned_; ///< by cell
    std::vector<ModbusRequest> requests_;
    std::priority_queue<Due, std::vector<Due>, std::greater<>> due_;
    std::vector<std::optional<LinkValue>> last_; ///< by cell: told to the tick
    std::vector<Cause> problems_;                ///< by cell
    std::vector<int> refused_;                   ///< by point: how many of its cells have a problem
    std::uint64_t done_ = 0;                     ///< number of the last order
    std::vector<std::uint16_t> registers_;       ///< of the last answer
    std::vector<std::uint8_t> bits_;

    std::unique_ptr<_modbus, void (*)(_modbus*)> context_;
    int error_ = 0;     ///< of the last request
    std::mutex socket_; ///< held while the descriptor comes or goes
    int descriptor_ = -1;
};

} // namespace tessary
