// The socket for other processes: its lines, its client "ptn cell", and clients that do not behave.
#include "links/SocketLine.h"
#include "tests/links/LinkedPlant.h"

#include "base/EucText.h"

#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

using namespace tessary;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

namespace
{

/// Another process, or what goes for one.
class Client
{
  public:
    explicit Client(const std::string& path) : descriptor_(socket(AF_UNIX, SOCK_STREAM, 0))
    {
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.data(), path.size());
        EXPECT_EQ(connect(descriptor_, reinterpret_cast<sockaddr*>(&address), sizeof address), 0)
            << std::strerror(errno);
        fcntl(descriptor_, F_SETFL, O_NONBLOCK);
    }
    ~Client() { close(descriptor_); }
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    /// @return bytes that the kernel has taken
    ssize_t say(const std::string& text) { return send(descriptor_, text.data(), text.size(), MSG_NOSIGNAL); }
    /// Everything heard so far.
    const std::string& heard()
    {
        char buffer[65536];
        for (ssize_t size; (size = recv(descriptor_, buffer, sizeof buffer, 0)) >= 0;) {
            closed_ = closed_ || size == 0;
            if (size == 0)
                break;
            heard_.append(buffer, static_cast<std::size_t>(size));
        }
        closed_ = closed_ || (errno != EAGAIN && errno != EWOULDBLOCK);
        return heard_;
    }
    bool closed()
    {
        heard();
        return closed_;
    }

  private:
    int descriptor_;
    std::string heard_;
    bool closed_ = false;
};

class SocketPlant : public LinkedPlant
{
  protected:
    SocketPlant()
    {
        link("  shell:\n    socket: \"@DIR@/panel.sock\"\n");
        tickFor(0);
    }
    bool waitHeard(Client& client, const std::string& wanted)
    {
        return waitFor([&] { return client.heard() == wanted; }, wanted + "but not " + client.heard());
    }
    /// Runs "ptn cell" while the panel ticks.
    std::string cell(const std::string& words)
    {
        std::string said;
        bool done = false;
        std::thread other([&] {
            said = run(Program::buildFolder() + "/ptn cell " + path + " " + words + "; echo -n $?");
            __atomic_store_n(&done, true, __ATOMIC_RELEASE);
        });
        waitFor([&] { return __atomic_load_n(&done, __ATOMIC_ACQUIRE); }, "ptn cell");
        other.join();
        return said;
    }

    const std::string path = project.root() + "/panel.sock";
};

CellCodes codes()
{
    return {{"SPEED", {100, 1}}, {"PUMP", {110, 4}}};
}

SocketRequest only(const std::string& line)
{
    const auto requests = ParseSocketLine(line, codes());
    EXPECT_EQ(requests.size(), 1U) << line;
    return requests.empty() ? SocketRequest() : requests[0];
}

} // namespace

TEST(SocketLine, names_a_cell)
{
    EXPECT_EQ(only("get SPEED").cell, 100);
    EXPECT_EQ(only(" get\tPUMP+3 \r").cell, 113);
    EXPECT_EQ(only("get PUMP+3").text, "PUMP+3");
    EXPECT_EQ(ParseSocketLine("watch SPEED PUMP+1", codes()).size(), 2U);
    EXPECT_THAT(ParseSocketLine("  ", codes()), IsEmpty());
}

TEST(SocketLine, has_a_number_or_a_text)
{
    EXPECT_EQ(only("set SPEED -2.5").value.number, -2.5);
    EXPECT_EQ(only("set SPEED open wide ").value.text, "open wide");
    EXPECT_EQ(only(R"(set SPEED "a \"b\" \\ ")").value.text, R"(a "b" \ )");
    EXPECT_EQ(only("set SPEED \"7\"").value.text, "7");
}

TEST(SocketLine, that_means_nothing_says_why)
{
    for (const char* line : {"fetch SPEED", "get", "get X", "get PUMP+4", "get PUMP+-1", "get PUMP+1x",
                             "get PUMP+", "set SPEED", "set SPEED \"x", "set", "watch", "get +1"}) {
        EXPECT_EQ(only(line).kind, SocketRequest::Kind::Error) << line;
        EXPECT_THAT(only(line).text, StartsWith("error ")) << line;
    }
}

TEST_F(SocketPlant, belongs_to_its_owner_alone)
{
    struct stat status {
    };
    ASSERT_EQ(stat(path.c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0600U);
    EXPECT_EQ(state(), LinkState::Connected);
    LinksExit();
    EXPECT_NE(stat(path.c_str(), &status), 0) << "it goes with the panel";
}

TEST_F(SocketPlant, reads_and_sets_cells)
{
    Client client(path);
    set(3, 12.5);
    client.say("get A+3\nset A+4 7\nset A+4 \"" + EucToUtf8("ポンプ") + "\"\nget A+4\nget B\n");
    ASSERT_TRUE(waitHeard(client, "A+3 12.5\nok\nok\nA+4 7 \"" + EucToUtf8("ポンプ") +
                                      "\"\nerror no code 'B': 'list' tells those that there are\n"));
    EXPECT_EQ(number(4), 7);
    EXPECT_EQ(text(4), "ポンプ");
}

TEST_F(SocketPlant, lists_codes)
{
    Client client(path);
    client.say("list\n");
    EXPECT_TRUE(waitHeard(client, "A 200\nSYS 99\nend\n"));
}

TEST_F(SocketPlant, tells_each_change_once_in_a_tick)
{
    Client client(path);
    client.say("watch A A+1\n");
    ASSERT_TRUE(waitHeard(client, "A+0 0\nA+1 0\n"));
    for (int i = 1; i <= 5; ++i)
        set(0, i);
    LinksTimr();
    set(1, 3);
    set(7, 3); // nobody watches that
    LinksTimr();
    EXPECT_TRUE(waitHeard(client, "A+0 0\nA+1 0\nA+0 5\nA+1 3\n"));
}

TEST_F(SocketPlant, has_a_client)
{
    set(1, 4);
    EXPECT_EQ(cell("get A A+1"), "A+0 0\nA+1 4\n0");
    EXPECT_EQ(cell("set A -3"), "0");
    EXPECT_EQ(number(0), -3);
    EXPECT_EQ(cell("set A+2 'Pump \"3\"'"), "0");
    EXPECT_EQ(text(2), "Pump \"3\"");
    EXPECT_EQ(cell("list"), "A 200\nSYS 99\n0");
    EXPECT_EQ(cell("get A+200"), "error 'A' has 200 cells\n1");
    EXPECT_THAT(run(Program::buildFolder() + "/ptn cell nowhere.sock list"), HasSubstr("Name the socket"));
}

TEST_F(SocketPlant, client_that_does_not_listen_is_dropped_and_delays_nobody)
{
    Client slow(path);
    Client quick(path);
    quick.say("watch A\n");
    ASSERT_TRUE(waitHeard(quick, "A+0 0\n"));
    std::string all = "watch";
    for (int i = 0; i < 200; ++i)
        all += " A+" + std::to_string(i);
    slow.say(all + "\n");
    waits = 0;
    ticks = 0;
    // The slow one never reads. What it lets lie is more than the kernel and the panel keep for it.
    for (int round = 1; round <= 600; ++round) {
        for (int i = 0; i < 200; ++i)
            set(i, round);
        tickFor(0);
    }
    EXPECT_TRUE(
        waitFor([&] { return quick.heard().find("A+0 600\n") != std::string::npos; }, "the quick one"));
    expectNoWaits();
    EXPECT_TRUE(waitFor([&] { return slow.closed(); }, "the end of the slow one"));
    EXPECT_FALSE(quick.closed());
}

TEST_F(SocketPlant, client_that_floods_is_held_back_or_dropped)
{
    Client flood(path);
    Client other(path);
    std::string lines;
    for (int i = 0; i < 500; ++i)
        lines += "get A\n";
    for (int i = 0; i < 200; ++i) {
        flood.say(lines);
        tickFor(0);
    }
    flood.say(std::string(20000, 'x')); // a line without an end
    other.say("get A+1\n");
    EXPECT_TRUE(waitHeard(other, "A+1 0\n"));
}

TEST_F(SocketPlant, more_clients_than_it_serves_are_turned_away)
{
    std::vector<std::unique_ptr<Client>> clients;
    for (int i = 0; i < 20; ++i)
        clients.push_back(std::make_unique<Client>(path));
    EXPECT_TRUE(waitFor([&] { return clients.back()->closed(); }, "the end of the last one"));
    clients[0]->say("get A\n");
    EXPECT_TRUE(waitHeard(*clients[0], "A+0 0\n"));
}

TEST_F(SocketPlant, that_was_left_behind_is_replaced_but_no_file_and_no_other_panel)
{
    LinksExit();
    {
        const int left = socket(AF_UNIX, SOCK_STREAM, 0);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::memcpy(address.sun_path, path.data(), path.size());
        ASSERT_EQ(bind(left, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
        close(left); // as after a kill
    }
    LinksInit(nullptr);
    tickFor(0);
    EXPECT_EQ(state(), LinkState::Connected);
    LinksExit();
    writeFile(path, "mine");
    LinksInit(nullptr);
    tickFor(0);
    EXPECT_EQ(state(), LinkState::Lost);
    LinksExit();
    EXPECT_EQ(readFile(path), "mine");
}
