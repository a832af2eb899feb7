#include "comndata/MesgData.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "comndata/TableFile.h"
#include "config/Settings.h"
#include "tests/comndata/CommonData.h"

#include <cstring>
#include <filesystem>
#include <limits>
#include <type_traits>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class Messages : public CommonData
{
  protected:
    /// Writes the lines of the section; they are read at the start or by LoadMesgData.
    void table(const std::string& lines) { project.write("MesgData.prf", "[MESGDATA]\n" + lines); }

    void load(const std::string& lines)
    {
        table(lines);
        LoadMesgData();
    }
};

class ErrorLine : public CommonData
{
  protected:
    void SetUp() override
    {
        project.code("SYS", 20).write("MesgData.prf", "[MESGDATA]\nMESG1=,,警報\nMESG2=,7,\n");
        start();
        Set_wData(DTNO_SYSEROR, 0xA002, nullptr, 0);
        Set_sData(DTNO_SYSEROR, "before", nullptr, 0);
    }

    static WORD word() { return Get_wData(DTNO_SYSEROR, nullptr, 0); }
    static std::string text() { return Get_sData(DTNO_SYSEROR, nullptr, 0); }
};

} // namespace

// --- loading -----------------------------------------------------------------------------------------------

TEST_F(Messages, are_the_numbered_keys_of_their_file)
{
    table("MESG1=CODE,12,text\nMESG500=,,last\nMESG0=,,zero\nMESG501=,,beyond\nMESG07=,,seven\n");
    start();
    ASSERT_NE(MesgData[0], nullptr);
    EXPECT_STREQ(MesgData[0]->ID_Code, "CODE");
    EXPECT_EQ(+MesgData[0]->ID_No, 12);
    EXPECT_STREQ(MesgData[0]->MesgText, "text");
    ASSERT_NE(MesgData[499], nullptr);
    EXPECT_STREQ(MesgData[499]->MesgText, "last");
    for (int i = 1; i < 499; i++)
        EXPECT_EQ(MesgData[i], nullptr) << i;
}

TEST_F(Messages, may_have_gaps)
{
    table("MESG3=,,three\n");
    start();
    EXPECT_STREQ(Get_MesgData(3, nullptr, 0), "three");
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_STREQ(Get_MesgData(2, "t.cpp", 5), "");
    const auto lines = project.log();
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_EQ(lines[0].mesg1, "MESGDATA");
    EXPECT_EQ(lines[0].mesg2, "Message No Error [2]");
    EXPECT_EQ(lines[0].file, "t.cpp");
    EXPECT_EQ(lines[0].line, 5);
}

TEST_F(Messages, take_the_text_of_the_language)
{
    struct {
        int language;
        const char* text;
    } const cases[] = {{0, "日本語"}, {1, "English"}, {2, "Deutsch"}, {5, "Deutsch"}, {-1, "Deutsch"}};
    table("MESG1=,,日本語,English,Deutsch\n");
    for (const auto& each : cases) {
        Language = each.language;
        LoadMesgData();
        EXPECT_STREQ(Get_MesgData(1, nullptr, 0), each.text) << each.language;
    }
}

TEST_F(Messages, are_empty_in_a_language_that_has_no_text)
{
    Language = 1;
    load("MESG1=,,text\n");
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Messages, are_defined_by_any_field_that_is_not_empty)
{
    load("MESG1=,,,,\nMESG2=,5,\nMESG3=C\nMESG4=,x,\nMESG5=,,,,fifth\n");
    EXPECT_EQ(MesgData[0], nullptr);
    ASSERT_NE(MesgData[1], nullptr);
    EXPECT_EQ(+MesgData[1]->ID_No, 5);
    EXPECT_STREQ(MesgData[1]->MesgText, "");
    EXPECT_NE(MesgData[2], nullptr);
    EXPECT_EQ(MesgData[3], nullptr); // "x" is no number, so no field is left
    ASSERT_NE(MesgData[4], nullptr);
    EXPECT_STREQ(MesgData[4]->MesgText, "");
}

TEST_F(Messages, are_zeroed_rows)
{
    load("MESG1=C,,t\n");
    MESGDATA expected{};
    expected.ID_Code[0] = 'C';
    expected.MesgText[0] = 't';
    ASSERT_NE(MesgData[0], nullptr);
    EXPECT_EQ(std::string(MesgData[0]->ID_Code, sizeof expected.ID_Code),
              std::string(expected.ID_Code, sizeof expected.ID_Code));
    EXPECT_EQ(+MesgData[0]->ID_No, 0);
    EXPECT_EQ(std::string(MesgData[0]->MesgText, sizeof expected.MesgText),
              std::string(expected.MesgText, sizeof expected.MesgText));
}

TEST_F(Messages, keep_the_first_99_bytes_of_a_text)
{
    std::string text;
    for (int i = 0; i < 120; i++)
        text += static_cast<char>('a' + i % 26);
    load("MESG1=,," + text + "\n");
    EXPECT_EQ(Get_MesgData(1, nullptr, 0), text.substr(0, 99));
}

TEST_F(Messages, keep_20_bytes_of_a_code_without_splitting_a_character)
{
    load("MESG1=1234567890123456789012345,,a\nMESG2=ああああああああああああ,,b\nMESG3="
         "xああああああああああああ,,c\n");
    ASSERT_NE(MesgData[0], nullptr);
    EXPECT_STREQ(MesgData[0]->ID_Code, "12345678901234567890");
    EXPECT_STREQ(MesgData[1]->ID_Code, "ああああああああああ");
    EXPECT_STREQ(MesgData[2]->ID_Code, "xあああああああああ");
}

TEST_F(Messages, lie_in_a_folder_of_a_fixed_name_and_not_in_the_project_folder)
{
    std::filesystem::create_directory(project.root() + "/elsewhere");
    writeFile(project.root() + "/elsewhere/MesgData.prf", "[MESGDATA]\nMESG1=,,project\nMESG2=,,project\n");
    CopyText(ProjPath, (project.root() + "/elsewhere").c_str());
    load("MESG1=,,fixed\n");
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "fixed");
    EXPECT_EQ(MesgData[1], nullptr);
}

TEST_F(Messages, are_none_without_a_file_and_nothing_is_logged)
{
    project.start();
    EXPECT_TRUE(std::all_of(std::begin(MesgData), std::end(MesgData), [](auto* row) { return !row; }));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Messages, are_replaced_when_they_are_loaded_again)
{
    load("MESG1=,,one\nMESG2=,,two\n");
    load("MESG2=,,zwei\n");
    EXPECT_EQ(MesgData[0], nullptr);
    EXPECT_STREQ(Get_MesgData(2, nullptr, 0), "zwei");
    ExitMesgData();
    EXPECT_EQ(MesgData[1], nullptr);
    ExitMesgData();
}

TEST_F(Messages, in_a_file_that_is_too_long_are_not_loaded_and_that_is_logged)
{
    project.start();
    std::string lines = "MESG1=,,text\n" + std::string(SIZE_TABLEFILE, ';');
    lines.resize(SIZE_TABLEFILE - std::strlen("[MESGDATA]\n"));
    load(lines);
    EXPECT_NE(MesgData[0], nullptr);
    EXPECT_THAT(project.log(), IsEmpty());
    load(lines + ";");
    EXPECT_EQ(MesgData[0], nullptr);
    EXPECT_THAT(logged("MESGDATA"),
                ElementsAre("ProjPath/MesgData.prf: 262145 bytes, at most 262144 are read"));
}

// --- reading -----------------------------------------------------------------------------------------------

TEST_F(Messages, outside_the_table_or_undefined_are_empty_and_logged_even_without_a_file)
{
    load("MESG1=,,text\n");
    start();
    for (const int no : {0, -1, 501, 2, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
        EXPECT_STREQ(Get_MesgData(no, nullptr, 0), "");
    EXPECT_THAT(logged("MESGDATA"),
                ElementsAre("Message No Error [0]", "Message No Error [-1]", "Message No Error [501]",
                            "Message No Error [2]", "Message No Error [-2147483648]",
                            "Message No Error [2147483647]"));
}

TEST_F(Messages, are_copied_out_or_the_target_is_emptied)
{
    table("MESG1=,,メッセージ\n");
    start();
    char text[SIZE_MESGTEXT + 2] = "before";
    Get_MesgData(1, text, "t.cpp", 1);
    EXPECT_STREQ(text, "メッセージ");
    EXPECT_THAT(project.log(), IsEmpty());
    Get_MesgData(9, text, nullptr, 0);
    EXPECT_STREQ(text, "");
    EXPECT_THAT(logged("MESGDATA"), ElementsAre("Message No Error [9]"));
}

// --- binding to cells --------------------------------------------------------------------------------------

TEST_F(Messages, are_bound_to_no_cell_at_the_start_because_the_code_table_comes_later)
{
    project.code("A", 5).flag(0, 0);
    table("MESG7=A,2,text\nMESG8=,,free\n");
    project.start();
    EXPECT_THAT(logged("MESGDATA"), ElementsAre("MesgData Error [7 / A / 2]"));
    EXPECT_EQ(+ComnData[3].sData, nullptr);
    EXPECT_STREQ(Get_MesgData(7, nullptr, 0), "text");
}

TEST_F(Messages, loaded_after_the_code_table_share_their_text_with_the_cell)
{
    project.code("A", 5);
    start();
    Set_sData(3, "own", nullptr, 0);
    load("MESG1=A,2,shared\n");
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(+ComnData[3].sData, MesgData[0]->MesgText);
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "shared");
}

TEST_F(Messages, that_are_shared_stay_when_the_cell_is_written)
{
    project.code("A", 5);
    start();
    load("MESG1=A,2,shared\n");
    Set_sData(3, "own", nullptr, 0);
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "shared");
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "own");
    ExitMesgData();
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "own");

    load("MESG1=A,2,shared\n");
    Set_sData(3, ComnData[3].sData, nullptr, 0);
    EXPECT_NE(+ComnData[3].sData, MesgData[0]->MesgText);
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "shared");
    Set_sData(3, nullptr, nullptr, 0);
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "shared");
}

TEST_F(Messages, that_are_shared_leave_the_cell_when_the_table_goes)
{
    project.code("A", 5);
    start();
    load("MESG1=A,2,shared\n");
    ExitMesgData();
    EXPECT_EQ(+ComnData[3].sData, nullptr);
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "");
    load("MESG1=A,2,again\n");
    load("MESG1=A,1,moved\n");
    EXPECT_EQ(+ComnData[3].sData, nullptr);
    EXPECT_STREQ(Get_sData(2, nullptr, 0), "moved");
}

TEST_F(Messages, that_are_shared_outlive_the_cells)
{
    project.code("A", 5);
    start();
    load("MESG1=A,2,shared\n");
    LoadCodeData();
    EXPECT_EQ(+ComnData[3].sData, nullptr);
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "shared");
    ExitMesgData();
    load("MESG1=A,2,shared\n");
    ComnDataExit();
    EXPECT_EQ(ComnData, nullptr);
    EXPECT_EQ(MesgData[0], nullptr);
}

TEST_F(Messages, of_one_cell_are_shared_by_the_last_one)
{
    project.code("A", 5);
    start();
    load("MESG1=A,2,first\nMESG2=A,2,second\n");
    EXPECT_STREQ(Get_sData(3, nullptr, 0), "second");
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "first");
}

TEST_F(Messages, of_an_unknown_code_or_offset_are_logged_with_the_code_as_it_is_kept)
{
    project.code("A", 5);
    start();
    load("MESG1=A,5,x\nMESG20=1234567890123456789012345,3,y\nMESG3=A,4,z\n");
    EXPECT_THAT(logged("MESGDATA"),
                ElementsAre("MesgData Error [1 / A / 5]", "MesgData Error [20 / 12345678901234567890 / 3]"));
    EXPECT_STREQ(Get_MesgData(1, nullptr, 0), "x");
}

TEST_F(Messages, without_a_code_are_not_bound_to_cell_0)
{
    project.code("A", 5);
    start();
    load("MESG1=,,text\n");
    EXPECT_EQ(+ComnData[0].sData, nullptr);
}

TEST_F(Messages, of_a_number_outside_the_store_are_not_bound)
{
    project.write("PtrnCode", codeRow("FAR", 5, 1000) + codeRow("NEG", 5, -50));
    start();
    load("MESG1=FAR,2,x\nMESG2=NEG,2,y\n");
    EXPECT_THAT(project.log(), IsEmpty());
    for (int no = 0; no < PtrnDataNo; no++)
        EXPECT_EQ(+ComnData[no].sData, nullptr);
}

// --- the error line ----------------------------------------------------------------------------------------

TEST_F(ErrorLine, shows_a_message_in_colour_1)
{
    DispErrorMesg(1);
    EXPECT_EQ(word(), 0xA001);
    EXPECT_EQ(text(), "警報");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(ErrorLine, logs_a_message_that_is_not_defined_and_stays)
{
    DispErrorMesg(0);
    DispErrorMesg(3);
    DispErrorMesg(-1);
    DispErrorMesg(501);
    EXPECT_EQ(word(), 0xA002);
    EXPECT_EQ(text(), "before");
    EXPECT_THAT(logged("MESGDATA"), ElementsAre("Message No Error [0]", "Message No Error [3]",
                                                "Message No Error [-1]", "Message No Error [501]"));
}

TEST_F(ErrorLine, stays_for_a_message_without_text)
{
    DispErrorMesg(2);
    EXPECT_EQ(word(), 0xA002);
    EXPECT_EQ(text(), "before");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(ErrorLine, shows_a_given_text_and_stays_for_an_empty_one)
{
    DispErrorMesg("入力エラー");
    EXPECT_EQ(word(), 0xA001);
    EXPECT_EQ(text(), "入力エラー");
    ClearErrorMesg();
    DispErrorMesg("");
    DispErrorMesg(static_cast<const char*>(nullptr));
    EXPECT_EQ(word(), 0xA000);
    EXPECT_EQ(text(), "入力エラー");
}

TEST_F(ErrorLine, loses_its_colour_but_not_its_text_when_it_is_cleared)
{
    DispErrorMesg(1);
    ClearErrorMesg();
    EXPECT_EQ(word(), 0xA000);
    EXPECT_EQ(text(), "警報");
}

TEST_F(ErrorLine, is_silent_even_when_its_number_is_logged)
{
    PtrnFlag[DTNO_SYSEROR] = 1;
    DispErrorMesg(1);
    ClearErrorMesg();
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(CommonData, without_an_error_line_ignores_messages_for_it)
{
    project.code("A", 5).write("MesgData.prf", "[MESGDATA]\nMESG1=,,text\n");
    start();
    DispErrorMesg(1);
    DispErrorMesg("text");
    ClearErrorMesg();
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(PtrnDataNo, 6);
}
