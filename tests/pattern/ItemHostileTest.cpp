// Items whose parameters no author would write: nothing may crash, hang or reach outside a table, and colour,
// font and mark numbers out of range meet the contracts of the primitives.
#include "tests/pattern/ItemCanvas.h"

#include <limits>
#include <random>

using namespace tessary;

namespace
{

class HostileItem : public ItemCanvas
{
  protected:
    /// Every way of drawing an item.
    void drawAll(PTRNDATA item)
    {
        for (const int state : {0, 1, 3, STATE_DISABLE | 2}) {
            item.wData = static_cast<WORD>(state);
            draw(item, 0);
            draw(item, 1);
            erase(item);
            for (const int phase : {0, 1}) {
                if (item.Type == PTRN_FCHR || item.Type == PTRN_CHAR || item.Type == PTRN_NUMR)
                    data().FlikPtrnData06(canvas.draw(), &item, phase);
                if (item.Type == PTRN_MARK)
                    data().FlikPtrnData13(canvas.draw(), &item, phase);
            }
        }
    }

    /// The display has accepted everything, and nothing is left in the context that a next drawing shows.
    void expectContextIntact()
    {
        canvas.clear();
        canvas->DrawRect(10, 20, 60, 40, 1, 1, 5, 8);
        canvas->DrawLine(10, 50, 60, 50, 0, 1, 0, 6);
        EXPECT_TRUE(same(canvas.picture(), canvas.blank()
                                               .fill(10, 20, 60, 40, color(8))
                                               .frame(10, 20, 60, 40, color(5))
                                               .row(10, 60, 50, color(6))));
    }
};

TEST_F(HostileItem, may_lie_anywhere)
{
    const int places[] = {INT32_MIN, -2000000000, -65536, -32769, -1,         0,
                          50,        32767,       32768,  65536,  2000000000, INT32_MAX};
    std::mt19937 random(20);
    const auto any = [&] { return places[random() % std::size(places)]; };
    for (int type = 1; type <= CONT_PTRN; type++) {
        for (int round = 0; round < 60; round++) {
            PTRNDATA item = make(Pattern("p")
                                     .item(type, any(), any(), any(), any())
                                     .text(type == PTRN_BMAP ? "none.ppm" : "text")
                                     .code("A"));
            item.fData = round % 3 ? 50.0f : std::numeric_limits<float>::infinity();
            drawAll(item);
        }
    }
    expectContextIntact();
}

TEST_F(HostileItem, may_have_sizes_and_counts_without_sense)
{
    const int sizes[] = {INT32_MIN, -99, -1, 0, 1, 98, 255, 1000, INT32_MAX};
    for (const int size : sizes) {
        for (const int other : sizes) {
            PTRNDATA field = make(Pattern("p")
                                      .item(PTRN_CHAR, 10, 20, 60, 40)
                                      .parm(FIELD_WIDTH, size)
                                      .parm(TEXT_BACKED, other));
            std::memset(field.sData, 0xB0, 255);
            drawAll(field);
            PTRNDATA number = make(Pattern("p")
                                       .item(PTRN_NUMR, 10, 20, 60, 40)
                                       .parm(FIELD_WIDTH, size)
                                       .parm(FIELD_DECIMALS, other)
                                       .parm(FIELD_GROUPING, 1)
                                       .parm(TEXT_BACKED, 1)
                                       .code("A"));
            drawAll(number);
            drawAll(make(Pattern("p")
                             .item(PTRN_BUTN, 10, 20, 60, 40)
                             .parm(BUTN_POST_ON, 1)
                             .parm(BUTN_POST, size)
                             .text("Start")));
            PTRNDATA graph = make(Pattern("p")
                                      .item(PTRN_BARG, 10, 20, 60, 40)
                                      .parm(BARG_MINIMUM, size)
                                      .parm(BARG_MAXIMUM, other)
                                      .parm(BARG_HORIZONTAL, other));
            graph.fData = -1e30f;
            drawAll(graph);
            drawAll(
                make(Pattern("p").item(PTRN_LINE, 10, 20, 60, 40).parm(LINE_FOMT, size).parm(LINE_WIDTH, 3)));
            drawAll(make(
                Pattern("p").item(PTRN_RECT, 10, 20, 60, 40).parm(SHAPE_FOMT, size).parm(SHAPE_WIDTH, 3)));
        }
    }
    expectContextIntact();
}

using HostileItemDeathTest = HostileItem;

TEST_F(HostileItemDeathTest, with_a_number_out_of_range_meets_the_contract)
{
    const struct {
        Pattern pattern;
        const char* message;
    } cases[] = {
        {Pattern("p").item(PTRN_GBOX, 10, 20, 60, 40).parm(GBOX_TOP4, 100), "DrawGbox.*colr1 < CONT_COLR"},
        {Pattern("p").item(PTRN_LINE, 10, 20, 60, 40).parm(LINE_WIDTH, 0), "DrawLine.*wide >= 1"},
        {Pattern("p").item(PTRN_RECT, 10, 20, 60, 40).parm(SHAPE_OUTLINE4, -1), "DrawRect.*colr1 >= 0"},
        {Pattern("p").item(PTRN_CRCL, 10, 20, 60, 40).parm(SHAPE_WIDTH, 99), "DrawCrcl.*wide < 99 "},
        {Pattern("p").item(PTRN_BARG, 10, 20, 60, 40).parm(BARG_NEEDLE_WIDTH, 99), "DrawLine.*wide < 99 "},
        {Pattern("p").item(PTRN_FCHR, 10, 20, 60, 40).parm(TEXT_FONT, 20), "DrawText.*font < CONT_FONT"},
        {Pattern("p").item(PTRN_CHAR, 10, 20, 60, 40).parm(TEXT_FONT, -1).parm(TEXT_BACKED, 1),
         "DrawText.*font >= 0"},
        {Pattern("p").item(PTRN_BUTN, 10, 20, 60, 40).parm(BUTN_FONT, 20), "DrawButn.*font < CONT_FONT"},
        {Pattern("p").item(PTRN_RDIO, 10, 20, 60, 40).parm(CHECK_FONT, 20), "DrawText.*font < CONT_FONT"},
        {Pattern("p").item(PTRN_BMAP, 10, 20, 60, 40).parm(BMAP_KEYED, 1).parm(BMAP_KEY_COLOR, 100),
         "DrawBmap.*colr < CONT_COLR"},
        {Pattern("p").item(PTRN_MARK, 10, 20, 60, 40).parm(MARK_NUMBER4, 354),
         "DrawMark.*mark < CONT_MARK.4"},
    };
    for (const auto& [pattern, message] : cases) {
        PTRNDATA item = make(pattern);
        EXPECT_DEATH(draw(item), message);
    }
}

} // namespace
