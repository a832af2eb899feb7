// The files of the project go while the real program runs.
#include "tests/app/Panel.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <sys/stat.h>
#include <X11/keysym.h>

using namespace tessary;

namespace fs = std::filesystem;

using testing::Contains;
using testing::HasSubstr;

namespace
{

class VanishedProject : public Panel
{
  protected:
    static constexpr const char* CHILD = "子ウィンドウ (1)";
    static constexpr const char* BOX = "画面異常";

    void SetUp() override
    {
        Panel::SetUp();
        saveNotice();
        saveClosableChild(CHILD);
        Pattern(OTHER).size(320, 210).item(PTRN_BUTN, 10, 10, 90, 40).text("stop").action(16).save(project);
        Pattern(MENU)
            .size(500, 300)
            .item(PTRN_BUTN, 10, 10, 90, 40)
            .text("child")
            .action(5, CHILD)
            .item(PTRN_BUTN, 110, 10, 190, 40)
            .text("system")
            .action(7, NOTICE)
            .item(PTRN_BUTN, 210, 10, 290, 40)
            .text("top")
            .action(8, OTHER)
            .item(PTRN_BUTN, 310, 10, 390, 40)
            .text("stop")
            .action(16)
            .save(project);
        run();
        user.waitForDrawn(MENU);
    }

    void removeFolder() { fs::rename(project.folder(), project.root() + "/gone"); }
    void bringFolderBack() { fs::rename(project.root() + "/gone", project.folder()); }

    void press(int button) { user.clickAt(50 + 100 * button, 25); }
    enum { CHILD_BUTTON, SYSTEM_BUTTON, TOP_BUTTON, STOP_BUTTON };

    /// Answers the box: the first button is at its left.
    void answer(bool yes)
    {
        const ScreenWindow box = user.waitForWindow(BOX);
        if (yes) {
            user.focus(box.id);
            user.key(XK_Return); // presses the first button
            return;
        }
        user.requestClose(box.id);
        user.waitFor([&] { return user.windows().size() == 1; }, "the box to go");
    }

    void expectTold(const char* screen)
    {
        EXPECT_THAT(logged(), Contains(std::string("パターンを表示できない  [") + screen + "]"));
        EXPECT_THAT(program->output(),
                    HasSubstr("can not be shown: its pattern in '" + project.folder() + "'"));
    }
};

} // namespace

TEST_F(VanishedProject, does_not_keep_the_panel_from_being_stopped)
{
    removeFolder();
    press(STOP_BUTTON);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(VanishedProject, leaves_the_screen_usable_when_another_one_can_not_be_shown_over_it)
{
    removeFolder();
    for (const auto& [button, screen] : {std::pair(CHILD_BUTTON, CHILD), std::pair(SYSTEM_BUTTON, NOTICE)}) {
        press(button);
        answer(false);
        expectTold(screen);
    }
    bringFolderBack();
    press(CHILD_BUTTON);
    user.waitForDrawn(CHILD);
    EXPECT_FALSE(program->status());
}

TEST_F(VanishedProject, can_be_left_from_the_box_that_tells_of_it)
{
    for (const int button : {CHILD_BUTTON, SYSTEM_BUTTON}) {
        if (program->status()) {
            bringFolderBack();
            run();
            user.waitForDrawn(MENU);
        }
        removeFolder();
        press(button);
        answer(true);
        EXPECT_EQ(waitEnd(), 1) << program->output();
        EXPECT_EQ(logged().back(), "システム停止");
    }
}

TEST_F(VanishedProject, goes_back_to_the_first_screen_when_only_another_one_is_missing)
{
    fs::remove(project.folder() + "/" + OTHER + ".ptn");
    press(TOP_BUTTON);
    answer(false);
    expectTold(OTHER);
    user.waitForDrawn(MENU);
    press(STOP_BUTTON);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}

TEST_F(VanishedProject, ends_the_program_when_no_screen_is_left)
{
    removeFolder();
    press(TOP_BUTTON);
    user.requestClose(user.waitForWindow(BOX).id);
    EXPECT_EQ(waitEnd(), 1) << program->output();
    expectTold(OTHER);
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(VanishedProject, may_have_a_pipe_or_a_folder_in_the_place_of_a_screen)
{
    const std::string file = project.folder() + "/" + CHILD + ".ptn";
    for (const bool pipe : {true, false}) {
        fs::remove(file);
        if (pipe)
            ASSERT_EQ(mkfifo(file.c_str(), 0600), 0);
        else
            fs::create_directory(file);
        press(CHILD_BUTTON);
        answer(false);
        expectTold(CHILD);
    }
}

TEST_F(VanishedProject, keeps_the_place_of_a_window_whose_file_is_away)
{
    press(CHILD_BUTTON);
    const ScreenWindow child = user.waitForDrawn(CHILD);
    user.clickAt(child.x + 50, child.y + 45);
    user.waitFor([&] { return user.windows().size() == 1; }, "the child to go");
    const std::string profile = readFile(project.profile());
    EXPECT_THAT(profile, HasSubstr("=" + std::to_string(child.x) + "," + std::to_string(child.y) + "\n"));
    removeFolder();
    press(CHILD_BUTTON);
    answer(false);
    EXPECT_EQ(readFile(project.profile()), profile);
}
