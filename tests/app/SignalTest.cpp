// Signals end the real program in good order, whatever the operator is doing.
#include "tests/app/Panel.h"

#include <csignal>
#include <gmock/gmock.h>

using namespace tessary;

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

namespace
{

const char* const CHILD = "子ウィンドウ (1)";

/// The parameter is the signal.
class PanelSignal : public Panel, public testing::WithParamInterface<int>
{
  protected:
    void SetUp() override
    {
        Panel::SetUp();
        rememberedChild(CHILD).header(HEDR_MODELESS, 1).save(project);
        saveNotice("60");
        Pattern(MENU)
            .size(300, 200)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .text("child")
            .action(5, CHILD)
            .item(PTRN_BUTN, 110, 10, 190, 40)
            .text("stop")
            .action(16)
            .item(PTRN_NUMR, 10, 100, 50, 116)
            .code("DATA", 150)
            .parm(FIELD_KEYENTRY, 1)
            .parm(TEXT_BACKED, 1)
            .save(project);
    }

    void runMenu()
    {
        run();
        user.waitForDrawn(MENU);
    }

    void send() { EXPECT_EQ(kill(program->pid(), GetParam()), 0); }

    void expectGoodEnd()
    {
        EXPECT_EQ(waitEnd(), 0) << program->output();
        EXPECT_EQ(logged().back(), "システム停止");
        EXPECT_THAT(program->output(), Not(HasSubstr("CRITICAL")));
        EXPECT_THAT(program->output(), Not(HasSubstr("WARNING")));
    }
};

std::string signalName(const testing::TestParamInfo<int>& info)
{
    return info.param == SIGTERM ? "SIGTERM" : info.param == SIGINT ? "SIGINT" : "SIGHUP";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Signals, PanelSignal, testing::Values(SIGTERM, SIGINT, SIGHUP), signalName);

TEST_P(PanelSignal, saves_the_places_of_the_windows_and_ends_the_log_without_a_notice)
{
    runMenu();
    user.clickAt(50, 25);
    const ScreenWindow window = user.waitForDrawn(CHILD);
    EXPECT_THAT(readFile(project.profile()), Not(HasSubstr("WINDOW0")));
    send();
    expectGoodEnd();
    EXPECT_THAT(readFile(project.profile()),
                HasSubstr("=" + std::to_string(window.x) + "," + std::to_string(window.y) + "\n"));
    EXPECT_THAT(logged(), Not(Contains("システム停止要求")));
}

TEST_P(PanelSignal, discards_an_entry_in_progress)
{
    runMenu();
    const std::uint32_t before = user.pixel(12, 102);
    user.clickAt(15, 105);
    user.waitFor([&] { return user.pixel(12, 102) != before; }, "the field in edit");
    user.type("4");
    send();
    expectGoodEnd();
}

TEST_P(PanelSignal, does_not_wait_for_the_stop_countdown)
{
    runMenu();
    user.clickAt(150, 25);
    const ScreenWindow window = user.waitForDrawn(NOTICE);
    send();
    expectGoodEnd();
    EXPECT_THAT(readFile(project.profile()),
                HasSubstr("=" + std::to_string(window.x) + "," + std::to_string(window.y) + "\n"));
}

TEST_P(PanelSignal, ends_the_box_that_refuses_a_start)
{
    project.unset("TESSARY", "PROJECT").set("TESSARY", "EDITION", "2");
    run();
    user.waitForWindow("起動不可");
    send();
    EXPECT_EQ(waitEnd(), 0) << program->output();
}
