#include "comndata/PtrnCode.h"

#include "comndata/CodeTable.h"
#include "comndata/ComnData.h"
#include "tests/comndata/CommonData.h"

#include <filesystem>
#include <limits>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int HIGHEST = std::numeric_limits<int>::max();
constexpr int LOWEST = std::numeric_limits<int>::min();

class CodeTable : public CommonData
{
  protected:
    void load(const std::string& rows)
    {
        project.write("PtrnCode", rows);
        start();
    }

    /// Size of the file's sparse content; every row of it is empty.
    void loadSparse(std::uintmax_t size)
    {
        project.write("PtrnCode", "");
        std::filesystem::resize_file(project.folder() + "/PtrnCode", size);
        project.start();
    }
};

} // namespace

// --- rows --------------------------------------------------------------------------------------------------

// The plus makes a copy: a reference must not be bound to a field of a packed record.
TEST_F(CodeTable, has_rows_of_34_bytes_in_file_order)
{
    load(codeRow("A", 5, 1, 7) + codeRow("B", 3, 6, -8));
    ASSERT_EQ(PtrnRecd, 2);
    EXPECT_STREQ(PtrnCode[0].ID_Code, "A");
    EXPECT_EQ(+PtrnCode[0].DataCount, 5);
    EXPECT_EQ(+PtrnCode[0].DataNo, 1);
    EXPECT_EQ(+PtrnCode[0].DispNo, 7);
    EXPECT_STREQ(PtrnCode[1].ID_Code, "B");
    EXPECT_EQ(+PtrnCode[1].DataCount, 3);
    EXPECT_EQ(+PtrnCode[1].DataNo, 6);
    EXPECT_EQ(+PtrnCode[1].DispNo, -8);
}

TEST_F(CodeTable, is_searched_where_its_pointer_says)
{
    load(codeRow("A", 5, 1));
    PTRNCODE row{"B", 3, 2, 0};
    PtrnCode = &row;
    PtrnFlag[4] = 1;
    EXPECT_EQ(ConvertDtno("A", 0), -1);
    EXPECT_EQ(ConvertDtno("B", 2), 4);
    char name[SIZE_DTNONAME];
    EXPECT_EQ(ConvertDtno(4, name), 1);
    EXPECT_STREQ(name, "B+2");
}

TEST_F(CodeTable, makes_one_cell_more_than_its_counts_add_up_to)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    EXPECT_EQ(PtrnDataNo, 9);
    EXPECT_NE(ComnData, nullptr);
}

TEST_F(CodeTable, makes_cells_by_count_wherever_the_codes_lie)
{
    load(codeRow("A", 5, 1000) + codeRow("B", 3, -20) + codeRow("C", 4, 1000));
    EXPECT_EQ(PtrnRecd, 3);
    EXPECT_EQ(PtrnDataNo, 13);
}

TEST_F(CodeTable, does_not_read_a_trailing_part_that_is_no_row)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6).substr(0, 33));
    EXPECT_EQ(PtrnRecd, 1);
    EXPECT_EQ(PtrnDataNo, 6);
    EXPECT_THAT(logged("FILECNTL"), IsEmpty());
}

TEST_F(CodeTable, shorter_than_a_row_makes_the_cell_of_unbound_items_alone)
{
    load("short");
    EXPECT_EQ(PtrnRecd, 0);
    EXPECT_EQ(PtrnCode, nullptr);
    EXPECT_EQ(PtrnDataNo, 1);
    EXPECT_EQ(project.read("PtrnFlag").size(), 1U);
}

TEST_F(CodeTable, that_is_missing_or_empty_makes_no_cells_and_no_flags)
{
    start();
    EXPECT_EQ(PtrnRecd, 0);
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_EQ(ComnData, nullptr);
    EXPECT_EQ(PtrnFlag, nullptr);
    EXPECT_FALSE(project.exists("PtrnFlag"));

    project.write("PtrnCode", "");
    EXPECT_EQ(LoadCodeData(), 1);
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_FALSE(project.exists("PtrnFlag"));
}

TEST_F(CodeTable, that_is_a_folder_makes_the_cell_of_unbound_items_at_most)
{
    std::filesystem::create_directory(project.folder() + "/PtrnCode");
    project.start();
    EXPECT_LE(PtrnDataNo, 1);
    EXPECT_EQ(ConvertDtno("A", 0), -1);
}

TEST_F(CodeTable, ends_before_a_negative_count_and_says_so)
{
    project.write("PtrnCode", codeRow("A", 5, 1) + codeRow("B", -1, 6) + codeRow("C", 3, 6));
    project.start();
    EXPECT_EQ(PtrnRecd, 1);
    EXPECT_EQ(PtrnDataNo, 6);
    EXPECT_EQ(ConvertDtno("C", 0), -1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("PtrnCode: table ends before row 1 [B], count -1: negative"));
}

TEST_F(CodeTable, has_room_for_a_million_cells)
{
    load(codeRow("A", 999998, 1) + codeRow("B", 1, 999999));
    EXPECT_EQ(PtrnRecd, 2);
    EXPECT_EQ(PtrnDataNo, 1000000);
    Set_iData(999999, 5, nullptr, 0);
    EXPECT_EQ(Get_iData(999999, nullptr, 0), 5);
    EXPECT_EQ(project.read("PtrnFlag").size(), 1000000U);
}

TEST_F(CodeTable, ends_before_the_row_that_passes_a_million_cells_and_says_so)
{
    project.write("PtrnCode", codeRow("A", 999998, 1) + codeRow("B", 2, 999999) + codeRow("C", 1, 5));
    project.start();
    EXPECT_EQ(PtrnRecd, 1);
    EXPECT_EQ(PtrnDataNo, 999999);
    EXPECT_THAT(logged("COMNMEM"),
                ElementsAre("PtrnCode: table ends before row 1 [B], count 2: too many cells"));
}

TEST_F(CodeTable, survives_the_highest_and_lowest_counts)
{
    load(codeRow("A", HIGHEST, 1));
    EXPECT_EQ(PtrnRecd, 0);
    EXPECT_EQ(PtrnCode, nullptr);
    EXPECT_EQ(PtrnDataNo, 1);
    load(codeRow("A", LOWEST, 1));
    EXPECT_EQ(PtrnRecd, 0);
    EXPECT_EQ(PtrnDataNo, 1);
}

TEST_F(CodeTable, keeps_rows_without_numbers)
{
    load(codeRow("A", 0, 1) + codeRow("B", 2, 1));
    EXPECT_EQ(PtrnRecd, 2);
    EXPECT_EQ(PtrnDataNo, 3);
    EXPECT_EQ(ConvertDtno("A", 0), -1);
    EXPECT_EQ(ConvertDtno("B", 0), 1);
}

TEST_F(CodeTable, is_read_up_to_a_million_rows_of_a_huge_file)
{
    loadSparse(500'000'000);
    EXPECT_EQ(PtrnRecd, 1000000);
    EXPECT_EQ(PtrnDataNo, 1);
    EXPECT_THAT(logged("COMNMEM"), ElementsAre("PtrnCode: 14705882 rows, only 1000000 are read"));
}

TEST_F(CodeTable, is_replaced_when_it_is_loaded_again)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    Set_sData(5, "text", nullptr, 0);
    project.write("PtrnCode", codeRow("C", 2, 1));
    EXPECT_EQ(LoadCodeData(), 1);
    EXPECT_EQ(PtrnRecd, 1);
    EXPECT_EQ(PtrnDataNo, 3);
    EXPECT_EQ(ConvertDtno("A", 0), -1);
    EXPECT_EQ(ConvertDtno("C", 0), 1);
}

// --- flags -------------------------------------------------------------------------------------------------

TEST_F(CodeTable, creates_a_missing_flag_file_and_logs_that_it_could_not_be_read)
{
    project.write("PtrnCode", codeRow("A", 5, 1));
    project.start();
    EXPECT_EQ(project.read("PtrnFlag"), std::string(6, '\0'));
    EXPECT_THAT(logged("FILECNTL"),
                ElementsAre("ファイルのオープンに失敗 [PtrnFlag]", "ファイルの読込みに失敗 [PtrnFlag]",
                            "ファイルのオープンに失敗 [PtrnFlag]"));
}

TEST_F(CodeTable, reads_and_keeps_a_flag_file_of_its_length_silently)
{
    const std::string flags("\x01\x00\x02\xFF\x00\x03", 6);
    project.write("PtrnCode", codeRow("A", 5, 1)).write("PtrnFlag", flags);
    project.start();
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(PtrnFlag), 6), flags);
    EXPECT_EQ(project.read("PtrnFlag"), flags);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(CodeTable, takes_no_flag_of_a_shorter_flag_file_and_rewrites_it_at_full_length)
{
    project.write("PtrnCode", codeRow("A", 5, 1)).write("PtrnFlag", "\x01\x01\x01\x01\x01");
    project.start();
    EXPECT_EQ(std::string(reinterpret_cast<const char*>(PtrnFlag), 6), std::string(6, '\0'));
    EXPECT_EQ(project.read("PtrnFlag"), std::string(6, '\0'));
    EXPECT_THAT(logged("FILECNTL"), ElementsAre("ファイルの読込みに失敗 [PtrnFlag]"));
}

TEST_F(CodeTable, takes_the_first_flags_of_a_longer_flag_file_and_keeps_its_tail)
{
    project.write("PtrnCode", codeRow("A", 2, 1)).write("PtrnFlag", "\x01\x02\x03tail");
    project.start();
    EXPECT_EQ(PtrnFlag[0], 1);
    EXPECT_EQ(PtrnFlag[1], 2);
    EXPECT_EQ(PtrnFlag[2], 3);
    EXPECT_EQ(project.read("PtrnFlag"), "\x01\x02\x03tail");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(CodeTable, has_no_flags_when_the_flag_file_is_a_folder)
{
    std::filesystem::create_directory(project.folder() + "/PtrnFlag");
    load(codeRow("A", 2, 1));
    EXPECT_EQ(PtrnDataNo, 3);
    for (int no = 0; no < 3; no++)
        EXPECT_EQ(PtrnFlag[no], 0);
}

// --- numbers of codes --------------------------------------------------------------------------------------

TEST_F(CodeTable, gives_the_number_of_a_code_and_an_offset)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    EXPECT_EQ(ConvertDtno("A", 0), 1);
    EXPECT_EQ(ConvertDtno("A", 4), 5);
    EXPECT_EQ(ConvertDtno("B", 2), 8);
    EXPECT_EQ(ConvertDtno("B", 3), -1);
    EXPECT_EQ(ConvertDtno("A", 5), -1);
    EXPECT_EQ(ConvertDtno("A", HIGHEST), -1);
}

TEST_F(CodeTable, gives_0_for_an_empty_code_and_minus_1_for_an_unknown_one)
{
    load(codeRow("A", 5, 1) + codeRow("", 3, 6));
    EXPECT_EQ(ConvertDtno("", 0), 0);
    EXPECT_EQ(ConvertDtno("", 99), 0);
    EXPECT_EQ(ConvertDtno(nullptr, 1), 0);
    EXPECT_EQ(ConvertDtno("C", 0), -1);
}

TEST_F(CodeTable, does_not_refuse_a_negative_offset)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    EXPECT_EQ(ConvertDtno("B", -2), 4);
    EXPECT_EQ(ConvertDtno("B", -6), 0);
    EXPECT_EQ(ConvertDtno("B", -9), -3);
}

TEST_F(CodeTable, compares_the_whole_code_exactly)
{
    load(codeRow("AB", 5, 1) + codeRow("A", 3, 6) + codeRow("設定", 3, 9));
    EXPECT_EQ(ConvertDtno("A", 0), 6);
    EXPECT_EQ(ConvertDtno("AB", 0), 1);
    EXPECT_EQ(ConvertDtno("ABC", 0), -1);
    EXPECT_EQ(ConvertDtno("ab", 0), -1);
    EXPECT_EQ(ConvertDtno("A ", 0), -1);
    EXPECT_EQ(ConvertDtno("設定", 1), 10);
}

TEST_F(CodeTable, takes_the_first_row_of_a_code_that_occurs_twice)
{
    load(codeRow("A", 2, 1) + codeRow("A", 9, 3));
    EXPECT_EQ(ConvertDtno("A", 1), 2);
    EXPECT_EQ(ConvertDtno("A", 5), -1);
}

TEST_F(CodeTable, takes_first_numbers_as_they_stand)
{
    load(codeRow("NEG", 5, -100) + codeRow("FAR", 5, 2000000000) + codeRow("TOP", 5, HIGHEST) +
         codeRow("LOW", 5, LOWEST));
    EXPECT_EQ(ConvertDtno("NEG", 1), -99);
    EXPECT_EQ(ConvertDtno("FAR", 4), 2000000004);
    EXPECT_EQ(ConvertDtno("TOP", 0), HIGHEST);
    EXPECT_EQ(ConvertDtno("TOP", -1), HIGHEST - 1);
    EXPECT_EQ(ConvertDtno("LOW", 0), LOWEST);
}

TEST_F(CodeTable, gives_minus_1_for_a_number_that_is_no_int)
{
    load(codeRow("TOP", 5, HIGHEST) + codeRow("LOW", 5, LOWEST));
    EXPECT_EQ(ConvertDtno("TOP", 1), -1);
    EXPECT_EQ(ConvertDtno("LOW", -1), -1);
    EXPECT_EQ(ConvertDtno("LOW", LOWEST), -1);
}

TEST_F(CodeTable, knows_a_code_that_fills_its_field_without_a_terminator)
{
    const std::string code = "1234567890123456789012";
    load(codeRow(code, 5, 1) + codeRow("B", 5, 6));
    EXPECT_EQ(ConvertDtno(code.c_str(), 2), 3);
    EXPECT_EQ(ConvertDtno((code + "\x05").c_str(), 0), -1);
    EXPECT_EQ(ConvertDtno(code.substr(0, 21).c_str(), 0), -1);
    PtrnFlag[3] = 1;
    char name[SIZE_DTNONAME];
    EXPECT_EQ(ConvertDtno(3, name), 1);
    EXPECT_EQ(name, code + "+2");
}

// --- names of numbers --------------------------------------------------------------------------------------

TEST_F(CodeTable, names_a_number_only_when_its_flag_is_set)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    char name[SIZE_DTNONAME] = "before";
    EXPECT_EQ(ConvertDtno(8, name), 0);
    EXPECT_STREQ(name, "");

    PtrnFlag[8] = 1;
    EXPECT_EQ(ConvertDtno(8, name), 1);
    EXPECT_STREQ(name, "B+2");
    PtrnFlag[3] = 0xFF;
    EXPECT_EQ(ConvertDtno(3, name), 1);
    EXPECT_STREQ(name, "A+2");
    PtrnFlag[3] = 0xFE;
    EXPECT_EQ(ConvertDtno(3, name), 0);
    EXPECT_STREQ(name, "");
}

TEST_F(CodeTable, names_no_number_that_it_does_not_hold)
{
    load(codeRow("A", 2, 2) + codeRow("B", 2, 5));
    std::fill_n(PtrnFlag, PtrnDataNo, BYTE{1});
    char name[SIZE_DTNONAME];
    for (const int no : {0, 1, 4})
        EXPECT_EQ(ConvertDtno(no, name), 0) << no;
    EXPECT_EQ(ConvertDtno(2, name), 1);
    EXPECT_STREQ(name, "A+0");
}

TEST_F(CodeTable, names_no_number_outside_the_store)
{
    load(codeRow("A", 5, 1) + codeRow("FAR", 1, 50));
    std::fill_n(PtrnFlag, PtrnDataNo, BYTE{1});
    for (const int no : {-1, 7, 50, LOWEST, HIGHEST}) {
        char name[SIZE_DTNONAME] = "before";
        EXPECT_EQ(ConvertDtno(no, name), 0);
        EXPECT_STREQ(name, "");
    }
}

TEST_F(CodeTable, names_a_number_by_the_first_row_that_holds_it)
{
    load(codeRow("NONE", 0, 3) + codeRow("A", 5, 1) + codeRow("B", 9, 1));
    std::fill_n(PtrnFlag, PtrnDataNo, BYTE{1});
    char name[SIZE_DTNONAME];
    EXPECT_EQ(ConvertDtno(3, name), 1);
    EXPECT_STREQ(name, "A+2");
    EXPECT_EQ(ConvertDtno(6, name), 1);
    EXPECT_STREQ(name, "B+5");
}

TEST_F(CodeTable, names_numbers_of_codes_at_the_ends_of_the_int_range)
{
    load(codeRow("TOP", 500000, HIGHEST) + codeRow("NEG", 400000, -399999) + codeRow("LOW", 5, LOWEST));
    PtrnFlag[0] = 1;
    PtrnFlag[1] = 1;
    char name[SIZE_DTNONAME];
    EXPECT_EQ(ConvertDtno(0, name), 1);
    EXPECT_STREQ(name, "NEG+399999");
    EXPECT_EQ(ConvertDtno(1, name), 0);
}

TEST_F(CodeTable, names_fit_the_buffer_at_their_longest)
{
    load(codeRow(std::string(22, 'x'), 999999, 1));
    PtrnFlag[999999] = 1;
    char name[SIZE_DTNONAME];
    EXPECT_EQ(ConvertDtno(999999, name), 1);
    EXPECT_EQ(name, std::string(22, 'x') + "+999998");
}

TEST_F(CodeTable, finds_the_row_that_holds_a_number)
{
    load(codeRow("A", 5, 1) + codeRow("B", 3, 6));
    EXPECT_EQ(FindCode(0), nullptr);
    EXPECT_EQ(FindCode(1), &PtrnCode[0]);
    EXPECT_EQ(FindCode(5), &PtrnCode[0]);
    EXPECT_EQ(FindCode(6), &PtrnCode[1]);
    EXPECT_EQ(FindCode(9), nullptr);
}
