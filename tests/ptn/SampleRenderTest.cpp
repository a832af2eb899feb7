// The pictures of every screen of the sample project in each of its languages, as "ptn render" writes them.
#include "tests/ptn/Sources.h"
#include "tests/support/Golden.h"
#include "tests/support/Program.h"

#include <filesystem>
#include <gtest/gtest.h>
#include <map>

namespace fs = std::filesystem;

namespace
{

// Names of the pictures by the patterns'.
const std::map<std::string, std::string>& Screens()
{
    static const std::map<std::string, std::string> SCREENS = {
        {u8"テスト  ［メニュー選択］", "menu"},    {u8"システム終了", "stop"},
        {u8"テスト  （図形）", "shapes"},          {u8"テスト  （マウス操作）", "mouse"},
        {u8"子ウィンドウ (1)", "child1"},          {u8"子ウィンドウ (2)", "child2"},
        {u8"子ウィンドウ (3)", "child3"},          {u8"ポップアップメニュー", "popup"},
        {u8"テスト  （文字列・ボタン）", "texts"}, {u8"テスト  （グラフ）", "graphs"},
        {u8"テスト  （表・キー入力）", "table"},   {u8"テスト  （表）", "wiring"},
        {u8"バージョン情報", "version"},           {u8"メンテナンス", "maintenance"},
    };
    return SCREENS;
}

class SampleGolden : public testing::TestWithParam<int>
{
};

TEST_P(SampleGolden, of_every_screen)
{
    Sources sources;
    const std::string project = Program::sourceFolder() + "/project";
    const PtnResult result = sources.run("render " + project + " --all -o shots --state " + project +
                                         "/example.state --language " + std::to_string(GetParam()));
    ASSERT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.err, "");
    std::size_t pictures = 0;
    for (const auto& entry : fs::directory_iterator(sources.root() + "/shots")) {
        const std::string name = entry.path().stem().string();
        if (name == "contact-sheet")
            continue;
        ++pictures;
        const auto screen = Screens().find(name);
        ASSERT_NE(screen, Screens().end()) << "a picture needs a name";
        const auto picture = Picture::load(entry.path().string());
        ASSERT_TRUE(picture) << screen->second;
        expectGolden(*picture, "sample/" + screen->second + "-" + std::to_string(GetParam()));
    }
    EXPECT_EQ(pictures, Screens().size());
}

INSTANTIATE_TEST_SUITE_P(Languages, SampleGolden, testing::Values(0, 1, 2));

} // namespace
