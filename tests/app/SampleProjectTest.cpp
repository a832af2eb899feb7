// The sample project with the sample application: every screen opens, and has what its class works with.
#include "tests/app/SampleProject.h"

#include "comndata/PtrnCode.h"
#include "config/Settings.h"
#include "draw/Resource.h"

#include <gmock/gmock.h>
#include <unistd.h>

using namespace tessary;

using testing::IsEmpty;

namespace
{

struct Part {
    const char* pattern;
    int type;
    int first;
    int count;
    int action;
};

constexpr int ANY = -1;

const char* const MENU = "テスト  ［メニュー選択］";
const char* const SHAPES = "テスト  （図形）";
const char* const TEXTS = "テスト  （文字列・ボタン）";
const char* const GRAPHS = "テスト  （グラフ）";
const char* const MOUSE = "テスト  （マウス操作）";
const char* const FORM = "テスト  （表・キー入力）";
const char* const TABLE = "テスト  （表）";
const char* const MAINTENANCE = "メンテナンス";

/// What the screen classes expect of their patterns.
const Part PARTS[] = {
    {SHAPES, PTRN_MARK, 454, 14, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_BUTN, 104, 1, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_BUTN, 105, 1, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_RDIO, 106, 3, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_FCHR, 101, 1, ANY},
    {TEXTS, PTRN_CHAR, 102, 1, ANY},
    {TEXTS, PTRN_NUMR, 103, 1, ANY},
    {TEXTS, PTRN_CHCK, 114, 3, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_CHCK, 1551, 3, ACTION_MESSAGE_SELF},
    {TEXTS, PTRN_MARK, 435, 1, ANY},
    {TEXTS, PTRN_FCHR, 436, 1, ANY},
    {TEXTS, PTRN_NUMR, 1549, 1, ANY},
    {TEXTS, PTRN_NUMR, 1547, 1, ANY},
    {TEXTS, PTRN_BUTN, 482, 3, ACTION_MESSAGE_SELF},
    {GRAPHS, PTRN_RECT, 113, 1, ANY},
    {GRAPHS, PTRN_LINE, 112, 1, ANY},
    {MOUSE, PTRN_RECT, 468, 4, ANY},
    {MOUSE, PTRN_MARK, 472, 10, ACTION_MESSAGE_SELF},
    {MOUSE, PTRN_BUTN, 482, 3, ACTION_MESSAGE_SELF},
    {"ポップアップメニュー", PTRN_BUTN, 482, 3, ACTION_MESSAGE_PARENT},
    {FORM, PTRN_CHAR, 1550, 1, ANY},
    {FORM, PTRN_CHAR, 485, 1, ANY},
    {FORM, PTRN_CHAR, 1548, 1, ANY},
    {FORM, PTRN_CHAR, 100, 1, ANY},
    {FORM, PTRN_CHAR, 109, 1, ANY},
    {FORM, PTRN_RECT, 432, 1, ANY},
    {FORM, PTRN_SBAR, 433, 1, ACTION_MESSAGE_CHILD1},
    {FORM, PTRN_SBAR, 1571, 1, ACTION_MESSAGE_CHILD1},
    {FORM, PTRN_BUTN, 434, 1, ACTION_MESSAGE_SELF},
    {FORM, PTRN_BUTN, 1554, 1, ACTION_MESSAGE_SELF},
    {FORM, PTRN_NUMR, 439, 15, ANY},
    {TABLE, PTRN_CHAR, 117, 15, ANY},
    {TABLE, PTRN_NUMR, 397, 15, ANY},
    {TABLE, PTRN_CHAR, 417, 15, ANY},
    {TABLE, PTRN_BUTN, 1555, 16, ACTION_MESSAGE_SELF},
    {MAINTENANCE, PTRN_CHAR, 20, 10, ACTION_MESSAGE_SELF},
    {MAINTENANCE, PTRN_NUMR, 30, 10, ANY},
    {MAINTENANCE, PTRN_CHCK, 40, 10, ACTION_MESSAGE_SELF},
    {MAINTENANCE, PTRN_NUMR, 50, 20, ANY},
    {MAINTENANCE, PTRN_CHAR, 70, 10, ANY},
    {MAINTENANCE, PTRN_SBAR, 80, 2, ACTION_MESSAGE_SELF},
};

class Sample : public SampleProject
{
  protected:
    /// Compiles and loads the project, with the text language that a test asks for.
    void load(int language)
    {
        compile(language);
        start();
        ASSERT_EQ(Language, language);
        project.clearLog();
    }

    /// Log lines about anything that has failed.
    std::vector<std::string> complaints()
    {
        std::vector<std::string> found;
        for (const std::string& message : project.messages())
            for (const char* const word : {"失敗", "エラー", "Error", "error"})
                if (message.find(word) != std::string::npos)
                    found.push_back(message);
        return found;
    }
};

class InLanguage : public Sample, public testing::WithParamInterface<int>
{
};

} // namespace

TEST_P(InLanguage, every_screen_opens_and_runs_without_a_complaint)
{
    load(GetParam());
    for (const char* name :
         {MENU, SHAPES, TEXTS, GRAPHS, MOUSE, FORM, TABLE, "システム終了", "子ウィンドウ (1)",
          "子ウィンドウ (2)", "子ウィンドウ (3)", "ポップアップメニュー"}) {
        ASSERT_TRUE(openTop(name)) << name;
        EXPECT_GT(AppliWnd->PtrnData->PtrnCont, 0) << name;
        tick(11);
        EXPECT_THAT(complaints(), IsEmpty()) << name;
    }
    openTop(MENU);
    for (const auto& open : {PtrnDispVersnWnd, PtrnDispMenteWnd}) {
        open();
        ASSERT_TRUE(SystmWnd);
        waitShown(SystmWnd);
        tick(11);
        EXPECT_THAT(complaints(), IsEmpty()) << SystmWnd->PtrnName;
    }
}

INSTANTIATE_TEST_SUITE_P(Language, InLanguage, testing::Values(0, 1, 2));

TEST_F(Sample, every_pattern_has_the_items_that_its_class_works_with)
{
    load(0);
    for (const Part& part : PARTS) {
        const CPtrnData data(part.pattern);
        ASSERT_GT(data.PtrnCont, 0) << part.pattern;
        for (int no = part.first; no < part.first + part.count; no++) {
            bool found = false;
            for (int i = 0; i < data.PtrnCont; i++) {
                const PTRNDATA& item = data.PtrnData[i];
                found = found || (item.DataNo == no && item.Type == part.type &&
                                  (part.action == ANY || item.ID_Type == part.action));
            }
            EXPECT_TRUE(found) << part.pattern << ", cell " << no;
        }
    }
}

TEST_F(Sample, no_item_has_a_code_that_the_table_lacks)
{
    load(0);
    for (int i = 0; i < PtrnCount; i++) {
        const CPtrnData data(PtrnName[i].name);
        for (int k = 0; k < data.PtrnCont; k++)
            EXPECT_GE(int{data.PtrnData[k].DataNo}, 0) << PtrnName[i].name << ", item " << k;
    }
}

TEST_F(Sample, the_table_fills_its_frame_and_is_wider)
{
    load(0);
    openTop(FORM);
    const CPtrnDisp* wires = AppliWnd->ChildWnd1;
    ASSERT_TRUE(wires);
    PTRNDATA item;
    ASSERT_TRUE(AppliWnd->PtrnReadData(432, PTRN_RECT, &item));
    const PTRNHEDR& header = wires->PtrnData->PtrnHedr;
    EXPECT_EQ(header.Parm1[HEDR_HEIGHT], item.Rect.height);
    EXPECT_GT(header.Parm1[HEDR_WIDTH], item.Rect.width);
    EXPECT_NE(header.Parm1[HEDR_MODELESS], 0) << "so that the form stays usable";

    ASSERT_TRUE(AppliWnd->PtrnReadData(433, PTRN_SBAR, &item));
    EXPECT_EQ(item.Parm[SBAR_VISIBLE], wires->WindRect.width);
    EXPECT_EQ(item.Parm[SBAR_TOTAL], header.Parm1[HEDR_WIDTH]);
    ASSERT_TRUE(AppliWnd->PtrnReadData(1571, PTRN_SBAR, &item));
    EXPECT_EQ(item.Parm[SBAR_VISIBLE], 15);
    EXPECT_GE(item.Parm[SBAR_TOTAL], 200);
}

TEST_F(Sample, the_lamps_of_the_mouse_screen_stay_as_they_were)
{
    load(0);
    // Their codes are small and their numbers high, which leaves nothing to clear.
    Set_wData(472, 1, nullptr, 0);
    Set_wData(481, 1, nullptr, 0);
    openTop(MOUSE);
    EXPECT_EQ(Get_wData(472, nullptr, 0), 1);
    EXPECT_EQ(Get_wData(481, nullptr, 0), 1);
}

TEST_F(Sample, the_popup_menu_leads_to_the_child_windows)
{
    load(0);
    for (const char* screen : {TEXTS, MOUSE}) {
        openTop(screen);
        for (int i = 0; i < 3; i++) {
            AppliWnd->PtrnDispPopup(1, "ポップアップメニュー", POINT{100, 100}, nullptr, 0);
            CPtrnDisp* popup = AppliWnd->ChildWnd1;
            waitShown(popup);
            PTRNDATA entry;
            ASSERT_TRUE(popup->PtrnReadData(482 + i, PTRN_BUTN, &entry));
            click(popup, entry.Rect.left + 100, entry.Rect.top + 20);
            ASSERT_TRUE(AppliWnd->ChildWnd1);
            EXPECT_EQ(std::string(AppliWnd->ChildWnd1->PtrnName),
                      "子ウィンドウ (" + std::to_string(i + 1) + ")");
        }
    }
}
