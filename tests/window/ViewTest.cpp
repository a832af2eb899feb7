// What a screen class reads and sets of its own pattern.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "config/Settings.h"
#include "window/Request.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <limits>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr char HERE[] = "screen.cpp";

class View : public Screen
{
  protected:
    void SetUp() override { project.code("SYSTEM", 99).code("D", 20).flag(100); }

    void open(const Pattern& pattern)
    {
        know(pattern);
        know(Pattern("child").size(60, 40).header(HEDR_KIND, 2).header(HEDR_LEFT, 500));
        start();
        openTop(pattern.name());
        project.clearLog();
    }

    std::vector<int> offset(const CPtrnDisp* wnd) { return {wnd->Offset.x, wnd->Offset.y}; }

    static RECT field(int x, int y) { return SetRect(x, y, x + 40, y + 16); }
};

} // namespace

TEST_F(View, scrolls_this_window_a_child_or_the_parent)
{
    open(Pattern("top"));
    CPtrnDisp* first = openChild(AppliWnd, 1, "child");
    CPtrnDisp* second = openChild(AppliWnd, 2, "child");
    AppliWnd->PtrnSetOffset(0, 1, 2, HERE, 1);
    AppliWnd->PtrnSetOffset(1, 3, 4, HERE, 2);
    AppliWnd->PtrnSetOffset(2, 5, 6, HERE, 3);
    EXPECT_THAT(offset(AppliWnd), ElementsAre(1, 2));
    EXPECT_THAT(offset(first), ElementsAre(3, 4));
    EXPECT_THAT(offset(second), ElementsAre(5, 6));
    second->PtrnSetOffset(3, 7, 8, HERE, 4);
    EXPECT_THAT(offset(AppliWnd), ElementsAre(7, 8));
    EXPECT_EQ(AppliWnd->PtrnGetOffset().x, 7);

    const auto log = project.log();
    ASSERT_EQ(log.size(), 1u) << "what is handed on is silent";
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "表示開始位置設定  [0 / (1,2)]");
    EXPECT_EQ(log[0].file, HERE);
}

TEST_F(View, does_not_scroll_what_is_not_there)
{
    open(Pattern("top"));
    AppliWnd->PtrnSetOffset(0, 1, 2, nullptr, 0);
    for (const int target : {1, 2, 3, 4, -1, 100})
        AppliWnd->PtrnSetOffset(target, 9, 9, HERE, 1);
    EXPECT_THAT(offset(AppliWnd), ElementsAre(1, 2));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(View, takes_any_offset)
{
    open(Pattern("top").size(200, 100).item(PTRN_BUTN, 10, 10, 50, 50).code("D").action(1));
    const int extremes[] = {std::numeric_limits<int>::min(), -70000, 70000, std::numeric_limits<int>::max()};
    for (const int x : extremes)
        for (const int y : extremes) {
            AppliWnd->PtrnSetOffset(0, x, y, nullptr, 0);
            tick();
            click(AppliWnd, 100, 50);
        }
    EXPECT_THAT(callsOf({"mesg"}), IsEmpty());
}

// --- scroll bars -----------------------------------------------------------------------------------

namespace
{

/// Ten rows are visible.
class ScrollSetting : public View
{
  protected:
    void SetUp() override
    {
        View::SetUp();
        open(Pattern("top").item(PTRN_SBAR, 10, 10, 30, 200).code("D", 0));
        Set_iData(100, 7, nullptr, 0);
    }

    int set(int total, int pos)
    {
        AppliWnd->PtrnSetScroll(100, total, pos, nullptr, 0);
        return Get_iData(100, nullptr, 0);
    }

    int total()
    {
        PTRNDATA bar{};
        EXPECT_EQ(AppliWnd->PtrnReadData(100, PTRN_SBAR, &bar), 1);
        return bar.Parm[SBAR_TOTAL];
    }

    static bool hidden() { return Get_wData(100, nullptr, 0) & STATE_HIDDEN; }
};

} // namespace

TEST_F(ScrollSetting, stores_the_position_while_a_page_fits_behind_it)
{
    EXPECT_EQ(set(25, 15), 15);
    EXPECT_EQ(total(), 25);
    EXPECT_EQ(set(25, 0), 0);
    EXPECT_EQ(set(11, 1), 1);
}

TEST_F(ScrollSetting, snaps_to_the_top_when_the_position_would_run_past_the_end)
{
    EXPECT_EQ(set(25, 16), 0);
    EXPECT_EQ(set(25, 20), 0);
    EXPECT_EQ(set(25, std::numeric_limits<int>::max()), 0);
}

TEST_F(ScrollSetting, takes_a_negative_position_as_the_top)
{
    EXPECT_EQ(set(25, -1), 0);
    EXPECT_EQ(set(25, std::numeric_limits<int>::min()), 0);
}

TEST_F(ScrollSetting, hides_the_bar_when_everything_fits_and_keeps_its_value)
{
    EXPECT_EQ(set(8, 3), 7);
    EXPECT_TRUE(hidden());
    EXPECT_EQ(total(), 8);
    EXPECT_EQ(set(10, 3), 7);
    EXPECT_TRUE(hidden());
    EXPECT_EQ(set(11, 0), 0);
    EXPECT_FALSE(hidden()) << "shown again";
}

TEST_F(ScrollSetting, works_with_any_total)
{
    EXPECT_EQ(set(std::numeric_limits<int>::max(), 5), 5);
    EXPECT_EQ(set(std::numeric_limits<int>::min(), 6), 5);
    tick();
}

TEST_F(ScrollSetting, logs_total_and_position_as_they_were_taken)
{
    AppliWnd->PtrnSetScroll(100, 25, 20, HERE, 9);
    AppliWnd->PtrnSetScroll(100, 8, 3, HERE, 10);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].line, 9);
    EXPECT_EQ(log[0].mesg2, "スクロールバー設定  [D+0 / (25,0)]");
    EXPECT_EQ(log[1].mesg2, "スクロールバー設定  [D+0 / (8,3)]");
}

TEST_F(ScrollSetting, logs_a_missing_bar_always)
{
    AppliWnd->PtrnSetScroll(101, 25, 0, nullptr, 0);
    AppliWnd->PtrnSetScroll(5000, 25, 0, HERE, 2);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg2, "スクロールバー設定エラー  []") << "a number without a name";
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[1].file, HERE);
}

TEST_F(ScrollSetting, names_the_number_of_a_missing_bar)
{
    know(Pattern("bare"));
    openTop("bare");
    AppliWnd->PtrnSetScroll(100, 25, 0, nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("スクロールバー設定エラー  [D+0]"));
}

// --- items -----------------------------------------------------------------------------------------

TEST_F(View, redraws_the_items_of_a_data_number)
{
    open(Pattern("top")
             .item(PTRN_RECT, 10, 10, 40, 40)
             .parm(SHAPE_FILLED, 1)
             .code("D", 0)
             .item(PTRN_RECT, 50, 10, 80, 40)
             .parm(SHAPE_FILLED, 1)
             .code("D", 0)
             .item(PTRN_CRCL, 90, 10, 120, 40)
             .parm(SHAPE_FILLED, 1)
             .code("D", 0)
             .item(PTRN_RECT, 130, 10, 160, 40)
             .parm(SHAPE_FILLED, 1)
             .code("D", 1));
    const auto fills = [this] {
        std::vector<std::uint32_t> shown;
        for (const int x : {25, 65, 105, 145})
            shown.push_back(bufferPixel(AppliWnd, x, 25));
        return shown;
    };
    const std::uint32_t before = color(SHAPE_FILL4);
    const std::uint32_t after = color(SHAPE_FILL4 + 1);
    ASSERT_THAT(fills(), ElementsAre(before, before, before, before));

    Set_wData(100, 1, nullptr, 0);
    Set_wData(101, 1, nullptr, 0);
    CPaintDraw draw(AppliWnd->Pixmap);
    AppliWnd->PtrnDispData(&draw, 100, PTRN_RECT);
    EXPECT_THAT(fills(), ElementsAre(after, after, before, before));
    AppliWnd->PtrnDispData(&draw, 100, 0);
    EXPECT_THAT(fills(), ElementsAre(after, after, after, before));

    PTRNDATA item{};
    AppliWnd->PtrnReadData(100, PTRN_CRCL, &item);
    EXPECT_EQ(item.wData, 1) << "stored with what was drawn";
    g_object_unref(draw.gc);
}

TEST_F(View, erases_the_items_of_a_hidden_number)
{
    open(Pattern("top").item(PTRN_RECT, 10, 10, 40, 40).parm(SHAPE_FILLED, 1).code("D", 0));
    CPaintDraw draw(AppliWnd->Pixmap);
    Set_wData(100, STATE_HIDDEN, nullptr, 0);
    AppliWnd->PtrnDispData(&draw, 100, 0);
    EXPECT_EQ(bufferPixel(AppliWnd, 25, 25), color(PARM_CLEAR));
    Set_wData(100, 0x7FFC & ~STATE_DISABLE, nullptr, 0);
    AppliWnd->PtrnDispData(&draw, 100, 0);
    EXPECT_EQ(bufferPixel(AppliWnd, 25, 25), color(SHAPE_FILL4)) << "only the top bit hides";
    g_object_unref(draw.gc);
}

TEST_F(View, redraws_texts_and_numbers_with_their_present_values)
{
    open(Pattern("top")
             .item(PTRN_CHAR, field(10, 10))
             .code("D", 0)
             .item(PTRN_NUMR, field(10, 50))
             .code("D", 0));
    Set_sData(100, "abc", nullptr, 0);
    Set_fData(100, 12, nullptr, 0);
    CPaintDraw draw(AppliWnd->Pixmap);
    AppliWnd->PtrnDispData(&draw, 100, 0);
    PTRNDATA item{};
    AppliWnd->PtrnReadData(100, PTRN_CHAR, &item);
    EXPECT_STREQ(item.Text, "abc");
    EXPECT_STREQ(item.sData, "abc");
    AppliWnd->PtrnReadData(100, PTRN_NUMR, &item);
    EXPECT_STREQ(item.Text, "   12");
    EXPECT_EQ(item.fData, 12);
    g_object_unref(draw.gc);
}

TEST_F(View, redraws_a_mark_in_place_of_the_one_before)
{
    open(Pattern("top")
             .item(PTRN_MARK, 10, 10, 42, 42)
             .code("D", 0)
             .parm4(MARK_NUMBER4, CONT_MARK, CONT_MARK + 3, CONT_MARK, CONT_MARK));
    const auto pixels = [&](int number) {
        return bufferPicture(AppliWnd, 10, 10, 33, 33).count(color(number));
    };
    EXPECT_GT(pixels(MARK_COLOR4), 0);
    Set_wData(100, 1, nullptr, 0);
    CPaintDraw draw(AppliWnd->Pixmap);
    AppliWnd->PtrnDispData(&draw, 100, PTRN_MARK);
    EXPECT_EQ(pixels(MARK_COLOR4), 0);
    EXPECT_GT(pixels(MARK_COLOR4 + 1), 0);
    g_object_unref(draw.gc);
}

TEST_F(View, finds_the_item_under_a_point_of_the_pattern)
{
    open(Pattern("top")
             .item(PTRN_BUTN, 10, 10, 50, 30)
             .code("D", 0)
             .item(PTRN_BUTN, 60, 10, 90, 30)
             .action(1));
    AppliWnd->PtrnSetOffset(0, 100, 100, nullptr, 0); // makes no difference here
    PTRNDATA item{};
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, &item), 1);
    EXPECT_EQ(item.Recd, 0);
    EXPECT_EQ(AppliWnd->PtrnTestData({70, 20}, &item), 1);
    EXPECT_EQ(item.Recd, 1);
    EXPECT_EQ(AppliWnd->PtrnTestData({200, 200}, &item), 0);
    EXPECT_EQ(item.Recd, 1) << "left alone";
}

TEST_F(View, tells_whether_a_point_lies_on_an_item_of_a_number_and_type)
{
    open(Pattern("top")
             .item(PTRN_BUTN, 10, 10, 50, 30)
             .code("D", 0)
             .item(PTRN_BUTN, 60, 10, 90, 30)
             .code("D", 0)
             .item(PTRN_RECT, 10, 50, 50, 80)
             .code("D", 0));
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, 100, PTRN_BUTN), 1);
    EXPECT_EQ(AppliWnd->PtrnTestData({70, 20}, 100, PTRN_BUTN), 1);
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 60}, 100, PTRN_BUTN), 0);
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 60}, 100, PTRN_RECT), 1);
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 60}, 100, 0), 0) << "type 0 is no type";
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, 101, PTRN_BUTN), 0);

    Set_wData(100, STATE_HIDDEN, nullptr, 0);
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, 100, PTRN_BUTN), 1) << "the state last shown counts";
    tick();
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, 100, PTRN_BUTN), 0);
    Set_wData(100, STATE_FROZEN | STATE_DISABLE, nullptr, 0);
    tick();
    EXPECT_EQ(AppliWnd->PtrnTestData({20, 20}, 100, PTRN_BUTN), 1) << "only hidden items are left out";
}

TEST_F(View, reads_and_writes_items)
{
    open(Pattern("top").item(PTRN_BUTN, 10, 10, 50, 30).code("D", 0));
    PTRNDATA item{};
    EXPECT_EQ(AppliWnd->PtrnReadData(100, PTRN_RECT, &item), 0);
    ASSERT_EQ(AppliWnd->PtrnReadData(100, PTRN_BUTN, &item), 1);
    item.Parm[BUTN_KEY] = 12;
    AppliWnd->PtrnWriteData(&item);
    PTRNDATA again{};
    AppliWnd->PtrnReadData(100, PTRN_BUTN, &again);
    EXPECT_EQ(again.Parm[BUTN_KEY], 12);
}

// --- headers ---------------------------------------------------------------------------------------

TEST_F(View, copies_its_own_header)
{
    open(Pattern("top").title("Title").size(200, 100).header2(9, 77));
    PTRNHEDR header = AppliWnd->PtrnReadHedr();
    EXPECT_STREQ(header.PtrnName, "Title");
    EXPECT_EQ(header.Parm1[HEDR_WIDTH], 200);
    EXPECT_EQ(header.Parm2[9], 77);
    header.Parm1[HEDR_WIDTH] = 1;
    EXPECT_EQ(AppliWnd->PtrnReadHedr().Parm1[HEDR_WIDTH], 200);
}

TEST_F(View, reads_the_header_of_a_pattern_that_is_not_open)
{
    open(Pattern("top"));
    Pattern("q")
        .title("first", "second", "third")
        .header(0, 11)
        .header(29, 12)
        .header2(0, 13)
        .header2(9, 14)
        .logo("logo.xpm")
        .bitmap("map.bmp")
        .item(PTRN_BUTN, 1, 1, 2, 2)
        .save(project);
    PTRNHEDR header{};
    ASSERT_EQ(AppliWnd->PtrnReadHedr("q", &header), 1);
    EXPECT_EQ(header.Parm1[0], 11);
    EXPECT_EQ(header.Parm1[29], 12);
    EXPECT_EQ(header.Parm2[0], 13);
    EXPECT_EQ(header.Parm2[9], 14);
    EXPECT_STREQ(header.LogoName, "logo.xpm");
    EXPECT_STREQ(header.BmapName, "map.bmp");
    const std::pair<int, const char*> titles[] = {
        {0, "first"}, {1, "second"}, {2, "third"}, {5, "third"}, {-1, "third"}};
    for (const auto& [language, title] : titles) {
        Language = language;
        AppliWnd->PtrnReadHedr("q", &header);
        EXPECT_STREQ(header.PtrnName, title) << "language " << language;
    }
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(View, reads_no_header_where_there_is_none)
{
    open(Pattern("top"));
    project.write("empty.ptn", "");
    std::filesystem::create_directory(project.folder() + "/folder.ptn");
    PTRNHEDR header{};
    header.Parm1[0] = 55;
    EXPECT_EQ(AppliWnd->PtrnReadHedr("missing", &header), 0);
    EXPECT_EQ(AppliWnd->PtrnReadHedr("empty", &header), 0);
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_EQ(AppliWnd->PtrnReadHedr("folder", &header), 0);
    EXPECT_EQ(header.Parm1[0], 55) << "left alone";
}

TEST_F(View, takes_zeros_from_a_file_that_ends_within_its_header)
{
    open(Pattern("top"));
    project.write("short.ptn", std::string(465, '\x7F'));
    PTRNHEDR header{};
    header.Parm1[HEDR_WIDTH] = 55;
    EXPECT_EQ(AppliWnd->PtrnReadHedr("short", &header), 1);
    EXPECT_EQ(header.Parm1[HEDR_WIDTH], 0);
    EXPECT_STREQ(header.PtrnName, "");
    EXPECT_FALSE(project.log().empty()) << "the read that failed";
}
