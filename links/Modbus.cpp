#include "links/Modbus.h"

#include "links/Address.h"
#include "links/Values.h"

#include <cerrno>
#include <modbus.h>
#include <poll.h>
#include <sys/socket.h>

namespace tessary
{

namespace
{

using std::chrono::milliseconds;

/// A request is sent so often before its device counts as lost.
constexpr int TRIES = 3;
/// How often cells that a device refuses are asked for.
constexpr milliseconds REFUSED_PERIOD(30000);

bool IsBit(RegisterArea area)
{
    return area == AREA_COIL || area == AREA_DISCRETE;
}

/// The device has answered, but not with what it was asked for.
bool IsRefusal(int error)
{
    return error == EMBXILFUN || error == EMBXILADD || error == EMBXILVAL || error == EMBXSFAIL ||
           error == EMBXMEMPAR || error == EMBXNACK;
}

bool IsBusy(int error)
{
    return error == EMBXSBUSY || error == EMBXACK;
}

bool IsGarbage(int error)
{
    return error == EMBBADCRC || error == EMBBADDATA || error == EMBBADEXC || error == EMBMDATA ||
           error == EMBBADSLAVE || error == EMBUNKEXC;
}

bool IsClosed(int error)
{
    return error == ECONNRESET || error == EPIPE || error == EBADF || error == ENOTCONN || error == EIO;
}

Cause CauseOf(int error)
{
    if (IsGarbage(error))
        return Cause::Garbage;
    return IsClosed(error) ? Cause::Closed : Cause::NoAnswer;
}

} // namespace

Modbus::Modbus(const LinkConnection& connection, const std::vector<LinkCell>& cells,
               std::shared_ptr<Exchange> exchange)
    : Worker(connection, std::move(exchange)), cells_(cells), planned_(PlannedCells(connection, cells)),
      last_(cells.size()), problems_(cells.size(), Cause::None), refused_(connection.points.size()),
      registers_(REQUEST_REGISTERS_MAX), bits_(REQUEST_BITS_MAX), context_(nullptr, modbus_free)
{
}

const LinkPoint& Modbus::pointOf(std::size_t cell) const
{
    return connection().points[cells_[cell].point];
}

Worker::Failure Modbus::run()
{
    auto problem = open();
    if (!problem) {
        plan();
        problem = serve();
    }
    close();
    return problem.value_or(Failure());
}

std::optional<Worker::Failure> Modbus::open()
{
    std::string remedy;
    const auto address = ParseModbusAddress(connection().address, remedy);
    if (!address)
        return Failure{Cause::Unreachable, connection().address};
    context_.reset(address->serial
                       ? modbus_new_rtu(address->device.c_str(), address->baud, address->parity,
                                        address->dataBits, address->stopBits)
                       : modbus_new_tcp_pi(address->host.c_str(), std::to_string(address->port).c_str()));
    const auto timeout = static_cast<std::uint32_t>(connection().timeout);
    if (!context_ || modbus_set_slave(context_.get(), connection().unit) != 0 ||
        modbus_set_response_timeout(context_.get(), timeout / 1000, timeout % 1000 * 1000) != 0 ||
        // The whole answer has to come in that time, not each byte of it.
        modbus_set_byte_timeout(context_.get(), 0, 0) != 0 || modbus_connect(context_.get()) != 0)
        return Failure{Cause::Unreachable, connection().address};
    const std::lock_guard<std::mutex> lock(socket_);
    descriptor_ = modbus_get_socket(context_.get());
    return std::nullopt;
}

void Modbus::close()
{
    const std::lock_guard<std::mutex> lock(socket_);
    descriptor_ = -1;
    if (context_)
        modbus_close(context_.get());
    context_.reset();
}

void Modbus::interrupt()
{
    const std::lock_guard<std::mutex> lock(socket_);
    if (descriptor_ >= 0)
        shutdown(descriptor_, SHUT_RDWR); // a serial line has no such thing, and ends with its timeout
}

void Modbus::plan()
{
    requests_ = PlanRequests(planned_, connection().gap);
    due_ = {};
    const Clock::time_point now = Clock::now();
    for (std::size_t i = 0; i < requests_.size(); ++i)
        due_.emplace(now, i);
    last_.assign(last_.size(), std::nullopt); // the tick hears everything anew
    if (requests_.empty())
        connected();
}

std::optional<Worker::Failure> Modbus::serve()
{
    while (!stopping()) {
        for (Order order; !stopping() && exchange().orders.pop(order);)
            if (auto problem = carryOut(order))
                return problem;
        const Clock::time_point now = Clock::now();
        if (due_.empty() || due_.top().first > now) {
            if (auto problem = idle(due_.empty() ? now + std::chrono::seconds(60) : due_.top().first))
                return problem;
            continue;
        }
        const std::size_t index = due_.top().second;
        due_.pop();
        if (auto problem = poll(index))
            return problem;
    }
    return std::nullopt;
}

std::optional<Worker::Failure> Modbus::idle(Clock::time_point until)
{
    const short events = wait(descriptor_, POLLIN, until);
    if (!events || stopping())
        return std::nullopt;
    // Nothing was asked for: the other side has closed, or says something that nobody waits for.
    char byte = 0;
    const bool serial = recv(descriptor_, &byte, 1, MSG_PEEK | MSG_DONTWAIT) < 0 && errno == ENOTSOCK;
    if (!serial && recv(descriptor_, &byte, 1, MSG_PEEK | MSG_DONTWAIT) == 0)
        return Failure{Cause::Closed, connection().address};
    if (events & (POLLHUP | POLLERR | POLLNVAL))
        return Failure{Cause::Closed, connection().address};
    modbus_flush(context_.get());
    return std::nullopt;
}

Modbus::Answer Modbus::ask(const std::function<int()>& request)
{
    for (int attempt = 0; attempt < TRIES && !stopping(); ++attempt) {
        if (request() >= 0) {
            connected();
            return Answer::Good;
        }
        error_ = errno;
        if (IsRefusal(error_) || IsBusy(error_)) {
            connected();
            return IsBusy(error_) ? Answer::Busy : Answer::Refused;
        }
        modbus_flush(context_.get());
        if (IsClosed(error_))
            break;
    }
    return Answer::None;
}

Worker::Failure Modbus::failure() const
{
    return {CauseOf(error_), connection().address};
}

Modbus::Answer Modbus::read(const ModbusRequest& request)
{
    return ask([&] {
        switch (request.area) {
        case AREA_COIL:
            return modbus_read_bits(context_.get(), request.address, request.count, bits_.data());
        case AREA_DISCRETE:
            return modbus_read_input_bits(context_.get(), request.address, request.count, bits_.data());
        case AREA_HOLDING:
            return modbus_read_registers(context_.get(), request.address, request.count, registers_.data());
        default:
            return modbus_read_input_registers(context_.get(), request.address, request.count,
                                               registers_.data());
        }
    });
}

std::optional<Worker::Failure> Modbus::poll(std::size_t index)
{
    const Clock::time_point begun = Clock::now();
    const ModbusRequest& request = requests_[index];
    const Answer answer = read(request);
    if (answer == Answer::None)
        return failure();
    Clock::time_point next = begun + milliseconds(request.period);
    if (answer == Answer::Refused) {
        if (request.cells.size() > 1) {
            split(index, begun);
            return std::nullopt;
        }
        setProblem(request.cells[0].cell, Cause::Refused);
        next = begun + std::max(REFUSED_PERIOD, milliseconds(request.period));
    } else if (answer == Answer::Good) {
        for (const PlannedCell& cell : request.cells)
            take(cell, request.address);
    }
    due_.emplace(next, index);
    return std::nullopt;
}

void Modbus::split(std::size_t index, Clock::time_point due)
{
    std::vector<ModbusRequest> halves = SplitRequest(requests_[index]);
    requests_[index] = std::move(halves[0]);
    requests_.push_back(std::move(halves[1]));
    due_.emplace(due, index);
    due_.emplace(due, requests_.size() - 1);
}

void Modbus::take(const PlannedCell& cell, int first)
{
    const auto place = static_cast<std::size_t>(cell.address - first);
    const LinkPoint& point = pointOf(cell.cell);
    const auto value = IsBit(cell.area) ? LinkValue{ToCell(point, bits_[place] ? 1.0 : 0.0), "", false}
                                        : FromRegisters(point, registers_.data() + place);
    setProblem(cell.cell, value ? Cause::None : Cause::NotANumber);
    if (value && last_[cell.cell] != value) {
        last_[cell.cell] = value;
        publish(cell.cell, *value, done_);
    }
}

void Modbus::setProblem(std::size_t cell, Cause cause)
{
    const Cause before = problems_[cell];
    if (before == cause)
        return;
    problems_[cell] = cause;
    const std::size_t point = cells_[cell].point;
    int& count = refused_[point];
    count += (cause != Cause::None ? 1 : 0) - (before != Cause::None ? 1 : 0);
    if (cause == Cause::None && count == 0)
        tell({Note::Kind::PointBack, point, cause, ""});
    else if (before == Cause::None && count == 1)
        tell({Note::Kind::PointRefused, point, cause, ""});
}

Modbus::Answer Modbus::write(const Order& order)
{
    const PlannedCell& cell = planned_[order.cell];
    const LinkPoint& point = pointOf(order.cell);
    if (IsBit(cell.area)) {
        const bool on = ToPlant(point, NumberOf(order.value).value_or(0.0)) != 0.0;
        return ask([&] { return modbus_write_bit(context_.get(), cell.address, on ? 1 : 0); });
    }
    std::uint16_t values[VALUE_REGISTERS_MAX] = {};
    if (point.bits[0] >= 0) { // the other bits stay
        const Answer before = read({cell.area, 0, cell.address, cell.count, {}});
        if (before != Answer::Good)
            return before;
        values[0] = registers_[0];
    }
    if (!IntoRegisters(point, order.value, values))
        return Answer::Refused;
    if (cell.count == 1)
        return ask([&] { return modbus_write_register(context_.get(), cell.address, values[0]); });
    return ask([&] { return modbus_write_registers(context_.get(), cell.address, cell.count, values); });
}

std::optional<Worker::Failure> Modbus::carryOut(const Order& order)
{
    const Answer answer = write(order);
    if (answer == Answer::None) {
        const Failure problem = failure();
        finish(order, problem.cause);
        return problem;
    }
    finish(order, answer == Answer::Good ? Cause::None : Cause::Refused);
    done_ = order.number;
    if (answer != Answer::Good)
        return std::nullopt;
    // The device's value counts, whatever was written.
    const PlannedCell& cell = planned_[order.cell];
    last_[order.cell].reset();
    switch (read({cell.area, 0, cell.address, cell.count, {}})) {
    case Answer::None:
        return failure();
    case Answer::Good:
        take(cell, cell.address);
        break;
    default: // it can only be written
        publish(order.cell, order.value, done_);
        break;
    }
    return std::nullopt;
}

} // namespace tessary
