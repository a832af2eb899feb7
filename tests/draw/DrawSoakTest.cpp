// Drawing for hours: memory and X resources stay where they are after the first drawings, and the last
// drawing is as right as the first.
#include "comndata/ComnData.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "shell/Startup.h"
#include "tests/support/Footprint.h"
#include "tests/support/Picture.h"
#include "tests/support/Screen.h"
#include "tests/support/Sheet.h"

#include <cstring>
#include <filesystem>

using namespace tessary;

namespace
{

constexpr int W = 160;
constexpr int H = 120;

/// Numbers that look random and are the same in every run.
class Numbers
{
  public:
    /// 0..count - 1
    int below(int count)
    {
        state_ = state_ * 1103515245 + 12345;
        return static_cast<int>((state_ >> 16) % static_cast<unsigned>(count));
    }
    int between(int low, int high) { return low + below(high - low + 1); }

  private:
    std::uint32_t state_ = 1;
};

class DrawSoak : public testing::Test
{
  protected:
    DrawSoak()
    {
        useSheet();
        for (MARKDATA& mark : MarkData)
            std::memset(mark.mark, 0x3C, sizeof mark.mark);
        MarkDataSet();
        MarkDataInit();
        std::filesystem::create_directories(project.folder() + "/Bitmap");
        Picture image(24, 16, 0x336699);
        image.fill(4, 4, 20, 12, 0xFFCC00);
        image.save(project.folder() + "/Bitmap/image.png");
        project.write("Bitmap/damaged.png", "\x89PNG\r\n\x1A\n and no more");
    }

    /// One of the primitives with any parameters that it takes, partly outside the drawable.
    static void drawAny(CDraw* draw, int which, Numbers& any)
    {
        static const char* const TEXTS[] = {"", "A", "Pump 3", "漢字かな交じり文", "ﾎﾟﾝﾌﾟ", "\xA4"};
        static char** const IMAGES[] = {XPM_Printer, XPM_SpinButn, XPM_LeftArrow1, XPM_DownArrow2};
        const int x1 = any.between(-40, W);
        const int y1 = any.between(-40, H);
        const int x2 = x1 + any.below(60);
        const int y2 = y1 + any.below(60);
        const int wide = any.below(8);
        const int fomt = any.below(3);
        const auto colr = [&] { return any.below(CONT_COLR); };
        const auto maybe = [&] { return any.between(-1, 1) * any.below(CONT_COLR) < 0 ? -1 : colr(); };
        const char* const text = TEXTS[any.below(6)];
        switch (which % 12) {
        case 0:
            return draw->ClearScreen(x1, y1, x2, y2, colr());
        case 1:
            return draw->DrawText(x1, y1, any.below(4), colr(), maybe(), text);
        case 2:
            return draw->ClearText(x1, y1, any.below(4), colr(), text);
        case 3:
            return draw->DrawLine(x1, y1, any.between(-40, W), y2, any.below(3), wide + 1, fomt, colr());
        case 4:
            return draw->DrawRect(x1, y1, x2, y2, wide, fomt, colr(), maybe());
        case 5:
            return draw->DrawCrcl(x1, y1, x2, y2, wide, fomt, colr(), maybe());
        case 6:
            return draw->DrawGbox(x1, y1, x2, y2, wide, wide, 2, 3, colr(), colr(), colr(), colr(), colr());
        case 7:
            return draw->DrawButn(x1, y1, x2, y2, wide, colr(), colr(), colr(), colr(), any.between(-1, 9),
                                  any.below(4), text);
        case 8:
            return draw->DrawMark(x1, y1, x2, y2, colr(), maybe(), any.below(CONT_MARK + 4));
        case 9:
            return draw->DrawXpm(x1, y1, x2, y2, IMAGES[any.below(4)]);
        case 10:
            return draw->DrawRect(x1, y1, x2, y2, colr());
        default:
            return draw->DrawBmap(x1, y1, x2, y2, maybe(), any.below(8) ? "image.png" : "damaged.png");
        }
    }

    /// The same drawing, made at any time by any context, is the same picture.
    static Picture reference(Canvas& canvas)
    {
        Numbers any;
        canvas.clear();
        for (int which = 0; which < 48; which++)
            drawAny(canvas.draw(), which, any);
        return canvas.picture();
    }

    Project project;
};

} // namespace

TEST_F(DrawSoak, of_20000_mixed_primitives_leaves_nothing_and_draws_on_as_before)
{
    Canvas canvas(W, H);
    const Picture first = reference(canvas);
    Numbers any;
    const auto draw = [&](int count) {
        for (int i = 0; i < count; i++)
            drawAny(canvas.draw(), i, any);
    };
    draw(1000);
    const Footprint before = footprint();
    draw(20000);
    EXPECT_TRUE(holdsNoMore(footprint(), before));

    EXPECT_TRUE(same(reference(canvas), first));
    Canvas fresh(W, H);
    EXPECT_TRUE(same(reference(fresh), first)) << "a new context draws as the used one does";
}

TEST_F(DrawSoak, of_1000_bitmaps_leaves_nothing)
{
    Canvas canvas(W, H);
    Numbers any;
    const auto draw = [&](int count) {
        for (int i = 0; i < count; i++) {
            const int size = any.between(1, 200);
            canvas->DrawBmap(-9, -9, size, size, i % 3 - 1, i % 8 ? "image.png" : "missing.png");
        }
    };
    draw(50);
    const Footprint before = footprint();
    draw(1000);
    EXPECT_TRUE(holdsNoMore(footprint(), before));
}

TEST_F(DrawSoak, of_1000_buffers_releases_each_context_with_its_buffer)
{
    const auto drawOnce = [] {
        Canvas canvas(W, H);
        canvas->DrawMark(0, 0, 40, 40, RED, -1, 350);
        canvas->DrawText(0, 50, 1, BLACK, WHITE, "Pump 3");
    };
    drawOnce();
    const Footprint before = footprint();
    for (int i = 0; i < 1000; i++)
        drawOnce();
    EXPECT_TRUE(holdsNoMore(footprint(), before));
}

TEST_F(DrawSoak, of_a_resource_set_loaded_again_and_again_leaves_nothing)
{
    project.set("FONT", "FONTNAME0", "-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
    project.start();
    DrawCntlExit();
    const Footprint nothing = footprint();
    DrawCntlInit();
    const Footprint loaded = footprint();
    for (int i = 0; i < 10; i++)
        DrawCntlInit();
    EXPECT_TRUE(holdsNoMore(footprint(), loaded));
    EXPECT_NE(loaded.resources, nothing.resources) << "fonts are there";
    DrawCntlExit();
    EXPECT_EQ(footprint().resources, nothing.resources);
}

class WindowSoak : public Screen
{
};

TEST_F(WindowSoak, has_one_context_for_its_buffer_however_often_it_paints)
{
    project.code("DATA", 20, DTNO_SYSTEM);
    Pattern screen("screen");
    screen.size(320, 240).header(HEDR_TITLE_HEIGHT, 30).header(HEDR_CLOCK, 3).title("Soak");
    for (int i = 0; i < 20; i++)
        screen.item(PTRN_NUMR, 20, 40 + i * 9, 80, 50 + i * 9).parm(TEXT_BACKED, 1).code("DATA", i);
    for (int type : {PTRN_GBOX, PTRN_LINE, PTRN_RECT, PTRN_CRCL, PTRN_BARG, PTRN_CHAR, PTRN_RDIO, PTRN_CHCK,
                     PTRN_MARK, PTRN_SBAR})
        screen.item(type, 120, 20 + type * 14, 200, 32 + type * 14).code("DATA", type);
    know(screen);
    start();
    CPtrnDisp* const window = openTop("screen");
    ASSERT_TRUE(window);

    const auto live = [&](int ticks) {
        for (int i = 0; i < ticks; i++) {
            for (int no = DTNO_SYSTEM; no < DTNO_SYSTEM + 20; no++)
                Set_iData(no, i * no % 1000, nullptr, 0);
            Timer_Event(nullptr);
            if (i % 10 == 0)
                gtk_widget_queue_draw(window->DrawArea);
            while (gtk_events_pending())
                gtk_main_iteration();
        }
        Calls().swap(calls); // the fixture's own record of the hooks
    };
    live(50);
    const Footprint before = footprint();
    live(500);
    EXPECT_TRUE(holdsNoMore(footprint(), before));
}
