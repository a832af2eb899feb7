// Modbus against a device that is not our library, over TCP and a serial line.
#include "tests/links/LinkedPlant.h"

#include "base/Constants.h"
#include "base/EucText.h"
#include "config/Settings.h"

#include <chrono>
#include <csignal>

using namespace tessary;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

class ModbusPlant : public LinkedPlant
{
  protected:
    void device(std::vector<std::string> more = {})
    {
        more.insert(more.begin(), {"tcp", std::to_string(port)});
        device_ = server("modbus_device.py", more);
    }
    void endDevice() { device_.reset(); }
    void signal(int number) { kill(device_->pid(), number); }
    std::string writes() const
    {
        const std::string output = device_->output();
        return output.substr(output.find("ready\n") + 6);
    }
    bool waitWrites(const std::string& wanted)
    {
        return waitFor([&] { return writes() == wanted; }, wanted + " but not " + writes());
    }
    /// A connection called plc with these points, a line for each.
    void plc(const std::vector<std::string>& points, const std::string& more = "")
    {
        std::string yaml =
            "  plc:\n    modbus: tcp://127.0.0.1:" + std::to_string(port) + "\n    period: 100 ms\n" +
            (more.find("timeout") == more.npos ? "    timeout: 300 ms\n" : "") + more + "    points:\n";
        for (const std::string& point : points)
            yaml += "      - " + point + "\n";
        link(yaml);
    }
    /// Sets a holding register from outside.
    void outside(int address, int value)
    {
        const std::string said =
            run("mbpoll -m tcp -p " + std::to_string(port) + " -0 -r " + std::to_string(address) +
                " -t 4 -1 127.0.0.1 -- " + std::to_string(value));
        EXPECT_THAT(said, HasSubstr("Written 1 references"));
    }

    const int port = freePort();

  private:
    std::unique_ptr<Program> device_;
};

double seconds(std::chrono::steady_clock::time_point begin)
{
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

} // namespace

TEST_F(ModbusPlant, shows_its_values_in_the_cells)
{
    device({"holding:0=250", "input:10=0", "input:11=16968", "coil:1=1", "discrete:8=1", "holding:40=80",
            "holding:100=16706", "holding:101=17152", "holding:30=1", "holding:31=2"});
    plc({"{ data: A, holding: 0, scale: 0.1 }", "{ data: A+1, input: 10, type: float32, order: CDAB }",
         "{ data: A+2, coil: 0, count: 2 }",
         "{ data: A+4, discrete: 8, part: color, values: { 0: 0, 1: 2 } }",
         "{ data: A+5, holding: 40, bits: 4-6 }", "{ data: A+6, holding: 100, type: text, length: 8 }",
         "{ data: A+7, holding: 30, type: uint32, period: 1 s }"},
        "    status: A+9\n");
    ASSERT_TRUE(waitFor([&] { return number(7) == 65538; }, "the values"));
    EXPECT_NEAR(number(0), 25, 1e-9);
    EXPECT_EQ(number(1), 50);
    EXPECT_EQ(number(2), 0);
    EXPECT_EQ(number(3), 1);
    EXPECT_EQ(word(4), 2);
    EXPECT_EQ(number(5), 5);
    EXPECT_EQ(text(6), "ABC");
    EXPECT_EQ(number(9), 1);
    EXPECT_EQ(text(9), "");
    EXPECT_EQ(state(), LinkState::Connected);
    outside(0, 333);
    EXPECT_TRUE(waitFor([&] { return number(0) > 33.2; }, "the value that was set from outside"));
    EXPECT_EQ(logged("plc: connected"), 1);
}

TEST_F(ModbusPlant, is_set_by_a_change_of_a_cell_in_order)
{
    device({"holding:20=5"});
    plc({"{ data: A, holding: 20, type: uint16, write: yes }", "{ data: A+1, coil: 3, write: yes }",
         "{ data: A+2, holding: 40, bits: 4-6, write: yes }",
         "{ data: A+3, holding: 50, type: float32, write: yes }",
         "{ data: A+4, holding: 60, type: text, length: 6, write: yes }"});
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    EXPECT_THAT(writes(), IsEmpty()) << "nothing is written at the start";
    set(0, 77);
    set(1, 1);
    set(2, 3);
    set(3, 1.5);
    Set_sData(104, "AB", nullptr, 0);
    ASSERT_TRUE(
        waitWrites("holding 20 77\ncoil 3 1\nholding 40 48\nholding 50 16320 0\nholding 60 16706 0 0\n"));
    EXPECT_TRUE(waitFor([&] { return LinksStatus()[0].written == 5; }, "the confirmations"));
    EXPECT_EQ(number(0), 77);
    set(0, 77); // what it holds already
    tickFor(0.5);
    EXPECT_THAT(writes(), Not(HasSubstr("60 16706 0 0\nholding 20")));
    outside(20, 9);
    EXPECT_TRUE(waitFor([&] { return number(0) == 9; }, "the device's value"));
    EXPECT_THAT(errorLine(), IsEmpty());
}

TEST_F(ModbusPlant, many_changes_of_a_cell_arrive_in_order_and_end_with_the_last)
{
    device();
    plc({"{ data: A, holding: 20, write: yes }"});
    ASSERT_TRUE(waitState(LinkState::Connected));
    tickFor(0.3);
    std::string expected;
    for (int value = 1; value <= 40; ++value) {
        set(0, value);
        tickFor(0.001);
        expected += "holding 20 " + std::to_string(value) + "\n";
    }
    EXPECT_TRUE(waitWrites(expected));
    tickFor(0.3);
    EXPECT_EQ(number(0), 40);
}

TEST_F(ModbusPlant, refuses_a_value_and_the_error_line_says_which)
{
    device({"holding:20=5"});
    plc({"{ data: A, holding: 20, type: uint16, write: yes }"});
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    set(0, 70000);
    tickFor(0.05);
    EXPECT_EQ(number(0), 5);
    EXPECT_THAT(errorLine(), HasSubstr("A+0 = 70000"));
    EXPECT_THAT(writes(), IsEmpty());
    EXPECT_EQ(LinksStatus()[0].failed, 1U);
}

TEST_F(ModbusPlant, writes_that_find_it_lost_return_to_its_value_and_are_told)
{
    Language = 1;
    device({"holding:20=5"});
    plc({"{ data: A, holding: 20, write: yes }"}, "    failed: [" + EucToUtf8("だめ") + ", Could not set]\n");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    endDevice();
    ASSERT_TRUE(waitState(LinkState::Lost));
    set(0, 6);
    tickFor(0.05);
    EXPECT_EQ(number(0), 5);
    EXPECT_EQ(errorLine(), "Could not set  A+0 = 6  not connected");
    EXPECT_EQ(logged("plc: not written: A+0 = 6"), 1);
    Language = 0;
}

TEST_F(ModbusPlant, writes_that_it_does_not_answer_return_to_its_value_and_are_told)
{
    device({"holding:20=5"});
    plc({"{ data: A, holding: 20, write: yes, period: 1 h }"});
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    signal(SIGSTOP);
    set(0, 6);
    tickFor(0.05);
    EXPECT_EQ(number(0), 6) << "until the device has said something";
    EXPECT_TRUE(waitFor([&] { return number(0) == 5; }, "the device's value"));
    EXPECT_THAT(errorLine(), HasSubstr("A+0 = 6"));
    signal(SIGCONT);
}

TEST_F(ModbusPlant, looks_lost_and_as_before_when_it_comes_back)
{
    device({"holding:0=5"});
    Set_wData(100, 1, nullptr, 0);
    plc({"{ data: A, holding: 0, count: 3 }"}, "    status: A+9\n    lost: { color: 3, disabled: yes }\n");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    EXPECT_EQ(word(0), 1);
    endDevice();
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(word(0), 0x4003);
    EXPECT_EQ(word(2), 0x4003);
    EXPECT_EQ(number(9), 2);
    EXPECT_THAT(text(9), Not(IsEmpty()));
    tickFor(2.5);
    EXPECT_EQ(logged("plc: lost"), 1) << "one line for each change of state";
    device({"holding:0=6"});
    ASSERT_TRUE(waitFor([&] { return number(0) == 6; }, "the value after the loss"));
    EXPECT_EQ(word(0), 1);
    EXPECT_EQ(word(2), 0);
    EXPECT_EQ(number(9), 1);
    EXPECT_EQ(text(9), "");
    EXPECT_EQ(logged("plc: connected"), 2);
}

TEST_F(ModbusPlant, that_is_stopped_changes_nothing_in_the_ticks_time)
{
    device({"holding:0=5"});
    plc({"{ data: A, holding: 0, count: 100 }"});
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    ticks = 0;
    waits = 0;
    signal(SIGSTOP);
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(logged("no answer"), 1);
    signal(SIGCONT);
    ASSERT_TRUE(waitState(LinkState::Connected));
    expectNoWaits();
}

TEST_F(ModbusPlant, refused_addresses_are_found_told_once_and_stop_no_others)
{
    device({"refuse=holding:50-59", "holding:49=1", "holding:60=2", "refuse=input:5-5", "input:6=3"});
    plc({"{ data: A, holding: 45, count: 20 }", "{ data: A+20, input: 5 }", "{ data: A+21, input: 6 }"},
        "    lost: { color: 3 }\n");
    ASSERT_TRUE(waitFor([&] { return number(4) == 1 && number(15) == 2 && number(21) == 3; }, "the others"));
    tickFor(0.5);
    EXPECT_EQ(logged("plc: A+0: refused by the device (project.yaml:"), 1);
    EXPECT_EQ(logged("plc: A+20: refused by the device (project.yaml:"), 1);
    EXPECT_EQ(word(20), 3);
    EXPECT_EQ(word(21), 0);
    EXPECT_EQ(state(), LinkState::Connected);
}

TEST_F(ModbusPlant, that_can_not_be_reached_is_lost_until_it_is_there)
{
    plc({"{ data: A, holding: 0 }"});
    ASSERT_TRUE(waitState(LinkState::Lost));
    EXPECT_EQ(logged("plc: lost: can not be reached"), 1);
    set(0, 3);
    device({"holding:0=5"});
    EXPECT_TRUE(waitFor([&] { return number(0) == 5; }, "the device"));
}

TEST_F(ModbusPlant, over_a_serial_line_is_read_and_written)
{
    const std::string there = project.root() + "/there";
    const std::string here = project.root() + "/here";
    Program line("/usr/bin/socat", "socat", {"pty,raw,echo=0,link=" + there, "pty,raw,echo=0,link=" + here});
    ASSERT_TRUE(waitFor([&] { return access(here.c_str(), R_OK) == 0 && access(there.c_str(), R_OK) == 0; },
                        "the line"));
    const auto serial = server("modbus_device.py", {"rtu", there, "holding:3=1234"});
    link("  plc:\n    modbus: rtu://" + here +
         "?baud=19200&parity=none\n    period: 200 ms\n    points:\n"
         "      - { data: A, holding: 3, write: yes }\n");
    ASSERT_TRUE(waitFor([&] { return number(0) == 1234; }, "the value"));
    set(0, -5);
    EXPECT_TRUE(waitFor([&] { return serial->output().find("holding 3 65531\n") != std::string::npos; },
                        "the write"));
}

class Hostile : public ModbusPlant, public testing::WithParamInterface<const char*>
{
};

TEST_P(Hostile, devices_change_nothing_in_the_ticks_time_and_end_with_the_links)
{
    const auto hostile = server("hostile.py", {GetParam(), std::to_string(port)});
    plc({"{ data: A, holding: 0, count: 50 }", "{ data: A+60, holding: 200, write: yes }"});
    ASSERT_TRUE(waitState(LinkState::Lost));
    tickFor(1);
    expectNoWaits();
    const auto begin = std::chrono::steady_clock::now();
    LinksExit();
    EXPECT_LT(seconds(begin), 5);
}

INSTANTIATE_TEST_SUITE_P(Links, Hostile, testing::Values("silent", "garbage", "flood", "dribble", "close"),
                         [](const auto& one) { return std::string(one.param); });

TEST_F(ModbusPlant, that_hangs_does_not_hold_up_the_end)
{
    device({"holding:0=5"});
    plc({"{ data: A, holding: 0 }"}, "    timeout: 30 s\n");
    ASSERT_TRUE(waitFor([&] { return number(0) == 5; }, "the first value"));
    signal(SIGSTOP);
    tickFor(0.5); // a request is on its way
    const auto begin = std::chrono::steady_clock::now();
    LinksExit();
    EXPECT_LT(seconds(begin), 5);
}
