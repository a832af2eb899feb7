// Files that are replaced as a whole.
#include "config/Replacement.h"

#include "config/FileCntl.h"
#include "tests/config/FileFixture.h"

#include <csignal>
#include <fcntl.h>
#include <random>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

using tessary::Replacement;

namespace
{

class AReplacedFile : public FileFixture
{
  protected:
    std::vector<std::string> names() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(dir()))
            found.push_back(entry.path().filename());
        std::sort(found.begin(), found.end());
        return found;
    }
    mode_t mode(const std::string& name) const
    {
        struct stat status = {};
        EXPECT_EQ(stat(path(name).c_str(), &status), 0);
        return status.st_mode & 07777U;
    }
    int save(const char* name, const std::string& bytes) const
    {
        return FileWrite(dir(), name, bytes.data(), static_cast<int>(bytes.size()), 0, nullptr, 0);
    }
};

} // namespace

TEST_F(AReplacedFile, keeps_its_mode_and_its_tail_and_leaves_nothing_beside_it)
{
    write("data", "abcdefgh");
    chmod(path("data").c_str(), 0640);
    EXPECT_EQ(save("data", "XYZ"), 1);
    EXPECT_EQ(read("data"), "XYZdefgh");
    EXPECT_EQ(mode("data"), 0640U);
    EXPECT_EQ(names(), std::vector<std::string>{"data"});
}

TEST_F(AReplacedFile, has_the_process_s_mode_when_it_is_new)
{
    const mode_t before = umask(027);
    EXPECT_EQ(save("data", "abc"), 1);
    umask(before);
    EXPECT_EQ(mode("data"), 0640U);
}

TEST_F(AReplacedFile, is_the_one_that_a_link_points_to)
{
    std::filesystem::create_directory(path("there"));
    write("there/data", "abc");
    std::filesystem::create_symlink("there/data", path("link"));
    std::filesystem::create_symlink("there/new", path("dangling"));
    EXPECT_EQ(save("link", "XY"), 1);
    EXPECT_EQ(save("dangling", "new"), 1);
    EXPECT_TRUE(std::filesystem::is_symlink(path("link")));
    EXPECT_TRUE(std::filesystem::is_symlink(path("dangling")));
    EXPECT_EQ(read("there/data"), "XYc");
    EXPECT_EQ(read("there/new"), "new");
}

TEST_F(AReplacedFile, is_refused_where_it_is_no_regular_file)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    const int reader = open(path("pipe").c_str(), O_RDONLY | O_NONBLOCK);
    EXPECT_EQ(save("pipe", "x"), -1);
    char byte = 0;
    EXPECT_LE(::read(reader, &byte, 1), 0) << "nothing came through";
    close(reader);
    EXPECT_TRUE(std::filesystem::is_fifo(path("pipe")));
}

TEST_F(AReplacedFile, is_the_old_one_until_it_is_committed)
{
    write("data", "old bytes");
    {
        Replacement replacement;
        ASSERT_TRUE(replacement.begin(path("data")));
        writeFile(replacement.path(), "new");
        EXPECT_EQ(read("data"), "old bytes");
    }
    EXPECT_EQ(read("data"), "old bytes");
    EXPECT_EQ(names(), std::vector<std::string>{"data"});
    Replacement replacement;
    ASSERT_TRUE(replacement.begin(path("data")));
    EXPECT_EQ(readFile(replacement.path()), "old bytes");
    writeFile(replacement.path(), "new");
    EXPECT_TRUE(replacement.commit());
    EXPECT_EQ(read("data"), "new");
}

TEST_F(AReplacedFile, takes_over_what_a_write_that_was_killed_left)
{
    write("data", "old");
    write("data.new", "half of a write, much longer than the other");
    EXPECT_EQ(save("data", "new"), 1);
    EXPECT_EQ(read("data"), "new");
    EXPECT_EQ(names(), std::vector<std::string>{"data"});
}

TEST_F(AReplacedFile, is_old_or_new_however_often_its_writer_is_killed)
{
    const std::string old(200000, 'o');
    const std::string fresh(200000, 'n');
    write("data", old);
    int finished = 0;
    for (int round = 0; round < 60; round++) {
        const pid_t writer = fork();
        if (writer == 0) {
            for (;;)
                for (const std::string& bytes : {fresh, old})
                    save("data", bytes);
        }
        usleep(static_cast<useconds_t>(200 + round * 97)); // wherever it may be then
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const std::string found = read("data");
        ASSERT_TRUE(found == old || found == fresh) << "round " << round << ", " << found.size() << " bytes";
        finished += found == fresh;
    }
    RecordProperty("finished", finished);
}

TEST_F(AReplacedFile, survives_300_kills_at_random_moments)
{
    std::mt19937 random(1);
    const std::string bytes[] = {std::string(300, 'o'), std::string(20000, 'n')};
    write("data", bytes[0]);
    int changed = 0;
    std::string before = bytes[0];
    for (int round = 0; round < 300; round++) {
        const pid_t writer = fork();
        if (writer == 0) {
            for (int i = 0;; i++)
                save("data", bytes[i % 2]);
        }
        usleep(static_cast<useconds_t>(random() % 25000)); // the moment of the kill is what is tried
        kill(writer, SIGKILL);
        waitpid(writer, nullptr, 0);
        const std::string found = read("data");
        const std::string tailed =
            bytes[0] + bytes[1].substr(bytes[0].size()); // the short one over the long one
        ASSERT_TRUE(found == bytes[0] || found == bytes[1] || found == tailed) << "round " << round;
        changed += found != before;
        before = found;
    }
    EXPECT_GT(changed, 10) << "the writers were killed before they had written anything";
}

TEST_F(AReplacedFile, is_whole_when_two_programs_write_it_at_once)
{
    const std::string first(100000, '1');
    const std::string second(100000, '2');
    write("data", first);
    const pid_t other = fork();
    if (other == 0) {
        for (int i = 0; i < 50; i++)
            save("data", second);
        _exit(0);
    }
    for (int i = 0; i < 50; i++) {
        EXPECT_EQ(save("data", first), 1);
        const std::string found = read("data");
        ASSERT_TRUE(found == first || found == second);
    }
    waitpid(other, nullptr, 0);
    EXPECT_EQ(names(), std::vector<std::string>{"data"});
}

TEST_F(AReplacedFile, is_written_in_place_where_its_folder_takes_no_other)
{
    if (geteuid() == 0) {
        // Root may do everything; a name that has no room for a longer one stands for the refusal.
        const std::string name(255, 'x');
        write(name, "abc");
        EXPECT_EQ(save(name.c_str(), "XY"), 1);
        EXPECT_EQ(read(name), "XYc");
        return;
    }
    write("data", "abc");
    chmod(dir(), 0555);
    EXPECT_EQ(save("data", "XY"), 1);
    chmod(dir(), 0755);
    EXPECT_EQ(read("data"), "XYc");
}

TEST_F(AReplacedFile, is_not_known_when_it_is_there_and_can_not_be_read)
{
    using tessary::IsUnreadable;
    write("data", "abc");
    write("empty", "");
    std::filesystem::create_symlink("/proc/self/mem", path("broken")); // whose first byte fails to be read
    std::filesystem::create_symlink("round", path("round"));
    EXPECT_FALSE(IsUnreadable(dir(), "data"));
    EXPECT_FALSE(IsUnreadable(dir(), "empty"));
    EXPECT_FALSE(IsUnreadable(dir(), "missing"));
    EXPECT_TRUE(IsUnreadable(dir(), "broken"));
    EXPECT_TRUE(IsUnreadable(dir(), "round"));
    EXPECT_TRUE(IsUnreadable(dir(), "")) << "a folder";
    EXPECT_EQ(logged(), Lines{});
}
