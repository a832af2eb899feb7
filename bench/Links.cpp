// What links to the plant cost, on this machine alone and without a display.
//
//   bench_links modbus [POINTS]        a device with that many registers (10000), polled every 100 ms
//   bench_links flood [SECONDS]        one panel, 10000 MQTT messages a second (60 seconds)
//   bench_links panels [PANELS]        that many panels (50) on one broker
//
// A tick counts as late because of the links when LinksTimr alone takes more than a tenth of it, 10 ms.
#include "bench/LinkedBench.h"

#include <cstdlib>
#include <cstring>
#include <memory>
#include <modbus.h>
#include <mosquitto.h>
#include <random>
#include <sys/mman.h>

using namespace tessary;

namespace
{

constexpr int PORT = 15020;

int Argument(int argc, char** argv, int otherwise)
{
    return argc > 2 ? std::max(1, std::atoi(argv[2])) : otherwise;
}

// --- Modbus --------------------------------------------------------------------------------------------

/// Registers that this process and the device share.
std::uint16_t* SharedRegisters(int count)
{
    void* const memory = mmap(nullptr, static_cast<std::size_t>(count) * sizeof(std::uint16_t),
                              PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    return memory == MAP_FAILED ? nullptr : static_cast<std::uint16_t*>(memory);
}

void RunDevice(std::uint16_t* registers, int count)
{
    modbus_t* const context = modbus_new_tcp("127.0.0.1", PORT);
    modbus_mapping_t* const mapping = modbus_mapping_new(0, 0, 0, 0);
    mapping->tab_registers = registers;
    mapping->nb_registers = count;
    int listening = modbus_tcp_listen(context, 4);
    if (listening < 0) {
        std::perror("The device can not listen");
        return;
    }
    for (modbus_tcp_accept(context, &listening);;) {
        std::uint8_t query[MODBUS_TCP_MAX_ADU_LENGTH];
        const int size = modbus_receive(context, query);
        if (size < 0)
            return;
        modbus_reply(context, query, size, mapping);
    }
}

LinkConnection ModbusConnection(int points)
{
    LinkConnection plc;
    plc.name = "plc";
    plc.kind = LINK_MODBUS;
    plc.address = "tcp://127.0.0.1:" + std::to_string(PORT);
    plc.period = 100;
    for (int i = 0; i < points; ++i) {
        LinkPoint point;
        point.data = {"ITEM", i};
        point.holding = i;
        plc.points.push_back(point);
    }
    return plc;
}

int BenchModbus(int points)
{
    std::uint16_t* const registers = SharedRegisters(points);
    const Child device([&] { RunDevice(registers, points); });
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    LinkedPanel panel(points, ModbusConnection(points));
    if (!panel.waitConnected())
        return 1;
    panel.ticks(2);
    panel.printTimes("the first values");
    panel.ticks(10);
    panel.printTimes("no value changes");
    const std::uint64_t before = LinkedPanel::updates();
    for (int tick = 1; tick <= 100; ++tick) {
        for (int i = 0; i < points; ++i)
            registers[i] = static_cast<std::uint16_t>(tick);
        panel.tick();
    }
    panel.printTimes("every value changes every tick");
    std::printf("%34s %.0f values a second\n", "", static_cast<double>(LinkedPanel::updates() - before) / 10);

    double longest = 0;
    double sum = 0;
    constexpr int CHANGES = 50;
    std::minstd_rand random(1);
    for (int i = 0; i < CHANGES; ++i) {
        const int point = static_cast<int>(random()) % points;
        const auto value = static_cast<std::uint16_t>(1000 + i);
        const double begin = Microseconds();
        registers[point] = value;
        while (LinkedPanel::cell(point) != value)
            panel.tick();
        const double took = (Microseconds() - begin) / 1000;
        longest = std::max(longest, took);
        sum += took;
    }
    std::printf("%-34s mean %.0f ms, longest %.0f ms (period 100 ms, ticks of 100 ms)\n", "device to cell",
                sum / CHANGES, longest);
    return 0;
}

// --- MQTT ----------------------------------------------------------------------------------------------

Child Broker()
{
    return Child([] {
        const std::string settings = "/tmp/tessary-bench-" + std::to_string(getppid()) + ".conf";
        std::ofstream(settings) << "listener " << PORT << " 127.0.0.1\nallow_anonymous true\nlog_type none\n";
        if (!std::freopen("/dev/null", "w", stderr))
            return;
        execlp("mosquitto", "mosquitto", "-c", settings.c_str(), nullptr);
        execl("/usr/sbin/mosquitto", "mosquitto", "-c", settings.c_str(), nullptr);
    });
}

std::string Topic(int number)
{
    return "plant/" + std::to_string(number);
}

LinkConnection MqttConnection(int topics)
{
    LinkConnection broker;
    broker.name = "broker";
    broker.kind = LINK_MQTT;
    broker.address = "mqtt://127.0.0.1:" + std::to_string(PORT);
    broker.timeout = 5000;
    for (int i = 0; i < topics; ++i) {
        LinkPoint point;
        point.data = {"ITEM", i};
        point.topic = Topic(i);
        broker.points.push_back(point);
    }
    return broker;
}

/// Publishes the time, to all topics in turn, so many times a second; the last round is -1.
void Publish(int topics, int perSecond, int rounds)
{
    mosquitto_lib_init();
    mosquitto* const client = mosquitto_new(nullptr, true, nullptr);
    mosquitto_connect(client, "127.0.0.1", PORT, 60);
    mosquitto_loop_start(client);
    const double begin = Microseconds();
    for (int i = 0; i < topics * rounds; ++i) {
        const double due = begin + i * 1e6 / perSecond;
        if (due > Microseconds())
            std::this_thread::sleep_for(std::chrono::microseconds(static_cast<long>(due - Microseconds())));
        const std::string value =
            i >= topics * (rounds - 1) ? "-1" : std::to_string(static_cast<long long>(Microseconds()));
        mosquitto_publish(client, nullptr, Topic(i % topics).c_str(), static_cast<int>(value.size()),
                          value.c_str(), 1, false);
    }
    std::this_thread::sleep_for(std::chrono::seconds(3));
}

int BenchFlood(int seconds)
{
    constexpr int TOPICS = 100;
    constexpr int PER_SECOND = 10000;
    Child broker = Broker();
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    const int rounds = seconds * PER_SECOND / TOPICS;
    LinkedPanel panel(TOPICS, MqttConnection(TOPICS));
    if (!panel.waitConnected())
        return 1;
    const Child publisher([&] { Publish(TOPICS, PER_SECOND, rounds); });
    panel.ticks(2);
    const long before = Memory();
    const auto began = Clock::now();
    const std::uint64_t first = LinkedPanel::updates();
    for (int i = 0;
         i < seconds * 10 + 300 && LinkedPanel::updates() < static_cast<std::uint64_t>(rounds) * TOPICS; ++i)
        panel.tick();
    const double took = std::chrono::duration<double>(Clock::now() - began).count();
    const std::uint64_t updates = LinkedPanel::updates();
    panel.printTimes("flood");
    std::printf("%-34s %.0f a second; %llu of %llu have come; memory %ld kB, then %ld kB\n", "messages",
                static_cast<double>(updates - first) / took, static_cast<unsigned long long>(updates),
                static_cast<unsigned long long>(rounds) * TOPICS, before, Memory());
    return 0;
}

/// What a panel has seen.
struct PanelResult {
    std::uint64_t updates = 0;
    int last = 0; ///< cells that have the last value
    double sum = 0;
    double longest = 0; ///< ms from publishing to the cell
    int seen = 0;
};

void RunPanel(int topics, std::uint64_t messages, PanelResult& result)
{
    LinkedPanel panel(topics, MqttConnection(topics));
    std::vector<double> known(static_cast<std::size_t>(topics));
    for (int tick = 0; tick < 900 && result.last < topics; ++tick) {
        panel.tick();
        result.updates = LinkedPanel::updates();
        const double now = Microseconds();
        result.last = 0;
        for (int i = 0; i < topics; ++i) {
            double& before = known[static_cast<std::size_t>(i)];
            const double value = LinkedPanel::cell(i);
            result.last += value == -1;
            if (value == before)
                continue;
            before = value;
            if (value <= 0)
                continue;
            const double took = (now - value) / 1000;
            result.longest = std::max(result.longest, took);
            result.sum += took;
            ++result.seen;
        }
    }
    for (int tick = 0; tick < 50 && result.updates < messages; ++tick) {
        panel.tick();
        result.updates = LinkedPanel::updates();
    }
}

int BenchPanels(int count)
{
    constexpr int TOPICS = 100;
    constexpr int PER_SECOND = 200;
    constexpr int ROUNDS = 60;
    const std::size_t size = sizeof(PanelResult) * static_cast<std::size_t>(count);
    void* const memory = mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED)
        return 1;
    auto* const results = new (memory) PanelResult[static_cast<std::size_t>(count)];
    Child broker = Broker();
    std::this_thread::sleep_for(std::chrono::milliseconds(500));
    std::vector<Child> panels;
    for (int i = 0; i < count; ++i)
        panels.emplace_back([&, i] { RunPanel(TOPICS, std::uint64_t{TOPICS} * ROUNDS, results[i]); });
    std::this_thread::sleep_for(std::chrono::seconds(5));
    Child publisher([] { Publish(TOPICS, PER_SECOND, ROUNDS); });
    for (Child& panel : panels)
        panel.wait();
    std::uint64_t updates = 0;
    std::uint64_t last = 0;
    double longest = 0;
    double sum = 0;
    int seen = 0;
    for (int i = 0; i < count; ++i) {
        updates += results[i].updates;
        last += static_cast<std::uint64_t>(results[i].last);
        longest = std::max(longest, results[i].longest);
        sum += results[i].sum;
        seen += results[i].seen;
    }
    const std::uint64_t wanted = static_cast<std::uint64_t>(count) * TOPICS * ROUNDS;
    std::printf(
        "%d panels: %.0f updates a second; %llu of %llu have come, %llu of %d cells have the last value\n",
        count, static_cast<double>(count) * PER_SECOND, static_cast<unsigned long long>(updates),
        static_cast<unsigned long long>(wanted), static_cast<unsigned long long>(last), count * TOPICS);
    std::printf("publish to cell: mean %.0f ms, longest %.0f ms (ticks of 100 ms)\n", sum / std::max(seen, 1),
                longest);
    return updates == wanted ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string what = argc > 1 ? argv[1] : "";
    if (what == "modbus")
        return BenchModbus(Argument(argc, argv, 10000));
    if (what == "flood")
        return BenchFlood(Argument(argc, argv, 60));
    if (what == "panels")
        return BenchPanels(Argument(argc, argv, 50));
    std::fprintf(stderr, "bench_links modbus [POINTS] | flood [SECONDS] | panels [PANELS]\n");
    return 2;
}
