// Which window is in front.
#include "window/Front.h"

#include "pattern/ItemParm.h"
#include "tests/support/Screen.h"

using namespace tessary;

namespace
{

class Front : public Screen
{
  protected:
    Front()
    {
        know(Pattern("top").size(300, 200));
        know(Pattern("blocking").size(100, 50).header(HEDR_KIND, 2));
        know(Pattern("free").size(100, 50).header(HEDR_KIND, 2).header(HEDR_MODELESS, 1));
        start();
    }
};

} // namespace

TEST_F(Front, is_nothing_before_the_first_window)
{
    EXPECT_EQ(FrontWnd(), nullptr);
}

TEST_F(Front, is_the_application_window_or_the_system_window_over_it)
{
    CPtrnDisp* const top = openTop("top");
    EXPECT_EQ(FrontWnd(), top);
    openChild(top, 1, "blocking", 400, 0);
    EXPECT_EQ(FrontWnd(), top->ChildWnd1);
    CPtrnDisp* const system = openSystem("blocking");
    EXPECT_EQ(FrontWnd(), system);
}

TEST_F(Front, is_the_child_that_blocks_and_was_opened_last)
{
    CPtrnDisp* const top = openTop("top");
    CPtrnDisp* const second = openChild(top, 2, "blocking", 400, 0);
    CPtrnDisp* const first = openChild(top, 1, "blocking", 600, 0);
    EXPECT_EQ(FrontWnd(), first);
    CPtrnDisp* const below = openChild(second, 1, "blocking", 800, 0);
    EXPECT_EQ(FrontWnd(), below);
    second->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_EQ(FrontWnd(), first);
}

TEST_F(Front, is_a_child_that_does_not_block_while_it_holds_the_pointer)
{
    CPtrnDisp* const top = openTop("top");
    CPtrnDisp* const child = openChild(top, 1, "free", 400, 0);
    moveTo(top, 10, 10);
    EXPECT_EQ(FrontWnd(), top);
    moveTo(child, 10, 10);
    EXPECT_EQ(FrontWnd(), child);
}
