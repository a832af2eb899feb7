// Pattern files as they should be.
#include "config/Settings.h"
#include "tests/pattern/LoadedPattern.h"

#include <cstring>
#include <string>

using namespace tessary;

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

class PatternLoad : public LoadedPattern
{
};

class PatternRecords : public LoadedPattern
{
};

class PatternLanguage : public LoadedPattern, public testing::WithParamInterface<std::pair<int, const char*>>
{
};

} // namespace

TEST_F(PatternLoad, takes_the_records_exactly_as_they_lie_in_the_file)
{
    // One header and one item written out byte for byte, so that every offset is stated here.
    std::string file = int32(7);
    for (int i = 0; i < 30; ++i)
        file += int32(1000 + i);
    for (int i = 0; i < 10; ++i)
        file += int32(-2000 - i);
    file +=
        field("first", 82) + field("second", 82) + field("third", 82) + field("logo", 22) + field("bmap", 22);
    const std::string texts = std::string("one\0two\0three\0menu\0A\0", 21);
    file += int32(1) + int32(static_cast<int>(texts.size())) + int32(99);
    ASSERT_EQ(file.size(), 466U);
    file += int32(PTRN_CHAR);
    for (int i = 0; i < 30; ++i)
        file += int32(10 * i - 100);
    file += int32(8) + int32(3) + int32(77);
    ASSERT_EQ(file.size(), 466U + 136U);
    project.write("bytes.ptn", file + texts);

    const CPtrnData data("bytes");

    ASSERT_EQ(data.PtrnCont, 1);
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(data.PtrnHedr.Parm1[i], 1000 + i);
    for (int i = 0; i < 10; ++i)
        EXPECT_EQ(data.PtrnHedr.Parm2[i], -2000 - i);
    EXPECT_STREQ(data.PtrnHedr.PtrnName, "first");
    EXPECT_STREQ(data.PtrnHedr.LogoName, "logo");
    EXPECT_STREQ(data.PtrnHedr.BmapName, "bmap");
    const PTRNDATA& item = data.PtrnData[0];
    EXPECT_EQ(item.Type, PTRN_CHAR);
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(item.Parm[i], 10 * i - 100);
    EXPECT_STREQ(item.Text, "one");
    EXPECT_EQ(val(item.ID_Type), 8);
    EXPECT_STREQ(item.ID_Name, "menu");
    EXPECT_STREQ(item.ID_Code, "A");
    EXPECT_EQ(val(item.ID_No), 3);
    EXPECT_EQ(val(item.DataNo), 4);
}

TEST_F(PatternLoad, keeps_the_records_in_memory_packed)
{
    EXPECT_EQ(sizeof(PTRNHEDR), 120U + 40U + 82U + 22U + 22U);
    EXPECT_EQ(sizeof(PTRNDATA), 4U + 120U + 102U + 4U + 82U + 22U + 4U + 4U + 2U + 4U + 256U + 4U + 24U);
}

TEST_F(PatternLoad, starts_with_no_item_displayed_no_bar_clicked_and_nothing_held)
{
    const CPtrnData& data = load(Pattern("p").item(PTRN_RECT, 1, 2, 3, 4).item(PTRN_LINE, 5, 6, 7, 8));

    EXPECT_EQ(data.PtrnCalnSec, -1);
    EXPECT_EQ(data.ScrollPtrn1, -1);
    EXPECT_EQ(data.ScrollPtrn2, -1);
    EXPECT_EQ(data.ScrollPtrn3, -1);
    EXPECT_EQ(data.FlikerFlag, 0);
    EXPECT_EQ(data.FlikerTimr, 0);
    EXPECT_EQ(data.RepeatFlag, 0);
    ASSERT_EQ(data.PtrnCont, 2);
    for (int i = 0; i < data.PtrnCont; ++i) {
        EXPECT_EQ(val(data.PtrnData[i].Recd), i);
        EXPECT_EQ(val(data.PtrnData[i].wData), 0x0800);
        EXPECT_EQ(val(data.PtrnData[i].fData), 0.0F);
        EXPECT_STREQ(data.PtrnData[i].sData, "");
    }
}

TEST_F(PatternLoad, does_not_read_cells)
{
    setState(1, 0x4001);
    set(1, 5.0F);
    setText(1, "value");

    load(Pattern("p").item(PTRN_CHAR, 0, 0, 9, 9).code("A"));

    EXPECT_EQ(val(item().wData), 0x0800);
    EXPECT_EQ(val(item().fData), 0.0F);
    EXPECT_STREQ(item().sData, "");
}

TEST_F(PatternLoad, succeeds_with_a_pattern_without_items)
{
    Pattern("empty").title("Title").save(project);
    CPtrnData data("nothing");

    EXPECT_EQ(data.LoadPtrnData("empty"), 1);
    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_STREQ(data.PtrnHedr.PtrnName, "Title");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(PatternLoad, leaves_an_object_without_items_and_the_log_alone_when_there_is_no_file)
{
    CPtrnData data("missing");

    EXPECT_EQ(data.LoadPtrnData("missing"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_EQ(data.PtrnData, nullptr);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(PatternLoad, does_not_log_a_pattern_that_is_as_it_should_be)
{
    load(Pattern("p").title("Title").item(PTRN_RECT, 1, 2, 3, 4).text("text").code("A", 2).action(8, "q"));

    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(PatternLoad, ignores_version_and_reserved_fields)
{
    load(Pattern("p").version(-1).reserved(0x12345678).item(PTRN_RECT, 1, 2, 3, 4).code("A"));

    EXPECT_EQ(data().PtrnCont, 1);
    EXPECT_EQ(val(item().DataNo), 1);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(PatternLoad, keeps_file_order_whatever_types_and_passes_the_items_have)
{
    load(Pattern("p")
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .top(1)
             .item(PTRN_GBOX, 0, 0, 1, 1)
             .item(99, 0, 0, 1, 1)
             .item(PTRN_LINE, 0, 0, 1, 1));

    EXPECT_THAT((std::vector<int>{item(0).Type, item(1).Type, item(2).Type, item(3).Type}),
                ElementsAre(PTRN_NUMR, PTRN_GBOX, 99, PTRN_LINE));
}

TEST_F(PatternLoad, orders_the_corners_of_the_rectangle_and_keeps_those_of_the_parameters)
{
    load(Pattern("p").item(PTRN_LINE, 50, 20, 10, 80));

    const RECT rect = item().Rect;
    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, 20);
    EXPECT_EQ(rect.right, 50);
    EXPECT_EQ(rect.bottom, 80);
    EXPECT_EQ(rect.width, 40);
    EXPECT_EQ(rect.height, 60);
    EXPECT_EQ(item().Parm[PARM_X1], 50);
    EXPECT_EQ(item().Parm[PARM_X2], 10);
}

TEST_F(PatternLoad, resolves_codes_to_data_numbers)
{
    load(Pattern("p")
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("", 7)
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("B", 4)
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("B", 5)
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("C")
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("B", -2));

    EXPECT_EQ(val(item(0).DataNo), 0) << "no code";
    EXPECT_EQ(val(item(0).ID_No), 7);
    EXPECT_EQ(val(item(1).DataNo), 25) << "last number of its group";
    EXPECT_EQ(val(item(2).DataNo), -1) << "outside its group";
    EXPECT_EQ(val(item(3).DataNo), -1) << "unknown code";
    EXPECT_EQ(val(item(4).DataNo), 19) << "a negative offset is not refused";
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(PatternLoad, keeps_the_longest_texts_whole)
{
    const std::string code(20, 'c');
    Project other;
    other.code(code, 3);
    other.start();
    other.clearLog();
    Pattern("p")
        .title(std::string(80, 't'))
        .logo(std::string(20, 'l'))
        .bitmap(std::string(20, 'b'))
        .item(PTRN_FCHR, 0, 0, 1, 1)
        .text(std::string(100, 'x'))
        .code(code, 1)
        .action(8, std::string(80, 'n'))
        .save(other);

    const CPtrnData data("p");

    EXPECT_EQ(data.PtrnHedr.PtrnName, std::string(80, 't'));
    EXPECT_EQ(data.PtrnHedr.LogoName, std::string(20, 'l'));
    EXPECT_EQ(data.PtrnHedr.BmapName, std::string(20, 'b'));
    EXPECT_EQ(data.PtrnData[0].Text, std::string(100, 'x'));
    EXPECT_EQ(data.PtrnData[0].ID_Name, std::string(80, 'n'));
    EXPECT_EQ(data.PtrnData[0].ID_Code, code);
    EXPECT_EQ(val(data.PtrnData[0].DataNo), 2);
    EXPECT_THAT(other.log(), IsEmpty());
}

TEST_F(PatternLoad, finds_the_texts_of_an_item_behind_empty_ones)
{
    load(Pattern("p")
             .item(PTRN_FCHR, 0, 0, 1, 1)
             .text("", "b", "")
             .item(PTRN_FCHR, 0, 0, 1, 1)
             .text("日本語", "", "c")
             .code("A", 1)
             .item(PTRN_FCHR, 0, 0, 1, 1)
             .action(5, "sub"));

    EXPECT_STREQ(item(0).Text, "");
    EXPECT_STREQ(item(1).Text, "日本語");
    EXPECT_STREQ(item(1).ID_Code, "A");
    EXPECT_STREQ(item(2).Text, "");
    EXPECT_STREQ(item(2).ID_Name, "sub");
}

TEST_F(PatternLoad, replaces_what_was_loaded_before)
{
    Pattern("other").title("Other").item(PTRN_SPIN, 1, 1, 2, 2).save(project);
    CPtrnData& data =
        load(Pattern("p").title("First").item(PTRN_RECT, 0, 0, 9, 9).item(PTRN_RECT, 0, 0, 9, 9));

    EXPECT_EQ(data.LoadPtrnData("other"), 1);
    EXPECT_EQ(data.PtrnCont, 1);
    EXPECT_EQ(data.PtrnData[0].Type, PTRN_SPIN);
    EXPECT_STREQ(data.PtrnHedr.PtrnName, "Other");

    EXPECT_EQ(data.LoadPtrnData("missing"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_EQ(data.PtrnData, nullptr);
    EXPECT_STREQ(data.PtrnHedr.PtrnName, "");
    EXPECT_EQ(data.TestPtrnData(POINT{1, 1}), -1);
}

TEST_P(PatternLanguage, selects_title_and_texts)
{
    const auto [language, expected] = GetParam();
    Language = language;
    load(Pattern("p")
             .title("first", "second", "third")
             .item(PTRN_FCHR, 0, 0, 1, 1)
             .text("first", "second", "third"));

    EXPECT_STREQ(data().PtrnHedr.PtrnName, expected);
    EXPECT_STREQ(item().Text, expected);
}

INSTANTIATE_TEST_SUITE_P(EveryValueButTwo, PatternLanguage,
                         testing::Values(std::pair(0, "first"), std::pair(1, "second"), std::pair(2, "third"),
                                         std::pair(5, "third"), std::pair(-1, "third")));

TEST_F(PatternRecords, are_found_by_data_number_and_type_the_earlier_in_the_file_first)
{
    load(Pattern("p")
             .item(PTRN_RECT, 0, 0, 1, 1)
             .code("A", 2)
             .item(PTRN_NUMR, 0, 0, 1, 1)
             .code("A", 7)
             .item(PTRN_NUMR, 0, 0, 2, 2)
             .code("A", 2)
             .item(PTRN_NUMR, 0, 0, 3, 3)
             .code("A", 2));
    PTRNDATA found{};

    EXPECT_EQ(data().ReadPtrnData(3, PTRN_NUMR, &found), 1);
    EXPECT_EQ(val(found.Recd), 2);
    EXPECT_EQ(std::memcmp(&found, &item(2), sizeof found), 0);
    EXPECT_EQ(data().ReadPtrnData(3, PTRN_CHAR, &found), 0);
    // Data number 8, type 3: the data number comes first.
    EXPECT_EQ(data().ReadPtrnData(PTRN_NUMR, 3, &found), 0);
    EXPECT_EQ(data().ReadPtrnData(8, PTRN_NUMR, &found), 1);
    EXPECT_EQ(val(found.Recd), 1);
}

TEST_F(PatternRecords, are_found_unbound_and_unresolved_too)
{
    load(Pattern("p").item(PTRN_NUMR, 0, 0, 1, 1).item(PTRN_NUMR, 0, 0, 1, 1).code("unknown"));
    PTRNDATA found{};

    EXPECT_EQ(data().ReadPtrnData(0, PTRN_NUMR, &found), 1);
    EXPECT_EQ(val(found.Recd), 0);
    EXPECT_EQ(data().ReadPtrnData(-1, PTRN_NUMR, &found), 1);
    EXPECT_EQ(val(found.Recd), 1);
}

TEST_F(PatternRecords, are_written_back_whole_over_the_item_of_their_index)
{
    load(Pattern("p").item(PTRN_RECT, 0, 0, 1, 1).item(PTRN_RECT, 0, 0, 1, 1).item(PTRN_RECT, 0, 0, 1, 1));
    const PTRNDATA first = item(0);
    const PTRNDATA third = item(2);
    PTRNDATA changed = item(1);
    changed.Parm[5] = 42;
    std::strcpy(changed.Text, "changed");
    changed.fData = 1.5F;

    data().WritePtrnData(&changed);

    EXPECT_EQ(std::memcmp(&item(1), &changed, sizeof changed), 0);
    EXPECT_EQ(std::memcmp(&item(0), &first, sizeof first), 0);
    EXPECT_EQ(std::memcmp(&item(2), &third, sizeof third), 0);

    data().WritePtrnData(&item(1));
    EXPECT_EQ(std::memcmp(&item(1), &changed, sizeof changed), 0) << "an item written over itself";
}

TEST_F(PatternRecords, of_another_pattern_are_not_written)
{
    load(Pattern("p").item(PTRN_RECT, 0, 0, 1, 1));
    const PTRNDATA before = item();
    PTRNDATA stranger = before;
    stranger.Parm[5] = 42;

    for (const int recd : {-1, 1, 1000000, INT32_MAX, INT32_MIN}) {
        stranger.Recd = recd;
        data().WritePtrnData(&stranger);
    }

    EXPECT_EQ(std::memcmp(&item(), &before, sizeof before), 0);
    CPtrnData none("missing");
    stranger.Recd = 0;
    none.WritePtrnData(&stranger);
    EXPECT_EQ(none.PtrnCont, 0);
}

TEST_F(PatternRecords, move_in_the_order_of_hits_when_pass_or_type_changes)
{
    load(Pattern("p")
             .item(PTRN_NUMR, 0, 0, 99, 99)
             .action(1)
             .parm(FIELD_WIDTH, 0)
             .item(PTRN_RECT, 0, 0, 99, 99)
             .action(1)
             .item(PTRN_BUTN, 0, 0, 99, 99)
             .action(1));
    ASSERT_EQ(data().TestPtrnData(POINT{50, 50}), 2);

    PTRNDATA rectangle = item(1);
    rectangle.Parm[PARM_PASS] = 1;
    data().WritePtrnData(&rectangle);
    EXPECT_EQ(data().TestPtrnData(POINT{50, 50}), 1);

    rectangle.Parm[PARM_PASS] = 0;
    rectangle.Type = 0;
    data().WritePtrnData(&rectangle);
    EXPECT_EQ(data().TestPtrnData(POINT{50, 50}), 2);

    rectangle.Type = PTRN_CHCK;
    std::strcpy(rectangle.Text, "");
    data().WritePtrnData(&rectangle);
    EXPECT_EQ(data().TestPtrnData(POINT{0, 0}), 0) << "the field's corner lies above the check box";
}

TEST(PatternRectangle, is_built_by_the_class_as_by_the_free_function)
{
    const RECT rect = CPtrnData::SetRect(20, 5, 10, -5);

    EXPECT_EQ(rect.left, 10);
    EXPECT_EQ(rect.top, -5);
    EXPECT_EQ(rect.right, 20);
    EXPECT_EQ(rect.bottom, 5);
    EXPECT_EQ(rect.width, 10);
    EXPECT_EQ(rect.height, 10);
}
