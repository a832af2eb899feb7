// The folder of the log is missing, goes, or becomes something else while the real program runs.
#include "tests/app/Faults.h"

#include <filesystem>
#include <sys/stat.h>

namespace fs = std::filesystem;

namespace
{

class LogFolder : public FaultyPanel
{
  protected:
    bool hasLog() const
    {
        return fs::is_directory(project.logFolder()) && !fs::is_empty(project.logFolder());
    }
};

} // namespace

TEST_F(LogFolder, may_be_missing)
{
    fs::remove_all(project.logFolder());
    runMenu();
    savePlace();
    EXPECT_FALSE(fs::exists(project.logFolder())) << "nobody has asked for it";
    stopByButton();
}

TEST_F(LogFolder, may_go_and_come_back)
{
    runMenu();
    ASSERT_TRUE(hasLog());
    fs::remove_all(project.logFolder());
    savePlace();
    fs::create_directory(project.logFolder());
    stopByButton();
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(LogFolder, may_become_a_file_a_pipe_or_a_link_into_the_void)
{
    runMenu();
    fs::remove_all(project.logFolder());
    writeFile(project.logFolder(), "a file");
    savePlace();
    EXPECT_EQ(readFile(project.logFolder()), "a file");
    fs::remove(project.logFolder());
    ASSERT_EQ(mkfifo(project.logFolder().c_str(), 0600), 0);
    savePlace();
    fs::remove(project.logFolder());
    fs::create_symlink("nowhere", project.logFolder());
    savePlace();
    fs::remove(project.logFolder());
    fs::create_directory(project.logFolder());
    stopByButton();
    EXPECT_EQ(logged().back(), "システム停止");
}

TEST_F(LogFolder, may_hold_a_pipe_or_a_folder_of_the_day_s_name)
{
    runMenu();
    ASSERT_TRUE(hasLog());
    const fs::path today = fs::directory_iterator(project.logFolder())->path();
    fs::remove(today);
    ASSERT_EQ(mkfifo(today.c_str(), 0600), 0);
    savePlace();
    fs::remove(today);
    fs::create_directory(today);
    savePlace();
    fs::remove(today);
    stopByButton();
    EXPECT_EQ(logged().back(), "システム停止");
}
