// Child windows, popups, closing and messages.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"
#include "window/Request.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

namespace
{

constexpr char HERE[] = "screen.cpp";

class Stack : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("D", 99).flag(5);
        know(Pattern("top").size(200, 100).header(HEDR_KIND, 0));
        know(Pattern("a").size(100, 50).header(HEDR_KIND, 2).header(HEDR_LEFT, 300));
        know(Pattern("b").size(100, 50).header(HEDR_KIND, 2).header(HEDR_LEFT, 500));
        start();
        openTop("top");
        project.clearLog();
        calls.clear();
    }

    Calls lifecycle() const { return callsOf({"init", "exit"}); }
};

} // namespace

TEST_F(Stack, opens_children_in_their_slots_and_says_so)
{
    AppliWnd->PtrnDispChild(1, "a", HERE, 7);
    AppliWnd->PtrnDispChild(2, "b", HERE, 8);
    EXPECT_STREQ(AppliWnd->ChildWnd1->PtrnName, "a");
    EXPECT_STREQ(AppliWnd->ChildWnd2->PtrnName, "b");
    EXPECT_EQ(AppliWnd->ChildWnd1->PtrnType, KIND_CHILD1);
    EXPECT_EQ(AppliWnd->ChildWnd2->PtrnType, KIND_CHILD2);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "子ウィンドウ（１）表示  [a]");
    EXPECT_EQ(log[0].file, HERE);
    EXPECT_EQ(log[0].line, 7);
    EXPECT_EQ(log[1].mesg2, "子ウィンドウ（２）表示  [b]");
}

TEST_F(Stack, any_number_but_1_means_the_second_slot)
{
    for (const int which : {2, 0, 3, -1}) {
        AppliWnd->PtrnDispChild(which, "a", nullptr, 0);
        EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
        ASSERT_TRUE(AppliWnd->ChildWnd2);
        EXPECT_EQ(AppliWnd->ChildWnd2->PtrnType, KIND_CHILD2);
    }
    AppliWnd->PtrnDispChild(0, "unknown", nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("子ウィンドウ（２）表示に失敗  [unknown]"));
}

TEST_F(Stack, opens_a_child_at_its_own_place_at_a_point_or_in_a_rectangle)
{
    const auto place = [this] {
        const RECT rect = AppliWnd->ChildWnd1->PtrnGetWindow();
        return std::vector<int>{rect.left, rect.top, rect.width, rect.height};
    };
    AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
    EXPECT_THAT(place(), ElementsAre(300, 0, 100, 50));
    AppliWnd->PtrnDispChild(1, "a", 33, 44, nullptr, 0);
    EXPECT_THAT(place(), ElementsAre(33, 44, 100, 50));
    AppliWnd->PtrnDispChild(1, "a", SetRect(50, 60, 80, 75), nullptr, 0);
    EXPECT_THAT(place(), ElementsAre(50, 60, 30, 15));
    waitShown(AppliWnd->ChildWnd1);
    EXPECT_EQ(user.windows().back().width, 30);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Stack, replaces_a_child_without_its_exit_hook_and_without_remembering_its_place)
{
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    calls.clear();
    openChild(AppliWnd, 1, "b");
    EXPECT_EQ(first->Widget, nullptr);
    EXPECT_THAT(lifecycle(), ElementsAre("init"));
    EXPECT_THAT(readFile(project.profile()), Not(HasSubstr("WINDOW")));
    EXPECT_EQ(user.windows().size(), 2u);
}

TEST_F(Stack, remembers_the_place_that_a_screen_class_has_stored)
{
    CPtrnDisp* child = openChild(AppliWnd, 1, "a");
    user.settle(); // the server has told where the window is
    child->WindRect.left = 12;
    child->WindRect.top = 34;
    tick();
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_THAT(readFile(project.profile()), HasSubstr("=12,34\n"));
}

TEST_F(Stack, leaves_the_children_of_a_replaced_child_on_the_screen)
{
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    CPtrnDisp* grandchild = openChild(first, 1, "b");
    calls.clear();
    openChild(AppliWnd, 1, "a", 300, 200);
    EXPECT_TRUE(grandchild->Widget);
    EXPECT_EQ(user.windows().size(), 3u);
    EXPECT_THAT(callsOf({"exit"}), IsEmpty());

    // However many windows come and go, it stays until it is closed.
    for (int i = 0; i < 40; i++) {
        AppliWnd->PtrnDispChild(2, "a", 600, 300, nullptr, 0);
        tick();
    }
    ASSERT_TRUE(grandchild->Widget);
    EXPECT_EQ(grandchild->ParentWnd, first);
    grandchild->PtrnCloseWnd(0, nullptr, 0);
    EXPECT_EQ(first->ChildWnd1, nullptr);
    EXPECT_THAT(callsOf({"exit"}), ElementsAre("exit"));
}

TEST_F(Stack, an_unknown_name_empties_the_slot_all_the_same)
{
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    AppliWnd->PtrnDispChild(1, "unknown", nullptr, 0);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_EQ(first->Widget, nullptr);
    EXPECT_THAT(project.messages(), ElementsAre("子ウィンドウ（１）表示に失敗  [unknown]"));
    EXPECT_EQ(AppliWnd->MouseEnable(), 1);
}

TEST_F(Stack, null_is_an_empty_name)
{
    const char* const none = nullptr;
    AppliWnd->PtrnDispChild(1, none, nullptr, 0);
    AppliWnd->PtrnDispPopup(2, none, POINT{1, 1}, nullptr, 0);
    PtrnDispTopWnd(none, nullptr, 0);
    PtrnDispSysWnd(none, nullptr, 0);
    PTRNHEDR header;
    EXPECT_EQ(AppliWnd->PtrnReadHedr(none, &header), 0);
    EXPECT_THAT(project.messages(),
                ElementsAre("子ウィンドウ（１）表示に失敗  []", "ポップアップウィンドウ表示に失敗  []",
                            "最上位ウィンドウ表示に失敗  []"));
}

TEST_F(Stack, closes_children_by_slot_and_says_so)
{
    AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
    AppliWnd->PtrnDispChild(2, "b", nullptr, 0);
    AppliWnd->PtrnCloseWnd(2, HERE, 3);
    AppliWnd->PtrnCloseWnd(1, HERE, 4);
    EXPECT_EQ(AppliWnd->ChildWnd1, nullptr);
    EXPECT_EQ(AppliWnd->ChildWnd2, nullptr);
    EXPECT_THAT(project.messages(),
                ElementsAre("子ウィンドウ（２）を閉じる。", "子ウィンドウ（１）を閉じる。"));
    EXPECT_EQ(project.log()[0].line, 3);
    EXPECT_THAT(callsOf({"exit"}), ElementsAre("exit", "exit"));
    AppliWnd->PtrnCloseWnd(1, HERE, 5);
    AppliWnd->PtrnCloseWnd(2, HERE, 5);
    EXPECT_EQ(project.log().size(), 2u) << "nothing is there to close";
}

TEST_F(Stack, closes_itself_through_the_parent)
{
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    CPtrnDisp* second = openChild(AppliWnd, 2, "b");
    first->PtrnCloseWnd(0, HERE, 1);
    second->PtrnCloseWnd(0, HERE, 2);
    openSystem("a")->PtrnCloseWnd(0, HERE, 3);
    EXPECT_EQ(SystmWnd, nullptr);
    EXPECT_THAT(project.messages(),
                ElementsAre("子ウィンドウ（１）を閉じる。", "子ウィンドウ（２）を閉じる。",
                            "システムウィンドウを閉じる。"));
    EXPECT_EQ(project.log()[2].mesg1, "SYSTEM") << "the request that it was handed on to";
}

TEST_F(Stack, closes_the_system_window_from_anywhere)
{
    AppliWnd->PtrnCloseWnd(3, HERE, 1); // none is open
    openSystem("a");
    AppliWnd->PtrnCloseWnd(3, HERE, 2);
    EXPECT_EQ(SystmWnd, nullptr);
    openSystem("a");
    AppliWnd->PtrnCloseWnd(3, nullptr, 0);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[1].mesg1, "PTRNDISP");
    EXPECT_EQ(log[1].mesg2, "システムウィンドウを閉じる。");
    EXPECT_EQ(log[1].line, 2);
}

TEST_F(Stack, does_not_close_the_application_window_nor_anything_by_another_number)
{
    AppliWnd->PtrnDispChild(1, "a", nullptr, 0);
    for (const int which : {4, -1, 100})
        AppliWnd->PtrnCloseWnd(which, HERE, 1);
    EXPECT_THAT(project.log(), IsEmpty());
    AppliWnd->PtrnCloseWnd(0, HERE, 2);
    AppliWnd->PtrnCloseWnd(0, nullptr, 0);
    EXPECT_THAT(project.messages(), ElementsAre("最上位ウィンドウを閉じることはできません。",
                                                "最上位ウィンドウを閉じることはできません。"));
    EXPECT_EQ(project.log()[0].file, HERE);
    EXPECT_EQ(project.log()[1].file, "");
    EXPECT_THAT(callsOf({"exit"}), IsEmpty());
}

TEST_F(Stack, a_window_of_kind_0_with_a_parent_is_not_closed)
{
    RecordingWnd wnd(calls, hooks);
    wnd.PtrnDispInit(AppliWnd, "a", KIND_APPLICATION);
    wnd.PtrnCloseWnd(0, HERE, 1);
    EXPECT_TRUE(wnd.Widget);
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(Stack, exits_children_of_children_first)
{
    std::vector<std::string> order;
    hooks.exit = [&](CPtrnDisp& wnd) {
        order.push_back(wnd.PtrnName + std::to_string(wnd.PtrnType));
        EXPECT_TRUE(wnd.Widget) << "the toolkit window goes after the hook";
    };
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    openChild(AppliWnd, 2, "b");
    openChild(first, 2, "a", 300, 200);
    AppliWnd->PtrnExit();
    EXPECT_THAT(order, ElementsAre("a2", "a1", "b2", "top0"));
    user.settle();
    EXPECT_THAT(user.windows(), IsEmpty());
}

TEST_F(Stack, children_that_an_init_hook_opens_lie_above_their_window)
{
    hooks.init = [](CPtrnDisp& wnd) {
        if (wnd.PtrnType == KIND_APPLICATION)
            wnd.PtrnDispChild(1, "a", 20, 20, nullptr, 0);
        else if (wnd.PtrnType == KIND_CHILD1)
            wnd.PtrnDispChild(2, "b", 40, 30, nullptr, 0);
    };
    openTop("top");
    const auto windows = user.windows();
    ASSERT_EQ(windows.size(), 3u);
    EXPECT_EQ(windows[0].title, "top");
    EXPECT_EQ(windows[1].title, "a");
    EXPECT_EQ(windows[2].title, "b");
}

TEST_F(Stack, the_system_window_stays_above_an_application_window_that_is_opened_later)
{
    know(Pattern("large").size(800, 600).header(HEDR_KIND, 0));
    openSystem("a");
    openTop("large");
    const auto windows = user.windows();
    ASSERT_EQ(windows.size(), 2u);
    EXPECT_EQ(windows[1].title, "a");
}

// --- messages --------------------------------------------------------------------------------------

TEST_F(Stack, sends_messages_by_number)
{
    std::vector<const CPtrnDisp*> receivers;
    hooks.mesg = [&](CPtrnDisp& wnd, int) { receivers.push_back(&wnd); };
    CPtrnDisp* first = openChild(AppliWnd, 1, "a");
    CPtrnDisp* second = openChild(AppliWnd, 2, "b");
    for (const int target : {0, 1, 2, 3, 4, -1})
        AppliWnd->PtrnSendMessage(target, 9, nullptr, 0);
    EXPECT_THAT(receivers, ElementsAre(AppliWnd, first)) << "2 reaches nobody, 3 no parent";
    receivers.clear();
    second->PtrnSendMessage(3, 9, nullptr, 0);
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    AppliWnd->PtrnSendMessage(1, 9, nullptr, 0);
    AppliWnd->PtrnSendMessage(2, 9, nullptr, 0);
    EXPECT_THAT(receivers, ElementsAre(AppliWnd, second));
}

TEST_F(Stack, logs_a_message_whose_number_has_a_name_also_when_nobody_gets_it)
{
    AppliWnd->PtrnSendMessage(0, 5, HERE, 1);
    AppliWnd->PtrnSendMessage(2, 5, HERE, 2);
    AppliWnd->PtrnSendMessage(0, 6, HERE, 3);     // without a name
    AppliWnd->PtrnSendMessage(0, 5, nullptr, 0);  // silent
    AppliWnd->PtrnSendMessage(0, 1000, HERE, 4);  // outside the store
    AppliWnd->PtrnSendMessage(0, -1000, HERE, 5); // likewise
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "メッセージ送信  [0 / D+4]");
    EXPECT_EQ(log[1].mesg2, "メッセージ送信  [2 / D+4]");
    EXPECT_EQ(log[1].line, 2);
}

// --- popups ----------------------------------------------------------------------------------------

namespace
{

/// The display is 1280 x 1024, the popup 300 x 200.
class Popup : public Stack
{
  protected:
    void SetUp() override
    {
        Stack::SetUp();
        know(Pattern("popup").size(300, 200).header(HEDR_KIND, 0));
    }

    template <class Area> std::pair<int, int> placeBeside(Area area, const std::string& name = "popup")
    {
        AppliWnd->PtrnDispPopup(1, name.c_str(), area, nullptr, 0);
        const RECT rect = AppliWnd->ChildWnd1->PtrnGetWindow();
        return {rect.left, rect.top};
    }

    static RECT area(int left, int top, int right, int bottom)
    {
        return {left, top, right, bottom, right - left, bottom - top};
    }
};

using Place = std::pair<int, int>;

} // namespace

TEST_F(Popup, lies_right_of_the_area_with_equal_top_where_it_fits)
{
    EXPECT_EQ(placeBeside(area(100, 120, 200, 150)), Place(200, 120));
    EXPECT_EQ(placeBeside(area(100, 823, 979, 900)), Place(979, 823)) << "one pixel is left each way";
}

TEST_F(Popup, lies_left_of_the_area_when_it_would_just_touch_the_right_edge)
{
    EXPECT_EQ(placeBeside(area(500, 0, 980, 50)), Place(200, 0));
    EXPECT_EQ(placeBeside(area(301, 0, 1279, 50)), Place(1, 0));
}

TEST_F(Popup, is_centred_where_neither_side_has_room)
{
    EXPECT_EQ(placeBeside(area(300, 0, 980, 50)).first, (1280 - 300) / 2);
    EXPECT_EQ(placeBeside(area(0, 0, 1280, 50)).first, 490);
    EXPECT_EQ(placeBeside(area(0, 824, 10, 200)).second, (1024 - 200) / 2);
}

TEST_F(Popup, is_aligned_with_the_bottom_of_the_area_when_it_would_touch_the_lower_edge)
{
    EXPECT_EQ(placeBeside(area(0, 824, 10, 900)), Place(10, 700));
    EXPECT_EQ(placeBeside(area(0, 1000, 10, 1020)), Place(10, 820));
    EXPECT_EQ(placeBeside(area(0, 824, 10, 201)), Place(10, 1));
}

TEST_F(Popup, lies_beside_a_point_by_the_same_rules)
{
    EXPECT_EQ(placeBeside(POINT{100, 120}), Place(100, 120));
    EXPECT_EQ(placeBeside(POINT{979, 823}), Place(979, 823));
    EXPECT_EQ(placeBeside(POINT{980, 824}), Place(680, 624));
    EXPECT_EQ(placeBeside(POINT{1279, 1023}), Place(979, 823));
}

TEST_F(Popup, halves_are_cut_towards_zero)
{
    know(Pattern("wide").size(1301, 1031).header(HEDR_KIND, 0));
    EXPECT_EQ(placeBeside(area(0, 0, 10, 10), "wide"), Place(-10, -3));
    know(Pattern("odd").size(1279, 1023).header(HEDR_KIND, 0));
    EXPECT_EQ(placeBeside(area(5, 5, 10, 10), "odd"), Place(0, 0));
}

TEST_F(Popup, is_centred_for_a_point_without_room_on_either_side)
{
    know(Pattern("large").size(700, 600).header(HEDR_KIND, 0));
    EXPECT_EQ(placeBeside(POINT{640, 500}, "large"), Place((1280 - 700) / 2, (1024 - 600) / 2));
}

TEST_F(Popup, logs_one_line_of_its_own)
{
    AppliWnd->PtrnDispPopup(1, "popup", area(0, 0, 10, 10), HERE, 5);
    AppliWnd->PtrnDispPopup(2, "popup", POINT{0, 0}, HERE, 6);
    EXPECT_TRUE(AppliWnd->ChildWnd2);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "ポップアップウィンドウ表示  [popup]");
    EXPECT_EQ(log[0].line, 5);
    EXPECT_EQ(log[1].mesg2, "ポップアップウィンドウ表示  [popup]");
}

TEST_F(Popup, of_an_unreadable_pattern_is_logged_and_leaves_the_slot_alone)
{
    CPtrnDisp* before = openChild(AppliWnd, 1, "a");
    AppliWnd->PtrnDispPopup(1, "unknown", area(0, 0, 10, 10), nullptr, 0);
    AppliWnd->PtrnDispPopup(1, "unknown", POINT{0, 0}, nullptr, 0);
    EXPECT_EQ(AppliWnd->ChildWnd1, before);
    EXPECT_THAT(project.messages(), ElementsAre("ポップアップウィンドウ表示に失敗  [unknown]",
                                                "ポップアップウィンドウ表示に失敗  [unknown]"));
}

TEST_F(Popup, of_a_pattern_that_only_the_registry_lacks_logs_both)
{
    Pattern("stranger").size(30, 20).save(project);
    AppliWnd->PtrnDispPopup(1, "stranger", POINT{0, 0}, HERE, 5);
    EXPECT_THAT(project.messages(), ElementsAre("ポップアップウィンドウ表示  [stranger]",
                                                "子ウィンドウ（１）表示に失敗  [stranger]"));
}
