// How the editing of a field starts.
#include "tests/window/KeyEdit.h"

#include <gmock/gmock.h>

using namespace tessary;

using testing::ElementsAre;
using testing::IsEmpty;

namespace
{

class KeyInputStart : public KeyEdit
{
};

constexpr char HERE[] = "screen.cpp";

} // namespace

TEST_F(KeyInputStart, happens_by_a_click_with_the_value_and_the_cursor_at_the_end_of_a_number)
{
    open(fields("p"));
    Set_fData(NUMBER, 12, nullptr, 0);
    tick();
    calls.clear();
    click(AppliWnd, LEFT + 5, top(NUMBER) + 5);
    EXPECT_TRUE(editing());
    EXPECT_EQ(text(), "   12");
    EXPECT_EQ(cursor(), 5);
    EXPECT_TRUE(frozen(NUMBER));
    EXPECT_THAT(callsOf({"keystart", "keyfunc"}), ElementsAre("keystart 100"));
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(KeyInputStart, of_a_text_puts_the_cursor_at_its_start)
{
    open(fields("p"));
    Set_sData(TEXT, "abc", nullptr, 0);
    tick();
    click(AppliWnd, LEFT + 5, top(TEXT) + 5);
    EXPECT_EQ(text(), "abc");
    EXPECT_EQ(cursor(), 0);
    EXPECT_TRUE(frozen(TEXT));
}

TEST_F(KeyInputStart, may_be_refused_by_the_hook)
{
    open(fields("p"));
    for (const int answer : {0, 2, -1}) {
        hooks.keyStart = [=](CPtrnDisp&, PTRNDATA*) { return answer; };
        click(AppliWnd, LEFT + 5, top(NUMBER) + 5);
        EXPECT_FALSE(editing());
        EXPECT_FALSE(frozen(NUMBER));
    }
}

TEST_F(KeyInputStart, of_another_field_ends_the_first_without_storing)
{
    open(fields("p"));
    edit(NUMBER);
    type("5");
    AppliWnd->KeyInputStart(TEXT, nullptr, 0);
    EXPECT_EQ(edited(), TEXT);
    EXPECT_EQ(number(NUMBER), 0);
    EXPECT_FALSE(frozen(NUMBER));
    EXPECT_TRUE(frozen(TEXT));
    EXPECT_THAT(callsOf({"keyfunc"}), IsEmpty());
}

TEST_F(KeyInputStart, started_by_the_hook_itself_ends_for_the_field_that_was_asked_for)
{
    open(fields("p"));
    hooks.keyStart = [](CPtrnDisp& wnd, PTRNDATA* item) {
        if (item->DataNo == NUMBER)
            wnd.KeyInputStart(TEXT, nullptr, 0);
        return 1;
    };
    AppliWnd->KeyInputStart(NUMBER, nullptr, 0);
    EXPECT_EQ(edited(), NUMBER);
    EXPECT_FALSE(frozen(TEXT)) << "no field stays frozen behind";
}

TEST_F(KeyInputStart, from_code_says_so)
{
    open(fields("p"));
    AppliWnd->KeyInputStart(NUMBER, HERE, 5);
    EXPECT_TRUE(editing());
    const auto log = project.log();
    ASSERT_EQ(log.size(), 1u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "キー入力開始  [D+0]");
    EXPECT_EQ(log[0].file, HERE);
    EXPECT_EQ(log[0].line, 5);
    EXPECT_EQ(AppliWnd->KeyInputStop(KEYVAL_ESCAPE, 0, HERE, 6), 1);
    EXPECT_EQ(project.messages().back(), "キー入力終了  [D+0]");
    AppliWnd->KeyInputStart(NUMBER, nullptr, 0);
    EXPECT_EQ(AppliWnd->KeyInputStop(KEYVAL_ESCAPE, 0, nullptr, 0), 1);
    EXPECT_EQ(project.log().size(), 2u);
}

TEST_F(KeyInputStart, from_code_prefers_the_text_of_a_number_that_has_both)
{
    open(Pattern("p")
             .item(PTRN_NUMR, 20, 20, 60, 36)
             .parm(FIELD_KEYENTRY, 1)
             .code("D", 0)
             .item(PTRN_CHAR, 20, 50, 60, 66)
             .parm(FIELD_KEYENTRY, 1)
             .code("D", 0));
    AppliWnd->KeyInputStart(NUMBER, nullptr, 0);
    EXPECT_EQ(AppliWnd->KeyInputPtrn.Type, PTRN_CHAR);
}

TEST_F(KeyInputStart, from_code_logs_a_number_without_a_field_always)
{
    open(Pattern("p").item(PTRN_BUTN, 20, 20, 60, 36).code("D", 0));
    AppliWnd->KeyInputStart(NUMBER, nullptr, 0);
    AppliWnd->KeyInputStart(12345, HERE, 1);
    const auto log = project.log();
    ASSERT_EQ(log.size(), 2u);
    EXPECT_EQ(log[0].mesg1, "PTRNDISP");
    EXPECT_EQ(log[0].mesg2, "キー入力開始に失敗  [D+0]");
    EXPECT_EQ(log[0].file, "");
    EXPECT_EQ(log[1].mesg2, "キー入力開始に失敗  []");
    EXPECT_FALSE(editing());
}

TEST_F(KeyInputStart, from_code_is_silently_refused_by_a_field_that_may_not_be_edited)
{
    open(fields("p").item(PTRN_NUMR, 150, 20, 190, 36).code("D", 4).parm(FIELD_KEYENTRY, 2));
    for (const int state : {STATE_DISABLE, STATE_HIDDEN, STATE_DISABLE | STATE_HIDDEN}) {
        Set_wData(NUMBER, static_cast<WORD>(state), nullptr, 0);
        tick();
        AppliWnd->KeyInputStart(NUMBER, HERE, 1);
        EXPECT_FALSE(editing());
    }
    Set_wData(NUMBER, STATE_FLICKER | STATE_FROZEN | 3, nullptr, 0);
    tick();
    AppliWnd->KeyInputStart(NUMBER, nullptr, 0);
    EXPECT_TRUE(editing()) << "only disabled and hidden fields refuse";
    AppliWnd->KeyInputStart(104, HERE, 1); // key entry is 2
    EXPECT_EQ(edited(), NUMBER);
    EXPECT_THAT(project.log(), IsEmpty());
    EXPECT_THAT(callsOf({"keystart"}), ElementsAre("keystart 100"));
}
