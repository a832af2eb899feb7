// "ptn build" that is killed, runs twice at a time, or finds links in its way.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <csignal>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

constexpr const char* MARK = ".ptn-unfinished";
constexpr int SCREENS = 12;

/// A project of many screens, all of which say the same number.
class InterruptedBuild : public testing::Test
{
  protected:
    InterruptedBuild() { sources.base(); }

    void write(int number)
    {
        for (int screen = 0; screen < SCREENS; ++screen)
            sources.write("screens/s" + std::to_string(screen) + ".yaml", "name: s" + std::to_string(screen) +
                                                                              "\ntitle: number " +
                                                                              std::to_string(number) + "\n");
    }

    std::string screenOf(int screen) const
    {
        return readFile(sources.output() + "/s" + std::to_string(screen) + ".ptn");
    }

    /// How many of the screens say the number.
    int countOf(int number) const
    {
        int count = 0;
        for (int screen = 0; screen < SCREENS; ++screen)
            count += screenOf(screen).find("number " + std::to_string(number)) != std::string::npos ? 1 : 0;
        return count;
    }

    std::vector<std::string> hidden() const
    {
        std::vector<std::string> names;
        for (const auto& entry : fs::directory_iterator(sources.output()))
            if (entry.path().filename().string().rfind(".ptn-", 0) == 0)
                names.push_back(entry.path().filename().string());
        return names;
    }

    /// Runs a build that is killed after some time. @return whether it came to its end before
    bool buildAndKill(int microseconds) const
    {
        const pid_t child = fork();
        if (child == 0) {
            const std::string ptn = Program::buildFolder() + "/ptn";
            const std::string from = sources.root() + "/src";
            execl(ptn.c_str(), "ptn", "build", "-q", from.c_str(), sources.output().c_str(),
                  static_cast<char*>(nullptr));
            _exit(127);
        }
        usleep(static_cast<useconds_t>(microseconds)); // the moment of the kill is what is tried
        kill(child, SIGKILL);
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status);
    }

    Sources sources;
};

TEST_F(InterruptedBuild, leaves_the_old_project_or_the_new_one_or_says_that_it_is_unfinished)
{
    write(0);
    ASSERT_EQ(sources.build().status, 0);
    int number = 0;
    int wait = 1000;
    for (int round = 0; round < 40; ++round) {
        write(number + 1);
        const bool ended = buildAndKill(wait);
        // Towards the moments in which the files are written.
        wait = ended ? wait * 7 / 10 : wait * 12 / 10;
        const int now = countOf(number + 1);
        if (now != 0 && now != SCREENS) {
            EXPECT_TRUE(fs::exists(sources.output() + "/" + MARK)) << now;
        }
        if (ended) {
            EXPECT_EQ(now, SCREENS);
        }
        ASSERT_EQ(sources.build().status, 0);
        EXPECT_EQ(countOf(++number), SCREENS);
        EXPECT_THAT(hidden(), testing::UnorderedElementsAre(".ptn-files"));
    }
}

TEST_F(InterruptedBuild, is_made_whole_by_the_next_one_which_also_removes_what_it_had_begun)
{
    write(0);
    ASSERT_EQ(sources.build().status, 0);
    writeFile(sources.output() + "/begun.ptn", "by the build that was killed");
    writeFile(sources.output() + "/" + MARK, "s0.ptn\nbegun.ptn\n");
    fs::create_directories(sources.output() + "/.ptn-Ab12Cd");
    writeFile(sources.output() + "/.ptn-Ab12Cd/0", "left");
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_FALSE(fs::exists(sources.output() + "/begun.ptn"));
    EXPECT_THAT(hidden(), testing::UnorderedElementsAre(".ptn-files"));
}

TEST_F(InterruptedBuild, beside_another_gives_one_of_both_projects)
{
    write(0);
    ASSERT_EQ(sources.build().status, 0);
    Sources other;
    other.base();
    for (int screen = 0; screen < SCREENS; ++screen)
        other.write("screens/s" + std::to_string(screen) + ".yaml",
                    "name: s" + std::to_string(screen) + "\ntitle: number 999\n");
    for (int round = 1; round <= 10; ++round) {
        write(round);
        const pid_t child = fork();
        if (child == 0)
            _exit(other.run("build -q src " + sources.output()).status);
        EXPECT_EQ(sources.build().status, 0);
        int status = 0;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
        EXPECT_EQ(std::max(countOf(round), countOf(999)), SCREENS);
    }
}

TEST_F(InterruptedBuild, writes_and_deletes_nothing_through_links)
{
    write(0);
    sources.write("bitmaps/x.png", "X");
    ASSERT_EQ(sources.build().status, 0);
    const std::string elsewhere = sources.root() + "/elsewhere";
    fs::create_directories(elsewhere);
    writeFile(elsewhere + "/x.png", "not ours");
    fs::remove_all(sources.output() + "/Bitmap");
    fs::create_directory_symlink(elsewhere, sources.output() + "/Bitmap");

    const PtnResult refused = sources.build();
    EXPECT_EQ(refused.status, 1);
    EXPECT_THAT(refused.err, HasSubstr(sources.output() + "/Bitmap/x.png: "));
    EXPECT_EQ(readFile(elsewhere + "/x.png"), "not ours");

    fs::remove(sources.root() + "/src/bitmaps/x.png"); // whose picture is old now
    EXPECT_EQ(sources.build().status, 0);
    EXPECT_EQ(readFile(elsewhere + "/x.png"), "not ours");

    writeFile(elsewhere + "/precious", "not ours");
    fs::remove(sources.output() + "/s0.ptn");
    fs::create_symlink(elsewhere + "/precious", sources.output() + "/s0.ptn");
    EXPECT_EQ(sources.build().status, 0);
    EXPECT_EQ(readFile(elsewhere + "/precious"), "not ours");
    EXPECT_FALSE(fs::is_symlink(sources.output() + "/s0.ptn"));
}

} // namespace
