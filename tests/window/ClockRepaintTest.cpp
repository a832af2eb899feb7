// The title-bar clock and full repaints.
#include "tests/support/Screen.h"

#include "comndata/ComnData.h"

using namespace tessary;

namespace
{

class ClockRepaint : public Screen
{
  protected:
    void SetUp() override
    {
        project.code("CLOCK", 7).code("OTHER", 92);
        know(Pattern("p")
                 .size(400, 100)
                 .title("")
                 .header(HEDR_TITLE_HEIGHT, 30)
                 .header(HEDR_CLOCK, 3)
                 .header(HEDR_TITLE_COLOR, 1)
                 .header(HEDR_TITLE_BACK, 2));
        start();
    }

    /// Pixels of the title bar in the colour of its texts.
    int inked()
    {
        int count = 0;
        const Picture bar = user.picture(0, 0, 400, 30);
        for (const std::uint32_t pixel : bar.pixels)
            count += pixel == color(1);
        return count;
    }
};

} // namespace

TEST_F(ClockRepaint, a_repaint_within_the_same_second_shows_the_clock_again)
{
    CPtrnDisp* wnd = openTop("p");
    user.settle();
    const int before = inked();
    ASSERT_GT(before, 0);

    wnd->PaintEvent(); // as after a configure event
    wnd->PtrnUpdate();
    user.settle();
    EXPECT_EQ(inked(), before);
}

TEST_F(ClockRepaint, a_tick_shows_a_second_that_was_not_shown_yet)
{
    CPtrnDisp* wnd = openTop("p");
    CPaintDraw draw(wnd->Pixmap);
    draw.DrawRect(0, 0, 400, 30, 0, 0, 2, 2);
    g_object_unref(draw.gc);
    wnd->PtrnData->PtrnCalnSec = -1;
    tick();
    EXPECT_GT(inked(), 0);
    EXPECT_EQ(wnd->PtrnData->PtrnCalnSec, Get_iData(DTNO_SYSCALN + 6, nullptr, 0));
}
