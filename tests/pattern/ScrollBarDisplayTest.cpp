// What a scroll bar looks like.
#include "draw/Images.h"
#include "tests/pattern/DisplayFixture.h"

using namespace tessary;

namespace
{

class ScrollBarDisplay : public Display
{
};

} // namespace

TEST_F(ScrollBarDisplay, of_a_scroll_bar_draws_frame_buttons_and_thumb)
{
    // Inner area 1..89 x 1..11, buttons of 10, trough 21..69, thumb 4 long at 21 + 44 x 45 / 90.
    load(Pattern("p").item(PTRN_SBAR, 0, 0, 90, 12).code("A").parm(SBAR_PAGES, 1));
    set(1, 45.0F);
    Canvas expected(100, 60);
    expected->DrawButn(SetRect(0, 0, 90, 12), 1, SBAR_LIGHT, SBAR_DARK, SBAR_FRAME, 0, 0, 0, "");
    expected->DrawXpm(SetRect(1, 1, 11, 11), XPM_LeftArrow2);
    expected->DrawXpm(SetRect(79, 1, 89, 11), XPM_RightArrow2);
    expected->DrawXpm(SetRect(11, 1, 21, 11), XPM_LeftArrow1);
    expected->DrawXpm(SetRect(69, 1, 79, 11), XPM_RightArrow1);
    expected->DrawButn(SetRect(43, 3, 47, 9), 1, SBAR_LIGHT, SBAR_DARK, SBAR_THUMB, 0, 0, 0, "");

    EXPECT_TRUE(same(display(), expected.picture()));
}

TEST_F(ScrollBarDisplay, of_a_vertical_scroll_bar_draws_its_own_arrows)
{
    // Inner area 1..9 x 1..57, buttons of 8, trough 17..41, thumb 2 long at its begin.
    load(Pattern("p")
             .item(PTRN_SBAR, 0, 0, 10, 58)
             .code("A")
             .parm(SBAR_PAGES, 1)
             .parm(SBAR_VERTICAL, 1)
             .parm(SBAR_WIDTH, 0));
    Canvas expected(100, 60);
    expected->DrawButn(SetRect(0, 0, 10, 58), 0, SBAR_LIGHT, SBAR_DARK, SBAR_FRAME, 0, 0, 0, "");
    expected->DrawXpm(SetRect(1, 1, 9, 9), XPM_UpArrow2);
    expected->DrawXpm(SetRect(1, 49, 9, 57), XPM_DownArrow2);
    expected->DrawXpm(SetRect(1, 9, 9, 17), XPM_UpArrow1);
    expected->DrawXpm(SetRect(1, 41, 9, 49), XPM_DownArrow1);
    expected->DrawButn(SetRect(3, 17, 7, 19), 0, SBAR_LIGHT, SBAR_DARK, SBAR_THUMB, 0, 0, 0, "");

    EXPECT_TRUE(same(display(), expected.picture()));
}

TEST_F(ScrollBarDisplay, of_a_scroll_bar_leaves_out_the_buttons_that_it_does_not_have)
{
    load(Pattern("p").item(PTRN_SBAR, 0, 0, 90, 12).code("A").parm(SBAR_ARROWS, 0));
    Canvas expected(100, 60);
    expected->DrawButn(SetRect(0, 0, 90, 12), 1, SBAR_LIGHT, SBAR_DARK, SBAR_FRAME, 0, 0, 0, "");
    expected->DrawButn(SetRect(1, 3, 9, 9), 1, SBAR_LIGHT, SBAR_DARK, SBAR_THUMB, 0, 0, 0, "");

    EXPECT_TRUE(same(display(), expected.picture()));
}

TEST_F(ScrollBarDisplay, of_a_scroll_bar_draws_nothing_while_everything_is_visible)
{
    for (const int visible : {100, 101}) {
        load(Pattern("p").item(PTRN_SBAR, 0, 0, 90, 12).parm(SBAR_VISIBLE, visible));
        EXPECT_EQ(drawn(display()), "");
    }
}
