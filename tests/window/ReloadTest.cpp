// Patterns that change on disk while windows show them.
#include "window/Reload.h"

#include "comndata/ComnData.h"
#include "comndata/PatternNames.h"
#include "tests/support/Screen.h"
#include "window/Request.h"

#include <gmock/gmock.h>
#include <X11/keysym.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

constexpr int BEFORE = 30; ///< colours of the body
constexpr int AFTER = 40;

class Reload : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("D", 99);
        know(top(BEFORE));
        know(child(BEFORE));
        start();
        openTop("top");
        calls.clear();
    }

    static Pattern top(int body)
    {
        Pattern pattern("top");
        pattern.size(200, 100).header(HEDR_BODY_COLOR, body);
        pattern.item(PTRN_NUMR, 10, 10, 50, 26).code("D", 20).parm(FIELD_KEYENTRY, 1).parm(TEXT_BACKED, 1);
        return pattern;
    }

    static Pattern child(int body)
    {
        Pattern pattern("child");
        pattern.size(60, 40).header(HEDR_KIND, 2).header(HEDR_LEFT, 400).header(HEDR_TOP, 300);
        pattern.header(HEDR_MODELESS, 1).header(HEDR_BODY_COLOR, body);
        return pattern;
    }

    /// What a tick of the program does about them.
    void reload(std::initializer_list<std::string> names)
    {
        LoadPatternNames();
        const std::set<std::string> changed(names);
        ReloadPtrnWnds([&](const char* name) { return changed.count(name) > 0; });
    }
};

} // namespace

TEST_F(Reload, shows_the_new_pattern_in_the_same_window_at_once)
{
    CPtrnDisp* const wnd = AppliWnd;
    GtkWidget* const widget = wnd->Widget;
    Set_iData(21, 77, nullptr, 0);
    top(AFTER).save(project);
    reload({"top"});
    EXPECT_EQ(bufferPixel(wnd, 150, 80), color(AFTER)) << "before anything else can be seen";
    tick();
    EXPECT_EQ(AppliWnd, wnd);
    EXPECT_EQ(wnd->Widget, widget);
    EXPECT_EQ(pixel(wnd, 150, 80), color(AFTER));
    EXPECT_EQ(Get_iData(21, nullptr, 0), 77);
    EXPECT_THAT(callsOf({"init", "exit"}), ElementsAre("init"));
}

TEST_F(Reload, leaves_the_windows_whose_patterns_have_not_changed)
{
    CPtrnDisp* const opened = openChild(AppliWnd, 1, "child");
    const CPtrnData* const data = AppliWnd->PtrnData;
    calls.clear();
    child(AFTER).save(project);
    reload({"child"});
    EXPECT_EQ(AppliWnd->PtrnData, data);
    EXPECT_EQ(AppliWnd->ChildWnd1, opened);
    EXPECT_EQ(bufferPixel(opened, 30, 20), color(AFTER));
    reload({"other"});
    EXPECT_THAT(callsOf({"init", "exit"}), ElementsAre("init"));
}

TEST_F(Reload, keeps_the_children_of_a_window_and_reaches_the_system_window)
{
    CPtrnDisp* const opened = openChild(AppliWnd, 2, "child");
    CPtrnDisp* const system = openSystem("child");
    top(AFTER).save(project);
    child(AFTER).save(project);
    reload({"top", "child"});
    tick();
    EXPECT_EQ(AppliWnd->ChildWnd2, opened);
    EXPECT_EQ(SystmWnd, system);
    for (const CPtrnDisp* wnd : {opened, system})
        EXPECT_EQ(bufferPixel(wnd, 30, 20), color(AFTER));
}

TEST_F(Reload, gives_a_window_the_size_and_place_that_have_changed)
{
    CPtrnDisp* const wnd = openChild(AppliWnd, 1, "child");
    child(AFTER).size(120, 80).save(project);
    reload({"child"});
    tick();
    waitShown(wnd);
    EXPECT_EQ(wnd->WindRect.left, 400);
    EXPECT_EQ(wnd->WindRect.width, 120);
    EXPECT_EQ(pixel(wnd, 110, 70), color(AFTER));

    child(AFTER).size(120, 80).header(HEDR_LEFT, 500).save(project);
    reload({"child"});
    tick();
    waitShown(wnd);
    EXPECT_EQ(wnd->WindRect.left, 500);
    EXPECT_EQ(pixel(wnd, 110, 70), color(AFTER));
}

TEST_F(Reload, leaves_a_window_where_it_was_moved_to)
{
    CPtrnDisp* const wnd = openChild(AppliWnd, 1, "child", 700, 200);
    child(AFTER).save(project);
    reload({"child"});
    EXPECT_EQ(wnd->WindRect.left, 700);
    EXPECT_EQ(wnd->WindRect.top, 200);
}

TEST_F(Reload, leaves_a_part_of_a_pattern_as_large_as_it_is)
{
    AppliWnd->PtrnDispChild(1, "child", RECT{400, 300, 430, 320, 30, 20}, nullptr, 0);
    CPtrnDisp* const wnd = AppliWnd->ChildWnd1;
    waitShown(wnd);
    child(AFTER).size(120, 80).save(project);
    reload({"child"});
    EXPECT_EQ(wnd->WindRect.width, 30);
    EXPECT_EQ(wnd->WindRect.height, 20);
}

TEST_F(Reload, leaves_a_field_in_edit_without_storing)
{
    Set_iData(21, 77, nullptr, 0);
    click(AppliWnd, 20, 15);
    ASSERT_EQ(AppliWnd->KeyInputMode, 1);
    type("5");
    top(AFTER).save(project);
    reload({"top"});
    EXPECT_EQ(AppliWnd->KeyInputMode, 0);
    EXPECT_EQ(Get_iData(21, nullptr, 0), 77);
    EXPECT_EQ(Get_wData(21, nullptr, 0), 0);
    tick();
}

TEST_F(Reload, opens_a_window_anew_whose_class_has_changed)
{
    CPtrnDisp* const before = AppliWnd;
    CPtrnDisp* const opened = openChild(AppliWnd, 1, "child", 700, 200);
    child(AFTER).header(HEDR_CLASS, 1).save(project);
    reload({"child"});
    EXPECT_NE(AppliWnd->ChildWnd1, opened);
    ASSERT_TRUE(AppliWnd->ChildWnd1);
    EXPECT_EQ(AppliWnd->ChildWnd1->WindRect.left, 700);
    CPtrnDisp* const system = openSystem("child");
    child(AFTER).save(project);
    top(AFTER).header(HEDR_CLASS, 1).save(project);
    reload({"top", "child"});
    EXPECT_NE(SystmWnd, system);
    EXPECT_NE(AppliWnd, before);
    tick();
    waitShown(AppliWnd);
    EXPECT_EQ(pixel(AppliWnd, 150, 80), color(AFTER));
}

TEST_F(Reload, leaves_a_pattern_that_is_gone_as_it_was)
{
    remove((project.folder() + "/top.ptn").c_str());
    calls.clear();
    reload({"top"});
    tick();
    EXPECT_EQ(pixel(AppliWnd, 150, 80), color(BEFORE));
    EXPECT_THAT(callsOf({"init", "exit"}), IsEmpty());
}

TEST_F(Reload, survives_an_init_hook_that_closes_its_window)
{
    CPtrnDisp* const wnd = openChild(AppliWnd, 1, "child");
    hooks.init = [&](CPtrnDisp& self) { self.PtrnCloseWnd(0, nullptr, 0); };
    child(AFTER).save(project);
    reload({"child"});
    EXPECT_EQ(wnd->Widget, nullptr);
    tick(2);
}
