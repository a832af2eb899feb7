// "ptn build": what a run reports as a whole, and which characters it refuses.
#include "tests/ptn/Sources.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

class Report : public testing::Test
{
  protected:
    Sources sources;
};

TEST_F(Report, names_every_error_of_every_file_in_one_run)
{
    sources.write("one.yaml", "colors: { a: red }\ncodes: { B: none }\n");
    sources.write("two.yaml", "codes: {}\nmarks: 5\n");
    sources.write("screens/a.yaml", "name: a\nwindow: { left: x, top: y }\n");
    sources.write("screens/b.yaml", "name: [\n");
    sources.write("screens/c.yaml", "name: a\nitems:\n  - { type: spin }\n  - { type: line }\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    for (const char* place :
         {"src/one.yaml:1: color 'a'", "src/one.yaml:2: code 'B'",
          "src/two.yaml:1: section 'codes' is already in src/one.yaml:2. Join the two.",
          "src/two.yaml:2: 'marks'", "src/screens/a.yaml:2: 'window': 'left'",
          "src/screens/a.yaml:2: 'window': 'top'", "src/screens/b.yaml:2: not valid YAML",
          "src/screens/c.yaml:3: item 1", "src/screens/c.yaml:4: item 2",
          "src/screens/c.yaml:1: this name is also that of src/screens/a.yaml. Give one of them "
          "another."})
        EXPECT_THAT(result.err, HasSubstr(place));
    EXPECT_THAT(result.err, EndsWith("10 errors; out/ProjPath is unchanged.\n"));
}

TEST_F(Report, does_not_miss_a_screen_whose_file_can_not_be_read)
{
    sources.base().write("profile.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: b } }\n");
    sources.screen(
        "name: a\nitems:\n  - { type: spin, rect: [1, 1, 9, 9], data: A, action: close, pattern: }\n"
        "  - { type: spin, rect: [20, 1, 29, 9], data: A, action: open-application, pattern: b }\n");
    sources.write("screens/b.yaml", "name: b\nitems: [\n");
    for (const char* command : {"build src out/ProjPath", "check src"}) {
        const PtnResult result = sources.run(command);
        EXPECT_EQ(result.status, 1);
        EXPECT_THAT(result.err, StartsWith("src/screens/b.yaml:3: not valid YAML: "));
        EXPECT_THAT(result.err, testing::Not(HasSubstr("a.yaml")));
    }
}

TEST_F(Report, says_once_what_is_wrong_with_a_style_that_many_items_use)
{
    sources.base();
    sources.screen("name: a\nstyles:\n  line: { color: pink }\nitems:\n"
                   "  - { type: line, rect: [1, 1, 2, 2] }\n  - { type: line, rect: [1, 1, 2, 2] }\n");
    EXPECT_EQ(sources.build().err,
              "src/screens/a.yaml:3: style 'line': 'color': this project has no color 'pink'. "
              "Define it in 'colors' or use one that is there.\n"
              "1 error; out/ProjPath is unchanged.\n");
}

TEST_F(Report, points_at_the_line_of_the_attribute_within_an_item)
{
    sources.base().screen(
        "name: a\nitems:\n  - type: line\n    rect: [1, 1, 2, 2]\n\n    # comment\n    width: 0\n");
    EXPECT_THAT(sources.build().err,
                StartsWith("src/screens/a.yaml:7: item 1 (line): 'width' can not be '0'."));
}

TEST_F(Report, needs_at_least_one_file)
{
    EXPECT_THAT(sources.build().err,
                StartsWith("src: this folder has no *.yaml file. Name the folder of the sources.\n"));
}

TEST_F(Report, names_files_that_can_not_be_read)
{
    sources.base();
    fs::create_symlink("nowhere", sources.root() + "/src/screens/gone.yaml");
    fs::create_directories(sources.root() + "/src/screens/folder.yaml");
    EXPECT_EQ(sources.build().err,
              "src/screens/gone.yaml: can not be read. Check that the file is there and readable.\n"
              "1 error; out/ProjPath is unchanged.\n");
}

TEST_F(Report, names_bitmaps_that_are_no_files)
{
    sources.base();
    fs::create_directories(sources.root() + "/src/bitmaps/folder");
    EXPECT_THAT(sources.build().err,
                StartsWith("src/bitmaps/folder: not a file that can be read. Move it out of the folder.\n"));
}

// Outside of the test macros, which would show these texts in the character set of the program.
const std::string NOT_IN_EUC =
    u8"name: a\ntitle: ①階\nitems:\n  - type: text\n    at: [1, 1]\n    text: [温度, '5 € – ok']\n";
const std::string NOT_IN_EUC_MESSAGES =
    u8"src/screens/a.yaml:2: 'title': EUC-JP has no '①' (U+2460). Use another character.\n"
    u8"src/screens/a.yaml:6: item 1 (text): 'text': EUC-JP has no '€' (U+20AC), '–' (U+2013). Use another "
    u8"character.\n"
    u8"2 errors; out/ProjPath is unchanged.\n";
const std::string YEN = u8"name: a\nitems:\n  - { type: text, at: [1, 1], text: ¥100 }\n";
const std::string YEN_MESSAGE = u8"EUC-JP has no '¥' (U+00A5).";
const std::string CIRCLED =
    u8"name: a\nitems:\n  - { type: text, at: [1, 1], text: 'Aa~ 漢字ひらカナ、。（）㈱' }\n";
const std::string CIRCLED_MESSAGE = u8"EUC-JP has no '㈱' (U+3231).";
const std::string PLAIN =
    u8"name: a\nitems:\n  - { type: text, at: [1, 1], text: 'Aa~ 漢字ひらカナ、。（）〜丂' }\n";

TEST_F(Report, refuses_characters_that_euc_lacks_naming_file_line_and_character)
{
    sources.base().screen(NOT_IN_EUC);
    EXPECT_EQ(sources.build().err, NOT_IN_EUC_MESSAGES);
}

TEST_F(Report, refuses_a_yen_sign_that_would_come_back_as_a_backslash)
{
    sources.base().screen(YEN);
    EXPECT_THAT(sources.build().err, HasSubstr(YEN_MESSAGE));
}

TEST_F(Report, refuses_control_characters_and_broken_utf8)
{
    sources.base().screen("name: a\nitems:\n  - { type: text, at: [1, 1], text: \"a\\tb\\0c\\x85\" }\n");
    EXPECT_THAT(sources.build().err, HasSubstr("EUC-JP has no U+0009, U+0000, U+0085."));
    sources.screen("name: a\nitems:\n  - { type: text, at: [1, 1], text: a\xFF }\n");
    EXPECT_THAT(sources.build().err,
                HasSubstr("'text': EUC-JP has no character for the byte FF. Use another character."));
}

TEST_F(Report, accepts_what_euc_has)
{
    sources.base().screen(CIRCLED);
    EXPECT_THAT(sources.build().err, HasSubstr(CIRCLED_MESSAGE));
    sources.screen(PLAIN);
    EXPECT_EQ(sources.build().err, "");
}

TEST_F(Report, survives_sources_that_nest_without_end)
{
    sources.base().screen("name: " + std::string(100000, '[') + "\n");
    EXPECT_EQ(sources.build().status, 1);
    sources.screen("name: a\nitems: &a [*a, *a]\n");
    EXPECT_EQ(sources.build().status, 1);
    sources.screen("name: a\nitems: &a\n  - type: line\n    rect: &r [*r, 1]\n    parm: *a\n");
    EXPECT_EQ(sources.build().status, 1);
    sources.screen(std::string("name: a\0b\n", 10));
    EXPECT_EQ(sources.build().status, 1);
}

} // namespace
