#include "links/Mqtt.h"

#include "links/Address.h"
#include "links/Secret.h"

#include <algorithm>
#include <cerrno>
#include <mosquitto.h>
#include <mutex>
#include <poll.h>

namespace tessary
{

namespace
{

using std::chrono::milliseconds;

constexpr const char* SYSTEM_CERTIFICATES = "/etc/ssl/certs";
constexpr std::size_t TOPICS_PER_REQUEST = 50;
constexpr milliseconds LOOK_WHILE_CONNECTING(20);
constexpr milliseconds LOOK(500); ///< keep-alive is counted in seconds
constexpr milliseconds FAREWELL(300);
/// Messages that are taken in one go before orders get their turn.
constexpr int MESSAGES_AT_ONCE = 200;

void BeginLibrary()
{
    static std::once_flag once;
    std::call_once(once, [] { mosquitto_lib_init(); });
}

/// A key with a passphrase can not be used: nobody is there to be asked.
int NoPassphrase(char*, int, int, void*)
{
    return 0;
}

int Loop(mosquitto* client)
{
    return mosquitto_loop(client, 0, 1);
}

} // namespace

Mqtt::Mqtt(const LinkConnection& connection, const std::vector<LinkCell>& cells,
           std::shared_ptr<Exchange> exchange)
    : Worker(connection, std::move(exchange)), cells_(cells),
      problems_(connection.points.size(), Cause::None), client_(nullptr, mosquitto_destroy)
{
    BeginLibrary();
    for (std::size_t i = 0; i < cells_.size(); ++i) {
        const std::string& topic = connection.points[cells_[i].point].readTopic();
        if (topic.empty())
            continue;
        std::vector<Reader>& readers = readers_[topic];
        if (!readers.empty() && readers.back().point == cells_[i].point)
            ++readers.back().count;
        else
            readers.push_back({cells_[i].point, i, 1});
    }
}

Worker::Failure Mqtt::run()
{
    answer_.reset();
    subscribing_.clear();
    early_.clear();
    auto problem = open();
    if (!problem)
        problem = serve();
    finishAll(Cause::NoAnswer);
    if (stopping() && client_ && answer_ == 0)
        sayOffline();
    client_.reset();
    return problem.value_or(Failure());
}

std::optional<Worker::Failure> Mqtt::open()
{
    const LinkConnection& link = connection();
    std::string remedy;
    const auto address = ParseMqttAddress(link.address, remedy);
    client_.reset(mosquitto_new(link.client.empty() ? nullptr : link.client.c_str(), true, this));
    if (!address || !client_)
        return Failure{Cause::Unreachable, link.address};
    mosquitto* const client = client_.get();
    mosquitto_connect_callback_set(
        client, [](mosquitto*, void* self, int code) { static_cast<Mqtt*>(self)->onConnect(code); });
    mosquitto_message_callback_set(client, [](mosquitto*, void* self, const mosquitto_message* message) {
        static_cast<Mqtt*>(self)->onMessage(*message);
    });
    mosquitto_publish_callback_set(
        client, [](mosquitto*, void* self, int number) { static_cast<Mqtt*>(self)->onPublish(number); });
    mosquitto_subscribe_callback_set(client,
                                     [](mosquitto*, void* self, int number, int count, const int* granted) {
                                         static_cast<Mqtt*>(self)->onSubscribe(number, granted, count);
                                     });
    if (!link.online.empty())
        mosquitto_will_set(client, link.online.c_str(), 1, "0", 1, true);
    if (!link.user.empty()) {
        std::string password;
        if (!link.passwordFile.empty() && !ReadSecret(link.passwordFile, password))
            return Failure{Cause::BadFile, link.passwordFile};
        mosquitto_username_pw_set(client, link.user.c_str(),
                                  link.passwordFile.empty() ? nullptr : password.c_str());
    }
    if (address->encrypted)
        if (auto problem = secure())
            return problem;
    connectBy_ = Clock::now() + milliseconds(link.timeout);
    return failureOf(mosquitto_connect_async(client, address->host.c_str(), address->port,
                                             std::max(5, link.keepalive / 1000)));
}

std::optional<Worker::Failure> Mqtt::secure()
{
    const LinkConnection& link = connection();
    if (!link.keyFile.empty() && !IsSecret(link.keyFile))
        return Failure{Cause::BadFile, link.keyFile};
    const auto given = [](const std::string& file) { return file.empty() ? nullptr : file.c_str(); };
    const bool good =
        mosquitto_tls_set(client_.get(), given(link.caFile),
                          link.caFile.empty() ? SYSTEM_CERTIFICATES : nullptr, given(link.certFile),
                          given(link.keyFile), NoPassphrase) == MOSQ_ERR_SUCCESS &&
        // The broker's certificate is verified, and that it is for this host.
        mosquitto_tls_opts_set(client_.get(), 1, nullptr, nullptr) == MOSQ_ERR_SUCCESS;
    if (!good)
        return Failure{Cause::BadFile, link.caFile.empty() ? link.certFile : link.caFile};
    return std::nullopt;
}

std::optional<Worker::Failure> Mqtt::failureOf(int code) const
{
    switch (code) {
    case MOSQ_ERR_SUCCESS:
        return std::nullopt;
    case MOSQ_ERR_TLS:
        return Failure{Cause::NotTrusted, connection().address};
    case MOSQ_ERR_KEEPALIVE:
        return Failure{Cause::NoAnswer, connection().address};
    case MOSQ_ERR_PROTOCOL:
    case MOSQ_ERR_MALFORMED_PACKET:
    case MOSQ_ERR_MALFORMED_UTF8:
        return Failure{Cause::Garbage, connection().address};
    default: // before the broker has answered, whatever it is, nobody is there
        return Failure{answer_ == 0 ? Cause::Closed : Cause::Unreachable, connection().address};
    }
}

std::optional<Worker::Failure> Mqtt::serve()
{
    mosquitto* const client = client_.get();
    while (!stopping()) {
        for (int i = 0; i < MESSAGES_AT_ONCE; ++i) {
            const int code = Loop(client);
            if (answer_.value_or(0) != 0) // before what the broker does then
                return Failure{*answer_ == 4 || *answer_ == 5 ? Cause::Denied : Cause::Refused,
                               connection().address};
            if (auto problem = failureOf(code))
                return problem;
            pollfd more{mosquitto_socket(client), POLLIN, 0};
            if (poll(&more, 1, 0) <= 0)
                break;
        }
        if (!answer_ && Clock::now() >= connectBy_)
            return Failure{Cause::NoAnswer, connection().address};
        if (answer_)
            publishOrders();
        const short events = static_cast<short>(POLLIN | (mosquitto_want_write(client) ? POLLOUT : 0));
        wait(mosquitto_socket(client), answer_ ? events : POLLIN,
             Clock::now() + (answer_ ? LOOK : LOOK_WHILE_CONNECTING));
    }
    return std::nullopt;
}

void Mqtt::onConnect(int code)
{
    answer_ = code;
    if (code != 0)
        return;
    connected();
    subscribe();
    if (!connection().online.empty())
        mosquitto_publish(client_.get(), nullptr, connection().online.c_str(), 1, "1", 1, true);
}

void Mqtt::subscribe()
{
    std::map<int, std::vector<std::string>> wanted; // by quality of service
    for (const auto& [topic, readers] : readers_)
        wanted[connection().points[readers.front().point].qos].push_back(topic);
    for (auto& [qos, topics] : wanted)
        for (std::size_t at = 0; at < topics.size(); at += TOPICS_PER_REQUEST) {
            const auto count = std::min(TOPICS_PER_REQUEST, topics.size() - at);
            std::vector<char*> names;
            for (std::size_t i = 0; i < count; ++i)
                names.push_back(topics[at + i].data());
            int number = 0;
            if (mosquitto_subscribe_multiple(client_.get(), &number, static_cast<int>(count), names.data(),
                                             qos, 0, nullptr) == MOSQ_ERR_SUCCESS)
                subscribing_[number] = {names.begin(), names.end()};
        }
}

void Mqtt::onSubscribe(int number, const int* granted, int count)
{
    constexpr int FAILED = 0x80;
    const auto found = subscribing_.find(number);
    if (found == subscribing_.end())
        return;
    for (int i = 0; i < std::min(count, static_cast<int>(found->second.size())); ++i)
        for (const Reader& reader : readers_[found->second[static_cast<std::size_t>(i)]])
            setProblem(reader.point, granted[i] >= FAILED ? Cause::Refused : Cause::None);
    subscribing_.erase(found);
}

void Mqtt::onMessage(const mosquitto_message& message)
{
    const auto found = readers_.find(message.topic ? message.topic : "");
    if (found == readers_.end() || message.payloadlen < 0)
        return;
    const std::string_view payload(static_cast<const char*>(message.payload),
                                   static_cast<std::size_t>(message.payloadlen));
    for (const Reader& reader : found->second) {
        MessageValues values = FromMessage(connection().points[reader.point], payload);
        bool good = true;
        for (std::size_t i = 0; i < std::min(reader.count, values.size()); ++i) {
            good = good && values[i];
            if (values[i])
                publish(reader.first + i, std::move(*values[i]), sent_);
        }
        setProblem(reader.point, good ? Cause::None : Cause::NotANumber);
    }
}

void Mqtt::setProblem(std::size_t point, Cause cause)
{
    const Cause before = problems_[point];
    problems_[point] = cause;
    if (before != Cause::None && cause == Cause::None)
        tell({Note::Kind::PointBack, point, cause, ""});
    else if (before == Cause::None && cause != Cause::None)
        tell({Note::Kind::PointRefused, point, cause, ""});
}

void Mqtt::publishOrders()
{
    for (Order order; exchange().orders.pop(order);) {
        const LinkPoint& point = connection().points[cells_[order.cell].point];
        const std::string payload = IntoMessage(point, order.value);
        int number = 0;
        sent_ = order.number;
        const int code =
            mosquitto_publish(client_.get(), &number, point.topic.c_str(), static_cast<int>(payload.size()),
                              payload.data(), point.qos, point.retain);
        if (code != MOSQ_ERR_SUCCESS)
            finish(order, Cause::NotConnected);
        else if (early_.erase(number) > 0)
            finish(order, Cause::None);
        else
            underway_[number] = std::move(order);
    }
    early_.clear();
}

void Mqtt::onPublish(int number)
{
    const auto found = underway_.find(number);
    if (found == underway_.end()) {
        early_.insert(number);
        return;
    }
    finish(found->second, Cause::None);
    underway_.erase(found);
}

void Mqtt::finishAll(Cause cause)
{
    for (const auto& [number, order] : underway_)
        finish(order, cause);
    underway_.clear();
}

void Mqtt::sayOffline()
{
    mosquitto* const client = client_.get();
    if (!connection().online.empty())
        mosquitto_publish(client, nullptr, connection().online.c_str(), 1, "0", 0, true);
    mosquitto_disconnect(client);
    const Clock::time_point until = Clock::now() + FAREWELL;
    while (Clock::now() < until && Loop(client) == MOSQ_ERR_SUCCESS && mosquitto_want_write(client)) {
        pollfd open{mosquitto_socket(client), POLLOUT, 0};
        poll(&open, 1, 20);
    }
}

} // namespace tessary
