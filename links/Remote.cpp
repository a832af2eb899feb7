#include "links/Remote.h"

#include "base/EucText.h"
#include "comndata/MesgData.h"
#include "config/Settings.h"
#include "links/CellPart.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>

namespace tessary
{

namespace
{

/// How long the value may take that the plant holds after an order that it has taken.
constexpr double CONFIRM_MODBUS = 10.0;
/// Of a broker, a value from before the order may still be on its way: another one than that of the order
/// only counts when none has followed it for so long.
constexpr double SETTLE_MQTT = 1.0;

const char* FailedText(const LinkConnection& connection, std::string& buffer)
{
    if (connection.failed.empty())
        return NotWrittenText(Language);
    const auto last = connection.failed.size() - 1;
    const auto language = static_cast<std::size_t>(std::clamp(Language, 0, 2));
    buffer = Utf8ToEuc(connection.failed[std::min(language, last)]);
    return buffer.c_str();
}

} // namespace

Remote::Remote(const LinkConnection& connection, Looks& looks, Looks::Who who, MakeWorker make)
    : Link(connection, looks, who), exchange_(std::make_shared<Exchange>(cells().size())),
      worker_(make(connection, cells(), exchange_)), known_(cells().size())
{
    for (std::size_t i = 0; i < cells().size(); ++i)
        if (pointOf(cells()[i]).write)
            writable_.push_back(i);
    worker_->start();
}

Remote::~Remote()
{
    worker_->stop();
    worker_->end(std::chrono::steady_clock::now());
}

void Remote::stop()
{
    worker_->stop();
}

void Remote::end(std::chrono::steady_clock::time_point deadline)
{
    worker_->end(deadline);
}

void Remote::tick(double now)
{
    worker_->rethrow();
    if (!begun_)
        begin();
    takeNotes();
    takeOutcomes(now);
    findChanges();
    exchange_->readings.take(
        [this, now](std::size_t index, const Reading& reading) { takeReading(index, reading, now); });
    endWaits(now, false);
    sendOrders();
    counts_.updates = exchange_->updates.load(std::memory_order_relaxed);
}

void Remote::begin()
{
    begun_ = true;
    for (const std::size_t index : writable_) {
        Known& known = known_[index];
        known.seen = ReadPart(cells()[index].cell, pointOf(cells()[index]).part);
        if (!isRead(index)) // what the cell returns to
            known.device = known.seen;
    }
}

void Remote::takeNotes()
{
    for (Note note; exchange_->notes.pop(note);) {
        switch (note.kind) {
        case Note::Kind::Connected:
            setState(LinkState::Connected, Cause::None, "");
            break;
        case Note::Kind::Lost:
            setState(LinkState::Lost, note.cause, note.detail);
            endWaits(0.0, true);
            break;
        case Note::Kind::PointRefused:
            setRefused(note.point, true, note.cause);
            break;
        case Note::Kind::PointBack:
            setRefused(note.point, false, Cause::None);
            break;
        }
    }
}

void Remote::takeOutcomes(double now)
{
    for (Outcome outcome; exchange_->outcomes.pop(outcome);) {
        --underway_;
        Known& known = known_[outcome.cell];
        if (outcome.cause != Cause::None) {
            notWritten(outcome.cell, outcome.cause, outcome.value);
            if (known.pending == outcome.number) {
                known.pending = 0;
                if (known.device)
                    put(outcome.cell, *known.device);
            }
            continue;
        }
        ++counts_.written;
        if (known.pending != outcome.number)
            continue;
        if (!isRead(outcome.cell)) {
            known.device = known.seen;
            known.pending = 0;
        } else if (known.answer && isFinal(outcome.cell, *known.answer)) {
            confirm(outcome.cell, LinkValue(*known.answer));
        } else {
            const bool modbus = connection().kind == LINK_MODBUS;
            const double longest = modbus ? CONFIRM_MODBUS : connection().timeout / 1000.0;
            known.confirmBy = now + (known.answer ? SETTLE_MQTT : longest);
            ++waits_;
        }
    }
}

void Remote::takeReading(std::size_t index, const Reading& reading, double now)
{
    Known& known = known_[index];
    known.device = reading.value;
    if (known.pending == 0) {
        put(index, reading.value);
        return;
    }
    if (reading.after < known.pending)
        return;
    if (known.confirmBy > 0.0 && isFinal(index, reading.value)) {
        confirm(index, reading.value);
        return;
    }
    known.answer = reading.value;
    if (known.confirmBy > 0.0)
        known.confirmBy = std::min(known.confirmBy, now + SETTLE_MQTT);
}

bool Remote::isFinal(std::size_t index, const LinkValue& value) const
{
    return connection().kind == LINK_MODBUS || value == known_[index].seen;
}

void Remote::confirm(std::size_t index, const LinkValue& value)
{
    Known& known = known_[index];
    if (known.confirmBy > 0.0)
        --waits_;
    known.confirmBy = 0.0;
    known.pending = 0;
    known.answer.reset();
    put(index, value);
}

void Remote::endWaits(double now, bool lost)
{
    if (waits_ == 0)
        return;
    for (const std::size_t index : writable_) {
        Known& known = known_[index];
        if (known.confirmBy <= 0.0 || (!lost && now < known.confirmBy))
            continue;
        if (known.answer) { // what the plant has made of the order
            confirm(index, LinkValue(*known.answer));
            continue;
        }
        --waits_;
        known.confirmBy = 0.0;
        known.pending = 0;
        if (connection().kind == LINK_MODBUS) // it has taken the value itself
            continue;
        notWritten(index, Cause::NoAnswer, known.seen);
        if (known.device)
            put(index, *known.device);
    }
}

void Remote::findChanges()
{
    for (const std::size_t index : writable_) {
        const LinkCell& cell = cells()[index];
        const int part = pointOf(cell).part;
        if (IsPart(cell.cell, part, known_[index].seen))
            continue;
        const LinkValue before = known_[index].seen;
        known_[index].seen = ReadPart(cell.cell, part);
        changed(index, before);
    }
}

Cause Remote::problemOf(std::size_t index, const LinkValue& value) const
{
    const LinkPoint& point = pointOf(cells()[index]);
    if (state() != LinkState::Connected)
        return Cause::NotConnected;
    if (isRead(index) && !known_[index].device)
        return Cause::NotRead;
    if (point.part != PART_TEXT && !NumberOf(value))
        return Cause::NotANumber;
    if (connection().kind == LINK_MODBUS && !AsHeld(point, value))
        return Cause::TooLarge;
    return Cause::None;
}

void Remote::changed(std::size_t index, const LinkValue& before)
{
    Known& known = known_[index];
    const LinkPoint& point = pointOf(cells()[index]);
    const Cause problem = problemOf(index, known.seen);
    if (problem != Cause::None) {
        notWritten(index, problem, known.seen);
        put(index, known.pending ? before : known.device.value_or(before));
        return;
    }
    const bool rounds = connection().kind == LINK_MODBUS && point.bits[0] < 0;
    const LinkValue held = rounds ? AsHeld(point, known.seen).value_or(known.seen) : known.seen;
    if (known.pending == 0 && known.device && *known.device == held)
        put(index, held);
    else
        order(index, known.seen);
}

void Remote::order(std::size_t index, const LinkValue& value)
{
    Known& known = known_[index];
    if (known.confirmBy > 0.0)
        --waits_;
    known.confirmBy = 0.0;
    known.answer.reset();
    known.pending = ++orders_;
    if (outgoing_.size() >= Exchange::ORDERS_MAX) {
        // The plant is slower than the operator: of this cell only the newest value goes on waiting.
        const auto older = std::find_if(outgoing_.begin(), outgoing_.end(),
                                        [index](const Order& one) { return one.cell == index; });
        if (older != outgoing_.end())
            outgoing_.erase(older);
    }
    outgoing_.push_back({known.pending, index, value});
}

void Remote::sendOrders()
{
    bool sent = false;
    while (!outgoing_.empty() && underway_ < Exchange::ORDERS_MAX &&
           exchange_->orders.push(outgoing_.front())) {
        outgoing_.pop_front();
        ++underway_;
        sent = true;
    }
    if (sent)
        worker_->wake();
}

void Remote::put(std::size_t index, const LinkValue& value)
{
    const LinkCell& cell = cells()[index];
    const LinkPoint& point = pointOf(cell);
    WritePart(cell.cell, point.part, value, looks());
    if (point.write)
        known_[index].seen = ReadPart(cell.cell, point.part);
}

void Remote::notWritten(std::size_t index, Cause cause, const LinkValue& value)
{
    ++counts_.failed;
    const LinkCell& cell = cells()[index];
    const std::string name = CellText(pointOf(cell).data, cell.element);
    const std::string shown = value.isText ? value.text : NumberText(value.number);
    std::string own;
    const std::string text = std::string(FailedText(connection(), own)) + "  " + name + " = " + shown + "  " +
                             CauseText(cause, Language);
    DispErrorMesg(text.c_str());
    LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: not written: %s = %s: %s", connection().name.c_str(),
            name.c_str(), shown.c_str(), CauseText(cause, 1));
}

bool Remote::isRead(std::size_t index) const
{
    return connection().kind != LINK_MQTT || !pointOf(cells()[index]).readTopic().empty();
}

} // namespace tessary
