// Mistakes of the kind that were made silently: each is found, with its place and what to do about it.
#include "tests/ptn/Plant.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>

namespace
{

namespace fs = std::filesystem;

using testing::HasSubstr;

/// One mistake in a project without any.
struct Mistake {
    const char* name;
    const char* file; ///< of the sources
    const char* from; ///< what it has there; empty: the whole file is new
    const char* to;
    const char* found; ///< place and text, or what the text begins with
};

void PrintTo(const Mistake& one, std::ostream* out)
{
    *out << one.name;
}

std::string NameOf(const testing::TestParamInfo<Mistake>& info)
{
    return info.param.name;
}

class MistakeIn : public testing::TestWithParam<Mistake>
{
  protected:
    Plant plant;
};

TEST(Mistakes, are_not_found_where_there_are_none)
{
    const Plant plant;
    const PtnResult result = plant.run("check src");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "src: 4 screens, nothing found.\n");
    const PtnResult built = plant.run("build src out/ProjPath");
    EXPECT_EQ(built.err, "");
    EXPECT_EQ(plant.run("check --registry src/program out/ProjPath").err, "");
}

TEST_P(MistakeIn, is_found_with_its_place)
{
    ASSERT_TRUE(plant.change(GetParam().file, GetParam().from, GetParam().to));
    const PtnResult result = plant.run("check src");
    EXPECT_EQ(result.status, 1) << result.out;
    EXPECT_THAT(result.err, HasSubstr(GetParam().found));
}

// --- names ---------------------------------------------------------------------------------------------

const Mistake NAMES[] = {
    {"code_in_small_letters", "screens/main.yaml", "data: SPEED+1", "data: speed+1",
     "src/screens/main.yaml:8: item 3 (spin): 'data': no code 'speed'. Did you mean 'SPEED'? "},
    {"attribute_in_capitals", "screens/main.yaml", "data: NOTE", "DATA: NOTE",
     "src/screens/main.yaml:11: item 6 (variable-text): unknown attribute 'DATA'. Did you mean 'data'? "},
    {"screen_key_in_capitals", "screens/main.yaml", "title: Plant", "Title: Plant",
     "src/screens/main.yaml:2: unknown 'Title'. Did you mean 'title'? "},
};

INSTANTIATE_TEST_SUITE_P(Names, MistakeIn, testing::ValuesIn(NAMES), NameOf);

// --- files ---------------------------------------------------------------------------------------------

const Mistake FILES[] = {
    {"second_document", "screens/stop.yaml", "items:", "---\nitems:",
     "src/screens/stop.yaml:4: a second document begins before this line, with '---', and would not be "
     "read. "},
    {"second_document_of_the_project", "look.yaml",
     "styles:", "---\nstyles:", "src/look.yaml:3: a second document begins before this line, "},
    {"yml", "screens/tank.yml", "", "name: Tank\n",
     "src/screens/tank.yml: warning: this file is not read: sources end in '.yaml'. Rename it, "},
    {"capital_yaml", "more.YAML", "", "flags: {}\n",
     "src/more.YAML: warning: this file is not read: sources end in '.yaml'. Rename it, "},
    {"not_utf8", "screens/main.yaml", "title: Plant", "title: \xBB\xAE\xC8\xF7",
     "src/screens/main.yaml:2: not UTF-8: the byte BB in this line is no character of it. Save the file as "
     "UTF-8."},
    {"utf16", "more.yaml", "",
     "\xFF\xFE"
     "f",
     "src/more.yaml:1: not UTF-8: the byte FF in this line "},
};

INSTANTIATE_TEST_SUITE_P(Files, MistakeIn, testing::ValuesIn(FILES), NameOf);

TEST(Mistakes, in_the_folder_of_screens_are_named)
{
    const Plant plant;
    fs::remove_all(plant.root() + "/src/screens");
    writeFile(plant.root() + "/src/screens", "");
    EXPECT_THAT(
        plant.run("check src").err,
        HasSubstr("src/screens: this folder can not be read: Not a directory. Check that it is a folder, "));
}

// --- words on the command line -------------------------------------------------------------------------

TEST(Mistakes, in_the_words_after_help_are_named)
{
    const Sources sources;
    const auto said = [&](const std::string& words) {
        const PtnResult result = sources.run("help " + words);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        return result.err.substr(0, result.err.find('\n'));
    };
    EXPECT_EQ(said("biuld"), "ptn: no type 'biuld'. Did you mean 'build'? The types are:");
    EXPECT_EQ(said("edition"), "ptn: no type 'edition'. Did you mean 'editions'? The types are:");
    EXPECT_EQ(said("attributes Buton"), "ptn: no type 'Buton'. Did you mean 'button'? The types are:");
    EXPECT_EQ(said("check everything"), "ptn: 'everything' is one word too many. Write 'ptn help check'.");
    EXPECT_EQ(said("editions button"),
              "ptn: 'button' is one word too many. Write 'ptn help editions' or 'ptn "
              "help attributes button'.");
}

} // namespace
