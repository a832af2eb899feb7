// "ptn check": each mistake with its message; and nothing about screens without mistakes.
#include "pattern/ItemParm.h"
#include "tests/ptn/Messages.h"
#include "tests/support/PatternBuilder.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

class Check : public testing::Test
{
  protected:
    // A screen "a" of 320 x 240 that the profile starts and stops with.
    Check()
    {
        sources.checkedBase();
        profile("a", "a");
    }

    void profile(const std::string& start, const std::string& stop)
    {
        sources.write("profile.yaml",
                      "profile:\n  PTRN:\n    PTRNSTART: " + start + "\n    PTRNSTOP: " + stop + "\n");
    }

    static std::string screen(const std::string& items)
    {
        return "name: a\nwindow: { size: [320, 240] }\nitems:\n" + items;
    }

    void expectFinds(const std::string& what, const std::string& arguments = "src")
    {
        const PtnResult result = sources.run("check " + arguments);
        EXPECT_EQ(result.err, what);
        EXPECT_EQ(result.status, what.empty() ? 0 : 1);
    }

    Sources sources;
};

TEST_F(Check, finds_nothing_in_a_screen_without_mistakes)
{
    sources.write("edition.yaml", "edition: 2\n"); // of which there is nothing to warn about
    sources.screen(screen("  - { type: group-box, rect: [0, 0, 320, 240] }\n"
                          "  - { type: text, at: [8, 8], text: Speed }\n"
                          "  - { type: numeric, at: [80, 8], width: 5, data: A+1, entry: yes }\n"
                          "  - { type: radio, at: [8, 40], text: x, data: B, value: 1 }\n"
                          "  - { type: radio, at: [8, 60], text: y, data: B, value: 2 }\n"
                          "  - { type: scroll-bar, rect: [8, 100, 200, 120], data: A }\n"
                          "  - { type: button, rect: [8, 200, 80, 232], text: Close, action: close }\n"));
    expectFinds("");
    EXPECT_EQ(sources.run("check src").out, "src: 1 screen, nothing found.\n");
    ASSERT_EQ(sources.build().status, 0);
    expectFinds("", "out/ProjPath");
}

TEST_F(Check, does_not_ask_for_the_ground_of_a_text_that_never_blinks)
{
    sources.screen(screen("  - { type: text, at: [1, 1], text: x, parm: { 8: 100 } }\n"));
    expectFinds("");
}

/// The text is the items of the screen, from line 4 on.
class CheckItem : public Check, public testing::WithParamInterface<MessageCase>
{
};

TEST_P(CheckItem, names_place_and_remedy)
{
    sources.screen(screen(GetParam().text));
    expectFinds(std::string("src/screens/a.yaml") + GetParam().message + "\n");
}

const std::string NO_SUCH_TYPE =
    ":4: item of type 99 at 1,1: no such type, so nothing is drawn. Use a type from 1 to " +
    std::to_string(CONT_PTRN) + ".";

const MessageCase ITEM_CASES[] = {
    {"unknown_attribute", "  - { type: line, rect: [1, 1, 2, 2], colour: hot }\n",
     ":4: item 1 (line): unknown attribute 'colour'. Did you mean 'color'? Correct or remove it."},
    {"character_that_euc_lacks", u8"  - { type: text, at: [1, 1], text: 한 }\n",
     u8":4: item 1 (text): 'text': EUC-JP has no '한' (U+D55C). Use another character."},
    {"character_that_fonts_lack", u8"  - { type: text, at: [1, 1], text: [a, b, Spülen] }\n",
     u8":4: text at 1,1: its text has 'ü', which the fonts of a panel lack. Use another character."},
    {"unknown_code", "  - { type: spin, rect: [1, 1, 20, 20], exact: { code: X } }\n",
     ":4: spin at 1,1: no code 'X', so it is bound to nothing. Add it to 'codes' or use another."},
    {"offset", "  - { type: spin, rect: [1, 1, 20, 20], exact: { code: B, offset: 3 } }\n",
     ":4: spin at 1,1: code 'B' has 3 cells, so there is no +3. Correct the offset or extend the code."},
    {"type", "  - { type: 99, rect: [1, 1, 20, 20] }\n", NO_SUCH_TYPE.c_str()},
    {"colour", "  - { type: line, rect: [1, 1, 20, 1], parm: { 4: 100 } }\n",
     ":4: line at 1,1: 'color' is 100, outside 0 to 99, which ends the panel when it is drawn. Correct it."},
    {"ground_of_a_text_that_blinks",
     "  - { type: text, at: [1, 1], text: x, blink: yes, parm: { 8: 100 } }\n",
     ":4: text at 1,1: 'back' is 100, outside 0 to 99, which ends the panel when it is drawn. Correct it."},
    {"ground_of_a_text_that_its_cell_may_make_blink",
     "  - { type: text, at: [1, 1], text: x, data: A, parm: { 8: -1 } }\n",
     ":4: text at 1,1: 'back' is -1, outside 0 to 99, which ends the panel when it is drawn. Correct it."},
    {"font_number", "  - { type: text, at: [1, 1], text: x, parm: { 15: 20 } }\n",
     ":4: text at 1,1: 'font' is 20, outside 0 to 19, which ends the panel when it is drawn. Correct it."},
    {"mark", "  - { type: mark, rect: [1, 1, 33, 33], parm: { 15: 354 } }\n",
     ":4: mark at 1,1: 'mark' is 354, outside 0 to 353, which ends the panel when it is drawn. Correct it."},
    {"thickness", "  - { type: line, rect: [1, 1, 20, 1], parm: { 15: 0 } }\n",
     ":4: line at 1,1: 'width' is 0, outside 1 to 98, which ends the panel when it is drawn. Correct it."},
    {"colour_of_what_is_cleared", "  - { type: line, rect: [1, 1, 20, 1], parm: { 29: -1 } }\n",
     ":4: line at 1,1: 'clear' is -1, outside 0 to 99, which ends the panel when it is drawn. Correct it."},
    {"dash", "  - { type: line, rect: [1, 1, 20, 1], parm: { 14: 3 } }\n",
     ":4: line at 1,1: 'dash' is 3, outside 0 to 2, which ends the panel when it is drawn. Correct it."},
    {"number", "  - { type: button, rect: [1, 1, 20, 20], parm: { 27: 13 }, action: hardcopy }\n",
     ":4: button at 1,1: 'key' is 13, outside 0 to 12. Correct it."},
    {"font_without_a_name", "  - { type: text, at: [1, 1], text: x, parm: { 15: 7 } }\n",
     ":4: text at 1,1: its font, number 7, has no name in language 0, so no text is drawn. Name it in "
     "'fonts'.\nsrc/screens/a.yaml:4: text at 1,1: its font, number 7, has no name in language 1, so no text "
     "is drawn. Name it in 'fonts'.\nsrc/screens/a.yaml:4: text at 1,1: its font, number 7, has no name in "
     "language 2, so no text is drawn. Name it in 'fonts'."},
    {"pass", "  - { type: line, rect: [1, 1, 20, 1], parm: { 28: 2 } }\n",
     ":4: line at 1,1: 'pass' is 2, in which nothing is ever drawn. Write 'back' or 'front'."},
    {"bitmap", "  - { type: bitmap, rect: [1, 1, 20, 20], exact: { text: x.png } }\n",
     ":4: bitmap at 1,1: its bitmap 'x.png' is not among the bitmaps, so nothing is drawn. Put the file "
     "there "
     "or correct the name."},
    {"text_too_long_for_the_panel",
     "  - { type: mark, rect: [1, 1, 20, 20], exact: { text: "
     "123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_1 "
     "} }\n",
     ":4: mark at 1,1: its text has 101 bytes; the panel keeps 100. Shorten it."},
    {"bytes_that_are_no_text", "  - { type: mark, rect: [1, 1, 20, 20], exact: { text: { bytes: FFFF } } }\n",
     ":4: mark at 1,1: its text has bytes that are no EUC-JP. Write it anew."},
    {"action_number", "  - { type: spin, rect: [1, 1, 20, 20], data: A, action: 17 }\n",
     ":4: spin at 1,1: action 17 does nothing. Use one from 0 to 16."},
    {"action_that_opens_nothing",
     "  - { type: spin, rect: [1, 1, 20, 20], data: A, exact: { action: 8, pattern: x } }\n",
     ":4: spin at 1,1: no screen is named 'x', which this item opens. Correct the name or add the screen."},
    {"pattern_without_an_action",
     "  - { type: spin, rect: [1, 1, 20, 20], data: A, action: close, pattern: a }\n",
     ":4: spin at 1,1: names the screen 'a', but its action opens none. Write an action such as "
     "open-application, or remove 'pattern'."},
    {"version_window", "  - { type: spin, rect: [1, 1, 20, 20], data: A, action: version }\n",
     u8":4: spin at 1,1: opens the screen 'バージョン情報', which is not there. Add it, or take the action "
     u8"away."},
    {"scroll_bar", "  - { type: scroll-bar, rect: [1, 1, 100, 20], data: A, visible: 5, total: 5 }\n",
     ":4: scroll-bar at 1,1: 'total' is 5 and 'visible' 5, by which the thumb's place would be divided by "
     "zero. Make 'total' larger."},
    {"bar_graph", "  - { type: bar-graph, data: A, rect: [1, 1, 100, 20], minimum: 9, maximum: 3 }\n",
     ":4: bar-graph at 1,1: 'minimum' is not below 'maximum', so the bar stays empty. Exchange them."},
    {"bar_graph_smaller_than_its_frame",
     "  - { type: bar-graph, data: A, exact: { rect: [0, 0, 5, 50], parm: { 15: 3 } } }\n",
     ":4: bar-graph at 0,0: is too small for its frame and needle, which ends the panel when it is drawn. "
     "Make it larger."},
    {"spin", "  - { type: spin, rect: [1, 1, 100, 20], data: A, minimum: 9, maximum: 3 }\n",
     ":4: spin at 1,1: 'minimum' is above 'maximum', so the value jumps between them. Exchange them."},
    {"entry_without_a_cell", "  - { type: numeric, at: [1, 1], width: 3, entry: yes }\n",
     ":4: numeric at 1,1: 'entry' has nowhere to store what is typed. Name a cell with 'data'."},
    {"text_longer_than_its_field", "  - { type: text, at: [1, 1], text: [Go, Speed], width: 4 }\n",
     ":4: text at 1,1: its text has 5 half-width characters and its field 4. Shorten it, or make 'width' "
     "larger."},
    {"decimals_without_room", "  - { type: numeric, at: [1, 1], data: A, width: 3, decimals: 2 }\n",
     ":4: numeric at 1,1: its field has 3 characters; a number with 2 decimals needs 4 or more. Make 'width' "
     "larger."},
    {"outside", "  - { type: line, rect: [400, 1, 420, 1] }\n",
     ":4: line at 400,1: lies outside the pattern of 320 x 240 pixels, to 420,1. Move it, or enlarge the "
     "window."},
    {"beyond", "  - { type: text, at: [300, 1], text: Speed }\n",
     ":4: text at 300,1: reaches beyond the pattern of 320 x 240 pixels, to 335,15. Move it, or enlarge the "
     "window."},
    {"frame",
     "  - { type: group-box, rect: [8, 8, 60, 40] }\n  - { type: numeric, at: [20, 16], data: A, width: 6 "
     "}\n",
     ":5: numeric at 20,16: reaches 62,30, beyond its frame, which ends at 60,40. Make it narrower, or the "
     "frame larger."},
    {"choice_and_its_frame",
     "  - { type: group-box, rect: [8, 8, 60, 40] }\n  - { type: check, at: [20, 16], data: A, text: Buzzer "
     "}\n",
     ":5: check at 20,16: reaches 83,30, beyond its frame, which ends at 60,40. Make it narrower, or the "
     "frame larger."},
    {"caption",
     "  - { type: button, rect: [8, 8, 60, 40], text: Overflowing, indent: 4, action: hardcopy }\n",
     ":4: button at 8,8: its caption needs 81 pixels and has 52. Shorten it or widen the button."},
    {"radio",
     "  - { type: radio, at: [8, 8], text: x, data: B+1, value: 4 }\n"
     "  - { type: radio, at: [8, 30], text: y, data: B+1, value: 4 }\n",
     ":5: radio at 8,30: has the value 4, as the radio at 8,8 has, so both are on together. Give it another "
     "'value'."},
    {"hidden_by_its_type",
     "  - { type: button, rect: [8, 8, 60, 40], text: x, action: hardcopy }\n  - { type: mark, at: [10, 8], "
     "mark: dot }\n",
     ":5: mark at 10,8: is hidden below the button at 8,8, which is drawn later. Move one of them, or draw "
     "it "
     "in the front pass."},
    {"hidden_by_its_place",
     "  - { type: group-box, rect: [10, 10, 20, 20] }\n  - { type: group-box, rect: [8, 8, 60, 40] }\n",
     ":4: group-box at 10,10: is hidden below the group-box at 8,8, which is drawn later. Move one of them, "
     "or draw it in the front pass."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, CheckItem, testing::ValuesIn(ITEM_CASES), CaseName);

TEST_F(Check, looks_at_the_window_too)
{
    sources.screen("name: a\nwindow: { size: [320, 240], parm: { 19: 100 } }\n");
    expectFinds("src/screens/a.yaml:1: the window: 'body-color' is 100, outside 0 to 99, which ends the "
                "panel when it is drawn. Correct it.\n");
    sources.screen("name: a\nwindow: { size: [320, 240], parm: { 8: 40, 11: 7 } }\n");
    EXPECT_THAT(sources.run("check src").err,
                HasSubstr("src/screens/a.yaml:1: the window: its font, number 7, has no name in language 0, "
                          "so no text is drawn. Name it in 'fonts'.\n"));
}

TEST_F(Check, lets_a_box_with_a_cell_of_its_own_hide_others_since_it_may_be_hidden_itself)
{
    sources.screen(screen("  - { type: group-box, rect: [10, 10, 20, 20] }\n"
                          "  - { type: group-box, rect: [8, 8, 60, 40], data: A }\n"));
    expectFinds("");
}

TEST_F(Check, finds_items_in_the_title_bar)
{
    sources.screen("name: a\nwindow: { size: [320, 240], title-height: 40 }\nitems:\n"
                   "  - { type: line, rect: [8, 39, 40, 39] }\n");
    expectFinds("src/screens/a.yaml:4: line at 8,39: lies in the title bar, which is 40 high. Move it "
                "down.\n");
}

TEST_F(Check, finds_screens_that_nothing_opens)
{
    sources.screen(
        screen("  - { type: spin, rect: [1, 1, 20, 20], data: A, action: open-child-1, pattern: b }\n"));
    sources.write("screens/b.yaml", "name: b\nitems: [{ type: button, rect: [1, 1, 9, 9], action: close }]\n")
        .write("screens/c.yaml", "name: c\n");
    expectFinds("src/screens/c.yaml:1: the screen 'c' can not be reached: no action of another screen opens "
                "it, and no 'registry' tells what the program opens. Add an action, or remove the screen.\n");
}

TEST_F(Check, asks_the_registry_of_the_program_which_screens_it_knows)
{
    sources.screen(
        screen("  - { type: spin, rect: [1, 1, 20, 20], data: A, action: open-child-1, pattern: b }\n"));
    sources.write("screens/b.yaml", "name: b\nitems: [{ type: button, rect: [1, 1, 9, 9], action: close }]\n")
        .write("screens/c.yaml", u8"name: 表\n")
        .write("screens/d.yaml", "name: d\n")
        .write("Registry.cpp", u8"{\"a\", Make<A>}, {\"表\", Make<B>},\n");
    const std::string expected =
        "src/screens/a.yaml:4: spin at 1,1: the program's registry does not know 'b', so nothing opens. Add "
        "it "
        "there.\n"
        "src/screens/d.yaml:1: the screen 'd' can not be reached: no action of another screen opens it and "
        "the program's registry does not know it. Add an action, or remove the screen.\n";
    expectFinds(expected, "--registry src/Registry.cpp src");
    sources.write("registry.yaml", "registry: Registry.cpp\n");
    expectFinds(expected);
    sources.write("Registry.cpp", "\"b\" \"d\"");
    EXPECT_THAT(
        sources.run("check src").err,
        HasSubstr("profile key 'PTRNSTART': the program's registry does not know 'a'. Add it there."));
}

TEST_F(Check, finds_a_profile_that_names_no_screens)
{
    profile("''", "x");
    sources.screen(screen(""));
    EXPECT_THAT(
        sources.run("check src").err,
        testing::AllOf(HasSubstr("src/profile.yaml:3: profile key 'PTRNSTART': no pattern is named, so "
                                 "the panel shows nothing. Write the name of a screen.\n"),
                       HasSubstr("src/profile.yaml:4: profile key 'PTRNSTOP': no screen is named 'x'. "
                                 "Use the 'name' of a screen.\n")));
    profile("a", "''");
    expectFinds("src/profile.yaml:4: profile key 'PTRNSTOP': no pattern is named, so the panel ends unseen. "
                "Write the name of a screen.\n");
}

TEST_F(Check, finds_the_same_in_a_compiled_project_by_the_number_of_the_item)
{
    sources.screen(screen(""));
    ASSERT_EQ(sources.build().status, 0);
    writeFile(sources.output() + "/a.ptn", Pattern("a")
                                               .item(PTRN_LINE, 1, 1, 9, 9)
                                               .item(PTRN_MARK, 1, 1, 9, 9)
                                               .parm(MARK_NUMBER4, 400)
                                               .item(PTRN_BUTN, 20, 20, 40, 40)
                                               .action(7, "nowhere")
                                               .bytes());
    expectFinds("out/ProjPath/a.ptn: item 2, mark at 1,1: 'mark' is 400, outside 0 to 353, which ends the "
                "panel when it is drawn. Correct it.\n"
                "out/ProjPath/a.ptn: item 3, button at 20,20: no screen is named 'nowhere', which this item "
                "opens. Correct the name or add the screen.\n",
                "out/ProjPath");
}

TEST_F(Check, finds_in_a_compiled_project_what_sources_do_not_let_through)
{
    sources.screen(screen(""));
    ASSERT_EQ(sources.build().status, 0);
    const std::string file = "out/ProjPath/a.ptn: ";
    const std::pair<Pattern, std::string> cases[] = {
        {Pattern("a").item(PTRN_BARG, 0, 0, 5, 50).code("A").parm(BARG_FRAME_WIDTH, 3),
         "item 1, bar-graph at 0,0: is too small for its frame and needle, which ends the panel when it is "
         "drawn. Make it larger."},
        {Pattern("a")
             .item(PTRN_BARG, 0, 0, 50, 12)
             .code("A")
             .parm(BARG_HORIZONTAL, 0)
             .parm(BARG_NEEDLE_WIDTH, 20),
         "item 1, bar-graph at 0,0: is too small for its frame and needle, which ends the panel when it is "
         "drawn. Make it larger."},
        {Pattern("a").item(PTRN_BMAP, 0, 0, 50, 12).text("x.png"),
         "item 1, bitmap at 0,0: its bitmap 'x.png' is not among the bitmaps, so nothing is drawn. Put the "
         "file there or correct the name."},
        {Pattern("a").logo("x.png").header(HEDR_TITLE_HEIGHT, 40).header(HEDR_LOGO, 1),
         "the window: its logo 'x.png' is not among the bitmaps, so nothing is drawn. Put the file there or "
         "correct the name."},
        {Pattern("a").bitmap("x.png"),
         "the window: its background 'x.png' is not among the bitmaps, so nothing is drawn. Put the file "
         "there or correct the name."},
        {Pattern("a").title("\xFF"), "the window: its title has bytes that are no EUC-JP. Write it anew."},
        {Pattern("a").item(PTRN_SPIN, 0, 0, 9, 9).code(std::string(21, 'C')),
         "item 1, spin at 0,0: its code has 21 bytes; the panel keeps 20. Shorten it.\n" + file +
             "item 1, spin at 0,0: no code 'CCCCCCCCCCCCCCCCCCCCC', so it is bound to nothing. Add it to "
             "'codes' or use another."},
        {Pattern("a").item(PTRN_SPIN, 0, 0, 9, 9).code("B", -1),
         "item 1, spin at 0,0: code 'B' has 3 cells, so there is no -1. Correct the offset or extend the "
         "code."},
    };
    for (const auto& one : cases) {
        writeFile(sources.output() + "/a.ptn", one.first.bytes());
        expectFinds(file + one.second + "\n", "out/ProjPath");
    }
}

TEST_F(Check, of_a_damaged_file_says_so_and_goes_on)
{
    sources.screen(screen(""));
    ASSERT_EQ(sources.build().status, 0);
    const std::pair<const char*, const char*> cases[] = {
        {"b.ptn", "not a whole pattern file: it ends within its header. Get an undamaged copy."},
        {"Haisenhyo", "not a whole wiring table: it ends within its header. Get an undamaged copy."},
        {"PtrnCode", "warning: its last 5 bytes are no whole record and are left out."},
    };
    for (const auto& one : cases) {
        const std::string file = sources.output() + "/" + one.first;
        const std::string before = readFile(file);
        writeFile(file, before + "short");
        expectFinds("out/ProjPath/" + std::string(one.first) + ": " + one.second + "\n", "out/ProjPath");
        EXPECT_THAT(sources.run("check out/ProjPath").out, HasSubstr(": 1 screen, 1 found.\n"));
        fs::remove(file);
        if (!before.empty())
            writeFile(file, before);
    }
    writeFile(sources.output() + "/Haisenhyo", std::string(134, '\0') + int32(7));
    expectFinds("out/ProjPath/Haisenhyo: not a whole wiring table: it has not as many wires as it says. Get "
                "an undamaged copy.\n",
                "out/ProjPath");
}

TEST_F(Check, finds_nothing_in_the_sample_project)
{
    const std::string project = Program::sourceFolder() + "/project";
    expectFinds("", project);
    ASSERT_EQ(sources.run("build " + project + " out/ProjPath").status, 0);
    expectFinds("", "out/ProjPath --registry " + Program::sourceFolder() + "/app/Registry.cpp");
}

TEST_F(Check, help_names_every_attribute_of_a_type)
{
    const PtnResult help = sources.run("help attributes radio");
    EXPECT_EQ(help.status, 0);
    for (const char* text : {"color-locked", "the value that this button stands for", "rect", "clear",
                             "back | front; default back"})
        EXPECT_THAT(help.out, HasSubstr(text));
    EXPECT_THAT(sources.run("help attributes window").out, HasSubstr("kanji-seconds"));
    EXPECT_THAT(sources.run("help attributes").out, HasSubstr("open-application"));
    EXPECT_EQ(sources.run("help radio").out, help.out);
    for (const char* topic : {"lamp", "attributes lamp"}) {
        const PtnResult unknown = sources.run(std::string("help ") + topic);
        EXPECT_EQ(unknown.status, 1);
        EXPECT_THAT(unknown.err, testing::StartsWith("ptn: no type 'lamp'. The types are:\n"));
    }
}

} // namespace
