// The form of the wiring table: loading, saving, key input from field to field.
#include "tests/app/TableScreens.h"

#include <gmock/gmock.h>
#include <unistd.h>

using namespace tessary;

using testing::ElementsAre;

namespace
{

class TableForm : public TableScreens
{
  protected:
    void clickSave() { clickAt(SAVE_LEFT + 40, BUTTON_TOP + 15); }
    void clickPrint() { clickAt(PRINT_LEFT + 40, BUTTON_TOP + 15); }
};

constexpr int SHIFT = 1;

} // namespace

TEST_F(TableForm, shows_the_header_and_opens_the_table_in_its_frame)
{
    openTable(40);
    EXPECT_EQ(text(1550), "SYS");
    EXPECT_EQ(text(485), "行先");
    EXPECT_EQ(text(1548), "W1");
    EXPECT_EQ(text(100), "B1");
    EXPECT_EQ(text(109), "注記");
    const CPtrnDisp& table = tableWnd();
    EXPECT_EQ(table.PtrnType, KIND_CHILD1);
    EXPECT_EQ(table.WindRect.left, FRAME_LEFT);
    EXPECT_EQ(table.WindRect.top, FRAME_TOP);
    EXPECT_EQ(table.WindRect.width, FRAME_WIDTH);
    EXPECT_EQ(table.WindRect.height, FRAME_HEIGHT);
    EXPECT_EQ(number(439), 1);
}

TEST_F(TableForm, sizes_both_scroll_bars)
{
    setNumber(1571, 7);
    openTable(40);
    PTRNDATA bar;
    ASSERT_TRUE(AppliWnd->PtrnReadData(1571, PTRN_SBAR, &bar));
    EXPECT_EQ(bar.Parm[SBAR_TOTAL], 40);
    EXPECT_EQ(number(1571), 0);
    ASSERT_TRUE(AppliWnd->PtrnReadData(433, PTRN_SBAR, &bar));
    EXPECT_EQ(bar.Parm[SBAR_TOTAL], TABLE_WIDTH) << "the width of the table's pattern";
    EXPECT_EQ(number(433), 0);
}

TEST_F(TableForm, has_no_vertical_bar_when_all_records_are_shown)
{
    openTable(15);
    EXPECT_TRUE(word(1571) & STATE_HIDDEN);
    EXPECT_FALSE(word(433) & STATE_HIDDEN);
}

TEST_F(TableForm, opens_the_table_where_the_frame_is_seen)
{
    openTable(3);
    AppliWnd->Offset = {4, 6};
    AppliWnd->WindRect = SetRect(100, 200, 740, 720);
    formWnd().InitHaisenhyo();
    EXPECT_EQ(AppliWnd->ChildWnd1->WindRect.left, FRAME_LEFT + 100 - 4);
    EXPECT_EQ(AppliWnd->ChildWnd1->WindRect.top, FRAME_TOP + 200 - 6);
}

TEST_F(TableForm, opens_no_table_without_a_frame)
{
    project.write("Haisenhyo", wireFile({}, numberedWires(3)));
    Pattern(FORM_NAME).size(640, 520).item(PTRN_GBOX, 10, 10, 200, 200).code(CODE, offset(432)).save(project);
    table().save(project);
    start();
    ASSERT_TRUE(openTop(FORM_NAME));
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    tick(2);
    formWnd().PtrnMesgFunc(1554);
}

TEST_F(TableForm, shows_an_empty_table_without_the_file)
{
    openTable(3);
    unlink((project.folder() + "/Haisenhyo").c_str());
    reopen();
    for (const int field : {1550, 485, 1548, 100, 109})
        EXPECT_EQ(text(field), "") << field;
    EXPECT_THAT(column(0), testing::Each(""));
    EXPECT_EQ(int{HaisenHedr.datacount}, 0);
}

TEST_F(TableForm, releases_the_table_when_it_is_left)
{
    Pattern("システム終了").size(100, 100).save(project);
    openTable(40);
    EXPECT_EQ(HaisenData.size(), 40u);
    PtrnDispTopWnd("システム終了", nullptr, 0);
    EXPECT_EQ(HaisenData.capacity(), 0u);
    EXPECT_EQ(HaisenIndx.capacity(), 0u);
    tick(2);
}

TEST_F(TableForm, keeps_the_table_when_a_new_form_takes_the_place_of_the_old_one)
{
    openTable(40);
    reopen();
    EXPECT_EQ(HaisenData.size(), 40u);
    tableWnd().DispDataSet(25);
    EXPECT_EQ(text(cell(0, LAST_LINE)), "a40");
}

TEST_F(TableForm, saves_header_and_records)
{
    openTable(3);
    setText(1550, "S2");
    setText(485, "東京");
    setText(1548, "W2");
    setText(100, "B2");
    setText(109, "変更");
    formWnd().KeyInputStart(1548, nullptr, 0);
    formWnd().KeyInputStop(KEYVAL_RETURN, 0, nullptr, 0);
    setText(cell(15, 2), "SH9");
    tableWnd().KeyInputStart(cell(0, 0), nullptr, 0);
    tableWnd().KeyInputStop(KEYVAL_RETURN, 0, nullptr, 0);
    const std::string before = project.read("Haisenhyo");
    clickSave();

    std::vector<WireBytes> wires = numberedWires(3);
    wires[2].texts[15] = "SH9";
    EXPECT_NE(project.read("Haisenhyo"), before);
    EXPECT_EQ(project.read("Haisenhyo"), wireFile({"S2", "東京", "W2", "B2", "変更"}, wires));
}

TEST_F(TableForm, saves_in_storage_order_when_the_table_is_sorted)
{
    openTable(20);
    const std::string before = project.read("Haisenhyo");
    tableWnd().SortDispData(0);
    tableWnd().SortDispData(0);
    EXPECT_EQ(text(cell(0, 0)), "a9");
    project.write("Haisenhyo", std::string(before.size(), ' '));
    clickSave();
    EXPECT_EQ(project.read("Haisenhyo"), before);
}

TEST_F(TableForm, saves_nothing_when_the_file_is_gone)
{
    openTable(3);
    unlink((project.folder() + "/Haisenhyo").c_str());
    project.clearLog();
    clickSave();
    EXPECT_FALSE(project.exists("Haisenhyo"));
    EXPECT_THAT(project.messages(), ElementsAre("ファイルのオープンに失敗 [Haisenhyo]"));
}

TEST_F(TableForm, tells_on_the_error_line_whether_the_table_was_saved)
{
    openTable(3);
    const std::vector<std::pair<const char*, const char*>> answers = {
        {"配線表を保存しました", "配線表を保存できません"},
        {"The wiring table is saved", "The wiring table could not be saved"},
        {"Die Verdrahtung ist gesichert", "Die Verdrahtung konnte nicht gesichert werden"}};
    const std::string file = project.folder() + "/Haisenhyo";
    for (std::size_t language = 0; language < answers.size(); language++) {
        Language = static_cast<int>(language);
        clickSave();
        EXPECT_EQ(text(DTNO_SYSEROR), answers[language].first);
        EXPECT_EQ(colorOf(DTNO_SYSEROR), 2);
        const std::string bytes = project.read("Haisenhyo");
        unlink(file.c_str());
        clickSave();
        EXPECT_EQ(text(DTNO_SYSEROR), answers[language].second);
        EXPECT_EQ(colorOf(DTNO_SYSEROR), 1);
        project.write("Haisenhyo", bytes);
    }
}

TEST_F(TableForm, ends_printing_with_the_normal_pointer)
{
    openTable(3);
    AppliWnd->CursorType = 5;
    clickPrint();
    EXPECT_EQ(AppliWnd->CursorType, 0);
}

TEST_F(TableForm, other_messages_change_nothing)
{
    openTable(3);
    const std::string before = project.read("Haisenhyo");
    project.write("Haisenhyo", "changed");
    AppliWnd->CursorType = 5;
    for (const int message : {-1, 0, 100, 433, 1553, 1555, 1571})
        formWnd().PtrnMesgFunc(message);
    EXPECT_EQ(project.read("Haisenhyo"), "changed");
    EXPECT_EQ(AppliWnd->CursorType, 5);
}

// --- key input -----------------------------------------------------------------------------------------

namespace
{

struct FieldMove {
    unsigned int key;
    int state;
    int from;
    int to;
};

constexpr FieldMove FIELD_MOVES[] = {
    {KEYVAL_RETURN, 0, 1550, 485},  {KEYVAL_RETURN, 0, 485, 1548},  {KEYVAL_RETURN, 0, 1548, 100},
    {KEYVAL_RETURN, 0, 100, 109},   {KEYVAL_RETURN, 0, 109, 1550},  {KEYVAL_TAB, 0, 1550, 485},
    {KEYVAL_TAB, 0, 485, 1548},     {KEYVAL_TAB, 0, 1548, 100},     {KEYVAL_TAB, 0, 100, 109},
    {KEYVAL_TAB, 0, 109, 1550},     {KEYVAL_TAB, SHIFT, 1550, 109}, {KEYVAL_TAB, SHIFT, 485, 1550},
    {KEYVAL_TAB, SHIFT, 1548, 485}, {KEYVAL_TAB, SHIFT, 100, 1548}, {KEYVAL_TAB, SHIFT, 109, 100},
    {KEYVAL_UP, 0, 1550, 1550},     {KEYVAL_UP, 0, 485, 485},       {KEYVAL_UP, 0, 1548, 1550},
    {KEYVAL_UP, 0, 100, 485},       {KEYVAL_UP, 0, 109, 1548},      {KEYVAL_DOWN, 0, 1550, 1548},
    {KEYVAL_DOWN, 0, 485, 100},     {KEYVAL_DOWN, 0, 1548, 109},    {KEYVAL_DOWN, 0, 100, 109},
    {KEYVAL_DOWN, 0, 109, 109},     {KEYVAL_LEFT, 0, 1550, 1550},   {KEYVAL_LEFT, 0, 485, 1550},
    {KEYVAL_LEFT, 0, 1548, 1548},   {KEYVAL_LEFT, 0, 100, 1548},    {KEYVAL_LEFT, 0, 109, 109},
    {KEYVAL_RIGHT, 0, 1550, 485},   {KEYVAL_RIGHT, 0, 485, 485},    {KEYVAL_RIGHT, 0, 1548, 100},
    {KEYVAL_RIGHT, 0, 100, 100},    {KEYVAL_RIGHT, 0, 109, 109},    {KEYVAL_RETURN, SHIFT, 1550, 485},
};

} // namespace

TEST_F(TableForm, every_key_leads_from_every_field_to_its_neighbour)
{
    openTable(3);
    for (const FieldMove& move : FIELD_MOVES)
        EXPECT_EQ(editAfter(*AppliWnd, move.from, move.key, move.state), move.to)
            << std::hex << "key " << move.key << std::dec << (move.state ? " with Shift" : "") << " from "
            << move.from;
}

TEST_F(TableForm, keys_lead_through_the_fields)
{
    openTable(std::string()); // empty fields: Left and Right leave them at once
    tick();
    clickAt(14, 18);
    ASSERT_EQ(edited(*AppliWnd), 1550);
    const auto after = [&](unsigned long symbol) {
        key(symbol);
        return edited(*AppliWnd);
    };
    EXPECT_EQ(after(XK_Return), 485);
    EXPECT_EQ(after(XK_Tab), 1548);
    EXPECT_EQ(after(XK_Up), 1550);
    EXPECT_EQ(after(XK_Right), 485);
    EXPECT_EQ(after(XK_Down), 100);
    EXPECT_EQ(after(XK_Left), 1548);
    EXPECT_EQ(after(XK_Down), 109);
    EXPECT_EQ(after(XK_Down), 109);
    EXPECT_EQ(after(XK_Escape), -1);
}

TEST_F(TableForm, shift_and_tab_go_back)
{
    openTable(3);
    tick();
    clickAt(14, 18);
    ASSERT_EQ(edited(*AppliWnd), 1550);
    key(XK_Tab, {XK_Shift_L});
    EXPECT_EQ(edited(*AppliWnd), 109);
    key(XK_Tab, {XK_Shift_L});
    EXPECT_EQ(edited(*AppliWnd), 100);
}

TEST_F(TableForm, typed_texts_go_into_the_header)
{
    openTable(3);
    tick();
    clickAt(14, 18);
    type("AB");
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "SYS");
    key(XK_Return);
    EXPECT_EQ(text(1550), "ABSYS");
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "ABSYS");
}

TEST_F(TableForm, escape_leaves_the_header_as_it_is)
{
    openTable(3);
    setText(1550, "new");
    EXPECT_EQ(editAfter(*AppliWnd, 485, KEYVAL_ESCAPE), -1);
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "SYS");
}

TEST_F(TableForm, every_other_key_takes_over_all_five_fields)
{
    for (const unsigned int key :
         {KEYVAL_RETURN, KEYVAL_TAB, KEYVAL_UP, KEYVAL_DOWN, KEYVAL_LEFT, KEYVAL_RIGHT}) {
        if (!AppliWnd)
            openTable(3);
        for (const int field : {1550, 485, 1548, 100, 109})
            setText(field, "k" + std::to_string(key % 100));
        editAfter(*AppliWnd, 109, key);
        const std::string expected = "k" + std::to_string(key % 100);
        EXPECT_EQ(FieldText(HaisenHedr.systemno), expected);
        EXPECT_EQ(FieldText(HaisenHedr.nousaki), expected);
        EXPECT_EQ(FieldText(HaisenHedr.sakuban), expected);
        EXPECT_EQ(FieldText(HaisenHedr.banno), expected);
        EXPECT_EQ(FieldText(HaisenHedr.comment), expected);
    }
}

TEST_F(TableForm, header_texts_end_within_their_fields)
{
    openTable(3);
    for (const int field : {1550, 485, 1548, 100, 109})
        setText(field, std::string(200, 'x'));
    setText(100, "盤盤盤");
    editAfter(*AppliWnd, 1550, KEYVAL_RETURN);
    EXPECT_EQ(FieldText(HaisenHedr.systemno), std::string(9, 'x'));
    EXPECT_EQ(FieldText(HaisenHedr.nousaki), std::string(21, 'x'));
    EXPECT_EQ(FieldText(HaisenHedr.sakuban), std::string(15, 'x'));
    EXPECT_EQ(FieldText(HaisenHedr.banno), "盤盤") << "no half characters";
    EXPECT_EQ(FieldText(HaisenHedr.comment), std::string(79, 'x'));
    EXPECT_EQ(int{HaisenHedr.datacount}, 3);
}

TEST_F(TableForm, other_fields_lead_nowhere_but_the_header_is_taken_over)
{
    openTable(3);
    PTRNDATA item{};
    item.DataNo = 101;
    setText(1550, "new");
    formWnd().PtrnKeyFunc(XK_Return, 0, &item);
    EXPECT_EQ(edited(*AppliWnd), -1);
    EXPECT_EQ(FieldText(HaisenHedr.systemno), "new");
}
