// The sample project of this source tree: it builds, and its screens are laid out so that all of them can be
// seen and operated.
#include "config/Profile.h"
#include "draw/HitTest.h"
#include "pattern/ItemParm.h"
#include "tests/ptn/SampleScreens.h"

#include <cstring>
#include <set>

using namespace tessary;

namespace
{

/// What a finger hits without aiming.
constexpr int FINGER = 40;

TEST_F(Sample, has_the_screens_of_the_sample_application_and_the_framework_s_own)
{
    for (const char* name :
         {"テスト  ［メニュー選択］", "システム終了", "テスト  （図形）", "テスト  （マウス操作）",
          "子ウィンドウ (1)", "子ウィンドウ (2)", "子ウィンドウ (3)", "ポップアップメニュー",
          "テスト  （文字列・ボタン）", "テスト  （グラフ）", "テスト  （表・キー入力）", "テスト  （表）",
          "バージョン情報", "メンテナンス"})
        EXPECT_TRUE(screens.count(name)) << name;
    EXPECT_EQ(screens.size(), 14u);
}

TEST_F(Sample, has_a_profile_that_the_program_reads)
{
    const auto profileText = [this](const char* section, const char* key) {
        return std::string(ProfileReadAsc(sources.profile().c_str(), section, key));
    };
    EXPECT_EQ(profileText("TESSARY", "PROJECT"), sources.output());
    EXPECT_EQ(profileText("PTRN", "PTRNSTART"), "テスト  ［メニュー選択］");
    EXPECT_EQ(profileText("PTRN", "PTRNSTOP"), "システム終了");
    EXPECT_EQ(profileText("LOG", "LOGFILE"), sources.root() + "/out/log");
    EXPECT_EQ(ProfileReadInt(sources.profile().c_str(), "TESSARY", "WAITTIMER"), 3);
    int width = 0;
    int height = 0;
    EXPECT_EQ(ProfileRead(sources.profile().c_str(), "TESSARY", "DISPSIZE", "ii", &width, &height), 2);
    EXPECT_EQ(width, 1024);
    EXPECT_EQ(height, 768);
    int red = 0;
    int green = 0;
    int blue = 0;
    for (const char* key : {"CURSOR_FG", "CURSOR_BG"})
        EXPECT_EQ(ProfileRead(sources.profile().c_str(), "COLOR", key, "iii", &red, &green, &blue), 3) << key;
    for (const char* font : {"FONTNAME0", "FONTNAME1", "FONTNAME2", "FONTNAME20", "FONTNAME42"})
        EXPECT_NE(profileText("FONT", font), "") << font;
}

TEST_F(Sample, has_codes_for_the_cells_1_to_1571)
{
    const std::string table = sources.built("PtrnCode");
    ASSERT_EQ(table.size() % 34, 0u);
    std::set<int> cells;
    std::map<std::string, int> firsts;
    for (std::size_t row = 0; row < table.size(); row += 34) {
        int count = 0;
        int first = 0;
        std::memcpy(&count, table.data() + row + 22, 4);
        std::memcpy(&first, table.data() + row + 26, 4);
        firsts[table.c_str() + row] = first;
        for (int cell = first; cell < first + count; ++cell)
            EXPECT_TRUE(cells.insert(cell).second) << cell;
    }
    EXPECT_EQ(cells.size(), 1571u);
    EXPECT_EQ(*cells.begin(), 1);
    EXPECT_EQ(*cells.rbegin(), 1571);
    const std::map<std::string, int> fixed = {
        {"CLOCK", 1},       {"ERROR", 11},        {"MENTE_CODE", 20},     {"MENTE_SCROLL", 80},
        {"COUNTER", 111},   {"TABLE", 117},       {"COLOR_STEP2", 437},   {"MARK", 454},
        {"COUNTER2", 1549}, {"TABLE_SORT", 1555}, {"TABLE_VSCROLL", 1571}};
    for (const auto& code : fixed)
        EXPECT_EQ(firsts[code.first], code.second) << code.first;
}

TEST_F(Sample, has_tables_of_the_right_size)
{
    EXPECT_EQ(sources.built("PtrnColr").size(), 1200u);
    EXPECT_EQ(sources.built("PtrnMark").size(), 179200u);
    EXPECT_NE(sources.built("Bitmap/logo.png"), "");
}

TEST_F(Sample, opens_only_patterns_that_it_has)
{
    int opened = 0;
    for (const auto& screen : screens) {
        for (const SampleItem& item : screen.second.items) {
            if (item.record.ID_Type < 5 || item.record.ID_Type > 8)
                continue;
            ++opened;
            EXPECT_TRUE(screens.count(item.texts[3])) << screen.first << ": " << item.texts[0];
        }
    }
    EXPECT_GE(opened, 12);
}

TEST_F(Sample, can_be_stopped_and_left_from_every_screen_that_is_not_part_of_another)
{
    bool stops = false;
    for (const auto& screen : screens) {
        std::set<int> actions;
        for (const SampleItem& item : screen.second.items)
            actions.insert(item.record.ID_Type);
        stops = stops || actions.count(16);
        const bool start = screen.first == "テスト  ［メニュー選択］";
        const bool part = screen.first == "テスト  （表）"; // goes with the screen that it lies in
        if (!start && !part && screen.first != "システム終了") {
            EXPECT_TRUE(actions.count(8) || actions.count(9) || actions.count(12)) << screen.first;
        }
    }
    EXPECT_TRUE(stops);
}

TEST_F(Sample, keeps_every_item_within_its_screen_and_below_the_title_bar)
{
    for (const auto& screen : screens) {
        const std::int32_t* window = screen.second.header.Parm1;
        for (std::size_t i = 0; i < screen.second.items.size(); ++i) {
            const RECT rect = screen.second.items[i].corners();
            EXPECT_GE(rect.left, 0) << screen.first << ", item " << i + 1;
            EXPECT_GE(rect.top, window[HEDR_TITLE_HEIGHT]) << screen.first << ", item " << i + 1;
            EXPECT_LE(rect.right, window[HEDR_WIDTH]) << screen.first << ", item " << i + 1;
            EXPECT_LE(rect.bottom, window[HEDR_HEIGHT]) << screen.first << ", item " << i + 1;
        }
    }
}

TEST_F(Sample, lets_no_text_field_or_control_overlap_another)
{
    const std::set<int> solid = {PTRN_BUTN, PTRN_RDIO, PTRN_CHCK, PTRN_SBAR,
                                 PTRN_SPIN, PTRN_FCHR, PTRN_CHAR, PTRN_NUMR};
    for (const auto& screen : screens) {
        const auto& items = screen.second.items;
        for (std::size_t i = 0; i < items.size(); ++i) {
            for (std::size_t j = i + 1; j < items.size(); ++j) {
                if (!solid.count(items[i].record.Type) || !solid.count(items[j].record.Type))
                    continue;
                const RECT a = items[i].corners();
                const RECT b = items[j].corners();
                const bool apart =
                    a.right <= b.left || b.right <= a.left || a.bottom <= b.top || b.bottom <= a.top;
                EXPECT_TRUE(apart) << screen.first << ", items " << i + 1 << " and " << j + 1;
            }
        }
    }
}

TEST_F(Sample, keeps_every_text_within_the_boxes_that_it_begins_in)
{
    const std::set<int> texts = {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR, PTRN_RDIO, PTRN_CHCK};
    int inside = 0;
    for (const auto& screen : screens)
        for (const SampleItem& box : screen.second.items)
            for (const SampleItem& item : screen.second.items) {
                if (box.type() != PTRN_GBOX || !texts.count(item.type()))
                    continue;
                const RECT outer = box.corners();
                const RECT text = item.corners(); // of its longest language
                if (!PointInRect({text.left, text.top}, outer))
                    continue;
                ++inside;
                EXPECT_LE(text.right, outer.right) << screen.first << ": " << item.texts[0] << item.data();
                EXPECT_LE(text.bottom, outer.bottom) << screen.first << ": " << item.texts[0] << item.data();
            }
    EXPECT_GE(inside, 200);
}

TEST_F(Sample, has_buttons_that_a_finger_can_press_with_captions_that_fit)
{
    int buttons = 0;
    for (const auto& screen : screens) {
        for (const SampleItem& item : screen.second.items) {
            if (item.record.Type != PTRN_BUTN)
                continue;
            ++buttons;
            const RECT rect = item.corners();
            EXPECT_GE(rect.width, FINGER) << screen.first << ": " << item.texts[0];
            EXPECT_GE(rect.height, FINGER) << screen.first << ": " << item.texts[0];
            const int indent = item.record.Parm[BUTN_POST_ON] ? item.record.Parm[BUTN_POST] : 0;
            // All buttons have the font of 16 pixels, whose half-width characters are 8 wide.
            ASSERT_EQ(item.record.Parm[BUTN_FONT], 1);
            for (int language = 0; language < 3; ++language)
                EXPECT_LE(indent + 8 * static_cast<int>(item.texts[language].size()), rect.width)
                    << screen.first << ": " << item.texts[language];
        }
    }
    EXPECT_GE(buttons, 50);
}

TEST_F(Sample, has_its_texts_in_three_languages)
{
    for (const auto& screen : screens) {
        const HEDRFILE& header = screen.second.header;
        for (const char* title : {header.PtrnName1, header.PtrnName2, header.PtrnName3})
            EXPECT_NE(std::string(title), "") << screen.first;
        for (const SampleItem& item : screen.second.items)
            if (item.texts[0] != "") {
                EXPECT_NE(item.texts[1], "") << screen.first << ": " << item.texts[0];
                EXPECT_NE(item.texts[2], "") << screen.first << ": " << item.texts[0];
                for (const unsigned char byte : item.texts[0] + item.texts[1] + item.texts[2])
                    EXPECT_NE(byte, 0x8F) << screen.first << ": a character that no panel font has";
            }
    }
}

TEST_F(Sample, has_a_wiring_table)
{
    const std::string table = sources.built("Haisenhyo");
    ASSERT_GE(table.size(), 138u);
    std::int32_t count = 0;
    std::memcpy(&count, table.data() + 134, 4);
    EXPECT_GE(count, 200);
    EXPECT_EQ(table.size(), 138u + 108u * static_cast<unsigned>(count));
}

} // namespace
