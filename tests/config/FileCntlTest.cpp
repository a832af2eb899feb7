// Whole files: read, write, copy, rename, delete, size and date.
#include "config/FileCntl.h"
#include "tests/config/FileFixture.h"

#include <climits>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>

using namespace tessary;

namespace
{

const std::string ZEROS4(4, '\0');

class WholeFile : public FileFixture
{
  protected:
    void modified(const std::string& name, std::time_t seconds, long nanoseconds = 0)
    {
        const timespec times[2] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
        ASSERT_EQ(utimensat(AT_FDCWD, path(name).c_str(), times, 0), 0);
    }
    void makeFolder(const std::string& name) { std::filesystem::create_directory(path(name)); }
};

} // namespace

TEST_F(WholeFile, reads_a_block_from_the_start_or_an_offset)
{
    write("data", "abcdefgh");
    char bytes[5] = {};
    EXPECT_EQ(FileRead(dir(), "data", bytes, 4, 0, nullptr, 0), 1);
    EXPECT_STREQ(bytes, "abcd");
    EXPECT_EQ(FileRead(dir(), "data", bytes, 4, 3, nullptr, 0), 1);
    EXPECT_STREQ(bytes, "defg");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, reads_a_record)
{
    write("data", "abcdefgh");
    char bytes[4] = {};
    EXPECT_EQ(FileRead(dir(), "data", 2, bytes, 3, 0, nullptr, 0), -1);
    EXPECT_EQ(FileRead(dir(), "data", 1, bytes, 3, 2, nullptr, 0), 1);
    EXPECT_STREQ(bytes, "fgh");
}

TEST_F(WholeFile, logs_one_line_for_a_read_and_none_for_the_opening)
{
    write("data", "abcd");
    char bytes[4];
    EXPECT_EQ(FileRead(dir(), "data", bytes, 4, 0, "caller.cpp", 1), 1);
    EXPECT_EQ(FileRead(dir(), "data", 0, bytes, 4, 0, "caller.cpp", 2), 1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの読込み [data] @caller.cpp:1",
                               "FILECNTL ファイルの読込み [data] @caller.cpp:2"}));
}

TEST_F(WholeFile, clears_the_buffer_and_logs_twice_when_a_file_to_read_is_missing)
{
    char bytes[] = "########";
    EXPECT_EQ(FileRead(dir(), "gone", bytes, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(std::string(bytes, 8), ZEROS4 + "####");
    EXPECT_EQ(FileRead(dir(), "gone", 3, bytes + 4, 4, 0, "caller.cpp", 2), -1);
    EXPECT_EQ(std::string(bytes, 8), ZEROS4 + ZEROS4);
    EXPECT_EQ(logged(),
              (Lines{"FILECNTL ファイルのオープンに失敗 [gone]", "FILECNTL ファイルの読込みに失敗 [gone]",
                     "FILECNTL ファイルのオープンに失敗 [gone] @caller.cpp:2",
                     "FILECNTL ファイルの読込みに失敗 [gone] @caller.cpp:2"}));
}

TEST_F(WholeFile, clears_the_buffer_and_logs_once_when_a_file_is_too_short)
{
    write("data", "abc");
    char bytes[] = "####";
    EXPECT_EQ(FileRead(dir(), "data", bytes, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(std::string(bytes, 4), ZEROS4);
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの読込みに失敗 [data]"});
}

TEST_F(WholeFile, leaves_the_buffer_alone_when_the_size_to_read_is_negative)
{
    write("data", "abcd");
    char bytes[] = "####";
    EXPECT_EQ(FileRead(dir(), "data", bytes, -1, 0, nullptr, 0), -1);
    EXPECT_EQ(FileRead(dir(), "gone", bytes, -1, 0, nullptr, 0), -1);
    EXPECT_EQ(FileRead(dir(), "data", 1, bytes, INT_MIN, 0, nullptr, 0), -1);
    EXPECT_STREQ(bytes, "####");
}

TEST_F(WholeFile, can_not_read_a_folder)
{
    makeFolder("folder");
    char bytes[] = "####";
    EXPECT_EQ(FileRead(dir(), "folder", bytes, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(std::string(bytes, 4), ZEROS4);
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの読込みに失敗 [folder]"});
}

TEST_F(WholeFile, writes_into_an_existing_file_without_truncating_it)
{
    write("data", "abcdefgh");
    EXPECT_EQ(FileWrite(dir(), "data", "XY", 2, 0, nullptr, 0), 1);
    EXPECT_EQ(FileWrite(dir(), "data", "Z", 1, 4, nullptr, 0), 1);
    EXPECT_EQ(FileWrite(dir(), "data", 3, "W", 1, 2, nullptr, 0), 1);
    EXPECT_EQ(FileWrite(dir(), "data", 2, "VV", 2, -2, nullptr, 0), 1);
    EXPECT_EQ(read("data"), "XYVVZWgh");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, creates_a_missing_file_after_logging_that_it_could_not_be_opened)
{
    EXPECT_EQ(FileWrite(dir(), "new", "abcd", 4, 0, nullptr, 0), 1);
    EXPECT_EQ(FileWrite(dir(), "records", 2, "ab", 2, 0, "caller.cpp", 6), 1);
    EXPECT_EQ(read("new"), "abcd");
    EXPECT_EQ(read("records"), ZEROS4 + "ab");
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープンに失敗 [new]",
                               "FILECNTL ファイルのオープンに失敗 [records] @caller.cpp:6",
                               "FILECNTL ファイルの読込み [records] @caller.cpp:6"}));
}

TEST_F(WholeFile, logs_a_written_record_as_read_and_a_written_block_as_written)
{
    write("data", "abcd");
    EXPECT_EQ(FileWrite(dir(), "data", "x", 1, 0, "caller.cpp", 1), 1);
    EXPECT_EQ(FileWrite(dir(), "data", 1, "x", 1, 0, "caller.cpp", 2), 1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの書込み [data] @caller.cpp:1",
                               "FILECNTL ファイルの読込み [data] @caller.cpp:2"}));
}

TEST_F(WholeFile, logs_three_lines_when_a_file_can_neither_be_opened_nor_created)
{
    EXPECT_EQ(FileWrite(dir(), "gone/new", "x", 1, 0, nullptr, 0), -1);
    EXPECT_EQ(FileWrite(dir(), "", 0, "x", 1, 0, "caller.cpp", 3), -1);
    EXPECT_EQ(logged(),
              (Lines{"FILECNTL ファイルのオープンに失敗 [gone/new]",
                     "FILECNTL ファイルの生成に失敗 [gone/new]", "FILECNTL ファイルの書込みに失敗 [gone/new]",
                     "FILECNTL ファイルのオープンに失敗 [] @caller.cpp:3",
                     "FILECNTL ファイルの生成に失敗 [] @caller.cpp:3",
                     "FILECNTL ファイルの書込みに失敗 [] @caller.cpp:3"}));
}

TEST_F(WholeFile, reports_a_write_to_a_full_disk)
{
    EXPECT_EQ(FileWrite("/dev", "full", "x", 1, 0, nullptr, 0), -1);
    EXPECT_EQ(FileWrite("/dev", "full", 1, "x", 1, 0, nullptr, 0), -1);
    EXPECT_EQ(logged(), Lines(2, "FILECNTL ファイルの書込みに失敗 [full]"));
}

TEST_F(WholeFile, copies_between_folders)
{
    makeFolder("to");
    write("data", "abcd");
    EXPECT_EQ(FileCopy(dir(), "data", path("to").c_str(), "copy", "caller.cpp", 8), 1);
    EXPECT_EQ(read("to/copy"), "abcd");
    EXPECT_EQ(read("data"), "abcd");
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープンに失敗 [copy] @caller.cpp:8",
                               "FILECNTL ファイルの複写 [data → copy] @caller.cpp:8"}));
}

TEST_F(WholeFile, copies_over_a_longer_file_and_leaves_its_tail)
{
    write("data", "abcd");
    write("copy", "12345678");
    EXPECT_EQ(FileCopy(dir(), "data", dir(), "copy", nullptr, 0), 1);
    EXPECT_EQ(read("copy"), "abcd5678");
    EXPECT_EQ(FileCopy(dir(), "copy", dir(), "copy", nullptr, 0), 1);
    EXPECT_EQ(read("copy"), "abcd5678");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, does_not_copy_an_empty_or_missing_file)
{
    write("empty", "");
    write("copy", "12");
    EXPECT_EQ(FileCopy(dir(), "empty", dir(), "copy", nullptr, 0), 0);
    EXPECT_EQ(FileCopy(dir(), "gone", dir(), "new", "caller.cpp", 4), 0);
    EXPECT_EQ(read("copy"), "12");
    EXPECT_FALSE(exists("new"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの複写に失敗 [empty → copy]",
                               "FILECNTL ファイルの複写に失敗 [gone → new] @caller.cpp:4"}));
}

TEST_F(WholeFile, logs_the_step_and_the_copy_when_a_copy_fails)
{
    makeFolder("folder");
    write("data", "abcd");
    EXPECT_EQ(FileCopy(dir(), "folder", dir(), "new", nullptr, 0), 0);
    EXPECT_FALSE(exists("new"));
    EXPECT_EQ(FileCopy(dir(), "data", dir(), "folder", "caller.cpp", 4), 0);
    EXPECT_EQ(FileCopy(dir(), "data", "/dev", "full", nullptr, 0), 0);
    EXPECT_EQ(
        logged(),
        (Lines{"FILECNTL ファイルの読込みに失敗 [folder]", "FILECNTL ファイルの複写に失敗 [folder → new]",
               "FILECNTL ファイルのオープンに失敗 [folder] @caller.cpp:4",
               "FILECNTL ファイルの生成に失敗 [folder] @caller.cpp:4",
               "FILECNTL ファイルの書込みに失敗 [folder] @caller.cpp:4",
               "FILECNTL ファイルの複写に失敗 [data → folder] @caller.cpp:4",
               "FILECNTL ファイルの書込みに失敗 [full]", "FILECNTL ファイルの複写に失敗 [data → full]"}));
}

TEST_F(WholeFile, renames)
{
    write("old", "abcd");
    EXPECT_EQ(FileRename(dir(), "old", "new", "caller.cpp", 2), 1);
    EXPECT_FALSE(exists("old"));
    EXPECT_EQ(read("new"), "abcd");
    EXPECT_EQ(FileRename(dir(), "new", "old", nullptr, 0), 1);
    EXPECT_EQ(read("old"), "abcd");
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの名称変更 [old → new] @caller.cpp:2"});
}

TEST_F(WholeFile, refuses_to_rename_a_missing_file_or_over_an_existing_one)
{
    write("one", "1");
    write("two", "2");
    EXPECT_EQ(FileRename(dir(), "gone", "two", nullptr, 0), 0);
    EXPECT_EQ(FileRename(dir(), "one", "two", "caller.cpp", 2), 0);
    EXPECT_EQ(FileRename(dir(), "one", "one", nullptr, 0), 0);
    EXPECT_EQ(read("one"), "1");
    EXPECT_EQ(read("two"), "2");
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの名称変更に失敗 [gone が存在しない]",
                               "FILECNTL ファイルの名称変更に失敗 [two が存在する] @caller.cpp:2",
                               "FILECNTL ファイルの名称変更に失敗 [one が存在する]"}));
}

TEST_F(WholeFile, logs_both_names_when_the_system_refuses_to_rename)
{
    write("old", "abcd");
    EXPECT_EQ(FileRename(dir(), "old", "gone/new", nullptr, 0), 0);
    EXPECT_EQ(read("old"), "abcd");
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの名称変更に失敗 [old → gone/new]"});
}

TEST_F(WholeFile, deletes)
{
    write("one", "1");
    write("two", "2");
    EXPECT_EQ(FileDelete(dir(), "one", "caller.cpp", 2), 1);
    EXPECT_EQ(FileDelete(dir(), "two", nullptr, 0), 1);
    EXPECT_FALSE(exists("one"));
    EXPECT_FALSE(exists("two"));
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの削除 [one] @caller.cpp:2"});
}

TEST_F(WholeFile, does_not_delete_what_is_missing_or_a_folder)
{
    makeFolder("folder");
    EXPECT_EQ(FileDelete(dir(), "gone", nullptr, 0), 0);
    EXPECT_EQ(FileDelete(dir(), "folder", "caller.cpp", 2), 0);
    EXPECT_TRUE(exists("folder"));
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの削除に失敗 [gone が存在しない]",
                               "FILECNTL ファイルの削除に失敗 [folder] @caller.cpp:2"}));
}

TEST_F(WholeFile, never_takes_a_cut_path_for_the_one_that_was_meant)
{
    const std::string folder = path(std::string(100, 'd'));
    std::filesystem::create_directory(folder);
    const std::string name(SIZE_PATH - folder.size() - 1, 'n');
    writeFile(folder + "/" + name, "abcd");
    EXPECT_EQ(FileDelete(folder.c_str(), (name + "x").c_str(), nullptr, 0), 0);
    EXPECT_EQ(FileExist(folder.c_str(), (name + "x").c_str()), 0);
    EXPECT_EQ(FileWrite(folder.c_str(), (name + "y").c_str(), "XY", 2, 0, nullptr, 0), 1);
    EXPECT_EQ(readFile(folder + "/" + name), "abcd");
    EXPECT_EQ(readFile(folder + "/" + name + "y"), "XY");
}

TEST_F(WholeFile, exists_as_a_file_or_a_folder)
{
    write("data", "");
    makeFolder("folder");
    EXPECT_EQ(FileExist(dir(), "data"), 1);
    EXPECT_EQ(FileExist(dir(), "folder"), 1);
    EXPECT_EQ(FileExist(path("data").c_str(), ""), 1);
    EXPECT_EQ(FileExist(dir(), "gone"), 0);
    EXPECT_EQ(FileExist("", ""), 0);
    EXPECT_EQ(FileExist(nullptr, nullptr), 0);
    EXPECT_EQ(FileExist(dir(), std::string(300, 'n').c_str()), 0);
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, tells_its_size)
{
    write("data", "abcdefg");
    write("empty", "");
    EXPECT_EQ(FileSize(dir(), "data"), 7);
    EXPECT_EQ(FileSize(dir(), "empty"), 0);
    EXPECT_EQ(FileSize(dir(), "gone"), -1);
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, tells_the_size_of_a_folder_as_the_system_does)
{
    makeFolder("folder");
    struct stat status = {};
    ASSERT_EQ(stat(path("folder").c_str(), &status), 0);
    EXPECT_EQ(FileSize(dir(), "folder"), status.st_size);
}

TEST_F(WholeFile, has_no_size_when_it_is_too_long_for_32_bits)
{
    write("long", "");
    std::filesystem::resize_file(path("long"), 0x7FFFFFFF);
    EXPECT_EQ(FileSize(dir(), "long"), INT_MAX);
    std::filesystem::resize_file(path("long"), 0x80000000);
    EXPECT_EQ(FileSize(dir(), "long"), -1);
    EXPECT_EQ(FileCopy(dir(), "long", dir(), "copy", nullptr, 0), 0);
    EXPECT_FALSE(exists("copy"));
}

TEST_F(WholeFile, counts_the_months_of_its_date_from_zero)
{
    std::tm local = {};
    local.tm_year = 2024 - 1900;
    local.tm_mon = 2;
    local.tm_mday = 1;
    local.tm_hour = 13;
    local.tm_min = 45;
    local.tm_sec = 59;
    local.tm_isdst = -1;
    write("data", "");
    modified("data", std::mktime(&local));
    int date[6] = {};
    EXPECT_EQ(FileDate(dir(), "data", date), 1);
    EXPECT_THAT(date, testing::ElementsAre(2024, 2, 1, 13, 45, 59));
}

TEST_F(WholeFile, has_no_date_when_it_is_missing)
{
    int date[6] = {1, 2, 3, 4, 5, 6};
    EXPECT_EQ(FileDate(dir(), "gone", date), 0);
    EXPECT_THAT(date, testing::ElementsAre(1, 2, 3, 4, 5, 6));
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, compares_by_time_of_modification)
{
    write("old", "");
    write("new", "");
    modified("old", 1000000000);
    modified("new", 1000000001);
    EXPECT_EQ(FileCompare(dir(), "old", dir(), "new"), 1);
    EXPECT_EQ(FileCompare(dir(), "new", dir(), "old"), 0);
    EXPECT_EQ(FileCompare(dir(), "old", dir(), "old"), 0);
    modified("new", 1000000000, 1);
    EXPECT_EQ(FileCompare(dir(), "old", dir(), "new"), 1);
    EXPECT_EQ(FileCompare(dir(), "new", dir(), "old"), 0);
}

TEST_F(WholeFile, compares_missing_files_by_a_code_of_their_own)
{
    write("data", "");
    EXPECT_EQ(FileCompare(dir(), "gone", dir(), "data"), 2);
    EXPECT_EQ(FileCompare(dir(), "data", dir(), "gone"), 3);
    EXPECT_EQ(FileCompare(dir(), "gone", dir(), "gone"), 2);
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, is_verified_against_zeros_whatever_the_buffer_held)
{
    write("data", "abcd");
    write("zeros", ZEROS4 + "x");
    char bytes[] = "abcd";
    EXPECT_EQ(FileVerify(dir(), "data", bytes, 4, 0), 0);
    EXPECT_EQ(std::string(bytes, 4), "abcd");
    EXPECT_EQ(FileVerify(dir(), "zeros", bytes, 4, 0), 1);
    EXPECT_EQ(std::string(bytes, 4), ZEROS4);
    EXPECT_EQ(FileVerify(dir(), "zeros", bytes, 4, 1), 0);
    EXPECT_EQ(std::string(bytes, 4), std::string(3, '\0') + "x");
    EXPECT_EQ(FileVerify(dir(), "data", 1, bytes, 2, 0), 0);
    EXPECT_EQ(std::string(bytes, 2), "cd");
    EXPECT_EQ(FileVerify(dir(), "zeros", 1, bytes, 2, 0), 1);
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(WholeFile, is_verified_silently_when_it_can_not_be_read)
{
    write("data", "abcd");
    char bytes[] = "####";
    EXPECT_EQ(FileVerify(dir(), "gone", bytes, 4, 0), 1);
    EXPECT_EQ(std::string(bytes, 4), ZEROS4);
    char record[] = "####";
    EXPECT_EQ(FileVerify(dir(), "data", -1, record, 4, 0), 1);
    EXPECT_EQ(std::string(record, 4), ZEROS4);
    char kept[] = "####";
    EXPECT_EQ(FileVerify(dir(), "data", kept, -4, 0), 0);
    EXPECT_EQ(FileVerify(dir(), "data", kept, 0, 0), 1);
    EXPECT_STREQ(kept, "####");
    EXPECT_EQ(FileVerify(dir(), "data", nullptr, 4, 0), 0);
    EXPECT_EQ(logged(), Lines{});
}
