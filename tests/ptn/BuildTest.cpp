// "ptn build": the bytes that come out, computed here from the rules of the formats.
#include "pattern/ItemParm.h"
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include "base/Constants.h"

#include <array>
#include <gtest/gtest.h>
#include <vector>

using namespace tessary;

namespace
{

using Parm = std::array<int, CONT_PARM>;

std::string Numbers(const Parm& parm)
{
    std::string bytes;
    for (const int value : parm)
        bytes += int32(value);
    return bytes;
}

std::string Header(const Parm& parm1, const std::array<std::string, 3>& titles, const std::string& logo,
                   const std::string& bitmap, int items, int texts)
{
    std::string bytes = int32(1) + Numbers(parm1);
    for (int i = 0; i < CONT_PARM2; ++i)
        bytes += int32(0);
    for (const std::string& title : titles)
        bytes += field(title, 82);
    return bytes + field(logo, 22) + field(bitmap, 22) + int32(items) + int32(texts) + int32(0);
}

std::string Item(int type, const Parm& parm, int action = 0, int offset = 0)
{
    return int32(type) + Numbers(parm) + int32(action) + int32(offset) + int32(0);
}

std::string Texts(const std::vector<std::string>& texts)
{
    std::string bytes;
    for (const std::string& text : texts)
        bytes += text + '\0';
    return bytes;
}

// A header that only says how large the pattern is.
Parm Window(int width, int height)
{
    Parm parm{};
    parm[HEDR_WIDTH] = width;
    parm[HEDR_HEIGHT] = height;
    return parm;
}

// An item's parameters as far as every type has them.
Parm At(int x1, int y1, int x2, int y2)
{
    Parm parm{};
    parm[PARM_X1] = x1;
    parm[PARM_Y1] = y1;
    parm[PARM_X2] = x2;
    parm[PARM_Y2] = y2;
    return parm;
}

void Four(Parm& parm, int first, const std::array<int, 4>& values)
{
    for (int i = 0; i < 4; ++i)
        parm.at(first + i) = values.at(i);
}

class Build : public testing::Test
{
  protected:
    void expectBuilt()
    {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0) << result.err;
        EXPECT_EQ(result.err, "");
    }

    // Builds one item in a pattern of 320 x 240 and gives back what follows the header.
    std::string item(const std::string& source)
    {
        sources.base().screen("name: a\nwindow: { size: [320, 240] }\nitems:\n  - " + source + "\n");
        expectBuilt();
        return sources.built("a.ptn").substr(466);
    }

    Sources sources;
};

TEST_F(Build, writes_the_header_of_a_pattern_as_its_attributes_say)
{
    sources.base()
        .write("bitmaps/logo.png", "L")
        .write("bitmaps/back.png", "B")
        .screen(u8"name: 画面\n"
                u8"title: [監視, Watch, 見張り]\n"
                u8"logo: logo.png\n"
                u8"background: back.png\n"
                u8"window:\n"
                u8"  placement: framed\n"
                u8"  size: [640, 480]\n"
                u8"  at: [32, -16]\n"
                u8"  remember: yes\n"
                u8"  title-height: 40\n"
                u8"  title-back: hot\n"
                u8"  title-font: normal\n"
                u8"  clock: kanji-seconds\n"
                u8"  frame-width: 3\n"
                u8"  cursor: 5\n"
                u8"  edit-back: 1\n");
    expectBuilt();

    Parm parm = Window(640, 480);
    parm[HEDR_KIND] = 1;
    parm[HEDR_REMEMBER] = 1;
    parm[HEDR_LEFT] = 32;
    parm[HEDR_TOP] = -16;
    parm[HEDR_TITLE_HEIGHT] = 40;
    parm[HEDR_TITLE_BACK] = 50;
    parm[HEDR_TITLE_FONT] = 1;
    parm[HEDR_CLOCK] = 6;
    parm[HEDR_FRAME_WIDTH] = 3;
    parm[HEDR_CURSOR] = 5;
    parm[HEDR_EDIT_BACK] = 1;
    EXPECT_EQ(sources.built("画面.ptn"),
              Header(parm, {"監視", "Watch", "見張り"}, "logo.png", "back.png", 0, 0));
}

TEST_F(Build, uses_the_name_as_title_and_one_text_for_all_languages_and_the_last_for_the_rest)
{
    sources.base().screen(u8"name: 画面\nwindow: { size: [10, 20] }\nitems:\n"
                          u8"  - { type: text, at: [1, 2], text: [図, A] }\n"
                          u8"  - { type: text, at: [1, 2], text: 表 }\n");
    expectBuilt();
    Parm first = At(1, 2, 1 + 2 * 7, 2 + 14);
    first[FIELD_WIDTH] = 2;
    const std::string texts = Texts({"図", "A", "A", "", "", "表", "表", "表", "", ""});
    EXPECT_EQ(sources.built("画面.ptn"),
              Header(Window(10, 20), {"画面", "画面", "画面"}, "", "", 2, static_cast<int>(texts.size())) +
                  Item(PTRN_FCHR, first) + Item(PTRN_FCHR, first) + texts);
}

TEST_F(Build, writes_buttons_with_action_pattern_and_cell)
{
    Parm parm = At(8, 16, 108, 56);
    parm[BUTN_FACE] = 50;
    parm[BUTN_CAPTION] = 1;
    parm[BUTN_POST_ON] = 1;
    parm[BUTN_POST] = 12;
    parm[BUTN_FONT] = 1;
    parm[BUTN_WIDTH] = 2;
    parm[BUTN_KEY] = 3;
    parm[PARM_PASS] = 1;
    parm[PARM_CLEAR] = 50;
    EXPECT_EQ(item(u8"{ type: button, at: [8, 16], size: [100, 40], face: hot, color: white, indent: 12, "
                   u8"font: normal, key: 3, pass: front, clear: 50, text: 開く, action: open-application, "
                   u8"pattern: a, data: B+2 }"),
              Item(PTRN_BUTN, parm, 8, 2) + Texts({"開く", "開く", "開く", "a", "B"}));
}

TEST_F(Build, gives_one_colour_to_all_four_states_or_each_its_own)
{
    Parm parm = At(1, 2, 3, 4);
    Four(parm, SHAPE_OUTLINE4, {50, 50, 50, 50});
    Four(parm, SHAPE_FILL4, {1, -1, 50, 0});
    parm[SHAPE_FILLED] = 1;
    parm[SHAPE_FOMT] = 2;
    parm[SHAPE_WIDTH] = 98;
    EXPECT_EQ(item("{ type: circle, rect: [1, 2, 3, 4], outline: hot, fill: [white, none, 50, black], "
                   "grow: outside, width: 98 }"),
              Item(PTRN_CRCL, parm) + Texts({"", "", "", "", ""}));
}

TEST_F(Build, writes_the_defaults_of_every_attribute_that_is_not_given)
{
    Parm parm = At(0, 0, 50, 20);
    parm[SBAR_ARROWS] = 1;
    parm[SBAR_WIDTH] = 1;
    parm[SBAR_VISIBLE] = 10;
    parm[SBAR_TOTAL] = 100;
    parm[SBAR_LINE_STEP] = 1;
    parm[SBAR_PAGE_STEP] = 10;
    parm[SBAR_TROUGH_STEP] = 10;
    EXPECT_EQ(item("{ type: scroll-bar, rect: [0, 0, 50, 20] }"),
              Item(PTRN_SBAR, parm) + Texts({"", "", "", "", ""}));
}

TEST_F(Build, turns_a_background_on_with_its_colour_and_off_with_none_or_the_flag)
{
    sources.base().write("styles.yaml", "");
    sources.screen("name: a\n"
                   "styles: { on: { back: hot }, off: { backed: no } }\n"
                   "items:\n"
                   "  - { type: text, at: [0, 0], back: white }\n"
                   "  - { type: text, at: [0, 0], style: on, back: none }\n"
                   "  - { type: text, at: [0, 0], back: white, backed: no }\n"
                   "  - { type: text, at: [0, 0], style: [on, off] }\n"
                   "  - { type: text, at: [0, 0], style: [off, on] }\n");
    expectBuilt();
    const std::array<std::pair<int, int>, 5> backs = {{{1, 1}, {50, 0}, {1, 0}, {50, 0}, {50, 1}}};
    const std::string bytes = sources.built("a.ptn");
    for (std::size_t i = 0; i < backs.size(); ++i) {
        Parm parm = At(0, 0, 0, 14);
        Four(parm, TEXT_BACK4, {backs[i].first, backs[i].first, backs[i].first, backs[i].first});
        parm[TEXT_BACKED] = backs[i].second;
        EXPECT_EQ(bytes.substr(466 + 136 * i, 136), Item(PTRN_FCHR, parm)) << i;
    }
}

TEST_F(Build, lets_the_item_override_its_styles_and_styles_the_defaults_of_their_type_and_of_all_items)
{
    sources.write("styles.yaml", "styles:\n"
                                 "  item: { clear: white }\n"
                                 "  rectangle: { width: 5, outline: white, size: [30, 20] }\n"
                                 "  thick: { width: 9, fill: hot }\n");
    sources.base();
    sources.write("project.yaml", readFile(sources.root() + "/src/project.yaml")
                                      .erase(readFile(sources.root() + "/src/project.yaml").find("styles:")));
    sources.screen(
        "name: a\n"
        "styles: { rectangle: { outline: hot } }\n"
        "items:\n"
        "  - { type: rectangle, at: [1, 2] }\n"
        "  - { type: rectangle, at: [1, 2], style: thick, fill: black, clear: hot, size: [3, 3] }\n");
    expectBuilt();
    Parm plain = At(1, 2, 31, 22);
    Four(plain, SHAPE_OUTLINE4, {50, 50, 50, 50});
    plain[SHAPE_WIDTH] = 5;
    plain[PARM_CLEAR] = 1;
    Parm own = At(1, 2, 4, 5);
    Four(own, SHAPE_OUTLINE4, {50, 50, 50, 50});
    own[SHAPE_WIDTH] = 9;
    own[SHAPE_FILLED] = 1;
    own[PARM_CLEAR] = 50;
    const std::string bytes = sources.built("a.ptn");
    EXPECT_EQ(bytes.substr(466, 136), Item(PTRN_RECT, plain));
    EXPECT_EQ(bytes.substr(466 + 136, 136), Item(PTRN_RECT, own));
}

TEST_F(Build, makes_texts_fields_controls_and_marks_as_large_as_what_they_show)
{
    sources.base().screen(u8"name: a\nitems:\n"
                          u8"  - { type: text, at: [8, 8], text: [図形, Shapes], font: normal }\n"
                          u8"  - { type: variable-text, at: [8, 8], width: 20 }\n"
                          u8"  - { type: numeric, at: [8, 8], width: 6, font: normal, decimals: 2 }\n"
                          u8"  - { type: radio, at: [8, 8], text: 自動, font: normal, value: -3 }\n"
                          u8"  - { type: mark, at: [8, 8], mark: dot }\n");
    expectBuilt();
    const std::array<std::array<int, 2>, 5> ends = {{{8 + 6 * 8, 8 + 16},
                                                     {8 + 20 * 7, 8 + 14},
                                                     {8 + 6 * 8, 8 + 16},
                                                     {8 + 24 + 4 * 8, 8 + 16},
                                                     {8 + 32, 8 + 32}}};
    const std::string bytes = sources.built("a.ptn");
    for (std::size_t i = 0; i < ends.size(); ++i)
        EXPECT_EQ(bytes.substr(466 + 136 * i + 4, 16),
                  int32(8) + int32(8) + int32(ends[i][0]) + int32(ends[i][1]))
            << i;
    EXPECT_EQ(bytes.substr(466 + 136 * 3 + 4 + 4 * RDIO_VALUE, 4), int32(-3));
}

TEST_F(Build, repeats_an_item_along_its_step_and_its_cells)
{
    const auto copy = [](int no) {
        Parm parm = At(10 + 5 * no, 20 + 30 * no, 10 + 5 * no + 28, 34 + 30 * no);
        parm[FIELD_WIDTH] = 4;
        return Item(PTRN_CHAR, parm, 0, 1 + 2 * no);
    };
    EXPECT_EQ(item("{ type: variable-text, at: [10, 20], width: 4, data: A+1, "
                   "repeat: { count: 2, step: [5, 30], data: 2 } }"),
              copy(0) + copy(1) + Texts({"", "", "", "", "A", "", "", "", "", "A"}));
}

TEST_F(Build, finds_the_code_of_a_plain_cell_number)
{
    Parm parm = At(0, 0, 8, 8);
    parm[SPIN_MAXIMUM] = 100;
    EXPECT_EQ(item("{ type: spin, rect: [0, 0, 8, 8], data: 7 }"),
              Item(PTRN_SPIN, parm, 0, 1) + Texts({"", "", "", "", "B"}));
}

TEST_F(Build, adds_up_bits_and_takes_numbers_and_unnamed_parameters_as_they_are)
{
    Parm parm = At(0, 0, 70, 14);
    parm[FIELD_WIDTH] = 10;
    parm[FIELD_KEYENTRY] = 1;
    parm[FIELD_NAVIGATION] = 1 | 8;
    parm[25] = -7;
    EXPECT_EQ(item("{ type: variable-text, at: [0, 0], entry: yes, navigation: [up, right], action: 99, "
                   "parm: { 25: -7 } }"),
              Item(PTRN_CHAR, parm, 99) + Texts({"", "", "", "", ""}));
}

TEST_F(Build, writes_the_code_table_in_the_order_of_the_source)
{
    sources.write("codes.yaml",
                  u8"codes:\n  B: { first: 6, count: 3 }\n  温度: { first: 1, count: 5 }\n  C: 2\n");
    // C follows the code before it, which the others have taken already.
    EXPECT_EQ(sources.build().status, 1);
    sources.write("codes.yaml", u8"codes:\n  温度: 5\n  B: 3\n  C: { first: 9, count: 2 }\n");
    expectBuilt();
    EXPECT_EQ(sources.built("PtrnCode"), field("温度", 22) + int32(5) + int32(1) + int32(0) + field("B", 22) +
                                             int32(3) + int32(6) + int32(0) + field("C", 22) + int32(2) +
                                             int32(9) + int32(0));
}

TEST_F(Build, accepts_codes_in_any_order_that_cover_every_cell)
{
    sources.write("codes.yaml", "codes: { B: { first: 6, count: 3 }, A: { first: 1, count: 5 } }\n");
    expectBuilt();
    EXPECT_EQ(sources.built("PtrnCode"), field("B", 22) + int32(3) + int32(6) + int32(0) + field("A", 22) +
                                             int32(5) + int32(1) + int32(0));
}

TEST_F(Build, writes_a_hundred_colours_on_the_scale_of_the_display)
{
    sources.write("colors.yaml", "colors:\n"
                                 "  first: '#000102'\n"
                                 "  second: '#80ff00'\n"
                                 "  last: { no: 99, rgb: '#0001FFFF8000' }\n");
    expectBuilt();
    std::string expected =
        int32(0) + int32(0x0101) + int32(0x0202) + int32(0x8080) + int32(0xFFFF) + int32(0);
    while (expected.size() < 99 * 12)
        expected += '\0';
    expected += int32(0x0001) + int32(0xFFFF) + int32(0x8000);
    EXPECT_EQ(sources.built("PtrnColr"), expected);
}

TEST_F(Build, writes_marks_row_after_row_with_the_lowest_bit_first)
{
    sources.write("marks.yaml", "marks:\n"
                                "  small: # 16 x 32\n"
                                "    no: 49\n"
                                "    art: |\n"
                                "      X.......#......X\n"
                                "      .X\n"
                                "\n"
                                "      ..............X\n"
                                "  wide: # 64 x 32\n"
                                "    no: 200\n"
                                "    art: |\n"
                                "      ................................................................\n"
                                "      ........X\n");
    expectBuilt();
    std::string expected(350 * 512, '\0');
    expected[49 * 512 + 0] = 0x01;
    expected[49 * 512 + 1] = static_cast<char>(0x81);
    expected[49 * 512 + 2] = 0x02;
    expected[49 * 512 + 3 * 2 + 1] = 0x40;
    expected[200 * 512 + 8 + 1] = 0x01;
    EXPECT_EQ(sources.built("PtrnMark"), expected);
}

TEST_F(Build, fills_the_largest_mark_to_its_last_bit)
{
    std::string art;
    for (int row = 0; row < 64; ++row)
        art += "      " + std::string(64, 'X') + "\n";
    sources.write("marks.yaml", "marks:\n  full:\n    no: 349\n    art: |\n" + art);
    expectBuilt();
    EXPECT_EQ(sources.built("PtrnMark").substr(349 * 512), std::string(512, '\xFF'));
}

TEST_F(Build, copies_bitmaps_byte_for_byte_under_their_euc_names)
{
    const std::string bytes("\x89PNG\0\xFF\n", 7);
    sources.base().write(u8"bitmaps/図.png", bytes).write("bitmaps/.hidden", "x");
    expectBuilt();
    EXPECT_EQ(sources.built("Bitmap/図.png"), bytes);
    EXPECT_EQ(sources.built("Bitmap/.hidden"), "");
}

TEST_F(Build, writes_the_profile_in_euc_with_fonts_for_three_languages_and_its_own_path)
{
    sources.write("project.yaml", u8"program: panel\n"
                                  u8"fonts:\n"
                                  u8"  a: '-*-f-m-r-n--14-*'\n"
                                  u8"  b: { no: 19, x11: ['-*-f-m-r-n--16-*', '-*-g-m-r-n--16-*'] }\n"
                                  u8"profile:\n"
                                  u8"  TESSARY: { DISPSIZE: [1024, 768], WAITTIMER: 3 }\n"
                                  u8"  PTRN: { PTRNSTART: 画面 }\n"
                                  u8"  LOG: { LOGFILE: '@DIR@/log' }\n"
                                  u8"  FONT: { LANGUAGE: 0 }\n");
    sources.screen(u8"name: 画面\n");
    expectBuilt();
    EXPECT_EQ(readFile(sources.profile()), "[TESSARY]\n"
                                           "PROJECT=" +
                                               sources.output() +
                                               "\n"
                                               "DISPSIZE=1024,768\n"
                                               "WAITTIMER=3\n"
                                               "[PTRN]\n"
                                               "PTRNSTART=画面\n"
                                               "[LOG]\n"
                                               "LOGFILE=" +
                                               sources.root() +
                                               "/out/log\n"
                                               "[FONT]\n"
                                               "LANGUAGE=0\n"
                                               "FONTNAME0=-*-f-m-r-n--14-*\n"
                                               "FONTNAME19=-*-f-m-r-n--16-*\n"
                                               "FONTNAME20=-*-f-m-r-n--14-*\n"
                                               "FONTNAME39=-*-g-m-r-n--16-*\n"
                                               "FONTNAME40=-*-f-m-r-n--14-*\n"
                                               "FONTNAME59=-*-g-m-r-n--16-*\n");
}

TEST_F(Build, reads_sections_from_any_yaml_file_of_the_folder)
{
    sources.write("one.yaml", "colors: { black: '#000000' }\n").write("two.yaml", "codes: { A: 1 }\n");
    sources.screen(
        "name: a\nwindow: { body-color: black }\nitems: [{ type: spin, rect: [0, 0, 1, 1], data: A }]\n");
    expectBuilt();
}

} // namespace
