// The wiring table apart from its screens: file, fields, sorting.
#include "app/WireTable.h"

#include "tests/app/WireFile.h"

#include <algorithm>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace
{

const HeaderBytes HEADER = {"SYS-1", "東京工場", "W-0815", "B-01", "盤内配線"};

class WireTable : public testing::Test
{
  protected:
    void SetUp() override { project.start(); }
    void TearDown() override
    {
        FreeHaisenhyo();
        HaisenHedr = HAISENHEDR{};
    }

    void load(const std::string& bytes)
    {
        project.write("Haisenhyo", bytes);
        project.clearLog();
        LoadHaisenhyo();
    }
    void load(const std::vector<WireBytes>& wires) { load(wireFile(HEADER, wires)); }

    /// The header's number; it does not lie where an int may be pointed at.
    static int records() { return HaisenHedr.datacount; }
    /// A column of all records in display order.
    static std::vector<std::string> shown(int column)
    {
        std::vector<std::string> texts;
        for (int i = 0; const HAISENDATA* wire = WireAt(i); i++)
            texts.push_back(WireText(*wire, column));
        return texts;
    }
    /// The records' numbers in display order.
    static std::vector<int> order()
    {
        std::vector<int> numbers;
        for (int i = 0; const HAISENDATA* wire = WireAt(i); i++)
            numbers.push_back(wire->gyoban);
        return numbers;
    }

    Project project;
};

} // namespace

TEST_F(WireTable, reads_header_and_records)
{
    load(numberedWires(3));
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "SYS-1");
    EXPECT_EQ(FieldText(HaisenHedr.nousaki), "東京工場");
    EXPECT_EQ(FieldText(HaisenHedr.sakuban), "W-0815");
    EXPECT_EQ(FieldText(HaisenHedr.banno), "B-01");
    EXPECT_EQ(FieldText(HaisenHedr.comment), "盤内配線");
    EXPECT_EQ(records(), 3);
    EXPECT_THAT(order(), ElementsAre(1, 2, 3));
    EXPECT_THAT(HaisenIndx, ElementsAre(0, 1, 2));
    for (int column = 0; column < 16; column++)
        if (column != LENGTH_COLUMN) {
            EXPECT_EQ(WireText(HaisenData[1], column), static_cast<char>('a' + column) + std::string("2"));
        }
    EXPECT_EQ(HaisenData[1].length, 20);
    EXPECT_EQ(WireText(HaisenData[1], LENGTH_COLUMN), "        20");
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(WireTable, is_empty_without_its_file)
{
    load(numberedWires(3));
    unlink((project.folder() + "/Haisenhyo").c_str());
    project.clearLog();
    LoadHaisenhyo();
    EXPECT_THAT(HaisenData, IsEmpty());
    EXPECT_EQ(records(), 0);
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "");
    EXPECT_EQ(WireAt(0), nullptr);
    EXPECT_THAT(project.messages(), ElementsAre("ファイルのオープンに失敗 [Haisenhyo]"));
}

TEST_F(WireTable, loading_again_replaces_everything)
{
    load(numberedWires(30));
    SortHaisenhyo(WIRE_SENBAN, 1);
    load(numberedWires(2));
    EXPECT_THAT(order(), ElementsAre(1, 2));
}

TEST_F(WireTable, takes_fields_that_are_full_to_the_last_byte)
{
    WireBytes wire;
    for (std::size_t column = 0; column < 16; column++)
        wire.texts[column] = std::string(static_cast<std::size_t>(WIRE_FIELD_SIZE[column]), 'X');
    const HeaderBytes full = {std::string(10, 'A'), std::string(22, 'B'), std::string(16, 'C'),
                              std::string(6, 'D'), std::string(80, 'E')};
    load(wireFile(full, {wire}));
    EXPECT_EQ(FieldText(HaisenHedr.systemno), full.systemNo);
    EXPECT_EQ(FieldText(HaisenHedr.nousaki), full.delivery);
    EXPECT_EQ(FieldText(HaisenHedr.sakuban), full.workNo);
    EXPECT_EQ(FieldText(HaisenHedr.banno), full.boardNo);
    EXPECT_EQ(FieldText(HaisenHedr.comment), full.comment);
    for (int column = 0; column < 16; column++)
        if (column != LENGTH_COLUMN) {
            EXPECT_EQ(WireText(HaisenData[0], column), wire.texts[static_cast<std::size_t>(column)])
                << column;
        }
}

TEST_F(WireTable, keeps_the_whole_records_of_a_file_that_ends_early)
{
    const std::string whole = wireFile(HEADER, numberedWires(5));
    const auto keptOf = [&](std::size_t size) {
        load(whole.substr(0, size));
        EXPECT_EQ(HaisenData.size(), HaisenIndx.size());
        EXPECT_EQ(static_cast<std::size_t>(HaisenHedr.datacount), HaisenData.size());
        return HaisenData.size();
    };
    EXPECT_EQ(keptOf(138 + 5 * 108 - 1), 4u);
    EXPECT_THAT(project.messages(), ElementsAre("Haisenhyo: 5 records announced, 4 read"));
    EXPECT_EQ(keptOf(138 + 108), 1u);
    EXPECT_EQ(keptOf(138 + 107), 0u);
    EXPECT_EQ(keptOf(138), 0u);
    EXPECT_EQ(keptOf(137), 0u);
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "") << "half a header is none";
    EXPECT_EQ(keptOf(1), 0u);
    EXPECT_EQ(keptOf(0), 0u);
}

TEST_F(WireTable, reads_no_more_than_the_header_tells)
{
    std::string bytes = wireFile(HEADER, numberedWires(5));
    load(wireHeader(HEADER, 2) + bytes.substr(138));
    EXPECT_THAT(order(), ElementsAre(1, 2));
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(WireTable, survives_counts_that_can_not_be)
{
    const std::string wires = wireFile(HEADER, numberedWires(3)).substr(138);
    for (const int count : {4, 1000000, 19884107, 2147483647}) {
        load(wireHeader(HEADER, count) + wires);
        EXPECT_THAT(HaisenData, SizeIs(3)) << count;
        EXPECT_EQ(records(), 3);
        EXPECT_THAT(project.messages(),
                    ElementsAre("Haisenhyo: " + std::to_string(count) + " records announced, 3 read"));
    }
    for (const int count : {-1, -108, -2147483647 - 1}) {
        load(wireHeader(HEADER, count) + wires);
        EXPECT_THAT(HaisenData, IsEmpty()) << count;
        EXPECT_EQ(records(), 0);
        EXPECT_THAT(project.messages(),
                    ElementsAre("Haisenhyo: " + std::to_string(count) + " records announced, 0 read"));
    }
}

TEST_F(WireTable, reads_at_most_a_million_records)
{
    // A sparse file: the records are all zero and take no room on the disk.
    project.write("Haisenhyo", wireHeader(HEADER, 1500000));
    ASSERT_EQ(truncate((project.folder() + "/Haisenhyo").c_str(), 138 + 1500000L * 108), 0);
    LoadHaisenhyo();
    EXPECT_EQ(records(), CONT_HAISENDATA);
    SortHaisenhyo(WIRE_SHEET, 0);
    EXPECT_EQ(HaisenIndx.back(), CONT_HAISENDATA - 1);
}

TEST_F(WireTable, is_empty_when_folders_or_pipes_stand_in_the_file_s_place)
{
    const std::string path = project.folder() + "/Haisenhyo";
    ASSERT_EQ(mkdir(path.c_str(), 0777), 0);
    LoadHaisenhyo();
    EXPECT_THAT(HaisenData, IsEmpty());
    rmdir(path.c_str());
    ASSERT_EQ(mkfifo(path.c_str(), 0666), 0);
    LoadHaisenhyo();
    EXPECT_THAT(HaisenData, IsEmpty());
}

TEST_F(WireTable, survives_any_bytes)
{
    std::mt19937 random(1);
    for (int round = 0; round < 50; round++) {
        std::string bytes(138 + round * 50, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        load(bytes);
        for (int column = 0; column < 16; column++)
            SortHaisenhyo(column, column % 2);
        EXPECT_EQ(order().size(), HaisenData.size());
    }
}

TEST_F(WireTable, saves_byte_for_byte_what_it_has_read)
{
    std::vector<WireBytes> wires = numberedWires(20);
    wires[3].texts[0] = "線番１";
    wires[4].length = -5;
    std::string bytes = wireFile(HEADER, wires);
    bytes[138 + 15] = 'r'; // what stands behind the end of a text
    bytes[138 + 17] = 'x';
    load(bytes);
    SortHaisenhyo(WIRE_LENGTH, 1);
    project.write("Haisenhyo", std::string(bytes.size(), '?'));
    project.clearLog();
    SaveHaisenhyo();
    EXPECT_EQ(project.read("Haisenhyo"), bytes) << "in storage order, not in display order";
    EXPECT_THAT(project.messages(), IsEmpty());
}

TEST_F(WireTable, saving_keeps_what_lies_behind_the_records)
{
    const std::string bytes = wireFile(HEADER, numberedWires(2)) + "tail";
    load(bytes);
    SaveHaisenhyo();
    EXPECT_EQ(project.read("Haisenhyo"), bytes);
}

TEST_F(WireTable, saving_does_not_make_a_missing_file)
{
    load(numberedWires(2));
    unlink((project.folder() + "/Haisenhyo").c_str());
    project.clearLog();
    SaveHaisenhyo();
    EXPECT_FALSE(project.exists("Haisenhyo"));
    EXPECT_THAT(project.messages(), ElementsAre("ファイルのオープンに失敗 [Haisenhyo]"));
}

TEST_F(WireTable, a_full_disk_is_told_once)
{
    // Every Linux has it but a root folder in which nobody has made the devices.
    if (access("/dev/full", W_OK) != 0)
        GTEST_SKIP() << "no /dev/full here";
    load(numberedWires(20));
    unlink((project.folder() + "/Haisenhyo").c_str());
    ASSERT_EQ(symlink("/dev/full", (project.folder() + "/Haisenhyo").c_str()), 0);
    project.clearLog();
    SaveHaisenhyo();
    EXPECT_THAT(project.messages(), ElementsAre("ファイルの書込みに失敗 [Haisenhyo]"));
}

TEST_F(WireTable, finds_records_by_display_position)
{
    load(numberedWires(3));
    SortHaisenhyo(WIRE_SENBAN, 1);
    EXPECT_EQ(WireAt(0)->gyoban, 3);
    EXPECT_EQ(WireAt(2)->gyoban, 1);
    for (const int position : {-1, 3, 2147483647, -2147483647 - 1})
        EXPECT_EQ(WireAt(position), nullptr) << position;
}

TEST_F(WireTable, changes_texts_within_their_fields)
{
    load(numberedWires(2));
    HAISENDATA& wire = HaisenData[0];
    for (int column = 0; column < 16; column++) {
        if (column == LENGTH_COLUMN)
            continue;
        const auto size = static_cast<std::size_t>(WIRE_FIELD_SIZE[column]);
        SetWireText(wire, column, std::string(100, 'Z').c_str());
        EXPECT_EQ(WireText(wire, column), std::string(size - 1, 'Z')) << column;
    }
    EXPECT_EQ(wire.gyoban, 1);
    EXPECT_EQ(wire.length, 10);
    EXPECT_EQ(HaisenData[1].gyoban, 2);
    SetWireText(wire, WIRE_SENSYU, "");
    EXPECT_EQ(WireText(wire, WIRE_SENSYU), "");
}

TEST_F(WireTable, never_keeps_half_a_character)
{
    load(numberedWires(1));
    SetWireText(HaisenData[0], WIRE_SENSYU, "線種"); // four bytes, three of them fit
    EXPECT_EQ(WireText(HaisenData[0], WIRE_SENSYU), "線");
    SetWireText(HaisenData[0], WIRE_SENSYU, "a線種");
    EXPECT_EQ(WireText(HaisenData[0], WIRE_SENSYU), "a線");
}

TEST_F(WireTable, leaves_a_record_as_it_is_when_the_text_is_the_same)
{
    WireBytes wire = numberedWire(1);
    wire.texts[0] = "0123456789"; // no room for a terminator
    std::string bytes = wireFile(HEADER, {wire});
    bytes[138 + 18 + 4] = 'r'; // behind the text of column 1
    load(bytes);
    for (const int column : {0, 1}) {
        const HAISENDATA before = HaisenData[0];
        SetWireText(HaisenData[0], column, WireText(before, column).c_str());
        EXPECT_EQ(std::memcmp(&before, &HaisenData[0], sizeof before), 0) << column;
    }
    SetWireText(HaisenData[0], 1, "neu");
    EXPECT_EQ(FieldText(HaisenData[0].senkei), "neu");
    EXPECT_EQ(HaisenData[0].senkei[4], '\0');
}

// --- sorting -------------------------------------------------------------------------------------------

class EveryColumn : public WireTable, public testing::WithParamInterface<int>
{
};

TEST_P(EveryColumn, sorts_by_its_own_bytes_in_both_directions)
{
    // Only this column has an order; in all others every record is the same.
    const char* const texts[] = {"b", "", "ab", "B", "a", "\xA4\xA2", "10", "9", "b"};
    const int lengths[] = {700, 1, 60, 9, 10, 8000, 3, 5, 700};
    const std::vector<int> ascending = {1, 6, 7, 3, 4, 2, 0, 8, 5}; // equal values keep their order
    const std::vector<int> descending = {5, 0, 8, 2, 4, 3, 7, 6, 1};
    std::vector<WireBytes> wires(9);
    for (std::size_t i = 0; i < wires.size(); i++) {
        wires[i].number = static_cast<int>(i);
        if (GetParam() == LENGTH_COLUMN)
            wires[i].length = lengths[i];
        else
            wires[i].texts[static_cast<std::size_t>(GetParam())] = texts[i];
    }
    load(wires);
    SortHaisenhyo(GetParam(), 0);
    EXPECT_EQ(order(), ascending);
    SortHaisenhyo(GetParam(), 1);
    EXPECT_EQ(order(), descending);
}

INSTANTIATE_TEST_SUITE_P(Wire, EveryColumn, testing::Range(0, 16));

TEST_F(WireTable, sorts_lengths_as_numbers)
{
    std::vector<WireBytes> wires(6);
    const int lengths[] = {100, 9, 10, 1000000000, 0, 99};
    for (std::size_t i = 0; i < wires.size(); i++)
        wires[i].length = lengths[i];
    load(wires);
    SortHaisenhyo(WIRE_LENGTH, 0);
    EXPECT_THAT(shown(WIRE_LENGTH), ElementsAre("         0", "         9", "        10", "        99",
                                                "       100", "1000000000"));
}

TEST_F(WireTable, sorts_negative_lengths_by_their_sign)
{
    std::vector<WireBytes> wires(4);
    const int lengths[] = {-5, 3, -2147483647 - 1, 20};
    for (std::size_t i = 0; i < wires.size(); i++)
        wires[i].length = lengths[i];
    load(wires);
    SortHaisenhyo(WIRE_LENGTH, 0);
    EXPECT_THAT(shown(WIRE_LENGTH), ElementsAre("         3", "        -5", "        20", "-2147483648"));
}

TEST_F(WireTable, keeps_the_first_order_within_equal_values_of_the_second)
{
    std::vector<WireBytes> wires(6);
    const char* const gauges[] = {"2", "1", "2", "1", "2", "1"};
    const char* const numbers[] = {"c", "f", "a", "d", "b", "e"};
    for (std::size_t i = 0; i < wires.size(); i++) {
        wires[i].texts[0] = numbers[i];
        wires[i].texts[1] = gauges[i];
    }
    load(wires);
    SortHaisenhyo(WIRE_SENBAN, 0);
    SortHaisenhyo(WIRE_SENKEI, 0);
    EXPECT_THAT(shown(WIRE_SENBAN), ElementsAre("d", "e", "f", "a", "b", "c"));
    SortHaisenhyo(WIRE_SENKEI, 1);
    EXPECT_THAT(shown(WIRE_SENBAN), ElementsAre("a", "b", "c", "d", "e", "f"));
}

TEST_F(WireTable, sorts_as_inserting_one_record_after_the_other_does)
{
    std::mt19937 random(7);
    std::vector<WireBytes> wires(300);
    for (WireBytes& wire : wires) {
        wire.texts[2] = std::to_string(random() % 20);
        wire.length = static_cast<int>(random() % 2000);
    }
    load(wires);
    for (const auto& [column, descending] :
         {std::pair(2, 0), std::pair(LENGTH_COLUMN, 0), std::pair(2, 1), std::pair(LENGTH_COLUMN, 1)}) {
        // Each entry goes before the first earlier one whose key is greater (or smaller).
        std::vector<std::int32_t> expected = HaisenIndx;
        std::vector<std::string> keys = shown(column);
        for (std::size_t i = 1; i < keys.size(); i++)
            for (std::size_t j = 0; j < i; j++)
                if (descending ? keys[j] < keys[i] : keys[j] > keys[i]) {
                    std::rotate(keys.begin() + static_cast<long>(j), keys.begin() + static_cast<long>(i),
                                keys.begin() + static_cast<long>(i) + 1);
                    std::rotate(expected.begin() + static_cast<long>(j),
                                expected.begin() + static_cast<long>(i),
                                expected.begin() + static_cast<long>(i) + 1);
                    break;
                }
        SortHaisenhyo(column, descending);
        EXPECT_EQ(HaisenIndx, expected) << column << (descending ? " descending" : " ascending");
    }
}

TEST_F(WireTable, sorts_an_empty_table)
{
    load(std::vector<WireBytes>());
    SortHaisenhyo(WIRE_SHEET, 1);
    EXPECT_THAT(HaisenIndx, IsEmpty());
}

TEST_F(WireTable, is_never_written_over_a_file_that_could_not_be_read)
{
    const std::string file = project.folder() + "/Haisenhyo";
    std::filesystem::create_symlink("/proc/self/mem", file); // whose first byte fails to be read
    LoadHaisenhyo();
    EXPECT_FALSE(SaveHaisenhyo());
    std::filesystem::remove(file);
    const std::string table = wireFile(HEADER, {});
    project.write("Haisenhyo", table); // the disk is well again
    EXPECT_FALSE(SaveHaisenhyo());
    EXPECT_EQ(project.read("Haisenhyo"), table);
    LoadHaisenhyo();
    EXPECT_TRUE(SaveHaisenhyo());
    EXPECT_EQ(project.read("Haisenhyo"), table);
}
