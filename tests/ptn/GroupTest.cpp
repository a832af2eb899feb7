// Groups, parts and grids: the same bytes as the items written one by one.
#include "tests/ptn/Sources.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

class Group : public testing::Test
{
  protected:
    std::string built(const std::string& screen)
    {
        sources.base().screen("name: a\n" + screen);
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0) << result.err;
        return sources.built("a.ptn");
    }

    Sources sources;
};

TEST_F(Group, puts_arguments_offsets_and_copies_into_its_items)
{
    const std::string plain = built("items:\n"
                                    "  - { type: spin, rect: [11, 22, 21, 32], data: A+1 }\n"
                                    "  - { type: text, at: [10, 20], text: [x, y], color: hot }\n"
                                    "  - { type: spin, rect: [11, 62, 21, 72], data: A+2 }\n"
                                    "  - { type: text, at: [10, 60], text: [x, y], color: hot }\n");
    EXPECT_EQ(
        built("groups:\n"
              "  g:\n"
              "    parameters: { name: , cell: B, color: hot }\n"
              "    items:\n"
              "      - { type: spin, rect: [1, 2, 11, 12], data: $cell+1 }\n"
              "      - { type: text, at: [0, 0], text: $name, color: $color }\n"
              "items:\n"
              "  - { use: g, at: [10, 20], name: [x, y], cell: A, repeat: { count: 2, step: [0, 40] } }\n"),
        plain);
}

TEST_F(Group, or_an_item_may_begin_with_its_type)
{
    const std::string plain =
        built("items:\n"
              "  - { type: text, at: [10, 20], text: [x, y], color: hot }\n"
              "  - { type: spin, rect: [11, 62, 21, 72], data: A, repeat: { count: 2 } }\n");
    EXPECT_EQ(built("items:\n"
                    "  - text: { at: [10, 20], text: [x, y], color: hot }\n"
                    "  - spin:\n"
                    "      rect: [11, 62, 21, 72]\n"
                    "      data: A\n"
                    "      repeat: { count: 2 }\n"),
              plain);
}

TEST_F(Group, puts_the_entries_of_a_grid_in_rows)
{
    const std::string plain = built("items:\n"
                                    "  - { type: text, at: [5, 6], text: a }\n"
                                    "  - { type: text, at: [105, 6], text: b }\n"
                                    "  - { type: text, at: [5, 36], text: c }\n");
    EXPECT_EQ(built("items:\n"
                    "  - at: [5, 6]\n"
                    "    grid: { columns: 2, step: [100, 30] }\n"
                    "    items:\n"
                    "      - { type: text, at: [0, 0], text: a }\n"
                    "      - { type: text, at: [0, 0], text: b }\n"
                    "      - { type: text, at: [0, 0], text: c }\n"),
              plain);
}

TEST_F(Group, that_uses_itself_ends_with_a_message)
{
    sources.base().screen("name: a\ngroups: { g: { items: [{ use: g }] } }\nitems:\n  - { use: g }\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, testing::HasSubstr("A group can not use itself."));
}

TEST_F(Group, has_its_mistakes_told_once_however_often_it_is_used)
{
    sources.checkedBase().screen("name: a\ngroups:\n  g:\n    parameters: [cell]\n    items:\n"
                                 "      - { type: spin, rect: [1, 1, 9, 9], data: $cell, colour: hot }\n"
                                 "items:\n  - { use: g, cell: A }\n  - { use: g, cell: B+7 }\n");
    EXPECT_EQ(sources.build().err,
              "src/screens/a.yaml:6: item 1.1 (spin): unknown attribute 'colour'. Correct or remove it.\n"
              "src/screens/a.yaml:9: item 2.1 (spin): 'data': code 'B' has 3 cells, so there is no +7. Write "
              "at most +2 or extend the code.\n"
              "2 errors; out/ProjPath is unchanged.\n");
    sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
    sources.screen("name: a\ngroups:\n  g:\n    items:\n"
                   "      - { type: spin, rect: [1, 1, 9, 9], data: A, minimum: 9, maximum: 3 }\n"
                   "items:\n  - { use: g }\n  - { use: g, at: [100, 0] }\n");
    EXPECT_EQ(sources.run("check src").err,
              "src/screens/a.yaml:5: spin at 1,1: 'minimum' is above 'maximum', so the value jumps between "
              "them. Exchange them.\n");
}

TEST_F(Group, names_parameters_that_are_missing_or_unknown)
{
    sources.base().screen("name: a\ngroups:\n  g:\n    parameters: [n]\n    items:\n"
                          "      - { type: text, at: [0, 0], text: $m }\n"
                          "items:\n  - { use: g }\n  - { use: g, k: 1, n: x }\n  - { use: h }\n");
    EXPECT_EQ(
        sources.build().err,
        "src/screens/a.yaml:6: group 'g': no parameter 'm'. Did you mean 'n'? Add it to 'parameters'.\n"
        "src/screens/a.yaml:8: item 1 (g): the group needs 'n'. Write a value for it.\n"
        "src/screens/a.yaml:9: item 2 (g): the group has no parameter 'k'. Did you mean 'n'? Correct or "
        "remove it.\n"
        "src/screens/a.yaml:10: item 3 (h): no group 'h'. Did you mean 'g'? Add it to 'groups' or use "
        "another.\n"
        "4 errors; out/ProjPath is unchanged.\n");
}

} // namespace
