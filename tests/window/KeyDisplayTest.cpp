// What a field in edit looks like: text, cursor, blinking; and what its cell's state does meanwhile.
#include "tests/window/KeyEdit.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;

namespace
{

class KeyDisplay : public KeyEdit
{
  protected:
    static constexpr int SHOWN = HEDR_EDIT_COLOR; ///< colours of the cursor
    static constexpr int HIDDEN = HEDR_EDIT_BACK;
    static constexpr int NONE = -1;

    void SetUp() override
    {
        KeyEdit::SetUp();
        open(fields("p"));
        Set_sData(TEXT, "abc", nullptr, 0);
        Set_fData(NUMBER, 12, nullptr, 0);
        tick();
    }

    /// Ticks until the cursor is seen to change, with each tick's state.
    std::string blinking(int ticks)
    {
        std::string states;
        for (int i = 0; i < ticks; i++) {
            tick();
            states += AppliWnd->KeyInputFlag ? '#' : '.';
        }
        return states;
    }
};

} // namespace

TEST_F(KeyDisplay, the_field_is_drawn_at_once_in_the_pattern_s_colours_for_editing)
{
    edit(TEXT);
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, NONE)));
    edit(NUMBER);
    EXPECT_TRUE(same(drawn(NUMBER), inEdit(5, "   12", 5, NONE)));
}

TEST_F(KeyDisplay, the_cursor_appears_at_the_next_tick_and_is_on_the_screen)
{
    edit(TEXT);
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, SHOWN)));
    EXPECT_EQ(pixel(AppliWnd, LEFT, top(TEXT) + 8), color(HEDR_EDIT_COLOR));
}

TEST_F(KeyDisplay, the_cursor_is_shown_for_5_ticks_and_hidden_for_2)
{
    edit(TEXT);
    EXPECT_EQ(blinking(23), "#####..#####..#####..##");
    type("x");
    EXPECT_EQ(AppliWnd->KeyInputFlag, 0);
    EXPECT_EQ(blinking(9), "#####..##") << "from anew after a key";
}

TEST_F(KeyDisplay, the_blinking_cursor_is_drawn_and_wiped)
{
    edit(TEXT);
    tick(5);
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, SHOWN)));
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, HIDDEN)));
    tick(2);
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, SHOWN)));
}

TEST_F(KeyDisplay, a_key_redraws_the_text_without_the_cursor)
{
    edit(TEXT);
    tick();
    type("X");
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "Xabc", 1, NONE)));
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "Xabc", 1, SHOWN)));
    key(XK_Delete);
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "Xbc", 1, NONE)));
}

TEST_F(KeyDisplay, a_cursor_that_moves_leaves_no_trace)
{
    edit(TEXT);
    tick();
    key(XK_Right);
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "abc", 0, HIDDEN))) << "wiped where it was";
    tick();
    Picture expected = inEdit(8, "abc", 1, SHOWN);
    for (int y = 0; y < LINE; y++) // the line that was wiped after the text was drawn
        expected.set(0, y, color(HEDR_EDIT_BACK));
    EXPECT_TRUE(same(drawn(TEXT), expected));
}

TEST_F(KeyDisplay, a_cursor_that_can_not_move_goes_on_blinking)
{
    edit(TEXT);
    tick(2);
    key(XK_Left);
    key(XK_Up);
    EXPECT_EQ(AppliWnd->KeyInputFlag, 1);
    EXPECT_EQ(blinking(5), "###..") << "as if there had been no key";
}

TEST_F(KeyDisplay, each_bit_of_the_mode_draws_its_own_part)
{
    edit(TEXT);
    key(XK_Right);
    Canvas canvas(100, LINE + 4);
    const PaintDrawPtr draw(new CPaintDraw(AppliWnd->Pixmap));
    const auto expectDrawn = [&](int mode) {
        AppliWnd->KeyInputDisp(draw.get(), mode);
        EXPECT_TRUE(same(drawn(TEXT), canvas.picture())) << mode;
    };
    canvas->DrawRect(0, 0, 100, LINE + 4, 0, 0, HEDR_BODY_COLOR, HEDR_BODY_COLOR);
    canvas->DrawRect(0, 0, 64, LINE, 0, 0, HEDR_EDIT_BACK, HEDR_EDIT_BACK);
    expectDrawn(1);
    canvas->DrawText(0, 0, 0, HEDR_EDIT_COLOR, HEDR_EDIT_BACK, "abc");
    expectDrawn(2);
    canvas->DrawLine(CELL, 0, CELL, LINE, 0, 1, 0, HEDR_EDIT_COLOR);
    expectDrawn(4);
    canvas->DrawLine(CELL, 0, CELL, LINE, 0, 1, 0, HEDR_EDIT_BACK);
    expectDrawn(8);
}

TEST_F(KeyDisplay, two_byte_characters_are_two_cells_wide)
{
    edit(TEXT);
    sendBytes("漢");
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "漢abc", 2, SHOWN)));
}

TEST_F(KeyDisplay, a_field_without_background_is_drawn_over_what_was_in_edit)
{
    edit(TEXT);
    tick();
    key(XK_Escape);
    // The cursor is wiped, then the item's text drawn.
    Canvas canvas(100, LINE + 4);
    canvas->DrawRect(0, 0, 100, LINE + 4, 0, 0, HEDR_BODY_COLOR, HEDR_BODY_COLOR);
    canvas->DrawRect(0, 0, 64, LINE, 0, 0, HEDR_EDIT_BACK, HEDR_EDIT_BACK);
    canvas->DrawText(0, 0, 0, HEDR_EDIT_COLOR, HEDR_EDIT_BACK, "abc");
    canvas->DrawLine(0, 0, 0, LINE, 0, 1, 0, HEDR_EDIT_BACK);
    canvas->DrawText(0, 0, 0, TEXT_COLOR4, -1, "abc");
    EXPECT_TRUE(same(drawn(TEXT), canvas.picture()));
}

TEST_F(KeyDisplay, a_field_with_background_shows_what_was_stored)
{
    know(Pattern("q")
             .size(300, 200)
             .item(PTRN_CHAR, LEFT, top(TEXT), LEFT + 60, top(TEXT) + LINE)
             .parm(FIELD_WIDTH, 8)
             .parm(FIELD_KEYENTRY, 1)
             .parm(TEXT_BACKED, 1)
             .code("D", 3));
    openTop("q");
    edit(TEXT);
    tick();
    type("zz");
    key(XK_Return);
    Canvas canvas(64, LINE);
    canvas->DrawRect(0, 0, 64, LINE, 0, 0, TEXT_BACK4, TEXT_BACK4);
    canvas->DrawText(0, 0, 0, TEXT_COLOR4, TEXT_BACK4, "zzabc");
    EXPECT_TRUE(same(bufferPicture(AppliWnd, LEFT, top(TEXT), 64, LINE), canvas.picture()))
        << "at once, not at the next tick";
    tick();
    EXPECT_TRUE(same(bufferPicture(AppliWnd, LEFT, top(TEXT), 64, LINE), canvas.picture()));
}

TEST_F(KeyDisplay, a_change_of_the_cell_does_not_disturb_the_field_in_edit)
{
    edit(TEXT);
    type("x");
    Set_sData(TEXT, "other", nullptr, 0);
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "xabc", 1, SHOWN)));
    key(XK_Escape);
    EXPECT_EQ(string(TEXT), "other");
}

TEST_F(KeyDisplay, a_repaint_keeps_the_field_in_edit)
{
    edit(TEXT);
    type("x");
    AppliWnd->PaintEvent();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "xabc", 1, NONE)));
    tick();
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "xabc", 1, SHOWN)));
}

TEST_F(KeyDisplay, an_edit_may_be_started_before_the_window_is_painted)
{
    know(fields("q"));
    hooks.init = [](CPtrnDisp& wnd) { wnd.KeyInputStart(TEXT, nullptr, 0); };
    openTop("q");
    EXPECT_TRUE(editing());
    EXPECT_TRUE(same(drawn(TEXT), inEdit(8, "", 0, NONE)));
    type("hi");
    EXPECT_EQ(text(), "hi");
}

TEST_F(KeyDisplay, the_field_in_edit_is_not_hit_and_a_press_on_it_ends_the_input)
{
    edit(TEXT);
    tick();
    PTRNDATA item{};
    EXPECT_EQ(AppliWnd->PtrnTestData({LEFT + 5, top(TEXT) + 5}, &item), 0);
    click(AppliWnd, LEFT + 5, top(TEXT) + 5);
    EXPECT_FALSE(editing());
    tick();
    click(AppliWnd, LEFT + 5, top(TEXT) + 5);
    EXPECT_TRUE(editing());
}

// --- a window that goes while a field is in edit ---------------------------------------------------

TEST_F(KeyDisplay, a_window_that_closes_leaves_no_cell_frozen)
{
    know(fields("q").header(HEDR_MODELESS, 1));
    const auto start = [](CPtrnDisp* wnd) {
        wnd->KeyInputStart(NUMBER, nullptr, 0);
        EXPECT_TRUE(editing(wnd));
        EXPECT_TRUE(frozen(NUMBER));
    };
    start(openChild(AppliWnd, 1, "q", 400, 400));
    AppliWnd->PtrnCloseWnd(1, nullptr, 0);
    EXPECT_FALSE(frozen(NUMBER)) << "closed";
    start(openChild(AppliWnd, 1, "q", 400, 400));
    openChild(AppliWnd, 1, "q", 500, 400);
    EXPECT_FALSE(frozen(NUMBER)) << "replaced";
    start(openSystem("q"));
    ReqSystemStop(nullptr, 0);
    EXPECT_FALSE(frozen(NUMBER)) << "stopped";
    start(AppliWnd);
    openTop("q");
    EXPECT_FALSE(frozen(NUMBER)) << "the application window replaced";
    EXPECT_EQ(number(NUMBER), 12) << "nothing was stored";
    EXPECT_THAT(callsOf({"keyfunc"}), ElementsAre());
}
