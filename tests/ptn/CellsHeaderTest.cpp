// "ptn build": the header with the cells and screens of a project, for its program.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;
using testing::Not;

class CellsHeader : public testing::Test
{
  protected:
    CellsHeader() { sources.base().screen("name: a\n"); }

    /// The header of a build that is right.
    std::string header(const std::string& options = "", const std::string& file = "out/cells.h")
    {
        const PtnResult result = sources.run("build src out/ProjPath" + options);
        EXPECT_EQ(result.status, 0) << result.err;
        return readFile(file);
    }

    Sources sources;
};

TEST_F(CellsHeader, has_the_cells_of_the_codes_and_the_names_of_the_screens)
{
    sources.write("screens/b.yaml", "name: b c\n").write("more.yaml", "program: pump-2\n");
    EXPECT_EQ(header(),
              "// Made by \"ptn build\" of the project: its cells and screens. The next build replaces this "
              "file.\n#pragma once\n\nnamespace pump_2\n{\n\n"
              "// The first cell of each code.\n"
              "inline constexpr int A = 1;\ninline constexpr int B = 6;\n\n"
              "// How many cells a code has.\nnamespace count\n{\n"
              "inline constexpr int A = 5;\ninline constexpr int B = 3;\n} // namespace count\n\n"
              "// What the screens are called.\nnamespace screen\n{\n"
              "inline constexpr char a[] = \"a\";\ninline constexpr char b_c[] = \"b c\";\n"
              "} // namespace screen\n\n} // namespace pump_2\n");
}

TEST_F(CellsHeader, lies_beside_the_profile_or_where_it_is_asked_for)
{
    const std::string text = header();
    EXPECT_THAT(text, HasSubstr("namespace panel\n{\n"));
    EXPECT_FALSE(fs::exists("out/ProjPath/cells.h"));
    fs::remove("out/cells.h");
    EXPECT_EQ(header(" --header made/here/codes.h", "made/here/codes.h"), text);
    EXPECT_FALSE(fs::exists("out/cells.h"));
}

TEST_F(CellsHeader, is_written_only_when_it_has_changed)
{
    header();
    const auto before = fs::file_time_type::clock::now() - std::chrono::hours(1);
    fs::last_write_time("out/cells.h", before);
    sources.screen("name: a\ntitle: other\n");
    header();
    EXPECT_EQ(fs::last_write_time("out/cells.h"), before);
    sources.screen("name: b\n");
    EXPECT_THAT(header(), HasSubstr("char b[]"));
    EXPECT_NE(fs::last_write_time("out/cells.h"), before);
}

TEST_F(CellsHeader, replaces_no_file_of_somebody_else)
{
    fs::create_directory("out");
    writeFile("out/cells.h", "int cells;\n");
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.err, HasSubstr("/out/cells.h: this file was not made by 'ptn build'. Move it away, or "
                                      "name another place for the constants with --header.\n"));
    EXPECT_EQ(readFile("out/cells.h"), "int cells;\n");
    EXPECT_FALSE(fs::exists("out/ProjPath"));
}

TEST_F(CellsHeader, turns_every_name_into_one_of_its_own_that_compilers_take)
{
    sources.write("project.yaml", u8"program: 工場 (東)\n"
                                  u8"codes: { 温度: 2, TANK-1: 1, TANK.1: 1, TANK 1: 1, 3way: 1, int: 1,"
                                  u8" ＡＢ・ｱﾞ: 1, '（）': 1, count: 1, 'NULL': 1, _x_: 1, int_: 1 }\n");
    sources.screen(u8"name: \"say \\\"図形\\\" \\\\ ％\"\n");
    const std::string text = header();
    for (const char* constant :
         {u8"温度 = 1;", "TANK_1 = 3;", "TANK_1_2 = 4;", "TANK_1_3 = 5;", "n3way = 6;", "int_ = 7;",
          u8"ＡＢ_ｱﾞ = 8;", "unnamed = 9;", "count_ = 10;", "NULL_ = 11;", "x = 12;", "int_2 = 13;"})
        EXPECT_THAT(text, HasSubstr(std::string("inline constexpr int ") + constant));
    EXPECT_THAT(text, HasSubstr(u8"namespace 工場_東\n{\n"));
    writeFile("use.cpp", "#include \"out/cells.h\"\n"
                         u8"using namespace 工場_東;\n"
                         u8"static_assert(count::温度 == 2 && TANK_1_3 == 5 && ＡＢ_ｱﾞ == 8);\n"
                         u8"static_assert(sizeof screen::say_図形 == sizeof \"say \\\"図形\\\" \\\\ ％\");\n"
                         u8"static_assert(sizeof \"図\" == 3, \"EUC-JP\");\n");
    EXPECT_EQ(std::system("g++ -std=c++17 -fsyntax-only -Wall -Wextra -Wpedantic -Werror "
                          "-finput-charset=UTF-8 -fexec-charset=EUC-JP use.cpp"),
              0);
}

TEST_F(CellsHeader, is_what_a_registry_may_name_its_screens_with)
{
    sources.write("screens/b.yaml", u8"name: テスト（図形）\n");
    sources.write("project.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
    const auto found = [&](const std::string& registry) {
        sources.write("Registry.cpp", registry);
        return sources.run("check --registry src/Registry.cpp src").err;
    };
    EXPECT_EQ(found(u8"{panel::screen::a, screen::テスト_図形}"), "");
    EXPECT_EQ(found(u8"{\"a\", \"テスト（図形）\"}"), "");
    EXPECT_THAT(found(u8"{screen::テスト_図形}"), HasSubstr("the program's registry does not know 'a'"));
    EXPECT_THAT(found(u8"{screen::a, screen::テスト_図, screen::テスト_図形_b}"),
                HasSubstr(u8"the screen 'テスト（図形）' can not be reached"));
}

} // namespace
