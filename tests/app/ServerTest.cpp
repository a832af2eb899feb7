// What an X server does to the real program: it is slow, serves nobody for a while, or is started anew.
#include "tests/app/Panel.h"
#include "tests/support/OtherServer.h"
#include "tests/support/SlowDisplay.h"

#include <gmock/gmock.h>

using namespace tessary;

namespace
{

class PanelServer : public Panel
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        saveNotice();
        Pattern(CHILD)
            .size(200, 120)
            .header(HEDR_KIND, 2)
            .header(HEDR_LEFT, LEFT)
            .item(PTRN_BUTN, 10, 30, 90, 60)
            .text("close")
            .action(9)
            .save(project);
        Pattern(MENU)
            .size(300, 200)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .text("stop")
            .action(16)
            .item(PTRN_BUTN, 110, 10, 190, 40)
            .text("child")
            .action(5, CHILD)
            .save(project);
    }

    void waitForMenu(const OtherUser& there)
    {
        user.waitFor([&] { return there.shows(300, 200); }, "the menu");
        // What is behind the buttons, and a button: all is drawn at once.
        user.waitFor(
            [&] {
                const Picture seen = there.picture(0, 0, 300, 200);
                return seen.at(250, 100) == color(HEDR_BODY_COLOR) &&
                       seen.at(50, 25) != color(HEDR_BODY_COLOR);
            },
            "the menu to be drawn");
    }

    void openChild(const OtherUser& there)
    {
        there.click(150, 25);
        user.waitFor([&] { return there.shows(200, 120); }, "the child");
    }

    void closeChild(const OtherUser& there)
    {
        there.click(LEFT + 50, 45);
        user.waitFor([&] { return !there.shows(200, 120); }, "the child to go");
    }

    void stopByButton(const OtherUser& there)
    {
        there.click(50, 25);
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_EQ(logged().back(), "システム停止");
        EXPECT_EQ(program->output(), "");
    }

    static constexpr const char* CHILD = "子ウィンドウ (1)";
    static constexpr int LEFT = 400; // of the child
};

} // namespace

TEST_F(PanelServer, may_answer_late_and_take_little_at_a_time)
{
    const OtherServer server;
    const SlowDisplay slow(server.name(), std::chrono::milliseconds(20), 2048);
    ASSERT_NE(slow.name(), "");
    const OtherUser there(server.name()); // sees and clicks as quickly as ever
    runOn(slow.name());
    waitForMenu(there);
    openChild(there);
    closeChild(there);
    stopByButton(there);
}

TEST_F(PanelServer, may_serve_nobody_for_a_while)
{
    const OtherServer server;
    const OtherUser there(server.name());
    runOn(server.name());
    waitForMenu(there);
    server.stop();
    pass(std::chrono::seconds(5)); // many ticks
    EXPECT_FALSE(program->status()) << program->output();
    server.goOn();
    openChild(there);
    closeChild(there);
    stopByButton(there);
}

TEST_F(PanelServer, may_be_started_anew_with_a_panel_that_is_started_anew)
{
    std::string name;
    for (int round = 0; round < 3; ++round) {
        OtherServer server("1280x1024x24", name);
        ASSERT_NE(server.name(), "");
        name = server.name();
        std::optional<OtherUser> there(name);
        runOn(name);
        waitForMenu(*there);
        openChild(*there);
        closeChild(*there);
        if (round == 2) {
            stopByButton(*there);
        } else {
            there.reset(); // a client whose server goes is ended by its library
            server.end();
            EXPECT_EQ(waitEnd(), 1);
            EXPECT_EQ(logged().back(), "Ｘサーバとの接続が切れた。");
        }
    }
}
