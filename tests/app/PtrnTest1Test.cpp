// Shapes: clicked marks change colour and blink for five seconds.
#include "tests/app/SampleScreen.h"

using namespace tessary;

namespace
{

constexpr int FIRST_MARK = 454;
constexpr int LAST_MARK = 467;
constexpr int BLINK_TICKS = 50;

class Shapes : public SampleScreen
{
  protected:
    void SetUp() override
    {
        Pattern pattern("テスト  （図形）");
        pattern.size(600, 60);
        for (int no = FIRST_MARK; no <= LAST_MARK; no++)
            pattern.item(PTRN_MARK, left(no), 10, left(no) + 32, 42)
                .parm4(MARK_NUMBER4, 352, 352, 352, 352)
                .parm(MARK_BACKED, 1)
                .code(CODE, offset(no))
                .action(ACTION_MESSAGE_SELF);
        pattern.save(project);
        start();
    }
    void openShapes() { ASSERT_TRUE(openTop("テスト  （図形）")); }

    static int left(int no) { return 10 + 40 * (no - FIRST_MARK); }
    void clickMark(int no) { clickAt(left(no) + 16, 26); }
};

} // namespace

TEST_F(Shapes, a_clicked_mark_changes_its_colour_and_blinks_for_50_ticks)
{
    openShapes();
    clickMark(460);
    EXPECT_EQ(word(460), 0x2001);
    tick(BLINK_TICKS - 1);
    EXPECT_EQ(word(460), 0x2001);
    tick();
    EXPECT_EQ(word(460), 0x0001);
    tick(BLINK_TICKS);
    EXPECT_EQ(word(460), 0x0001);
}

TEST_F(Shapes, every_mark_answers_on_its_own)
{
    openShapes();
    for (int no = FIRST_MARK; no <= LAST_MARK; no++) {
        clickMark(no);
        tick();
    }
    for (int no = FIRST_MARK; no <= LAST_MARK; no++)
        EXPECT_EQ(word(no), 0x2001) << no;
    // The marks were clicked one tick after the other, so they come to rest one after the other.
    tick(BLINK_TICKS - (LAST_MARK - FIRST_MARK + 1));
    for (int no = FIRST_MARK; no <= LAST_MARK; no++) {
        EXPECT_FALSE(blinks(no)) << no;
        if (no < LAST_MARK) {
            EXPECT_TRUE(blinks(no + 1)) << no;
        }
        tick();
    }
}

TEST_F(Shapes, a_second_click_changes_the_colour_back_and_blinks_for_another_50_ticks)
{
    openShapes();
    clickMark(454);
    tick(30);
    clickMark(454);
    EXPECT_EQ(word(454), 0x2000);
    tick(BLINK_TICKS - 1);
    EXPECT_TRUE(blinks(454));
    tick();
    EXPECT_EQ(word(454), 0);
}

TEST_F(Shapes, the_blinking_is_seen)
{
    openShapes();
    clickMark(454);
    bool shown = false;
    bool blanked = false;
    for (int i = 0; i < 20; i++) {
        tick();
        const int ink = user.picture(left(454), 10, 32, 32).count(color(MARK_COLOR4 + 1));
        (ink > 0 ? shown : blanked) = true;
    }
    EXPECT_TRUE(shown);
    EXPECT_TRUE(blanked);
}

TEST_F(Shapes, opening_stops_the_blinking_of_the_marks_and_keeps_their_colours)
{
    setWord(453, 0x2001);
    setWord(468, 0x2001);
    for (int no = FIRST_MARK; no <= LAST_MARK; no++)
        setWord(no, 0x2003);
    openShapes();
    for (int no = FIRST_MARK; no <= LAST_MARK; no++)
        EXPECT_EQ(word(no), 0x0003) << no;
    EXPECT_EQ(word(453), 0x2001);
    EXPECT_EQ(word(468), 0x2001);
}

TEST_F(Shapes, other_messages_change_nothing)
{
    openShapes();
    for (const int no : {-1, 0, 1, FIRST_MARK - 1, LAST_MARK + 1, 1571, 2147483647}) {
        AppliWnd->PtrnMesgFunc(no);
        EXPECT_EQ(word(no), 0) << no;
    }
    tick(BLINK_TICKS);
}
