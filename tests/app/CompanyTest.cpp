// What the system and other programs do to the real program that is no fault of its files: it is stopped,
// waits for a server that serves another, loses its window manager, has few file descriptors or no rights.
#include "tests/app/Faults.h"
#include "tests/app/Outside.h"
#include "tests/support/WindowManager.h"

#include <chrono>
#include <filesystem>
#include <sys/stat.h>

using testing::HasSubstr;

namespace fs = std::filesystem;

namespace
{

class Company : public FaultyPanel
{
  protected:
    /// The panel by a shell that prepares its surroundings, or by a program that does.
    void runBy(std::vector<std::string> arguments, const std::string& shell,
               const std::string& file = Program::buildFolder() + "/panel")
    {
        arguments.insert(arguments.end(), {"/bin/bash", "-c",
                                           shell + "exec -a '" + project.root() + "/panel' '" + file + "'"});
        const std::string program_ = arguments.front();
        arguments.erase(arguments.begin());
        program.emplace(program_, program_, arguments);
    }

    static void letAllRead(const fs::path& folder)
    {
        fs::permissions(folder, static_cast<fs::perms>(0755));
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            fs::permissions(entry.path(), static_cast<fs::perms>(entry.is_directory() ? 0555 : 0444));
    }
};

} // namespace

TEST_F(Company, may_stop_the_process_for_a_minute)
{
    runMenu();
    EXPECT_EQ(kill(program->pid(), SIGSTOP), 0);
    user.clickAt(50, 25);
    pass(std::chrono::seconds(60));
    EXPECT_EQ(kill(program->pid(), SIGCONT), 0);
    const ScreenWindow child = user.waitForDrawn(CHILD); // what was pressed meanwhile
    user.clickAt(child.x + 50, child.y + 45);
    user.waitFor([&] { return user.windows().size() == 1; }, "the child to go");
    stopByButton();
}

TEST_F(Company, may_have_the_server_to_itself_for_a_quarter_of_a_minute)
{
    runMenu();
    {
        const Client other;
        XGrabServer(other);
        XSync(other, False);
        const auto from = std::chrono::steady_clock::now();
        while (std::chrono::steady_clock::now() - from < std::chrono::seconds(15))
            XSync(other, False); // nobody else is served, the driver of this test included
        XUngrabServer(other);
        XSync(other, False);
    }
    savePlace();
    stopByButton();
}

TEST_F(Company, may_be_a_window_manager_that_dies_and_comes_again)
{
    std::optional<WindowManager> manager;
    manager.emplace();
    manager->waitReady();
    run();
    user.waitForDrawn(MENU);
    for (int round = 0; round < 5; ++round) {
        manager.reset();
        user.waitForDrawn(MENU);
        manager.emplace(); // which finds the window there
        user.waitForDrawn(MENU);
    }
    const ScreenWindow menu = user.waitForDrawn(MENU);
    EXPECT_FALSE(program->status()) << program->output();
    user.clickAt(menu.x + 150, menu.y + 25);
    EXPECT_EQ(waitEnd(), 0) << program->output();
}

TEST_F(Company, may_be_another_panel_with_the_same_profile)
{
    // Both remember the place of the same window, again and again; in edition 1 nobody keeps them from it.
    runMenu();
    Program second("panel", project.root() + "/panel");
    user.waitFor([&] { return user.windows().size() == 2; }, "both menus");
    for (int round = 0; round < 10; ++round) {
        user.clickAt(50, 25); // the one that lies on top
        const ScreenWindow child = user.waitForDrawn(CHILD);
        user.clickAt(child.x + 50, child.y + 45);
        user.waitFor([&] { return user.windows().size() == 2; }, "the child to go");
        const std::string profile = readFile(project.profile());
        EXPECT_THAT(profile, HasSubstr("\n[WINDOW]\nWINDOW0"));
        EXPECT_EQ(std::count(profile.begin(), profile.end(), '['), 5) << profile;
    }
    EXPECT_EQ(kill(program->pid(), SIGTERM), 0);
    EXPECT_EQ(kill(second.pid(), SIGTERM), 0);
    EXPECT_EQ(waitEnd(), 0) << program->output();
    user.waitFor([&] { return second.status().has_value(); }, "the end of the second one");
    EXPECT_EQ(second.status(), 0) << second.output();
    for (const auto& entry : fs::directory_iterator(project.root()))
        EXPECT_NE(entry.path().extension(), ".new") << entry.path();
    const auto lines = logged();
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "システム停止"), 2);
}

TEST_F(Company, may_leave_few_file_descriptors)
{
    for (const char* most : {"12", "8", "6"}) {
        runBy({"/usr/bin/env"}, std::string("ulimit -n ") + most + "; ");
        EXPECT_EQ(waitEnd(), 1) << program->output();
        EXPECT_THAT(program->output(),
                    HasSubstr(std::string("This process may open only ") + most + " files"));
    }
    for (const char* limit : {"-n 24", "-S -n 12"}) { // the second one may be raised by the process itself
        runBy({"/usr/bin/env"}, std::string("ulimit ") + limit + "; ");
        user.waitForDrawn(MENU);
        savePlace();
        stopByButton();
    }
    EXPECT_THAT(readFile(project.profile()), HasSubstr("\n[WINDOW]\nWINDOW0"));
}

TEST_F(Company, may_be_files_that_belong_to_others)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "only root may become somebody else";
    letAllRead(project.root());
    const std::string file = project.root() + "/panel"; // the build may lie where only its owner comes to
    fs::copy_file(Program::buildFolder() + "/panel", file);
    fs::permissions(file, static_cast<fs::perms>(0555));
    const std::string before = readFile(project.profile());
    runBy({"/usr/bin/setpriv", "--reuid=65534", "--regid=65534", "--clear-groups"}, "", file);
    user.waitForDrawn(MENU);
    savePlace();
    waitError();
    EXPECT_EQ(readFile(project.profile()), before);
    EXPECT_THAT(logged(), testing::IsEmpty());
    stopByButton();
    fs::permissions(project.root(), fs::perms::owner_all);
}
