#include "tests/contract/Declared.h"

#include <cstring>

namespace
{

static_assert(KEYCURSOR_ON == 5 && KEYCURSOR_OFF == 2);

TEST(Contract, declares_the_state_of_a_window)
{
    EXPECT_TRUE(Member<GtkWidget*>(&CPtrnDisp::Widget));
    EXPECT_TRUE(Member<GtkWidget*>(&CPtrnDisp::DrawArea));
    EXPECT_TRUE(Member<GdkPixmap*>(&CPtrnDisp::Pixmap));
    EXPECT_TRUE(Member<char[82]>(&CPtrnDisp::PtrnName));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::PtrnNo));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::PtrnType));
    EXPECT_TRUE(Member<CPtrnData*>(&CPtrnDisp::PtrnData));
    EXPECT_TRUE(Member<CPtrnDisp*>(&CPtrnDisp::ParentWnd));
    EXPECT_TRUE(Member<CPtrnDisp*>(&CPtrnDisp::ChildWnd1));
    EXPECT_TRUE(Member<CPtrnDisp*>(&CPtrnDisp::ChildWnd2));
    EXPECT_TRUE(Member<RECT>(&CPtrnDisp::WindRect));
    EXPECT_TRUE(Member<POINT>(&CPtrnDisp::Offset));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::CursorType));
    EXPECT_TRUE(Member<BOOL>(&CPtrnDisp::MoveWnd));
    EXPECT_TRUE(Member<POINT>(&CPtrnDisp::MovePoint));
    EXPECT_TRUE(Member<BOOL>(&CPtrnDisp::ScrollBar));
    EXPECT_TRUE(Member<PTRNDATA>(&CPtrnDisp::ScrollPtrn));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::KeyInputMode));
    EXPECT_TRUE(Member<PTRNDATA>(&CPtrnDisp::KeyInputPtrn));
    EXPECT_TRUE(Member<char[256]>(&CPtrnDisp::KeyInputText));
    EXPECT_TRUE(Member<UINT>(&CPtrnDisp::KeyInputCode));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::KeyInputPost));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::KeyInputFlag));
    EXPECT_TRUE(Member<int>(&CPtrnDisp::KeyInputTimr));
}

TEST(Contract, keeps_the_state_of_a_window_in_its_order)
{
    const CPtrnDisp wnd;
    EXPECT_TRUE(ascending({&wnd.Widget,       &wnd.DrawArea,     &wnd.Pixmap,       &wnd.PtrnName,
                           &wnd.PtrnNo,       &wnd.PtrnType,     &wnd.PtrnData,     &wnd.ParentWnd,
                           &wnd.ChildWnd1,    &wnd.ChildWnd2,    &wnd.WindRect,     &wnd.Offset,
                           &wnd.CursorType,   &wnd.MoveWnd,      &wnd.MovePoint,    &wnd.ScrollBar,
                           &wnd.ScrollPtrn,   &wnd.KeyInputMode, &wnd.KeyInputPtrn, &wnd.KeyInputText,
                           &wnd.KeyInputCode, &wnd.KeyInputPost, &wnd.KeyInputFlag, &wnd.KeyInputTimr}));
}

/// A screen class that overrides every hook.
class EveryHook : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override {}
    void PtrnExitFunc() override {}
    void PtrnDispFunc(CDraw*, int) override {}
    void PtrnTimrFunc() override {}
    void PtrnMesgFunc(int) override {}
    void PtrnRbtnFunc(int) override {}
    int PtrnMouseFunc(POINT, int, int) override { return 1; }
    int PtrnKeyInput(int, int) override { return 1; }
    int PtrnKeyStart(PTRNDATA*) override { return 0; }
    void PtrnKeyFunc(int, int, PTRNDATA*) override {}
};

TEST(Contract, declares_the_hooks_and_what_they_do_by_themselves)
{
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnInitFunc));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnExitFunc));
    EXPECT_TRUE((Member<void(CDraw*, int)>(&CPtrnDisp::PtrnDispFunc)));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnTimrFunc));
    EXPECT_TRUE(Member<void(int)>(&CPtrnDisp::PtrnMesgFunc));
    EXPECT_TRUE(Member<void(int)>(&CPtrnDisp::PtrnRbtnFunc));
    EXPECT_TRUE((Member<int(POINT, int, int)>(&CPtrnDisp::PtrnMouseFunc)));
    EXPECT_TRUE((Member<int(int, int)>(&CPtrnDisp::PtrnKeyInput)));
    EXPECT_TRUE(Member<int(PTRNDATA*)>(&CPtrnDisp::PtrnKeyStart));
    EXPECT_TRUE((Member<void(int, int, PTRNDATA*)>(&CPtrnDisp::PtrnKeyFunc)));

    CPtrnDisp plain;
    EveryHook screen;
    PTRNDATA item{};
    for (const auto& [wnd, answer] : {std::pair<CPtrnDisp*, int>{&plain, 0}, {&screen, 1}}) {
        EXPECT_EQ(wnd->PtrnMouseFunc({0, 0}, 1, 0), answer);
        EXPECT_EQ(wnd->PtrnKeyInput(0, 0), answer);
        EXPECT_EQ(wnd->PtrnKeyStart(&item), 1 - answer);
    }
}

/// Place of a virtual function among those of its class, as the compilers of this platform keep it in a
/// pointer to member: in units of a table entry, with a mark in the lowest bit or beside it.
template <class Function> std::size_t slotOf(Function CPtrnDisp::*hook)
{
    std::size_t place = 0;
    std::memcpy(&place, &hook, sizeof place);
    return place / sizeof(void*);
}

TEST(Contract, keeps_the_hooks_in_their_order)
{
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnInitFunc), 0u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnExitFunc), 1u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnDispFunc), 2u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnTimrFunc), 3u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnMesgFunc), 4u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnRbtnFunc), 5u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnMouseFunc), 6u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnKeyInput), 7u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnKeyStart), 8u);
    EXPECT_EQ(slotOf(&CPtrnDisp::PtrnKeyFunc), 9u);
}

TEST(Contract, declares_opening_painting_and_tick)
{
    EXPECT_TRUE((Member<void(CPtrnDisp*, const char*, int)>(&CPtrnDisp::PtrnDispInit)));
    EXPECT_TRUE((Member<void(CPtrnDisp*, const char*, int, int, int)>(&CPtrnDisp::PtrnDispInit)));
    EXPECT_TRUE((Member<void(CPtrnDisp*, const char*, int, RECT)>(&CPtrnDisp::PtrnDispInit)));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnInit));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnExit));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PaintEvent));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::UpdateEvent));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::PtrnUpdate));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::TimrEvent));
    EXPECT_TRUE((Member<void(int, const char*, int)>(&CPtrnDisp::PtrnSetCursor)));
}

TEST(Contract, declares_the_mouse_and_actions)
{
    EXPECT_TRUE((Member<void(POINT, int)>(&CPtrnDisp::LButtonDown)));
    EXPECT_TRUE((Member<void(POINT, int)>(&CPtrnDisp::RButtonDown)));
    EXPECT_TRUE((Member<void(POINT, int)>(&CPtrnDisp::LButtonUp)));
    EXPECT_TRUE((Member<void(POINT, int)>(&CPtrnDisp::RButtonUp)));
    EXPECT_TRUE((Member<void(POINT, int)>(&CPtrnDisp::MouseMove)));
    EXPECT_TRUE((Member<int(POINT, int)>(&CPtrnDisp::MouseWheel)));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::MouseLeave));
    EXPECT_TRUE(Member<int()>(&CPtrnDisp::MouseEnable));
    EXPECT_TRUE(Member<void(PTRNDATA*)>(&CPtrnDisp::ExecMessage));
}

TEST(Contract, declares_the_window_stack)
{
    using Text = const char*;
    EXPECT_TRUE((Member<void(int, Text, Text, int)>(&CPtrnDisp::PtrnDispChild)));
    EXPECT_TRUE((Member<void(int, Text, int, int, Text, int)>(&CPtrnDisp::PtrnDispChild)));
    EXPECT_TRUE((Member<void(int, Text, RECT, Text, int)>(&CPtrnDisp::PtrnDispChild)));
    EXPECT_TRUE((Member<void(int, Text, RECT, Text, int)>(&CPtrnDisp::PtrnDispPopup)));
    EXPECT_TRUE((Member<void(int, Text, POINT, Text, int)>(&CPtrnDisp::PtrnDispPopup)));
    EXPECT_TRUE((Member<void(int, Text, int)>(&CPtrnDisp::PtrnCloseWnd)));
    EXPECT_TRUE((Member<void(int, int, Text, int)>(&CPtrnDisp::PtrnSendMessage)));
    EXPECT_TRUE((Member<void(int, int, int, Text, int)>(&CPtrnDisp::PtrnSetOffset)));
    EXPECT_TRUE((Member<void(int, int, int, Text, int)>(&CPtrnDisp::PtrnSetScroll)));
}

TEST(Contract, declares_items_of_a_window)
{
    EXPECT_TRUE((Member<void(CDraw*, int, int)>(&CPtrnDisp::PtrnDispData)));
    EXPECT_TRUE((Member<int(POINT, PTRNDATA*)>(&CPtrnDisp::PtrnTestData)));
    EXPECT_TRUE((Member<int(POINT, int, int)>(&CPtrnDisp::PtrnTestData)));
    EXPECT_TRUE(Member<RECT()>(&CPtrnDisp::PtrnGetWindow));
    EXPECT_TRUE(Member<POINT()>(&CPtrnDisp::PtrnGetOffset));
    EXPECT_TRUE(Member<PTRNHEDR()>(&CPtrnDisp::PtrnReadHedr));
    EXPECT_TRUE((Member<int(const char*, PTRNHEDR*)>(&CPtrnDisp::PtrnReadHedr)));
    EXPECT_TRUE((Member<int(int, int, PTRNDATA*)>(&CPtrnDisp::PtrnReadData)));
    EXPECT_TRUE(Member<void(PTRNDATA*)>(&CPtrnDisp::PtrnWriteData));
}

TEST(Contract, declares_dragging)
{
    EXPECT_TRUE(Member<void(POINT)>(&CPtrnDisp::MoveWindow1));
    EXPECT_TRUE(Member<void(POINT)>(&CPtrnDisp::MoveWindow2));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::MoveWindow3));
    EXPECT_TRUE(Member<void(PTRNDATA*)>(&CPtrnDisp::MoveScrollBar1));
    EXPECT_TRUE(Member<void(POINT)>(&CPtrnDisp::MoveScrollBar2));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::MoveScrollBar3));
}

TEST(Contract, declares_key_input)
{
    using Key = unsigned int;
    EXPECT_TRUE((Member<void(int, const char*, int)>(&CPtrnDisp::KeyInputStart)));
    EXPECT_TRUE(Member<void(PTRNDATA*)>(&CPtrnDisp::KeyInputStart));
    EXPECT_TRUE((Member<int(Key, int, const char*, int)>(&CPtrnDisp::KeyInputStop)));
    EXPECT_TRUE(Member<int(int)>(&CPtrnDisp::KeyInputCheck));
    EXPECT_TRUE((Member<void(Key, int)>(&CPtrnDisp::KeyEntry)));
    EXPECT_TRUE(Member<void(CDraw*)>(&CPtrnDisp::KeyTimer));
    EXPECT_TRUE(Member<void()>(&CPtrnDisp::KeyReset));
    EXPECT_TRUE((Member<void(Key, Key)>(&CPtrnDisp::KeyInputInsert)));
    EXPECT_TRUE(Member<void(Key)>(&CPtrnDisp::KeyInputDelete));
    EXPECT_TRUE((Member<void(Key, int, int)>(&CPtrnDisp::KeyInputShift)));
    EXPECT_TRUE((Member<void(CDraw*, int)>(&CPtrnDisp::KeyInputDisp)));
}

TEST(Contract, declares_toolkit_handlers)
{
    EXPECT_TRUE((Declared<void(CPtrnDisp*, GtkWidget*, RECT)>(PtrnDispStart)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventConfigure*, CPtrnDisp*)>(Configure_Event)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventExpose*, CPtrnDisp*)>(Expose_Event)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventButton*, CPtrnDisp*)>(Mouse_Press)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventButton*, CPtrnDisp*)>(Mouse_Release)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventMotion*, CPtrnDisp*)>(Mouse_Motion)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventCrossing*, CPtrnDisp*)>(Mouse_Leave)));
    EXPECT_TRUE((Declared<int(GtkWidget*, GdkEventKey*, CPtrnDisp*)>(Key_Press)));
}

} // namespace
