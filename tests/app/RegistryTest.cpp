// The sample application's registry and hooks.
#include "window/Registry.h"

#include "app/Haisenhyo.h"
#include "app/PtrnTest1.h"
#include "app/PtrnTest2.h"
#include "app/PtrnTest3.h"
#include "app/PtrnTest4.h"
#include "app/PtrnTest5.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "tests/support/Project.h"
#include "window/PtrnDisp.h"

#include <gtest/gtest.h>
#include <initializer_list>
#include <memory>
#include <typeinfo>

namespace
{

using WindowPtr = std::unique_ptr<CPtrnDisp>;

WindowPtr window(const char* name)
{
    return WindowPtr(GetPtrnWnd(name));
}

template <class Screen> void expectClass(std::initializer_list<const char*> names)
{
    for (const char* name : names) {
        const WindowPtr made = window(name);
        ASSERT_TRUE(made) << name;
        EXPECT_EQ(typeid(*made.get()), typeid(Screen)) << name;
    }
}

class UserHooks : public testing::Test
{
  protected:
    void SetUp() override
    {
        project.code("DATA", 1571);
        project.start();
    }

    static void tick(int count)
    {
        for (int i = 0; i < count; i++)
            UserTimr();
    }

    static int number(int no) { return Get_iData(no, nullptr, 0); }
    static WORD word(int no) { return Get_wData(no, nullptr, 0); }

    Project project;
};

} // namespace

TEST(Registry, knows_the_class_of_every_screen_of_the_sample)
{
    expectClass<CPtrnDisp>({"テスト  ［メニュー選択］", "システム終了", "子ウィンドウ (1)",
                            "子ウィンドウ (2)", "子ウィンドウ (3)", "ポップアップメニュー"});
    expectClass<CPtrnTest1>({"テスト  （図形）"});
    expectClass<CPtrnTest2>({"テスト  （文字列・ボタン）"});
    expectClass<CPtrnTest3>({"テスト  （表・キー入力）"});
    expectClass<CPtrnTest4>({"テスト  （グラフ）"});
    expectClass<CPtrnTest5>({"テスト  （マウス操作）"});
    expectClass<CHaisenhyo>({"テスト  （表）"});
}

TEST(Registry, compares_names_byte_for_byte)
{
    EXPECT_FALSE(window("テスト （図形）")) << "one blank in place of two";
    EXPECT_FALSE(window("テスト  （図形） "));
    EXPECT_FALSE(window("テスト  (図形)"));
    EXPECT_FALSE(window("テスト"));
    EXPECT_FALSE(window(""));
}

TEST(Registry, leaves_the_framework_s_own_screens_to_the_framework)
{
    EXPECT_FALSE(window("バージョン情報"));
    EXPECT_FALSE(window("メンテナンス"));
}

TEST(Registry, makes_a_new_window_that_is_not_open_at_every_call)
{
    const WindowPtr first = window("システム終了");
    const WindowPtr second = window("システム終了");
    EXPECT_NE(first, second);
    EXPECT_EQ(first->Widget, nullptr);
    EXPECT_EQ(first->PtrnData, nullptr);
}

TEST_F(UserHooks, let_the_program_start)
{
    EXPECT_EQ(UserInit(), 1);
}

// The counters of the hook live as long as the process, so one test walks through a whole cycle.
TEST_F(UserHooks, count_once_in_ten_ticks_and_step_the_colour_once_in_fifty)
{
    // Tests before this one may have ticked; after every 1000 ticks all counters are where they started.
    Set_iData(111, -1, nullptr, 0);
    for (int i = 0; i < 1000 && number(111) != 0; i++)
        tick(1);

    tick(9);
    EXPECT_EQ(number(111), 0);
    tick(1);
    EXPECT_EQ(number(111), 1);
    EXPECT_EQ(number(1549), 1);
    EXPECT_EQ(word(438), 0);

    tick(39);
    EXPECT_EQ(number(111), 4);
    EXPECT_EQ(word(110), 0);
    tick(1);
    EXPECT_EQ(number(111), 5);
    for (const int no : {438, 437, 110})
        EXPECT_EQ(word(no), 1) << no;

    // At tick 100 the counter of ticks wraps to 0 and both steps run.
    tick(49);
    EXPECT_EQ(number(111), 9);
    EXPECT_EQ(word(110), 1);
    tick(1);
    EXPECT_EQ(number(111), 10);
    EXPECT_EQ(word(110), 2);

    tick(50);
    EXPECT_EQ(word(438), 3);
    tick(50);
    EXPECT_EQ(word(438), 0) << "the colour wraps from 3 to 0";
    EXPECT_EQ(number(111), 20);

    tick(290);
    EXPECT_EQ(number(111), 49);
    EXPECT_EQ(word(111) & 3, 0);
    tick(10);
    EXPECT_EQ(number(111), 50);
    EXPECT_EQ(word(111) & 3, 1) << "colour 1 from 50 on";

    tick(490);
    EXPECT_EQ(number(111), 99);
    EXPECT_EQ(word(111) & 3, 1);
    tick(10);
    EXPECT_EQ(number(111), 0) << "the value wraps from 99 to 0";
    EXPECT_EQ(number(1549), 0);
    EXPECT_EQ(word(111) & 3, 0);
}

TEST_F(UserHooks, keep_the_other_bits_of_the_counter_s_word)
{
    Set_wData(111, 0x2001, nullptr, 0);
    tick(10);
    EXPECT_EQ(word(111) & 0xFFFC, 0x2000);
}

TEST_F(UserHooks, leave_no_line_in_the_log)
{
    for (const int no : {110, 111, 437, 438, 1549})
        PtrnFlag[no] = 1;
    project.clearLog();
    tick(100);
    EXPECT_TRUE(project.log().empty());
}

TEST(UserHooksWithoutData, may_run_before_the_store_exists)
{
    for (int i = 0; i < 100; i++)
        UserTimr();
    EXPECT_EQ(Get_iData(111, nullptr, 0), 0);
}
