// The reader and the writer of one open file.
#include "config/FileCntl.h"
#include "tests/config/FileFixture.h"

#include <climits>
#include <sys/stat.h>
#include <type_traits>

static_assert(!std::is_copy_constructible_v<CFileRead> && !std::is_copy_assignable_v<CFileRead>);
static_assert(!std::is_copy_constructible_v<CFileWrite> && !std::is_copy_assignable_v<CFileWrite>);

namespace
{

const std::string ZEROS4(4, '\0');

class FileReader : public FileFixture
{
  protected:
    /// Reads into a buffer of its own size that held something else before.
    static std::string block(CFileRead& reader, int size, int offset, int& result)
    {
        std::string bytes(static_cast<std::size_t>(size), '#');
        result = reader.ReadBlock(bytes.data(), size, offset, nullptr, 0);
        return bytes;
    }
    static std::string block(CFileRead& reader, int size, int offset)
    {
        int result = 0;
        const std::string bytes = block(reader, size, offset, result);
        EXPECT_EQ(result, 1);
        return bytes;
    }
    static std::string failed(CFileRead& reader, int size, int offset)
    {
        int result = 0;
        const std::string bytes = block(reader, size, offset, result);
        EXPECT_EQ(result, -1);
        return bytes;
    }
};

class FileWriter : public FileFixture
{
};

} // namespace

TEST_F(FileReader, starts_without_a_file)
{
    const CFileRead reader;
    EXPECT_EQ(reader.fp, nullptr);
}

TEST_F(FileReader, opens_and_keeps_the_name_without_the_folder)
{
    write("data", "abcd");
    CFileRead reader;
    EXPECT_EQ(reader.Open(dir(), "data", nullptr, 0), 1);
    EXPECT_NE(reader.fp, nullptr);
    EXPECT_STREQ(reader.FileName, "data");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileReader, logs_each_success_for_a_caller_that_gives_its_place)
{
    write("data", "abcdefgh");
    CFileRead reader(dir(), "data", "caller.cpp", 11);
    char bytes[4];
    EXPECT_EQ(reader.ReadBlock(bytes, 4, 0, "caller.cpp", 12), 1);
    EXPECT_EQ(reader.ReadRecord(0, bytes, 4, 0, "caller.cpp", 13), 1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープン [data] @caller.cpp:11",
                               "FILECNTL ファイルの読込み [data] @caller.cpp:12",
                               "FILECNTL ファイルの読込み [data] @caller.cpp:13"}));
}

TEST_F(FileReader, logs_each_failure_with_and_without_a_caller)
{
    write("data", "abc");
    CFileRead reader;
    EXPECT_EQ(reader.Open(dir(), "gone", nullptr, 0), 0);
    EXPECT_EQ(reader.fp, nullptr);
    EXPECT_EQ(reader.Open(dir(), "gone", "caller.cpp", 7), 0);
    EXPECT_EQ(reader.Open(dir(), "data", nullptr, 0), 1);
    char bytes[4];
    EXPECT_EQ(reader.ReadBlock(bytes, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(reader.ReadRecord(0, bytes, 4, 0, "caller.cpp", 8), -1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープンに失敗 [gone]",
                               "FILECNTL ファイルのオープンに失敗 [gone] @caller.cpp:7",
                               "FILECNTL ファイルの読込みに失敗 [data]",
                               "FILECNTL ファイルの読込みに失敗 [data] @caller.cpp:8"}));
}

TEST_F(FileReader, reads_on_with_offset_zero)
{
    write("data", "abcdefgh");
    CFileRead reader(dir(), "data", nullptr, 0);
    EXPECT_EQ(block(reader, 4, 0), "abcd");
    EXPECT_EQ(block(reader, 4, 0), "efgh");
}

TEST_F(FileReader, seeks_to_any_other_offset)
{
    write("data", "abcdefgh");
    CFileRead reader(dir(), "data", nullptr, 0);
    EXPECT_EQ(block(reader, 2, 5), "fg");
    EXPECT_EQ(block(reader, 2, 1), "bc");
    EXPECT_EQ(block(reader, 2, 0), "de");
}

TEST_F(FileReader, reads_a_record_at_its_number_times_its_size)
{
    std::string bytes;
    for (int i = 0; i < 136; ++i)
        bytes += static_cast<char>(i);
    write("data", bytes);
    CFileRead reader(dir(), "data", nullptr, 0);
    char record[34];
    ASSERT_EQ(reader.ReadRecord(3, record, 34, 0, nullptr, 0), 1);
    EXPECT_EQ(std::string(record, 34), bytes.substr(102));
    ASSERT_EQ(reader.ReadRecord(2, record, 34, 5, nullptr, 0), 1);
    EXPECT_EQ(std::string(record, 34), bytes.substr(73, 34));
    ASSERT_EQ(reader.ReadRecord(1, record, 34, -34, nullptr, 0), 1);
    EXPECT_EQ(std::string(record, 34), bytes.substr(0, 34));
}

TEST_F(FileReader, seeks_back_to_record_zero)
{
    write("data", "abcdefgh");
    CFileRead reader(dir(), "data", nullptr, 0);
    char record[5] = {};
    ASSERT_EQ(reader.ReadRecord(1, record, 4, 0, nullptr, 0), 1);
    EXPECT_STREQ(record, "efgh");
    ASSERT_EQ(reader.ReadRecord(0, record, 4, 0, nullptr, 0), 1);
    EXPECT_STREQ(record, "abcd");
}

TEST_F(FileReader, takes_a_short_read_for_a_failure_and_clears_the_buffer)
{
    write("data", "abcdef");
    CFileRead reader(dir(), "data", nullptr, 0);
    EXPECT_EQ(block(reader, 4, 0), "abcd");
    EXPECT_EQ(failed(reader, 4, 0), ZEROS4);
    EXPECT_EQ(failed(reader, 4, 100), ZEROS4);
    EXPECT_EQ(block(reader, 4, 2), "cdef");
}

TEST_F(FileReader, clears_exactly_the_bytes_it_was_asked_for)
{
    write("data", "");
    CFileRead reader(dir(), "data", nullptr, 0);
    char bytes[] = "########";
    EXPECT_EQ(reader.ReadBlock(bytes, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(std::string(bytes, 8), ZEROS4 + "####");
}

TEST_F(FileReader, fails_at_an_offset_before_the_start)
{
    write("data", "abcdefgh");
    CFileRead reader(dir(), "data", nullptr, 0);
    EXPECT_EQ(failed(reader, 4, -1), ZEROS4);
    EXPECT_EQ(failed(reader, 4, INT_MIN), ZEROS4);
    EXPECT_EQ(logged().size(), 2U);
}

TEST_F(FileReader, fails_for_records_that_have_no_place)
{
    const int size = 65536;
    write("data", std::string(size, 'x'));
    CFileRead reader(dir(), "data", nullptr, 0);
    const auto record = [&](int number, int offset) {
        std::string bytes(size, '#');
        EXPECT_EQ(reader.ReadRecord(number, bytes.data(), size, offset, nullptr, 0), -1)
            << number << " " << offset;
        EXPECT_EQ(bytes, std::string(size, '\0')) << number << " " << offset;
    };
    record(-1, 0);
    record(-1, size); // would be the start of the file
    record(65536, 0); // 2^32: 0 in 32 bits
    record(INT_MAX, INT_MAX);
    record(INT_MIN, INT_MIN);
    record(0, -1);
    record(32767, size); // 2^31
    EXPECT_EQ(logged(), Lines(7, "FILECNTL ファイルの読込みに失敗 [data]"));
}

TEST_F(FileReader, leaves_the_buffer_alone_when_the_size_is_negative)
{
    write("data", "abcd");
    CFileRead reader(dir(), "data", nullptr, 0);
    char bytes[] = "####";
    EXPECT_EQ(reader.ReadBlock(bytes, -4, 0, nullptr, 0), -1);
    EXPECT_EQ(reader.ReadRecord(0, bytes, -4, 0, nullptr, 0), -1);
    EXPECT_EQ(reader.ReadRecord(0, bytes, INT_MIN, 0, nullptr, 0), -1);
    EXPECT_STREQ(bytes, "####");
    EXPECT_EQ(logged(), Lines(3, "FILECNTL ファイルの読込みに失敗 [data]"));
}

TEST_F(FileReader, reads_nothing_with_success)
{
    write("data", "abcd");
    CFileRead reader(dir(), "data", nullptr, 0);
    EXPECT_EQ(reader.ReadBlock(nullptr, 0, 0, nullptr, 0), 1);
    EXPECT_EQ(reader.ReadBlock(nullptr, 4, 0, nullptr, 0), -1);
    EXPECT_EQ(block(reader, 4, 0), "abcd");
}

TEST_F(FileReader, without_a_file_clears_the_buffer_and_logs_nothing)
{
    CFileRead reader;
    EXPECT_EQ(failed(reader, 4, 0), ZEROS4);
    char bytes[] = "####";
    EXPECT_EQ(reader.ReadRecord(2, bytes, 4, 0, "caller.cpp", 1), -1);
    EXPECT_EQ(std::string(bytes, 4), ZEROS4);
    char kept[] = "####";
    EXPECT_EQ(reader.ReadBlock(kept, -4, 0, "caller.cpp", 1), -1);
    EXPECT_STREQ(kept, "####");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileReader, opens_a_folder_but_reads_nothing_from_it)
{
    CFileRead reader;
    EXPECT_EQ(reader.Open(dir(), "", nullptr, 0), 1);
    EXPECT_EQ(failed(reader, 4, 0), ZEROS4);
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルの読込みに失敗 []"});
}

TEST_F(FileReader, takes_the_folder_for_the_path_when_the_name_is_empty)
{
    write("data", "abcd");
    CFileRead reader(path("data").c_str(), "", "caller.cpp", 5);
    EXPECT_EQ(block(reader, 4, 0), "abcd");
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルのオープン [] @caller.cpp:5"});
}

TEST_F(FileReader, closes_the_earlier_file_when_it_opens_another)
{
    write("one", "1111");
    write("two", "2222");
    CFileRead reader(dir(), "one", nullptr, 0);
    EXPECT_EQ(reader.Open(dir(), "two", nullptr, 0), 1);
    EXPECT_EQ(block(reader, 4, 0), "2222");
    EXPECT_EQ(reader.Open(dir(), "gone", nullptr, 0), 0);
    EXPECT_EQ(failed(reader, 4, 0), ZEROS4);
}

TEST_F(FileReader, holds_one_open_file_and_none_after_its_end)
{
    write("data", "abcd");
    const auto before = openFiles();
    {
        CFileRead reader(dir(), "data", nullptr, 0);
        EXPECT_EQ(reader.Open(dir(), "data", nullptr, 0), 1);
        EXPECT_EQ(openFiles(), before + 1);
    }
    EXPECT_EQ(openFiles(), before);
}

TEST_F(FileReader, keeps_254_bytes_of_a_name_and_splits_no_character)
{
    std::string name;
    for (int i = 0; i < 300; ++i)
        name += "漢";
    CFileRead reader;
    EXPECT_EQ(reader.Open(dir(), ("a" + name).c_str(), nullptr, 0), 0);
    EXPECT_EQ(reader.FileName, "a" + name.substr(0, 252));
    EXPECT_EQ(reader.Open(dir(), name.c_str(), nullptr, 0), 0);
    EXPECT_EQ(reader.FileName, name.substr(0, 254));
}

TEST_F(FileReader, cuts_a_log_line_between_characters)
{
    std::string name = "a";
    for (int i = 0; i < 300; ++i)
        name += "漢";
    CFileRead reader;
    EXPECT_EQ(reader.Open(dir(), name.c_str(), nullptr, 0), 0);
    // 202 bytes are kept: 26 of the text with its bracket, the letter, and 87 characters of two bytes;
    // an 88th would end at byte 203.
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルのオープンに失敗 [" + name.substr(0, 175)});
}

TEST_F(FileReader, opens_paths_longer_than_a_path_buffer)
{
    const std::string folder = path(std::string(200, 'd'));
    const std::string name(200, 'n');
    ASSERT_EQ(CreateFolder(folder.c_str(), nullptr, 0), 1);
    writeFile(folder + "/" + name, "abcd");
    CFileRead reader(folder.c_str(), name.c_str(), nullptr, 0);
    EXPECT_EQ(block(reader, 4, 0), "abcd");
}

TEST_F(FileReader, does_not_wait_for_the_writer_of_a_pipe)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    CFileRead reader(dir(), "pipe", nullptr, 0);
    EXPECT_EQ(failed(reader, 4, 0), ZEROS4);
}

TEST_F(FileReader, takes_null_texts_for_empty_ones)
{
    CFileRead reader;
    EXPECT_EQ(reader.Open(nullptr, nullptr, nullptr, 0), 0);
    EXPECT_STREQ(reader.FileName, "");
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルのオープンに失敗 []"});
}

TEST_F(FileWriter, opens_for_update_and_keeps_the_content)
{
    write("data", "abcdefgh");
    {
        CFileWrite writer(dir(), "data", nullptr, 0);
        EXPECT_STREQ(writer.FileName, "data");
        EXPECT_EQ(writer.WriteBlock("XY", 2, 0, nullptr, 0), 1);
        EXPECT_EQ(writer.WriteBlock("Z", 1, 0, nullptr, 0), 1);
        EXPECT_EQ(writer.WriteBlock("W", 1, 6, nullptr, 0), 1);
    }
    EXPECT_EQ(read("data"), "XYZdefWh");
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileWriter, constructor_does_not_create)
{
    const CFileWrite none;
    EXPECT_EQ(none.fp, nullptr);
    const CFileWrite writer(dir(), "new", nullptr, 0);
    EXPECT_EQ(writer.fp, nullptr);
    EXPECT_FALSE(exists("new"));
    EXPECT_EQ(logged(), Lines{"FILECNTL ファイルのオープンに失敗 [new]"});
}

TEST_F(FileWriter, creates_a_file_and_empties_an_existing_one)
{
    write("old", "abcdefgh");
    CFileWrite writer;
    EXPECT_EQ(writer.Create(dir(), "new", nullptr, 0), 1);
    EXPECT_EQ(writer.WriteBlock("abc", 3, 0, nullptr, 0), 1);
    EXPECT_EQ(writer.Create(dir(), "old", nullptr, 0), 1);
    EXPECT_EQ(read("new"), "abc");
    EXPECT_EQ(read("old"), "");
}

TEST_F(FileWriter, holds_one_open_file_and_none_after_its_end)
{
    write("data", "abcd");
    const auto before = openFiles();
    {
        CFileWrite writer(dir(), "data", nullptr, 0);
        EXPECT_EQ(writer.Create(dir(), "new", nullptr, 0), 1);
        EXPECT_EQ(writer.Open(dir(), "data", nullptr, 0), 1);
        EXPECT_EQ(openFiles(), before + 1);
    }
    EXPECT_EQ(openFiles(), before);
}

TEST_F(FileWriter, writes_records_at_their_number_times_their_size)
{
    write("data", "aaaabbbbcccc");
    CFileWrite writer(dir(), "data", nullptr, 0);
    EXPECT_EQ(writer.WriteRecord(2, "CCCC", 4, 0, nullptr, 0), 1);
    EXPECT_EQ(writer.WriteRecord(0, "AAAA", 4, 0, nullptr, 0), 1);
    EXPECT_EQ(writer.WriteRecord(1, "B", 1, 5, nullptr, 0), 1);
    EXPECT_EQ(read("data"), "AAAAbbBbCCCC");
}

TEST_F(FileWriter, has_each_block_in_the_file_when_it_returns)
{
    CFileWrite writer;
    ASSERT_EQ(writer.Create(dir(), "data", nullptr, 0), 1);
    EXPECT_EQ(writer.WriteBlock("abcd", 4, 0, nullptr, 0), 1);
    EXPECT_EQ(read("data"), "abcd");
}

TEST_F(FileWriter, logs_a_written_record_with_the_text_for_reading)
{
    write("data", "abcd");
    CFileWrite writer(dir(), "data", "caller.cpp", 1);
    EXPECT_EQ(writer.WriteBlock("x", 1, 0, "caller.cpp", 2), 1);
    EXPECT_EQ(writer.WriteRecord(0, "x", 1, 0, "caller.cpp", 3), 1);
    EXPECT_EQ(writer.Create(dir(), "new", "caller.cpp", 4), 1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープン [data] @caller.cpp:1",
                               "FILECNTL ファイルの書込み [data] @caller.cpp:2",
                               "FILECNTL ファイルの読込み [data] @caller.cpp:3",
                               "FILECNTL ファイルの生成 [new] @caller.cpp:4"}));
}

TEST_F(FileWriter, reports_a_full_disk_at_the_write_that_met_it)
{
    CFileWrite writer;
    ASSERT_EQ(writer.Open("/dev", "full", nullptr, 0), 1);
    EXPECT_EQ(writer.WriteBlock("x", 1, 0, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteRecord(0, "x", 1, 0, "caller.cpp", 3), -1);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルの書込みに失敗 [full]",
                               "FILECNTL ファイルの書込みに失敗 [full] @caller.cpp:3"}));
}

TEST_F(FileWriter, fails_to_open_or_create_a_folder)
{
    CFileWrite writer;
    EXPECT_EQ(writer.Open(dir(), "", nullptr, 0), 0);
    EXPECT_EQ(writer.Create(dir(), "", nullptr, 0), 0);
    EXPECT_EQ(writer.Create(dir(), "gone/new", "caller.cpp", 9), 0);
    EXPECT_EQ(logged(), (Lines{"FILECNTL ファイルのオープンに失敗 []", "FILECNTL ファイルの生成に失敗 []",
                               "FILECNTL ファイルの生成に失敗 [gone/new] @caller.cpp:9"}));
}

TEST_F(FileWriter, without_a_file_fails_and_logs_nothing)
{
    CFileWrite writer;
    EXPECT_EQ(writer.WriteBlock("x", 1, 0, "caller.cpp", 1), -1);
    EXPECT_EQ(writer.WriteRecord(0, "x", 1, 0, "caller.cpp", 1), -1);
    EXPECT_EQ(logged(), Lines{});
}

TEST_F(FileWriter, writes_nothing_for_places_and_sizes_that_do_not_exist)
{
    write("data", "abcd");
    CFileWrite writer(dir(), "data", nullptr, 0);
    const std::string block(65536, 'x');
    EXPECT_EQ(writer.WriteBlock("x", -1, 0, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteBlock("x", 1, -1, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteBlock(nullptr, 1, 0, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteRecord(-1, "x", 1, 1, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteRecord(0, "x", 1, -1, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteRecord(1, "x", -1, 1, nullptr, 0), -1);
    EXPECT_EQ(writer.WriteRecord(65536, block.data(), 65536, 0, nullptr, 0), -1);
    EXPECT_EQ(read("data"), "abcd");
    EXPECT_EQ(logged(), Lines(7, "FILECNTL ファイルの書込みに失敗 [data]"));
    EXPECT_EQ(writer.WriteBlock(nullptr, 0, 0, nullptr, 0), 1);
}

TEST_F(FileWriter, does_not_wait_for_the_reader_of_a_pipe)
{
    ASSERT_EQ(mkfifo(path("pipe").c_str(), 0600), 0);
    CFileWrite writer;
    EXPECT_EQ(writer.Create(dir(), "pipe", nullptr, 0), 0);
    ASSERT_EQ(writer.Open(dir(), "pipe", nullptr, 0), 1);
    const std::string more(1 << 20, 'x'); // than a pipe holds
    EXPECT_EQ(writer.WriteBlock(more.data(), 1 << 20, 0, nullptr, 0), -1);
}
