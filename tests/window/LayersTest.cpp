// Restored areas in a window: its field in edit stays above, and screen classes redraw items by number.
#include "tests/support/UseEdition.h"
#include "tests/window/KeyEdit.h"

#include "config/Edition.h"

using namespace tessary;

namespace
{

class WindowLayers : public KeyEdit
{
  protected:
    /// The fields over a box in state colours, which is bound to number 110.
    static Pattern fieldsOverBox()
    {
        Pattern pattern = fields("p");
        pattern.item(PTRN_RECT, 0, 0, 200, 190)
            .parm(SHAPE_FILLED, 1)
            .parm(SHAPE_WIDTH, 0)
            .parm4(SHAPE_FILL4, 40, 41, 42, 43)
            .code("D", 10);
        return pattern;
    }
    static constexpr int BOX = NUMBER + 10;

    static void setState(int no, int word) { Set_wData(no, static_cast<WORD>(word), nullptr, 0); }
};

} // namespace

TEST_F(WindowLayers, keep_a_field_in_edit_above)
{
    const UseEdition edition;
    open(fieldsOverBox());
    Set_sData(TEXT, "abc", nullptr, 0);
    tick();
    edit(TEXT);
    tick();
    const Picture before = bufferPicture(AppliWnd, LEFT, top(TEXT), CELL * 8, LINE);
    setState(BOX, 2);
    tick();
    EXPECT_EQ(bufferPixel(AppliWnd, 5, 5), color(42)) << "the box has changed";
    EXPECT_EQ(bufferPixel(AppliWnd, LEFT - 1, top(TEXT)), color(42));
    EXPECT_TRUE(same(bufferPicture(AppliWnd, LEFT, top(TEXT), CELL * 8, LINE), before));
}

TEST_F(WindowLayers, are_restored_where_a_screen_class_redraws_a_number)
{
    const auto redrawn = [&] {
        Set_sData(TEXT, "HHH", nullptr, 0);
        tick();
        Set_sData(TEXT, "O", nullptr, 0);
        CPaintDraw draw(AppliWnd->Pixmap);
        AppliWnd->PtrnDispData(&draw, TEXT, PTRN_CHAR);
        g_object_unref(draw.gc);
        return bufferPicture(AppliWnd, LEFT, top(TEXT), 64, LINE);
    };
    open(fieldsOverBox());
    const Picture printedOver = redrawn();
    AppliWnd->PtrnExit();

    const UseEdition edition;
    openTop("p");
    EXPECT_FALSE(same(redrawn(), printedOver));
    Canvas expected(64, LINE);
    expected->ClearScreen(40);
    expected->DrawText(0, 0, 0, 4, -1, "O");
    EXPECT_TRUE(same(redrawn(), expected.picture()));
}

TEST_F(WindowLayers, lie_over_the_plain_ground_where_the_body_s_bitmap_is_missing)
{
    const UseEdition edition;
    know(Pattern("bare").size(200, 200).bitmap("missing").item(PTRN_RECT, 50, 50, 100, 100).code("D"));
    start();
    openTop("bare");
    const Picture opened = bufferPicture(AppliWnd, 0, 0, 200, 200);
    setState(NUMBER, STATE_HIDDEN);
    tick();
    const std::uint32_t ground = opened.at(10, 10);
    EXPECT_NE(opened.at(50, 50), ground);
    EXPECT_EQ(bufferPicture(AppliWnd, 0, 0, 200, 200).count(ground), 200 * 200);
    setState(NUMBER, 0);
    tick();
    EXPECT_TRUE(same(bufferPicture(AppliWnd, 0, 0, 200, 200), opened));
}
