// "ptn check" of a project of edition 1: it tells where screens use what edition 2 corrects.
#include "tests/ptn/Messages.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

using testing::HasSubstr;
using testing::Not;

const char* const SUMMARY = "src: 1 screen, nothing found";

class EditionWarning : public testing::Test
{
  protected:
    EditionWarning()
    {
        sources.checkedBase();
        sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
        sources.write("tables.yaml", "messages: { low: Low }\n"
                                     "limits: [{ data: A, maximum: 100 }, { data: B, maximum: 60000 }]\n");
    }

    void screen(const std::string& items, const std::string& name = "a")
    {
        sources.write("screens/" + name + ".yaml",
                      "name: " + name + "\nwindow: { size: [320, 240] }\nitems:\n" + items);
    }

    std::string check(int edition)
    {
        sources.write("edition.yaml", "edition: " + std::to_string(edition) + "\n");
        const PtnResult result = sources.run("check src");
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(result.status, 0) << "a warning about the edition is no mistake";
        return result.out;
    }

    /// @param message  from the number of the line to before the remedy; empty for none
    void expectWarns(const std::string& message)
    {
        const std::string line = "src/screens/a.yaml:" + message + ". Set 'edition: 2' in project.yaml.\n";
        EXPECT_EQ(check(1), message.empty() ? std::string(SUMMARY) + ".\n"
                                            : line + SUMMARY + ", 1 warning about its edition.\n");
        EXPECT_EQ(check(2), std::string(SUMMARY) + ".\n");
    }

    Sources sources;
};

/// Items of the screen, from line 4 on, and what is said about them.
class EditionWarningOf : public EditionWarning, public testing::WithParamInterface<MessageCase>
{
};

TEST_P(EditionWarningOf, names_the_row_the_place_and_what_happens)
{
    screen(GetParam().text);
    expectWarns(GetParam().message);
}

const MessageCase CASES[] = {
    {"wheel", "  - { type: spin, rect: [1, 1, 20, 20], data: A }\n",
     "4: warning: spin at 1,1: [edition 2: spin-wheel] the wheel over it changes what was pressed last"},
    {"wheel_of_two",
     "  - { type: spin, rect: [1, 1, 20, 20], data: A }\n  - { type: spin, rect: [1, 41, 20, 60], data: B "
     "}\n",
     "4: warning: spin at 1,1 (and 1 more): [edition 2: spin-wheel] the wheel over it changes what was "
     "pressed "
     "last"},
    {"wheel_of_a_scroll_bar", "  - { type: scroll-bar, rect: [1, 1, 20, 100], data: A }\n", ""},
    {"sign", "  - { type: numeric, at: [1, 1], width: 5, data: A+1, entry: yes, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: entry-sign] a '-' stands where the cursor is when it is typed"},
    {"no_sign_in_a_field_that_is_only_shown",
     "  - { type: numeric, at: [1, 1], width: 5, data: A+1, back: white }\n", ""},
    {"no_sign_in_hexadecimal",
     "  - { type: numeric, at: [1, 1], width: 5, data: A+1, entry: yes, hex: yes, back: white }\n", ""},
    {"limits", "  - { type: numeric, at: [1, 1], width: 5, data: A, entry: yes, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: limits-bind] its row of 'limits' refuses no entry"},
    {"no_limits_of_a_field_that_is_only_shown",
     "  - { type: numeric, at: [1, 1], width: 5, data: A, back: white }\n", ""},
    {"grouping", "  - { type: numeric, at: [1, 1], width: 9, data: A+1, grouping: yes, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: grouping] its separators may push digits out of the field"},
    {"grouping_of_decimals",
     "  - { type: numeric, at: [1, 1], width: 9, decimals: 1, data: A+1, grouping: yes, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: grouping] its separators are left out of numbers with "
     "decimals"},
    {"room", "  - { type: numeric, at: [1, 1], width: 4, data: B, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: number-room] 60000 does not fit its 4 characters and is drawn "
     "beyond them"},
    {"room_for_decimals", "  - { type: numeric, at: [1, 1], width: 4, decimals: 1, data: A, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: number-room] 100.0 does not fit its 4 characters and is drawn "
     "beyond them"},
    {"room_that_is_enough", "  - { type: numeric, at: [1, 1], width: 4, hex: yes, data: B, back: white }\n",
     ""},
    {"room_that_no_limit_tells", "  - { type: numeric, at: [1, 1], width: 1, data: B+1, back: white }\n", ""},
    {"text_without_background", "  - { type: variable-text, at: [1, 1], width: 4, data: A }\n",
     "4: warning: variable-text at 1,1: [edition 2: layers] without a background its values are drawn over "
     "each other"},
    {"text_that_stays_without_background", "  - { type: text, at: [1, 1], text: x, data: A }\n", ""},
    {"box_below_a_number_of_another_cell",
     "  - { type: group-box, rect: [8, 8, 200, 60], data: A }\n"
     "  - { type: numeric, at: [20, 16], width: 4, data: A+1, back: white }\n",
     "4: warning: group-box at 8,8: [edition 2: layers] when it changes it is drawn over the numeric at "
     "20,16"},
    {"box_below_a_text_that_stays",
     "  - { type: group-box, rect: [8, 8, 200, 60], data: A }\n  - { type: text, at: [20, 16], text: x }\n",
     "4: warning: group-box at 8,8: [edition 2: layers] when it changes it is drawn over the text at 20,16"},
    {"box_below_a_number_of_the_same_cell",
     "  - { type: group-box, rect: [8, 8, 200, 60], data: A+1 }\n"
     "  - { type: numeric, at: [20, 16], width: 4, data: A+1, back: white }\n",
     ""},
    {"box_that_never_changes",
     "  - { type: group-box, rect: [8, 8, 200, 60] }\n"
     "  - { type: numeric, at: [20, 16], width: 4, data: A+1, back: white }\n",
     ""},
    {"blinking_text_below_a_number",
     "  - { type: text, at: [20, 16], text: x, blink: yes }\n"
     "  - { type: numeric, at: [20, 20], width: 4, data: A+1, back: white }\n",
     "4: warning: text at 20,16: [edition 2: layers] when it changes it is drawn over the numeric at 20,20"},
    {"boxes_beside_each_other",
     "  - { type: group-box, rect: [8, 8, 60, 60], data: A }\n"
     "  - { type: group-box, rect: [60, 8, 90, 60], data: B }\n",
     ""},
    {"key_on_a_screen_alone",
     "  - { type: button, rect: [1, 1, 60, 40], text: x, key: 3, action: hardcopy }\n", ""},
    {"key_below_the_system_window",
     "  - { type: button, rect: [1, 1, 60, 40], text: x, key: 3, action: close }\n"
     "  - { type: button, rect: [1, 51, 60, 90], text: y, action: open-system, pattern: a }\n",
     "4: warning: button at 1,1: [edition 2: keys-to-front] keys reach every open window, not only the one "
     "in "
     "front"},
    {"keys_of_a_scroll_bar_of_a_child",
     "  - { type: scroll-bar, rect: [1, 1, 20, 100], data: A, keys: yes }\n"
     "  - { type: button, rect: [51, 51, 90, 90], text: y, action: open-child-1, pattern: a }\n"
     "  - { type: button, rect: [51, 101, 90, 140], text: z, action: close }\n",
     "4: warning: scroll-bar at 1,1: [edition 2: keys-to-front] keys reach every open window, not only the "
     "one "
     "in front"},
    {"limits_of_its_own",
     "  - { type: numeric, at: [1, 1], width: 4, data: A+1, entry: yes, maximum: 9.5, back: white }\n",
     "4: warning: numeric at 1,1: [edition 2: limits-bind] 'maximum' has no effect"},
    {"default_button",
     "  - { type: button, rect: [1, 1, 60, 40], text: x, default: yes, action: hardcopy }\n",
     "4: warning: button at 1,1: [edition 2: keys-to-front] 'default' has no effect"},
};

INSTANTIATE_TEST_SUITE_P(Ptn, EditionWarningOf, testing::ValuesIn(CASES), CaseName);

TEST_F(EditionWarning, counts_an_item_once_and_names_each_row)
{
    screen(
        "  - { type: spin, rect: [1, 1, 20, 20], data: A, step: 0.5, message: low }\n"
        "  - { type: numeric, at: [51, 1], width: 9, data: A+1, grouping: yes, entry: yes, minimum: -2 }\n");
    const std::string out = check(1);
    EXPECT_THAT(out, HasSubstr("a.yaml:4: warning: spin at 1,1: [edition 2: spin-wheel] "));
    for (const char* row : {"grouping", "entry-sign", "limits-bind", "layers"})
        EXPECT_THAT(out,
                    HasSubstr("a.yaml:5: warning: numeric at 51,1: [edition 2: " + std::string(row) + "] "));
    EXPECT_THAT(out, HasSubstr("nothing found, 5 warnings about its edition.\n"));
    EXPECT_THAT(check(2), Not(HasSubstr("warning")));
}

TEST_F(EditionWarning, knows_modal_children_from_others)
{
    screen("  - { type: button, rect: [1, 1, 60, 40], text: x, key: 3, action: hardcopy }\n"
           "  - { type: button, rect: [1, 51, 60, 90], text: y, action: open-child-1, pattern: b }\n");
    sources.write("screens/b.yaml", "name: b\nwindow: { size: [32, 24], parm: { 26: 1 } }\n");
    EXPECT_THAT(check(1), Not(HasSubstr("warning")));
    sources.write("screens/b.yaml", "name: b\nwindow: { size: [32, 24] }\n"
                                    "items: [{ type: button, rect: [0, 0, 32, 24], action: close }]\n");
    EXPECT_THAT(check(1), HasSubstr("a.yaml:4: warning: button at 1,1: [edition 2: keys-to-front] "));
}

TEST_F(EditionWarning, is_given_for_a_compiled_project_too)
{
    screen("  - { type: spin, rect: [1, 1, 20, 20], data: A }\n");
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_THAT(sources.run("check out/ProjPath").out,
                HasSubstr("out/ProjPath/a.ptn: warning: item 1, spin at 1,1: [edition 2: spin-wheel] "));
}

TEST_F(EditionWarning, of_the_sample_project_is_short)
{
    const PtnResult result = sources.run("check " + Program::sourceFolder() + "/project");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.out, HasSubstr("[edition 2: spin-wheel]"));
    EXPECT_THAT(result.out, HasSubstr("14 screens, nothing found, "));
}

} // namespace
