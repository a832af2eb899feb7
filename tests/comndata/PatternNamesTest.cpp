#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "config/Settings.h"
#include "tests/comndata/CommonData.h"

#include <filesystem>

using namespace tessary;

using testing::ElementsAre;
using testing::UnorderedElementsAre;

namespace
{

class PatternNames : public CommonData
{
  protected:
    static std::vector<std::string> names()
    {
        std::vector<std::string> result;
        for (int i = 0; i < PtrnCount; i++)
            result.emplace_back(PtrnName[i].name);
        return result;
    }
};

} // namespace

TEST_F(PatternNames, are_those_of_pattern_files_without_their_extension)
{
    project.write("a.ptn", "").write("b.ptn", "").write(".x.ptn", "").write("b.PTN", "").write("ptn", "");
    std::filesystem::create_directory(project.folder() + "/folder.ptn");
    start();
    EXPECT_EQ(PtrnCount, 2);
    EXPECT_THAT(names(), UnorderedElementsAre("a", "b"));
}

TEST_F(PatternNames, end_at_the_first_dot)
{
    project.write("pump.v2.ptn", "");
    start();
    EXPECT_THAT(names(), ElementsAre("pump"));
}

TEST_F(PatternNames, stand_in_the_order_of_the_folder)
{
    for (const char* name : {"m", "z", "a", "q", "b", "y", "c", "メイン"})
        project.write(std::string(name) + ".ptn", "");
    start();
    std::vector<std::string> listed;
    for (const auto& entry : std::filesystem::directory_iterator(project.folder()))
        if (entry.path().extension() == ".ptn")
            listed.push_back(entry.path().stem().string());
    EXPECT_EQ(names(), listed);
}

TEST_F(PatternNames, are_the_pattern_numbers_in_their_order)
{
    project.write("a.ptn", "").write("メイン.ptn", "").write("c.ptn", "");
    start();
    ASSERT_EQ(PtrnCount, 3);
    for (int i = 0; i < PtrnCount; i++)
        EXPECT_EQ(ConvertPtrn(PtrnName[i].name), i);
    EXPECT_NE(ConvertPtrn("メイン"), -1);
    EXPECT_EQ(ConvertPtrn("A"), -1);
    EXPECT_EQ(ConvertPtrn("a.ptn"), -1);
    EXPECT_EQ(ConvertPtrn(""), -1);
    EXPECT_EQ(ConvertPtrn(nullptr), -1);
}

TEST_F(PatternNames, are_followed_by_the_two_built_in_screens)
{
    project.write("a.ptn", "").write("b.ptn", "");
    start();
    EXPECT_EQ(ConvertPtrn("バージョン情報"), 2);
    EXPECT_EQ(ConvertPtrn("メンテナンス"), 3);
}

TEST_F(PatternNames, come_before_the_built_in_screen_of_the_same_name)
{
    project.write("メンテナンス.ptn", "");
    start();
    EXPECT_EQ(ConvertPtrn("メンテナンス"), 0);
    EXPECT_EQ(ConvertPtrn("バージョン情報"), 1);
}

TEST_F(PatternNames, are_none_in_a_missing_project_folder)
{
    CopyText(ProjPath, (project.root() + "/nowhere").c_str());
    start();
    EXPECT_EQ(PtrnCount, 0);
    EXPECT_EQ(PtrnName, nullptr);
    EXPECT_EQ(ConvertPtrn("a"), -1);
    EXPECT_EQ(ConvertPtrn("バージョン情報"), 0);
    EXPECT_EQ(ConvertPtrn("メンテナンス"), 1);
}

TEST_F(PatternNames, are_listed_without_a_code_table_too)
{
    project.write("a.ptn", "");
    start();
    EXPECT_EQ(PtrnDataNo, 0);
    EXPECT_THAT(names(), ElementsAre("a"));
}

TEST_F(PatternNames, that_are_too_long_are_cut_between_characters)
{
    const std::string ascii(200, 'n');
    std::string wide;
    for (int i = 0; i < 100; i++)
        wide += "あ";
    project.write(ascii + ".ptn", "").write(wide + ".ptn", "");
    start();
    EXPECT_THAT(names(), UnorderedElementsAre(ascii.substr(0, 81), wide.substr(0, 80)));
    EXPECT_EQ(ConvertPtrn(ascii.c_str()), -1);
    EXPECT_NE(ConvertPtrn(ascii.substr(0, 81).c_str()), -1);
}

TEST_F(PatternNames, may_be_many)
{
    for (int i = 0; i < 1500; i++)
        project.write("p" + std::to_string(i) + ".ptn", "");
    start();
    EXPECT_EQ(PtrnCount, 1500);
    const int no = ConvertPtrn("p1499");
    ASSERT_GE(no, 0);
    EXPECT_STREQ(PtrnName[no].name, "p1499");
}
