// A connection as the tick sees it. Everything here is called on the tick's thread.
#pragma once

#include "links/Cause.h"
#include "links/Looks.h"
#include "links/Model.h"
#include "tessary_plant.h"

#include <chrono>
#include <string>
#include <vector>

namespace tessary
{

/// One cell of a point.
struct LinkCell {
    std::size_t point; ///< its index in the connection
    int element;       ///< 0, or which one of several
    int cell;          ///< data number
};

class Link
{
  public:
    /// @param who  two numbers that are this connection's among all, for `looks`: this one and the next
    Link(const LinkConnection& connection, Looks& looks, Looks::Who who);
    virtual ~Link() = default;
    Link(const Link&) = delete;
    Link& operator=(const Link&) = delete;

    /// @param now  seconds on a clock that only goes forward
    virtual void tick(double now) = 0;
    /// Asks it to end; it may go on for a while.
    virtual void stop() {}
    /// Waits for its end until that time.
    virtual void end(std::chrono::steady_clock::time_point) {}
    LinkStatus status() const;

  protected:
    const LinkConnection& connection() const { return connection_; }
    const std::vector<LinkCell>& cells() const { return cells_; }
    const LinkPoint& pointOf(const LinkCell& cell) const { return connection_.points[cell.point]; }
    Looks& looks() { return looks_; }

    /// Where a point stands in the sources.
    std::string placeOf(const LinkPoint& point) const;

    /// Changes state, status cell, log and looks.
    /// @param detail  for the log
    void setState(LinkState state, Cause cause, const std::string& detail);
    LinkState state() const { return state_; }
    /// The same for one point, which is told once.
    void setRefused(std::size_t point, bool refused, Cause cause);

    LinkStatus counts_; ///< the numbers alone

  private:
    void showStatus();
    void look(const LinkCell& cell, bool lost, Looks::Who who);

    LinkConnection connection_;
    Looks& looks_;
    Looks::Who who_;
    std::vector<LinkCell> cells_;
    std::vector<bool> refused_; ///< by point
    int statusCell_;
    LinkState state_ = LinkState::Connecting;
    std::string problem_;
};

} // namespace tessary
