// Every type in every state of its cell: as it is first displayed, and as a tick makes it when the state
// changes. What it should look like is drawn with the primitives by the rules of the type.
#include "comndata/ItemState.h"
#include "draw/Images.h"
#include "tests/pattern/ItemCanvas.h"

#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

constexpr int NONE = -1;
constexpr int CLEAR = 29;

/// One type; the value of its cell is 50 and its text "cell", the text of the pattern "file".
struct Look {
    const char* name;
    Pattern pattern;
    std::function<void(CPaintDraw&, int c)> drawn;                       ///< in colour selection c
    std::function<void(CPaintDraw&, int c)> blanked = nullptr;           ///< disabled; null: as drawn
    std::function<void(CPaintDraw&, const char* text)> erased = nullptr; ///< null: the box
    /// What a tick does before it draws the item in place of the one in selection 0.
    std::function<void(CPaintDraw&)> wiped = nullptr;
};

Pattern made(int type)
{
    return Pattern("p").item(type, 10, 20, 90, 70).code("A").text("file");
}

void box(CPaintDraw& draw, int colr)
{
    draw.DrawRect(10, 20, 90, 70, 0, 0, colr, colr);
}

void nothing(CPaintDraw&, int) {}

void eraseText(CPaintDraw& draw, const char* text)
{
    draw.DrawText(10, 20, 0, CLEAR, CLEAR, text);
}

void eraseCheck(CPaintDraw& draw, const char*)
{
    draw.DrawRect(10, 20, 26, 36, 0, 0, CLEAR, CLEAR);
    draw.ClearText(34, 20, 0, CLEAR, "file");
}

Look shape(const char* name, int type, bool filled)
{
    const auto draw = [=](CPaintDraw& target, int outline, int fill) {
        if (type == PTRN_RECT)
            target.DrawRect(10, 20, 90, 70, 3, 0, outline, fill);
        else
            target.DrawCrcl(10, 20, 90, 70, 3, 0, outline, fill);
    };
    return {name, made(type).parm(SHAPE_WIDTH, 3).parm(SHAPE_FILLED, filled),
            [=](CPaintDraw& target, int c) { draw(target, 4 + c, filled ? 8 + c : NONE); }, nullptr,
            [=](CPaintDraw& target, const char*) { draw(target, CLEAR, CLEAR); }};
}

Look barGraph(const char* name, int needle)
{
    return {name, made(PTRN_BARG).parm(BARG_NEEDLE_WIDTH, needle), [=](CPaintDraw& draw, int c) {
                box(draw, 8 + c);
                if (needle)
                    draw.DrawLine(10, 45, 90, 45, 0, needle, 0, 4 + c);
                else
                    draw.DrawRect(10, 45, 90, 70, 0, 0, 4 + c, 4 + c);
            }};
}

/// A text or a field of six characters.
Look text(const char* name, int type, const std::string& shown, bool backed)
{
    const bool field = type != PTRN_FCHR;
    return {name, made(type).parm(FIELD_WIDTH, 6).parm(TEXT_BACKED, backed),
            [=](CPaintDraw& draw, int c) {
                if (field && backed)
                    draw.DrawRect(10, 20, 58, 36, 0, 0, 8 + c, 8 + c);
                draw.DrawText(10, 20, 0, 4 + c, backed ? 8 + c : NONE, shown.c_str());
            },
            [=](CPaintDraw& draw, int c) {
                if (backed)
                    draw.ClearText(10, 20, 0, 8 + c, shown.c_str());
            },
            eraseText};
}

Look check(const char* name, int type, int mark, bool backed)
{
    return {name, made(type).parm(CHECK_BACKED, backed),
            [=](CPaintDraw& draw, int c) {
                const int locked = c % 2;
                draw.DrawMark(10, 20, 26, 36, 4 + locked, backed ? 6 + locked : NONE, mark);
                draw.DrawText(34, 20, 0, 4 + locked, backed ? 6 + locked : NONE, "file");
            },
            [](CPaintDraw& draw, int) { eraseCheck(draw, nullptr); }, eraseCheck};
}

Look mark(const char* name, bool backed)
{
    return {name,
            made(PTRN_MARK).parm(MARK_BACKED, backed),
            [=](CPaintDraw& draw, int c) {
                draw.DrawMark(10, 20, 90, 70, 4 + c, backed ? 8 + c : NONE, 350 + c);
            },
            [=](CPaintDraw& draw, int c) {
                if (backed)
                    box(draw, 8 + c);
            },
            nullptr,
            [=](CPaintDraw& draw) { draw.DrawMark(10, 20, 90, 70, CLEAR, backed ? CLEAR : NONE, 350); }};
}

void drawScrollBar(CPaintDraw& draw, int)
{
    // Inner area 11..89 x 21..69: no room for buttons of 48 beside a thumb, so this bar has none. Its thumb
    // is 7 long, 71 x 50 / 90 from the begin.
    draw.DrawButn(10, 20, 90, 70, 1, SBAR_LIGHT, SBAR_DARK, SBAR_FRAME, 0, 0, 0, "");
    draw.DrawButn(50, 23, 57, 67, 1, SBAR_LIGHT, SBAR_DARK, SBAR_THUMB, 0, 0, 0, "");
}

std::vector<Look> looks()
{
    return {
        {"group_box", made(PTRN_GBOX),
         [](CPaintDraw& draw, int c) {
             draw.DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 8 + c, 12 + c, 16 + c, 20 + c, 4 + c);
         },
         nullptr},
        {"line", made(PTRN_LINE).parm(LINE_WIDTH, 3).parm(LINE_TYPE, 1),
         [](CPaintDraw& draw, int c) { draw.DrawLine(10, 20, 90, 70, 1, 3, 0, 4 + c); }, nullptr,
         [](CPaintDraw& draw, const char*) { draw.DrawLine(10, 20, 90, 70, 1, 3, 0, CLEAR); }},
        shape("rectangle", PTRN_RECT, false),
        shape("filled_rectangle", PTRN_RECT, true),
        shape("circle", PTRN_CRCL, false),
        shape("filled_circle", PTRN_CRCL, true),
        barGraph("bar_graph", 0),
        barGraph("needle", 4),
        text("fixed_text", PTRN_FCHR, "file", false),
        text("backed_fixed_text", PTRN_FCHR, "file", true),
        text("variable_text", PTRN_CHAR, "cell", false),
        text("backed_variable_text", PTRN_CHAR, "cell", true),
        text("numeric_field", PTRN_NUMR, "    50", false),
        text("backed_numeric_field", PTRN_NUMR, "    50", true),
        {"push_button", made(PTRN_BUTN),
         [](CPaintDraw& draw, int c) {
             draw.DrawButn(10, 20, 90, 70, 2, 4, 5, 6, c % 2 ? 8 : 7, NONE, 0, "file");
         },
         [](CPaintDraw& draw, int) { box(draw, CLEAR); }},
        check("radio_button", PTRN_RDIO, 350, false),
        check("backed_radio_button", PTRN_RDIO, 350, true),
        check("check_box", PTRN_CHCK, 353, false),
        check("backed_check_box", PTRN_CHCK, 353, true),
        {"bitmap", made(PTRN_BMAP).text("two.ppm"),
         [](CPaintDraw& draw, int) { draw.DrawBmap(10, 20, 90, 70, NONE, "two.ppm"); }, nullptr},
        mark("mark", false),
        mark("backed_mark", true),
        {"scroll_bar", made(PTRN_SBAR).parm(SBAR_ARROWS, 0), drawScrollBar, nullptr},
        {"absent_scroll_bar", made(PTRN_SBAR).parm(SBAR_TOTAL, 10), nothing, nullptr},
        {"spin_button", made(PTRN_SPIN),
         [](CPaintDraw& draw, int) { draw.DrawXpm(10, 20, 90, 70, XPM_SpinButn); }, nullptr},
    };
}

/// The state of the cell, made by the functions that an application uses.
struct State {
    int colour = 0;
    bool flicker = false;
    bool frozen = false;
    bool disabled = false;
    bool hidden = false;

    void apply() const
    {
        Set_Color(1, colour, nullptr, 0);
        Set_Flikr(1, flicker, nullptr, 0);
        Set_Disable(1, disabled, 0, nullptr, 0);
        Set_Disable(1, hidden, 1, nullptr, 0);
        if (frozen)
            OR_wData(1, STATE_FROZEN, nullptr, 0);
    }
};

std::ostream& operator<<(std::ostream& out, const State& state)
{
    return out << "colour " << state.colour << (state.flicker ? " flicker" : "")
               << (state.frozen ? " frozen" : "") << (state.disabled ? " disabled" : "")
               << (state.hidden ? " hidden" : "");
}

std::vector<State> states()
{
    std::vector<State> all;
    for (int colour = 0; colour < 4; ++colour)
        for (int bits = 0; bits < 16; ++bits)
            all.push_back({colour, (bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0});
    return all;
}

class ItemInState : public ItemCanvas
{
  protected:
    ItemInState()
    {
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        project.write("Bitmap/two.ppm", "P6\n2 1\n255\n" + std::string("\x34\x78\x21\x11\x22\x33", 6));
        set(1, 50.0F);
        setText(1, "cell");
    }

    void use(const Look& look)
    {
        load(look.pattern);
        loaded_ = item();
    }

    /// A new window, with the cell's state as it is: the item is as it was loaded.
    void open()
    {
        item() = loaded_;
        clear();
        data().DispPtrnData(canvas.draw());
    }

    /// Draws on the model what the item looks like; `text` is what an eraser finds in the item.
    void modelLook(const Look& look, const State& state, const char* text, bool update)
    {
        CPaintDraw& draw = *model.draw();
        if (state.hidden) {
            if (look.erased)
                look.erased(draw, text);
            else
                box(draw, CLEAR);
        } else if (state.disabled && look.blanked) {
            look.blanked(draw, state.colour);
        } else {
            if (update && look.wiped)
                look.wiped(draw);
            look.drawn(draw, state.colour);
        }
    }

  private:
    PTRNDATA loaded_{};
};

} // namespace

TEST_F(ItemInState, looks_in_a_new_window_as_its_state_tells)
{
    for (const Look& look : looks()) {
        use(look);
        for (const State& state : states()) {
            setState(1, 0);
            state.apply();
            open();
            modelLook(look, state, "file", false);
            ASSERT_TRUE(asModelled()) << look.name << ", " << state;
        }
    }
}

TEST_F(ItemInState, is_changed_by_a_tick_as_its_state_tells)
{
    for (const Look& look : looks()) {
        use(look);
        for (const State& state : states()) {
            setState(1, 0);
            open();
            state.apply();
            data().UpdtPtrnData(canvas.draw());

            modelLook(look, State{}, "file", false);
            const bool changed = Get_wData(1, nullptr, 0) != 0;
            if (changed && !state.frozen)
                modelLook(look, state, data().PtrnData[0].Text, true);
            ASSERT_TRUE(asModelled()) << look.name << ", " << state;
        }
    }
}

TEST_F(ItemInState, keeps_the_text_that_it_showed_last_for_the_eraser)
{
    for (const Look& look : looks()) {
        use(look);
        open();
        const int type = val(data().PtrnData[0].Type);
        EXPECT_STREQ(data().PtrnData[0].Text, type == PTRN_CHAR   ? "cell"
                                              : type == PTRN_NUMR ? "    50"
                                              : type == PTRN_BMAP ? "two.ppm"
                                                                  : "file")
            << look.name;
    }
}

TEST_F(ItemInState, does_not_change_with_bits_that_mean_nothing)
{
    for (const Look& look : looks()) {
        use(look);
        setState(1, 2);
        open();
        const Picture plain = canvas.picture();
        for (const int meaningless : {0x0004, 0x0400, 0x07FC, STATE_NEVER}) {
            setState(1, 2 | meaningless);
            open();
            EXPECT_TRUE(same(canvas.picture(), plain)) << look.name << ", " << meaningless;
        }
    }
}
