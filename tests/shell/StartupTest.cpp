// Start, end and tick of the framework.
#include "shell/Startup.h"

#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "dialogs/PtrnMente.h"
#include "draw/Resource.h"
#include "log/Clock.h"
#include "log/Logfile.h"
#include "tests/support/Screen.h"
#include "window/Request.h"

#include <filesystem>
#include <gmock/gmock.h>

using testing::ElementsAre;

namespace
{

class StartUp : public Screen
{
  protected:
    StartUp()
    {
        project.code("CLOCK", 10);
        for (int no = 0; no <= 10; no++)
            project.flag(no, 0);
        know(Pattern("first").size(200, 100));
        know(Pattern("second").size(200, 100));
    }

    /// Starts as the program of that path would.
    int startAs(std::string program)
    {
        Platform = 0;
        ProfName[0] = ProjPath[0] = '\0';
        return TessaryInit(program.data());
    }
};

} // namespace

TEST_F(StartUp, finds_the_profile_beside_the_program_whatever_its_extensions)
{
    for (const char* program : {"/panel", "/panel.bin", "/panel.tar.gz"}) {
        ASSERT_EQ(startAs(project.root() + program), 1);
        EXPECT_EQ(ProfName, project.profile());
        EXPECT_EQ(ProjPath, project.folder());
        EXPECT_EQ(Platform, 3);
        TessaryExit();
    }
}

TEST_F(StartUp, finds_the_profile_of_a_program_without_folder_in_the_working_directory)
{
    ASSERT_EQ(startAs("panel"), 1);
    EXPECT_STREQ(ProfName, "./panel.ini");
    TessaryExit();
}

TEST_F(StartUp, logs_its_start_first_and_its_end_last)
{
    ASSERT_EQ(startAs(project.root() + "/panel"), 1);
    LogfileWrite("TEST", "between", nullptr, 0);
    TessaryExit();
    EXPECT_THAT(project.messages(), ElementsAre("システム起動", "between", "システム停止"));
    const auto log = project.log();
    for (const LogLine& line : {log.front(), log.back()}) {
        EXPECT_EQ(line.file, "");
        EXPECT_EQ(line.mesg1, "");
    }
}

TEST_F(StartUp, succeeds_without_a_code_table)
{
    std::filesystem::remove(project.folder() + "/PtrnCode");
    EXPECT_EQ(startAs(project.root() + "/panel"), 1);
    EXPECT_EQ(PtrnDataNo, 0);
    TessaryExit();
}

TEST_F(StartUp, ends_with_the_store_freed_and_the_log_closed)
{
    ASSERT_EQ(startAs(project.root() + "/panel"), 1);
    TessaryExit();
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_EQ(LogBuff, nullptr);
}

TEST_F(StartUp, ends_without_deleting_the_windows_that_were_closed)
{
    ASSERT_EQ(startAs(project.root() + "/panel"), 1);
    CPtrnDisp* closed = openTop("first");
    openTop("second");
    TessaryExit();
    EXPECT_STREQ(closed->PtrnName, "first");
    EXPECT_EQ(closed->Widget, nullptr);
}

TEST_F(StartUp, tick_writes_the_clock_with_sunday_as_day_0)
{
    start();
    for (int no = 1; no <= 7; no++)
        Set_iData(no, -1, nullptr, 0);
    TessaryTimr();
    const int clock[] = {LocalTime.tm_year, LocalTime.tm_mon, LocalTime.tm_mday, LocalTime.tm_wday,
                         LocalTime.tm_hour, LocalTime.tm_min, LocalTime.tm_sec};
    for (int i = 0; i < 7; i++)
        EXPECT_EQ(Get_iData(DTNO_SYSCALN + i, nullptr, 0), clock[i]) << i;
    EXPECT_EQ(clock[3], (CalcDate(clock[0], clock[1], clock[2]) + 5) % 7) << "1 January 2000 was a Saturday";
}

TEST_F(StartUp, tick_looks_at_the_log_every_tenth_time)
{
    start();
    int looks = 0;
    for (int tick = 0; tick < 40; tick++) {
        LogDay = 0;
        TessaryTimr();
        looks += LogDay != 0;
    }
    EXPECT_EQ(looks, 4);
}

TEST_F(StartUp, tick_before_the_start_is_for_the_application_alone)
{
    int ticks = 0;
    TestApplication::tick = [&ticks] { ticks++; };
    LogfileInit();
    EXPECT_EQ(Timer_Event(nullptr), 1);
    EXPECT_EQ(ticks, 1);
    EXPECT_TRUE(project.log().empty());
    LogfileExit();
}

TEST_F(StartUp, tick_goes_from_the_application_to_its_window_and_then_to_the_system_window)
{
    start();
    openTop("first");
    openSystem("second");
    std::vector<std::string> order;
    TestApplication::tick = [&order] { order.push_back("application"); };
    hooks.timr = [&order](CPtrnDisp& wnd) { order.push_back(wnd.PtrnName); };
    EXPECT_EQ(Timer_Event(nullptr), 1);
    EXPECT_THAT(order, ElementsAre("application", "first", "second"));
}

namespace
{

/// A program from its start to its end, with everything in between that leaves something behind.
class WholeRun : public StartUp
{
  protected:
    WholeRun()
    {
        project.set("COLOR", "CURSOR_FG", "1,2,3").set("COLOR", "CURSOR_BG", "4,5,6");
        project.set("TESSARY", "WAITTIMER", "60");
        know(Pattern("shown").size(200, 100).item(PTRN_BMAP, 10, 10, 40, 40).text("missing.ppm"));
        TessaryExit(); // ticks of the tests before
    }

    /// @return what it has logged, and after which of its ticks the log's timer ran
    std::vector<std::string> run()
    {
        EXPECT_EQ(startAs(project.root() + "/panel"), 1);
        openTop("shown");
        openChild(AppliWnd, 1, "second", 500, 300);
        SlctCode = LineNo1 = LineNo2 = 3;
        openSystem("first");
        std::vector<std::string> seen;
        for (int number = 1; number <= 17; number++) {
            LogDay = 0;
            tick();
            if (LogDay != 0)
                seen.push_back("tick " + std::to_string(number));
        }
        tessary::SetEdition(tessary::LATEST_EDITION);
        ReqSystemStop("stop.cpp", 1);
        TessaryExit();
        user.settle();
        for (const std::string& message : project.messages())
            seen.push_back(message);
        project.clearLog();
        return seen;
    }
};

} // namespace

TEST_F(WholeRun, is_the_same_the_second_time)
{
    const std::vector<std::string> first = run();
    EXPECT_THAT(first, ElementsAre("tick 10", "システム起動", "ビットマップの読込みに失敗 [missing.ppm]",
                                   "システム停止要求", "システム停止"));
    EXPECT_EQ(run(), first);
}

TEST_F(WholeRun, leaves_nothing_behind)
{
    run();
    EXPECT_TRUE(user.windows().empty());
    EXPECT_EQ(AppliWnd, nullptr);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_EQ(SystemWnd, 0);
    EXPECT_EQ(WaitTimer, 0);
    EXPECT_EQ(Platform, 0);
    EXPECT_EQ(tessary::Edition(), 1);
    EXPECT_STREQ(ProfName, "");
    EXPECT_STREQ(ProjPath, "");
    EXPECT_EQ(Language, 0);
    EXPECT_EQ(DispSizeX, 0);
    EXPECT_EQ(DrawFont[0], nullptr);
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_EQ(LogBuff, nullptr);
    EXPECT_EQ(SlctCode, 0);
    EXPECT_EQ(LineNo1, 0);
    EXPECT_EQ(LineNo2, 0);
    EXPECT_EQ(SystemStop, 1) << "whoever asked for the stop may still be asked about";
}

TEST_F(WholeRun, calls_no_exit_hook_when_it_ends_with_windows_open)
{
    run();
    EXPECT_THAT(callsOf({"exit"}), ElementsAre());
    EXPECT_EQ(RecordingWnd::alive.size(), 3u) << "and the objects stay";
}
