// The tick's side of a connection that has a thread of its own: values into cells, changes of cells into
// orders, and what is shown of both.
#pragma once

#include "links/Exchange.h"
#include "links/Link.h"
#include "links/Worker.h"

#include <deque>
#include <memory>
#include <optional>

namespace tessary
{

class Remote : public Link
{
  public:
    using MakeWorker = std::shared_ptr<Worker> (*)(const LinkConnection&, const std::vector<LinkCell>&,
                                                   std::shared_ptr<Exchange>);

    Remote(const LinkConnection& connection, Looks& looks, Looks::Who who, MakeWorker make);
    ~Remote() override;

    void tick(double now) override;
    void stop() override;
    void end(std::chrono::steady_clock::time_point deadline) override;

  private:
    /// What is known of a cell.
    struct Known {
        LinkValue seen;                  ///< what it held when it was looked at last; of cells to write
        std::optional<LinkValue> device; ///< what the plant holds
        std::uint64_t pending = 0;       ///< the newest order, until the plant has answered with its value
        std::optional<LinkValue> answer; ///< that has come since, and does not count yet
        double confirmBy = 0.0; ///< the order was taken, and the value has to follow by then; 0: not yet
    };

    void begin();
    void takeNotes();
    void takeOutcomes(double now);
    void takeReading(std::size_t index, const Reading& reading, double now);
    bool isFinal(std::size_t index, const LinkValue& value) const;
    void confirm(std::size_t index, const LinkValue& value);
    void findChanges();
    void changed(std::size_t index, const LinkValue& before);
    void order(std::size_t index, const LinkValue& value);
    void sendOrders();
    void endWaits(double now, bool lost);

    void put(std::size_t index, const LinkValue& value);
    void notWritten(std::size_t index, Cause cause, const LinkValue& value);
    /// Whether the plant tells what it holds.
    bool isRead(std::size_t index) const;
    Cause problemOf(std::size_t index, const LinkValue& value) const;

    std::shared_ptr<Exchange> exchange_;
    std::shared_ptr<Worker> worker_;
    std::vector<Known> known_;          ///< by index in cells()
    std::vector<std::size_t> writable_; ///< indexes
    std::deque<Order> outgoing_;        ///< that the ring had no place for
    std::size_t underway_ = 0;          ///< orders without an outcome
    std::size_t waits_ = 0;             ///< cells with a time to be confirmed by
    std::uint64_t orders_ = 0;
    bool begun_ = false;
};

} // namespace tessary
