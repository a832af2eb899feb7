// Folders: listing, creating, deleting and copying.
#include "config/FileCntl.h"
#include "tests/config/FileFixture.h"

#include <dirent.h>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

class FileFolder : public FileFixture
{
  protected:
    void makeFolder(const std::string& name) { std::filesystem::create_directories(path(name)); }

    /// FolderRead into buffers of exactly the given sizes, so that a byte too many is found.
    Lines listing(const std::string& folder, const std::string& pattern, int order, int bufsize = 1500,
                  int maxcount = 100)
    {
        std::vector<char> names(static_cast<std::size_t>(std::max(bufsize, 0)));
        std::vector<char*> list(static_cast<std::size_t>(std::max(maxcount, 0)));
        const int count =
            FolderRead(folder.c_str(), pattern.c_str(), names.data(), list.data(), bufsize, maxcount, order);
        return Lines(list.begin(), list.begin() + count);
    }

    /// A path to the folder so long that no name fits behind it: the system opens the folder, but not
    /// its files.
    std::string longPath(const std::string& name) const
    {
        std::string folder = path(name);
        while (folder.size() < 4092)
            folder += "/.";
        return folder;
    }
};

} // namespace

TEST_F(FileFolder, counts_regular_files_that_match)
{
    write("a.log", "");
    write("b.log", "");
    write("c.LOG", "");
    write("d.txt", "");
    write(".e.log", "");
    makeFolder("f.log");
    EXPECT_EQ(FileCount(dir(), "*.log"), 2);
    EXPECT_EQ(FileCount(dir(), "*.LOG"), 1);
    EXPECT_EQ(FileCount(dir(), "*"), 4);
    EXPECT_EQ(FileCount(dir(), ".*"), 0);
    EXPECT_EQ(FileCount(dir(), "[ab].lo?"), 2);
    EXPECT_EQ(FileCount(dir(), "log"), 0);
    EXPECT_EQ(FileCount(dir(), ""), 0);
    EXPECT_EQ(FileCount(dir(), nullptr), 0);
}

TEST_F(FileFolder, counts_a_link_as_what_it_leads_to)
{
    write("file", "");
    makeFolder("folder");
    ASSERT_EQ(symlink("file", path("to_file").c_str()), 0);
    ASSERT_EQ(symlink("folder", path("to_folder").c_str()), 0);
    ASSERT_EQ(symlink("gone", path("to_nothing").c_str()), 0);
    EXPECT_EQ(FileCount(dir(), "to_*"), 1);
}

TEST_F(FileFolder, has_no_files_when_it_can_not_be_opened)
{
    write("data", "");
    EXPECT_EQ(FileCount(path("gone").c_str(), "*"), 0);
    EXPECT_EQ(FileCount(path("data").c_str(), "*"), 0);
    EXPECT_EQ(FileCount("", "*"), 0);
    EXPECT_EQ(FileCount(nullptr, "*"), 0);
    EXPECT_EQ(listing(path("gone"), "*", 1), Lines{});
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileFolder, is_listed_in_ascending_or_descending_order)
{
    for (const char* name : {"c.log", "a.log", "b.log", "B.log", "漢.log", "d.txt", ".x.log"})
        write(name, "");
    EXPECT_EQ(listing(dir(), "*.log", 1), (Lines{"B.log", "a.log", "b.log", "c.log", "漢.log"}));
    EXPECT_EQ(listing(dir(), "*.log", 2), (Lines{"漢.log", "c.log", "b.log", "a.log", "B.log"}));
}

TEST_F(FileFolder, is_listed_in_its_own_order_otherwise)
{
    for (const char* name : {"c.log", "a.log", "b.log", "e.log", "d.log"})
        write(name, "");
    Lines expected;
    DIR* const folder = opendir(dir());
    while (const dirent* entry = readdir(folder))
        if (entry->d_name[0] != '.')
            expected.emplace_back(entry->d_name);
    closedir(folder);
    EXPECT_EQ(expected.size(), 5U);
    EXPECT_EQ(listing(dir(), "*.log", 0), expected);
    EXPECT_EQ(listing(dir(), "*.log", 3), expected);
    EXPECT_EQ(listing(dir(), "*.log", -1), expected);
}

TEST_F(FileFolder, is_listed_one_name_after_the_other)
{
    write("bb", "");
    write("a", "");
    char names[16] = {};
    char* list[2] = {};
    ASSERT_EQ(FolderRead(dir(), "*", names, list, sizeof names, 2, 1), 2);
    EXPECT_STREQ(list[0], "a");
    EXPECT_STREQ(list[1], "bb");
    const std::string both(names, 5);
    EXPECT_TRUE(both == std::string("a\0bb\0", 5) || both == std::string("bb\0a\0", 5));
    EXPECT_TRUE((list[0] == names && list[1] == names + 2) || (list[1] == names && list[0] == names + 3));
}

TEST_F(FileFolder, is_listed_up_to_the_count_that_fits)
{
    for (const char* name : {"a", "b", "c"})
        write(name, "");
    EXPECT_EQ(listing(dir(), "*", 1, 1500, 3).size(), 3U);
    EXPECT_EQ(listing(dir(), "*", 1, 1500, 2).size(), 2U);
    EXPECT_EQ(listing(dir(), "*", 1, 1500, 1).size(), 1U);
    EXPECT_EQ(listing(dir(), "*", 1, 1500, 0), Lines{});
    EXPECT_EQ(listing(dir(), "*", 1, 1500, -1), Lines{});
}

TEST_F(FileFolder, is_listed_up_to_the_bytes_that_fit)
{
    for (const char* name : {"aaaa", "bbbb", "cccc"})
        write(name, "");
    EXPECT_EQ(listing(dir(), "*", 1, 15).size(), 3U);
    EXPECT_EQ(listing(dir(), "*", 1, 14).size(), 2U);
    EXPECT_EQ(listing(dir(), "*", 1, 10).size(), 2U);
    EXPECT_EQ(listing(dir(), "*", 1, 5).size(), 1U);
    EXPECT_EQ(listing(dir(), "*", 1, 4), Lines{});
    EXPECT_EQ(listing(dir(), "*", 1, 0), Lines{});
    EXPECT_EQ(listing(dir(), "*", 1, -1), Lines{});
}

TEST_F(FileFolder, is_not_listed_without_a_place_for_the_names)
{
    write("a", "");
    char names[16] = {};
    char* list[2] = {};
    EXPECT_EQ(FolderRead(dir(), "*", nullptr, list, 16, 2, 0), 0);
    EXPECT_EQ(FolderRead(dir(), "*", names, nullptr, 16, 2, 0), 0);
}

TEST_F(FileFolder, is_created_with_all_folders_above_it)
{
    const std::string folder = path("a/b/c");
    EXPECT_EQ(CreateFolder(folder.c_str(), "caller.cpp", 1), 1);
    EXPECT_TRUE(std::filesystem::is_directory(folder));
    EXPECT_EQ(CreateFolder(folder.c_str(), nullptr, 0), 1);
    EXPECT_EQ(CreateFolder((folder + "//d/").c_str(), nullptr, 0), 1);
    EXPECT_TRUE(exists("a/b/c/d"));
    EXPECT_EQ(logged(), Lines{"FILECNTL フォルダーを作成 [" + folder + "] @caller.cpp:1"});
}

TEST_F(FileFolder, is_created_relative_to_the_working_folder)
{
    EXPECT_EQ(CreateFolder("ProjPath/x/y", nullptr, 0), 1);
    EXPECT_TRUE(exists("x/y"));
    EXPECT_EQ(CreateFolder("/", nullptr, 0), 1);
}

TEST_F(FileFolder, is_created_with_the_rights_that_the_process_mask_leaves)
{
    const mode_t before = umask(027);
    EXPECT_EQ(CreateFolder(path("a/b").c_str(), nullptr, 0), 1);
    umask(0);
    EXPECT_EQ(CreateFolder(path("c").c_str(), nullptr, 0), 1);
    umask(before);
    const auto rights = [&](const char* name) {
        struct stat status = {};
        stat(path(name).c_str(), &status);
        return status.st_mode & 0777;
    };
    EXPECT_EQ(rights("a"), 0750U);
    EXPECT_EQ(rights("a/b"), 0750U);
    EXPECT_EQ(rights("c"), 0777U);
}

TEST_F(FileFolder, is_not_created_in_place_of_or_below_a_file)
{
    write("file", "abcd");
    const std::string instead = path("file");
    const std::string below = path("file/a/b");
    EXPECT_EQ(CreateFolder(instead.c_str(), nullptr, 0), 0);
    EXPECT_EQ(CreateFolder(below.c_str(), "caller.cpp", 4), 0);
    EXPECT_EQ(CreateFolder("", nullptr, 0), 0);
    EXPECT_EQ(CreateFolder(nullptr, nullptr, 0), 0);
    EXPECT_EQ(read("file"), "abcd");
    EXPECT_EQ(logged(), (Lines{"FILECNTL フォルダーの作成に失敗 [" + instead + "]",
                               "FILECNTL フォルダーの作成に失敗 [" + below + "] @caller.cpp:4",
                               "FILECNTL フォルダーの作成に失敗 []", "FILECNTL フォルダーの作成に失敗 []"}));
}

TEST_F(FileFolder, is_not_created_beyond_a_folder_that_can_not_be_made)
{
    EXPECT_EQ(CreateFolder(path("a/" + std::string(300, 'n') + "/../b").c_str(), nullptr, 0), 0);
    EXPECT_TRUE(exists("a"));
    EXPECT_FALSE(exists("a/b"));
}

TEST_F(FileFolder, is_deleted_with_its_files_each_of_them_logged)
{
    makeFolder("folder");
    write("folder/file", "abcd");
    const std::string folder = path("folder");
    EXPECT_EQ(DeleteFolder(folder.c_str(), "caller.cpp", 3), 1);
    EXPECT_FALSE(exists("folder"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの削除 [file] @caller.cpp:3",
                               "FILECNTL フォルダーを削除 [" + folder + "] @caller.cpp:3"}));
}

TEST_F(FileFolder, is_deleted_silently_and_with_hidden_files_too)
{
    makeFolder("folder");
    for (int i = 0; i < 200; ++i)
        write("folder/" + std::to_string(i), "x");
    write("folder/.hidden", "x");
    EXPECT_EQ(DeleteFolder(path("folder").c_str(), nullptr, 0), 1);
    EXPECT_FALSE(exists("folder"));
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileFolder, stays_without_its_files_when_it_has_a_subfolder)
{
    makeFolder("folder/sub");
    write("folder/file", "abcd");
    write("folder/sub/file", "abcd");
    const std::string folder = path("folder");
    EXPECT_EQ(DeleteFolder(folder.c_str(), nullptr, 0), 0);
    EXPECT_FALSE(exists("folder/file"));
    EXPECT_EQ(read("folder/sub/file"), "abcd");
    EXPECT_EQ(logged(), Lines{"FILECNTL フォルダーの削除に失敗 [" + folder + "]"});
}

TEST_F(FileFolder, is_not_deleted_when_it_is_missing_or_a_file)
{
    write("file", "abcd");
    const std::string gone = path("gone");
    const std::string file = path("file");
    EXPECT_EQ(DeleteFolder(gone.c_str(), nullptr, 0), 0);
    EXPECT_EQ(DeleteFolder(file.c_str(), "caller.cpp", 2), 0);
    EXPECT_EQ(DeleteFolder("", nullptr, 0), 0);
    EXPECT_EQ(DeleteFolder(nullptr, nullptr, 0), 0);
    EXPECT_TRUE(exists("file"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL フォルダーが存在しない [" + gone + "]",
                               "FILECNTL フォルダーが存在しない [" + file + "] @caller.cpp:2",
                               "FILECNTL フォルダーが存在しない []", "FILECNTL フォルダーが存在しない []"}));
}

TEST_F(FileFolder, deletion_stops_at_the_first_file_that_can_not_be_deleted)
{
    makeFolder("folder");
    write("folder/file_one", "1");
    write("folder/file_two", "2");
    EXPECT_EQ(DeleteFolder(longPath("folder").c_str(), nullptr, 0), 0);
    EXPECT_TRUE(exists("folder/file_one"));
    EXPECT_TRUE(exists("folder/file_two"));
    EXPECT_THAT(logged(), testing::ElementsAre(
                              testing::AnyOf("FILECNTL ファイルの削除に失敗 [file_one が存在しない]",
                                             "FILECNTL ファイルの削除に失敗 [file_two が存在しない]")));
}

TEST_F(FileFolder, is_copied_without_its_subfolders)
{
    makeFolder("from/sub");
    write("from/file", "abcd");
    write("from/sub/file", "abcd");
    const std::string from = path("from");
    const std::string to = path("a/to");
    EXPECT_EQ(CopyFolder(from.c_str(), to.c_str(), "caller.cpp", 7), 1);
    EXPECT_EQ(read("a/to/file"), "abcd");
    EXPECT_FALSE(exists("a/to/sub"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL フォルダーを作成 [" + to + "] @caller.cpp:7",
                               "FILECNTL ファイルのオープンに失敗 [file] @caller.cpp:7",
                               "FILECNTL ファイルの複写 [file → file] @caller.cpp:7",
                               "FILECNTL フォルダーを複写 [" + from + " → " + to + "] @caller.cpp:7"}));
}

TEST_F(FileFolder, is_copied_silently_over_existing_files_with_hidden_ones_too)
{
    makeFolder("from");
    makeFolder("to");
    write("from/file", "abcd");
    write("from/.hidden", "efgh");
    write("to/file", "12345678");
    write("to/.hidden", "1");
    write("to/other", "2");
    EXPECT_EQ(CopyFolder(path("from").c_str(), path("to").c_str(), nullptr, 0), 1);
    EXPECT_EQ(read("to/file"), "abcd5678");
    EXPECT_EQ(read("to/.hidden"), "efgh");
    EXPECT_EQ(read("to/other"), "2");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileFolder, can_be_copied_into_itself)
{
    makeFolder("from");
    write("from/file", "abcd");
    EXPECT_EQ(CopyFolder(path("from").c_str(), path("from").c_str(), nullptr, 0), 1);
    EXPECT_EQ(CopyFolder(path("from").c_str(), path("from/to").c_str(), nullptr, 0), 1);
    EXPECT_EQ(read("from/file"), "abcd");
    EXPECT_EQ(read("from/to/file"), "abcd");
}

TEST_F(FileFolder, is_not_copied_when_it_is_missing)
{
    const std::string from = path("gone");
    EXPECT_EQ(CopyFolder(from.c_str(), path("to").c_str(), nullptr, 0), 0);
    EXPECT_EQ(CopyFolder(nullptr, path("to").c_str(), "caller.cpp", 2), 0);
    EXPECT_FALSE(exists("to"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL フォルダーが存在しない [" + from + "]",
                               "FILECNTL フォルダーが存在しない [] @caller.cpp:2"}));
}

TEST_F(FileFolder, is_not_copied_when_the_target_can_not_be_created)
{
    makeFolder("from");
    write("from/file", "abcd");
    write("blocker", "");
    const std::string to = path("blocker/to");
    EXPECT_EQ(CopyFolder(path("from").c_str(), to.c_str(), nullptr, 0), 0);
    EXPECT_EQ(logged(), Lines{"FILECNTL フォルダーの作成に失敗 [" + to + "]"});
}

TEST_F(FileFolder, copy_stops_at_the_first_file_that_can_not_be_copied)
{
    makeFolder("from");
    write("from/empty", "");
    EXPECT_EQ(CopyFolder(path("from").c_str(), path("to").c_str(), "caller.cpp", 2), 0);
    EXPECT_EQ(logged(), (Lines{"FILECNTL フォルダーを作成 [" + path("to") + "] @caller.cpp:2",
                               "FILECNTL ファイルの複写に失敗 [empty → empty] @caller.cpp:2"}));
}
