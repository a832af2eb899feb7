// The example project as an operator sees it: the real program on a real screen, its made-up plant and its
// device.
#include "tests/links/FreePort.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

namespace fs = std::filesystem;

namespace
{

constexpr std::uint32_t STOPPED = 0x8C98A3;
constexpr std::uint32_t RUNNING = 0x2C9A5B;
constexpr std::uint32_t STALE = 0xB7BEC5;
constexpr std::uint32_t OPEN = 0x2A6CAB; ///< the bar of the valve
constexpr std::uint32_t WATER = 0x3F97D3;

class Station : public testing::Test
{
  protected:
    Station() : before_(fs::current_path())
    {
        fs::copy(Program::sourceFolder() + "/examples/pump-station", source, fs::copy_options::recursive);
        fs::create_directories(root + "/run/log");
        fs::current_path(root + "/run");
    }
    ~Station() override
    {
        panel_.reset();
        fs::current_path(before_);
    }

    /// Exchanges the one file.
    void useDevice()
    {
        std::string links = readFile(source + "/device/links.yaml");
        const std::string usual = "127.0.0.1:1502";
        links.replace(links.find(usual), usual.size(), "127.0.0.1:" + std::to_string(port));
        writeFile(source + "/links.yaml", links);
    }
    void startDevice()
    {
        device_ = std::make_unique<Program>(
            "/usr/bin/python3", "python3",
            std::vector<std::string>{source + "/device/plant.py", std::to_string(port)});
    }
    void endDevice() { device_.reset(); }
    void stopDevice(int number) { kill(device_->pid(), number); }

    void startPanel()
    {
        const std::string build =
            Program::buildFolder() + "/ptn build -q " + source + " " + root + "/run/ProjPath";
        ASSERT_EQ(std::system(build.c_str()), 0);
        panel_ = std::make_unique<Program>("tessary-panel", "tessary-panel",
                                           std::vector<std::string>{root + "/run"});
        user.waitFor([&] { return panel_->status() || lamp() == STOPPED || lamp() == STALE; }, "the screen");
        ASSERT_EQ(panel_->status(), std::nullopt) << panel_->output();
    }
    /// The first pump's.
    std::uint32_t lamp() { return user.pixel(452, 132); }
    /// Presses the check box of the first pump.
    void switchPump() { user.clickAt(660, 132); }
    bool waitLamp(std::uint32_t color, const std::string& what)
    {
        return user.waitFor([&] { return lamp() == color; }, what);
    }
    /// The upper edge of the water; it is drawn from the bottom.
    int surface()
    {
        const Picture column = user.picture(100, 114, 1, 380);
        for (int y = 0; y < 380; ++y)
            if (column.at(0, y) == WATER)
                return y;
        return 380;
    }

    ptn::TemporaryFolder folder{"station-"};
    const std::string root = folder.path().string();
    const std::string source = root + "/station";
    const int port = freePort();
    XDriver user;

  private:
    fs::path before_;
    std::unique_ptr<Program> panel_;
    std::unique_ptr<Program> device_;
};

} // namespace

TEST_F(Station, started_pump_has_the_level_rise)
{
    startPanel();
    switchPump();
    ASSERT_TRUE(waitLamp(RUNNING, "the pump to run"));
    user.clickAt(660, 232); // the other one too: more flows in than out
    const int before = surface();
    EXPECT_LT(before, 380);
    EXPECT_TRUE(user.waitFor([&] { return surface() < before - 2; }, "the level to rise"));
    switchPump();
    EXPECT_TRUE(waitLamp(STOPPED, "the pump to stop"));
}

TEST_F(Station, device_is_operated_turns_grey_when_it_is_lost_and_comes_back)
{
    useDevice();
    startDevice();
    startPanel();
    ASSERT_TRUE(
        user.waitFor([&] { return user.pixel(440, 438) == OPEN; }, "what the device says of its valve"));
    switchPump();
    ASSERT_TRUE(waitLamp(RUNNING, "the pump to run"));

    stopDevice(SIGSTOP); // it hangs
    ASSERT_TRUE(waitLamp(STALE, "the lamp to turn grey"));
    stopDevice(SIGCONT);
    ASSERT_TRUE(waitLamp(RUNNING, "the lamp to come back"));

    endDevice();
    ASSERT_TRUE(waitLamp(STALE, "the lamp to turn grey"));
    startDevice();
    EXPECT_TRUE(waitLamp(STOPPED, "the new device, whose pumps stand"));
}
