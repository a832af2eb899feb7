// Sources made to take up time and memory: each ends soon, with a message that tells what is too much.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;

class Attack : public testing::Test
{
  protected:
    Attack() { sources.base(); }

    /// What "ptn check" says of a screen.
    std::string said(const std::string& screen)
    {
        sources.screen("name: a\n" + screen);
        return said();
    }

    std::string said()
    {
        const PtnResult result = sources.run("check src");
        EXPECT_EQ(result.status, 1);
        return result.err;
    }

    Sources sources;
};

// Ten uses each of the group before, as deep as groups go.
std::string Tower(const std::string& lowest)
{
    std::string groups = "groups:\n  g0: { items: [" + lowest + "] }\n";
    for (int level = 1; level < 12; ++level) {
        std::string uses;
        for (int i = 0; i < 10; ++i)
            uses += (i ? ", " : "") + ("{ use: g" + std::to_string(level - 1)) + " }";
        groups += "  g" + std::to_string(level) + ": { items: [" + uses + "] }\n";
    }
    return groups;
}

TEST_F(Attack, by_groups_in_groups_ends_at_the_limit_of_entries)
{
    for (const char* lowest : {"{ type: line, rect: [1, 1, 9, 1] }", ""}) {
        const std::string found = said(Tower(lowest) + "items: [{ use: g11 }]\n");
        EXPECT_THAT(found, HasSubstr("the screen has more than 20000 entries with its groups written out."));
        EXPECT_EQ(found.find("more than"), found.rfind("more than")) << "it is said once";
    }
}

TEST_F(Attack, by_repeats_in_groups_ends_at_the_limit_of_items)
{
    const std::string line = "{ type: line, rect: [1, 1, 9, 1], repeat: { count: [1000, 90] } }";
    EXPECT_THAT(said(Tower(line) + "items: [{ use: g1 }]\n"),
                HasSubstr("the screen gets more than 100000 items. Repeat less."));
    EXPECT_THAT(said("items:\n  - { items: [{ items: [" + line +
                     "], repeat: { count: 900 } }], repeat: { count: "
                     "1000 } }\n"),
                HasSubstr("the screen gets more than 100000 items. Repeat less."));
}

TEST_F(Attack, by_many_screens_of_many_items_ends_at_the_limit_of_a_project)
{
    const std::string line = "{ type: line, rect: [1, 1, 9, 1], repeat: { count: [1000, 90] } }";
    for (const char* name : {"a", "b", "c", "d", "e"})
        sources.write(std::string("screens/") + name + ".yaml",
                      std::string("name: ") + name + "\nitems: [" + line + "]\n");
    const std::string found = said();
    EXPECT_THAT(found,
                HasSubstr("src/screens/d.yaml:2: item 1 (line): the project gets more than 300000 items"));
    EXPECT_EQ(found.find("the project gets"), found.rfind("the project gets")) << "it is said once";
}

TEST_F(Attack, by_many_screens_of_groups_in_groups_ends_at_the_limit_of_a_project)
{
    sources.write("groups.yaml", Tower("{ type: line, rect: [1, 1, 9, 1] }"));
    for (char name = 'a'; name < 'a' + 20; ++name)
        sources.write(std::string("screens/") + name + ".yaml",
                      std::string("name: ") + name + "\nitems: [{ use: g11 }]\n");
    const std::string found = said();
    EXPECT_THAT(found, HasSubstr("has more than 200000 entries with its groups written out. Use fewer."));
    EXPECT_EQ(found.find("the project gets"), found.rfind("the project gets")) << "it is said once";
}

TEST_F(Attack, by_aliases_of_aliases_is_refused)
{
    std::string text = "name: a\nx0: &x0 [1, 1, 1, 1, 1, 1, 1, 1, 1, 1]\n";
    for (int level = 1; level < 12; ++level) {
        const std::string before = "*x" + std::to_string(level - 1);
        std::string list = before;
        for (int i = 0; i < 9; ++i)
            list += ", " + before;
        text += "x" + std::to_string(level) + ": &x" + std::to_string(level) + " [" + list + "]\n";
    }
    sources.screen(text);
    EXPECT_THAT(said(),
                HasSubstr("src/screens/a.yaml: its aliases ('*name') stand for themselves or for more "));
}

TEST_F(Attack, by_an_alias_of_itself_is_refused)
{
    EXPECT_THAT(said("groups: { g: { items: &a [{ items: *a }] } }\n"),
                HasSubstr("src/screens/a.yaml: its aliases ('*name') stand for themselves or "));
}

TEST_F(Attack, by_very_many_values_is_refused_before_they_are_read)
{
    sources.write("more.yaml", "colors: [" + std::string(8'000'000, ',') + "]\n");
    EXPECT_THAT(said(), HasSubstr("src/more.yaml: holds more than a project can need. Write less, "));
}

TEST_F(Attack, by_a_very_long_text_is_refused_before_it_is_read)
{
    sources.write("more.yaml", "colors: { a: '" + std::string(16'000'000, 'x') + "' }\n");
    EXPECT_THAT(said(), HasSubstr("src/more.yaml: holds more than a project can need. Write less, "));
}

TEST_F(Attack, by_a_file_that_is_larger_than_any_source_is_refused)
{
    sources.write("more.yaml", "");
    fs::resize_file(sources.root() + "/src/more.yaml", 3'000'000'000);
    sources.write("bitmaps/large.png", "");
    fs::resize_file(sources.root() + "/src/bitmaps/large.png", 64 * 1024 * 1024 + 1);
    const std::string found = said();
    EXPECT_THAT(found, HasSubstr("src/more.yaml: is larger than 64 MB, which no source or picture needs. "));
    EXPECT_THAT(found, HasSubstr("src/bitmaps/large.png: is larger than 64 MB, "));
}

TEST_F(Attack, by_numbers_at_the_ends_of_their_range_is_refused_with_a_message)
{
    const std::string far = "2147483647";
    for (const std::string& items :
         {"spin: { at: [" + far + ", " + far + "], size: [" + far + ", " + far + "] }",
          "{ type: line, rect: [1, 1, 9, 1], repeat: { count: [1000, 90], step: [" + far + ", -" + far +
              "] } }",
          "{ at: [" + far + ", 1], items: [{ type: line, rect: [1, 1, 9, 1] }] }",
          "{ grid: { columns: 1, step: [1, " + far +
              "] }, items: [{ type: line, rect: [1, 1, 9, 1] }, "
              "{ type: line, rect: [1, 1, 9, 1] }, { type: line, rect: [1, 1, 9, 1] }] }"}) {
        const std::string found = said("items:\n  - " + items + "\n");
        EXPECT_THAT(found, testing::AnyOf(HasSubstr("beyond the coordinates, which go from -32768 to 32767."),
                                          HasSubstr("Coordinates go from -32768 to 32767.")));
        EXPECT_THAT(found, testing::Not(HasSubstr("runtime error")));
    }
}

TEST_F(Attack, by_a_pipe_in_place_of_a_file_does_not_wait_for_it)
{
    sources.screen("name: a\n");
    ASSERT_EQ(mkfifo((sources.root() + "/src/pipe.yaml").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo((sources.root() + "/src/bitmaps/pipe.png").c_str(), 0600), 0);
    ASSERT_EQ(mkfifo((sources.root() + "/src/pipe.xbm").c_str(), 0600), 0);
    sources.write("project.yaml", "\nmarks: { a: { no: 100, image: pipe.xbm } }\n");
    const std::string found = said();
    EXPECT_THAT(found, HasSubstr("src/pipe.yaml: is no plain file."));
    EXPECT_THAT(found, HasSubstr("src/bitmaps/pipe.png: not a file that can be read."));
    EXPECT_THAT(found, HasSubstr("src/project.yaml:2: "));
}

} // namespace
