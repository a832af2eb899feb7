// What other programs of the display, the display and the system do to the real program.
#include "tests/app/Outside.h"
#include "tests/app/Panel.h"
#include "tests/support/OtherServer.h"

#include <csignal>
#include <cstdlib>
#include <gmock/gmock.h>
#include <random>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>
#include <X11/extensions/scrnsaver.h>
#include <X11/Xlib.h>
#include <X11/Xutil.h>

using namespace tessary;

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace
{

class PanelOutside : public Panel
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        Pattern(MENU).size(300, 200).item(PTRN_BUTN, 10, 10, 90, 40).text("stop").action(16).save(project);
        saveNotice();
    }

    ScreenWindow runMenu()
    {
        run();
        return user.waitForDrawn(MENU);
    }

    void expectToEndItself()
    {
        user.clickAt(50, 25);
        EXPECT_EQ(waitEnd(), 0) << program->output();
    }
};

} // namespace

TEST_F(PanelOutside, ends_with_a_status_and_a_whole_log_when_its_server_is_lost)
{
    OtherServer server;
    runOn(server.name());
    {
        const OtherUser eyes(server.name());
        ASSERT_TRUE(user.waitFor([&] { return eyes.shows(300, 200); }, "the menu"));
    }
    server.end();
    EXPECT_EQ(waitEnd(), 1);
    EXPECT_EQ(logged().back(), "Ｘサーバとの接続が切れた。");
    EXPECT_THAT(program->output(), HasSubstr("panel: The connection to the X server is lost. Start"));
}

TEST_F(PanelOutside, ends_with_a_status_when_another_program_destroys_its_window)
{
    const ScreenWindow menu = runMenu();
    const Client other;
    XDestroyWindow(other, menu.id);
    XSync(other, False);
    EXPECT_EQ(waitEnd(), 1);
    EXPECT_THAT(program->output(), HasSubstr("Start the panel again."));
    EXPECT_THAT(logged(), testing::AnyOf(Contains("ウィンドウが他のプログラムに破棄された。"),
                                         Contains("Ｘサーバがエラーを返した。")));
}

TEST_F(PanelOutside, ends_with_a_status_when_another_program_has_the_server_kill_it)
{
    const ScreenWindow menu = runMenu();
    const Client other;
    XKillClient(other, menu.id);
    XSync(other, False);
    EXPECT_EQ(waitEnd(), 1);
    EXPECT_EQ(logged().back(), "Ｘサーバとの接続が切れた。");
    EXPECT_THAT(program->output(), HasSubstr("panel: The connection to the X server is lost. Start"));
}

TEST_F(PanelOutside, does_not_mind_events_that_another_program_has_made_up)
{
    const ScreenWindow menu = runMenu();
    const Client other;
    std::mt19937 random(1);
    for (int i = 0; i < 20000; ++i) {
        XEvent event{};
        auto* const bytes = reinterpret_cast<unsigned*>(&event);
        for (std::size_t word = 0; word < sizeof event / sizeof *bytes; ++word)
            bytes[word] = static_cast<unsigned>(random());
        event.type = static_cast<int>(2 + random() % 34); // every kind that the core protocol has
        // A message may ask a window to close or to take the keyboard: those are real requests.
        if (event.type == ClientMessage)
            event.xclient.format = 16;
        event.xany.window = random() % 2 ? menu.id : event.xany.window;
        XSendEvent(other, menu.id, False, NoEventMask, &event);
    }
    XSync(other, False);
    expectToEndItself();
    EXPECT_THAT(program->output(), Not(HasSubstr("CRITICAL")));
}

TEST_F(PanelOutside, goes_on_where_no_file_may_grow)
{
    program.emplace("/bin/bash", "bash",
                    std::vector<std::string>{"-c", "ulimit -f 0; exec -a '" + project.root() + "/panel' '" +
                                                       Program::buildFolder() + "/panel' >/dev/null 2>&1"});
    user.waitForDrawn(MENU);
    expectToEndItself();
}

TEST_F(PanelOutside, keeps_the_screen_saver_off)
{
    const Client other;
    int event = 0;
    int error = 0;
    ASSERT_TRUE(XScreenSaverQueryExtension(other, &event, &error));
    const auto saved = [&] {
        XScreenSaverInfo info{};
        XScreenSaverQueryInfo(other, XDefaultRootWindow(other), &info);
        return info.state == ScreenSaverOn;
    };
    runMenu();
    XSetScreenSaver(other, 1, 0, DefaultBlanking, DefaultExposures);
    XSync(other, False);
    // Longer than the screen saver waits: the blinking clock of the server.
    const Time before = [&] {
        XScreenSaverInfo info{};
        XScreenSaverQueryInfo(other, XDefaultRootWindow(other), &info);
        return info.idle;
    }();
    user.waitFor(
        [&] {
            XScreenSaverInfo info{};
            XScreenSaverQueryInfo(other, XDefaultRootWindow(other), &info);
            return info.idle > before + 2500;
        },
        "idle time");
    EXPECT_FALSE(saved());
    EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
    EXPECT_EQ(waitEnd(), 0);
    EXPECT_TRUE(user.waitFor(saved, "the screen saver"));
    XForceScreenSaver(other, ScreenSaverReset);
    XSetScreenSaver(other, 0, 0, DefaultBlanking, DefaultExposures);
    XSync(other, False);
}

TEST_F(PanelOutside, tells_a_service_manager_that_it_is_ready_and_lives)
{
    const std::string path = project.root() + "/notify";
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    path.copy(address.sun_path, sizeof address.sun_path - 1);
    const int manager = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
    ASSERT_EQ(bind(manager, reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
    std::vector<std::string> heard;
    const auto hear = [&] {
        char text[100];
        for (ssize_t size = 0; (size = recv(manager, text, sizeof text, 0)) > 0;)
            heard.emplace_back(text, static_cast<std::size_t>(size));
    };

    setenv("NOTIFY_SOCKET", path.c_str(), 1);
    setenv("WATCHDOG_USEC", "400000", 1);
    runMenu();
    unsetenv("NOTIFY_SOCKET");
    unsetenv("WATCHDOG_USEC");
    user.waitFor(
        [&] {
            hear();
            return std::count(heard.begin(), heard.end(), "WATCHDOG=1") >= 3;
        },
        "three signs of life");
    EXPECT_EQ(heard.front(), "READY=1");
    EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
    EXPECT_EQ(waitEnd(), 0);
    hear();
    EXPECT_EQ(heard.back(), "STOPPING=1");
    close(manager);
}
