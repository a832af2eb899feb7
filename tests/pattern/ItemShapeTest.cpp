// Group box, line, rectangle and circle.
#include "tests/pattern/ItemCanvas.h"

using namespace tessary;

namespace
{

constexpr int NONE = -1;
constexpr int DISABLED = STATE_DISABLE;

class GroupBoxItem : public ItemCanvas
{
};

TEST_F(GroupBoxItem, has_five_colours_for_each_selection_and_four_widths)
{
    for (int c = 0; c < 4; c++) {
        clear();
        PTRNDATA item = make(Pattern("p")
                                 .item(PTRN_GBOX, 10, 20, 90, 70)
                                 .parm(GBOX_TOP_WIDTH, 1)
                                 .parm(GBOX_BOTTOM_WIDTH, 2)
                                 .parm(GBOX_LEFT_WIDTH, 3)
                                 .parm(GBOX_RIGHT_WIDTH, 4),
                             c);
        draw(item);
        model->DrawGbox(10, 20, 90, 70, 1, 2, 3, 4, 8 + c, 12 + c, 16 + c, 20 + c, 4 + c);
        EXPECT_TRUE(asModelled()) << c;
    }
}

TEST_F(GroupBoxItem, takes_its_corners_in_any_order)
{
    PTRNDATA item = make(Pattern("p").item(PTRN_GBOX, 90, 70, 10, 20));
    draw(item);
    model->DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 8, 12, 16, 20, 4);
    EXPECT_TRUE(asModelled());
}

TEST_F(GroupBoxItem, looks_the_same_when_disabled_flickering_or_frozen)
{
    PTRNDATA item =
        make(Pattern("p").item(PTRN_GBOX, 10, 20, 90, 70), DISABLED | STATE_FLICKER | STATE_FROZEN | 2);
    draw(item);
    model->DrawGbox(10, 20, 90, 70, 2, 2, 2, 2, 10, 14, 18, 22, 6);
    EXPECT_TRUE(asModelled());
}

TEST_F(GroupBoxItem, is_erased_as_a_filled_box)
{
    PTRNDATA item = make(Pattern("p").item(PTRN_GBOX, 10, 20, 90, 70));
    erase(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, 90, 70, color(29))));
}

class LineItem : public ItemCanvas
{
};

TEST_F(LineItem, has_a_colour_for_each_selection)
{
    for (int c = 0; c < 4; c++) {
        clear();
        PTRNDATA item = make(Pattern("p").item(PTRN_LINE, 10, 20, 90, 20), c);
        draw(item);
        model->DrawLine(10, 20, 90, 20, 0, 1, 0, 4 + c);
        EXPECT_TRUE(asModelled()) << c;
    }
}

TEST_F(LineItem, passes_on_type_width_and_format)
{
    for (const int type : {0, 1, 2}) {
        for (const int fomt : {0, 1, 2}) {
            clear();
            PTRNDATA item = make(Pattern("p")
                                     .item(PTRN_LINE, 50, 20, 50, 70)
                                     .parm(LINE_TYPE, type)
                                     .parm(LINE_WIDTH, 4)
                                     .parm(LINE_FOMT, fomt));
            draw(item);
            model->DrawLine(50, 20, 50, 70, type, 4, fomt, 4);
            EXPECT_TRUE(asModelled()) << type << ' ' << fomt;
        }
    }
}

TEST_F(LineItem, always_falls_to_the_right)
{
    PTRNDATA item = make(Pattern("p").item(PTRN_LINE, 10, 70, 90, 20));
    draw(item);
    model->DrawLine(10, 20, 90, 70, 0, 1, 0, 4);
    EXPECT_TRUE(asModelled());
}

TEST_F(LineItem, is_erased_as_the_same_line)
{
    PTRNDATA item = make(Pattern("p")
                             .item(PTRN_LINE, 10, 20, 90, 70)
                             .parm(LINE_TYPE, 1)
                             .parm(LINE_WIDTH, 3)
                             .parm(LINE_FOMT, 2),
                         3);
    erase(item);
    model->DrawLine(10, 20, 90, 70, 1, 3, 2, 29);
    EXPECT_TRUE(asModelled());
}

/// Rectangle and circle have the same parameters.
class ShapeItem : public ItemCanvas, public testing::WithParamInterface<int>
{
  protected:
    void modelShape(int wide, int fomt, int colr1, int colr2)
    {
        if (GetParam() == PTRN_RECT)
            model->DrawRect(10, 20, 90, 70, wide, fomt, colr1, colr2);
        else
            model->DrawCrcl(10, 20, 90, 70, wide, fomt, colr1, colr2);
    }
};

INSTANTIATE_TEST_SUITE_P(RectangleAndCircle, ShapeItem, testing::Values(PTRN_RECT, PTRN_CRCL));

TEST_P(ShapeItem, is_outlined_in_a_colour_for_each_selection)
{
    for (int c = 0; c < 4; c++) {
        clear();
        PTRNDATA item = make(Pattern("p").item(GetParam(), 10, 20, 90, 70), c);
        draw(item);
        modelShape(1, 0, 4 + c, NONE);
        EXPECT_TRUE(asModelled()) << c;
    }
}

TEST_P(ShapeItem, is_filled_when_it_is_told_to)
{
    for (const int filled : {1, 7, -1}) {
        for (int c = 0; c < 4; c++) {
            clear();
            PTRNDATA item = make(Pattern("p").item(GetParam(), 10, 20, 90, 70).parm(SHAPE_FILLED, filled), c);
            draw(item);
            modelShape(1, 0, 4 + c, 8 + c);
            EXPECT_TRUE(asModelled()) << filled << ' ' << c;
        }
    }
}

TEST_P(ShapeItem, passes_on_width_and_format)
{
    for (const int fomt : {0, 1, 2}) {
        for (const int wide : {0, 1, 5}) {
            clear();
            PTRNDATA item = make(Pattern("p")
                                     .item(GetParam(), 90, 70, 10, 20)
                                     .parm(SHAPE_FILLED, 1)
                                     .parm(SHAPE_WIDTH, wide)
                                     .parm(SHAPE_FOMT, fomt));
            draw(item);
            modelShape(wide, fomt, 4, 8);
            EXPECT_TRUE(asModelled()) << fomt << ' ' << wide;
        }
    }
}

TEST_P(ShapeItem, is_erased_as_the_same_shape_filled)
{
    PTRNDATA item =
        make(Pattern("p").item(GetParam(), 10, 20, 90, 70).parm(SHAPE_WIDTH, 3).parm(SHAPE_FOMT, 2));
    erase(item);
    modelShape(3, 2, 29, 29);
    EXPECT_TRUE(asModelled());
}

TEST_P(ShapeItem, looks_the_same_when_disabled)
{
    PTRNDATA item = make(Pattern("p").item(GetParam(), 10, 20, 90, 70), DISABLED);
    draw(item);
    modelShape(1, 0, 4, NONE);
    EXPECT_TRUE(asModelled());
}

} // namespace
