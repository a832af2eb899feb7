// The contracts of the primitives: what a failed check says, for every condition of every primitive.
#include "draw/DrawCheck.h"
#include "tests/support/Canvas.h"

#include "base/Constants.h"

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{

struct Violation {
    std::function<void(CDraw&)> call;
    const char* condition;
};

/// A text as an extended regular expression that matches just it.
std::string literally(const std::string& text)
{
    std::string expression;
    for (const char c : text) {
        if (std::string("()[]{}*+?.^$|\\").find(c) != std::string::npos)
            expression += '\\';
        expression += c;
    }
    return expression;
}

/// Arguments are checked before anything is drawn, so these contexts have no drawable, and no server runs.
void expectDeath(const char* signature, const std::vector<Violation>& violations)
{
    testing::FLAGS_gtest_death_test_style = "threadsafe";
    for (const Violation& violation : violations) {
        const std::string message =
            "file DrawCntl: line [0-9]+ " + literally("(" + std::string(signature) + ")") +
            ": assertion failed: " + literally("(" + std::string(violation.condition) + ")") + "\n";
        EXPECT_DEATH(
            {
                CPaintDraw draw(nullptr);
                violation.call(draw);
            },
            message);
    }
}

const char* const COLR = "(colr >= 0) && (colr < CONT_COLR)";
const char* const FONT = "(font >= 0) && (font < CONT_FONT)";
const char* const COLR1 = "(colr1 >= 0) && (colr1 < CONT_COLR)";
const char* const COLR2_OPTIONAL = "(colr2 >= -1) && (colr2 < CONT_COLR)";
const char* const X_ORDER = "xpos1 <= xpos2";
const char* const Y_ORDER = "ypos1 <= ypos2";

TEST(DrawContract, of_ClearScreen)
{
    expectDeath("void CDraw::ClearScreen(int)", {
                                                    {[](CDraw& d) { d.ClearScreen(-1); }, COLR},
                                                    {[](CDraw& d) { d.ClearScreen(100); }, COLR},
                                                });
    expectDeath("void CDraw::ClearScreen(RECT, int)",
                {
                    {[](CDraw& d) { d.ClearScreen(RECT{}, -1); }, COLR},
                    {[](CDraw& d) { d.ClearScreen(RECT{}, 100); }, COLR},
                });
    expectDeath("void CDraw::ClearScreen(int, int, int, int, int)",
                {
                    {[](CDraw& d) { d.ClearScreen(0, 0, 9, 9, -1); }, COLR},
                    {[](CDraw& d) { d.ClearScreen(0, 0, 9, 9, 100); }, COLR},
                    {[](CDraw& d) { d.ClearScreen(10, 0, 9, 9, 0); }, X_ORDER},
                    {[](CDraw& d) { d.ClearScreen(0, 10, 9, 9, 0); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.ClearScreen(RECT{9, 0, 8, 0, 0, 0}, 0);
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, of_DrawText)
{
    expectDeath("void CDraw::DrawText(int, int, int, int, int, const char*)",
                {
                    {[](CDraw& d) { d.DrawText(0, 0, -1, 0, 0, "A"); }, FONT},
                    {[](CDraw& d) { d.DrawText(0, 0, 20, 0, 0, "A"); }, FONT},
                    {[](CDraw& d) { d.DrawText(0, 0, 0, -1, 0, "A"); }, COLR1},
                    {[](CDraw& d) { d.DrawText(0, 0, 0, 100, 0, "A"); }, COLR1},
                    {[](CDraw& d) { d.DrawText(0, 0, 0, 0, -2, "A"); }, COLR2_OPTIONAL},
                    {[](CDraw& d) { d.DrawText(0, 0, 0, 0, 100, "A"); }, COLR2_OPTIONAL},
                    {[](CDraw& d) {
                         d.DrawText(POINT{0, 0}, 20, 0, 0, "A");
                     },
                     FONT},
                    {[](CDraw& d) { d.DrawText(0, 0, 20, 0, 0, ""); }, FONT},
                });
}

TEST(DrawContract, of_ClearText)
{
    expectDeath("void CDraw::ClearText(int, int, int, int, const char*)",
                {
                    {[](CDraw& d) { d.ClearText(0, 0, -1, 0, "A"); }, FONT},
                    {[](CDraw& d) { d.ClearText(0, 0, 20, 0, "A"); }, FONT},
                    {[](CDraw& d) { d.ClearText(0, 0, 0, -1, "A"); }, COLR},
                    {[](CDraw& d) {
                         d.ClearText(POINT{0, 0}, 0, 100, "A");
                     },
                     COLR},
                });
}

TEST(DrawContract, of_DrawLine)
{
    const char* const type = "(type >= 0) && (type < 3 )";
    const char* const wide = "(wide >= 1) && (wide < 99 )";
    expectDeath("void CDraw::DrawLine(int, int, int, int, int, int, int, int)",
                {
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, -1, 1, 0, 0); }, type},
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, 3, 1, 0, 0); }, type},
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, 0, 0, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, 0, 99, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, 0, 1, 0, -1); }, COLR},
                    {[](CDraw& d) { d.DrawLine(0, 0, 9, 9, 0, 1, 0, 100); }, COLR},
                    {[](CDraw& d) { d.DrawLine(RECT{}, 3, 1, 0, 0); }, type},
                });
}

TEST(DrawContract, of_DrawRect)
{
    const char* const wide = "(wide >= 0) && (wide < 99 )";
    expectDeath("void CDraw::DrawRect(int, int, int, int, int, int, int, int)",
                {
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, -1, 0, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, 99, 0, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, 0, 0, -1, 0); }, COLR1},
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, 0, 0, 100, 0); }, COLR1},
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, 0, 0, 0, -2); }, COLR2_OPTIONAL},
                    {[](CDraw& d) { d.DrawRect(0, 0, 9, 9, 0, 0, 0, 100); }, COLR2_OPTIONAL},
                    {[](CDraw& d) { d.DrawRect(10, 0, 9, 9, 0, 0, 0, 0); }, X_ORDER},
                    {[](CDraw& d) { d.DrawRect(0, 10, 9, 9, 0, 0, 0, 0); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawRect(RECT{9, 0, 0, 0, 0, 0}, 0, 0, 0, 0);
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, of_DrawCrcl)
{
    const char* const wide = "(wide >= 0) && (wide < 99 )";
    expectDeath("void CDraw::DrawCrcl(int, int, int, int, int, int, int, int)",
                {
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, -1, 0, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, 99, 0, 0, 0); }, wide},
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, 0, 0, -1, 0); }, COLR1},
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, 0, 0, 100, 0); }, COLR1},
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, 0, 0, 0, -2); }, COLR2_OPTIONAL},
                    {[](CDraw& d) { d.DrawCrcl(0, 0, 9, 9, 0, 0, 0, 100); }, COLR2_OPTIONAL},
                    {[](CDraw& d) { d.DrawCrcl(10, 0, 9, 9, 0, 0, 0, 0); }, X_ORDER},
                    {[](CDraw& d) { d.DrawCrcl(0, 10, 9, 9, 0, 0, 0, 0); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawCrcl(RECT{9, 0, 0, 0, 0, 0}, 0, 0, 0, 0);
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, of_DrawGbox)
{
    std::vector<Violation> violations;
    static const char* const WIDTHS[] = {"(wide1 >= 0) && (wide1 < 99 )", "(wide2 >= 0) && (wide2 < 99 )",
                                         "(wide3 >= 0) && (wide3 < 99 )", "(wide4 >= 0) && (wide4 < 99 )"};
    static const char* const COLOURS[] = {
        "(colr1 >= 0) && (colr1 < CONT_COLR)", "(colr2 >= 0) && (colr2 < CONT_COLR)",
        "(colr3 >= 0) && (colr3 < CONT_COLR)", "(colr4 >= 0) && (colr4 < CONT_COLR)",
        "(colr5 >= 0) && (colr5 < CONT_COLR)"};
    const auto gbox = [](CDraw& d, const int(&w)[4], const int(&c)[5]) {
        d.DrawGbox(0, 0, 9, 9, w[0], w[1], w[2], w[3], c[0], c[1], c[2], c[3], c[4]);
    };
    for (const int bad : {-1, 99})
        for (int i = 0; i < 4; i++)
            violations.push_back({[=](CDraw& d) {
                                      int w[4] = {};
                                      w[i] = bad;
                                      gbox(d, w, {});
                                  },
                                  WIDTHS[i]});
    for (const int bad : {-1, 100})
        for (int i = 0; i < 5; i++)
            violations.push_back({[=](CDraw& d) {
                                      int c[5] = {};
                                      c[i] = bad;
                                      gbox(d, {}, c);
                                  },
                                  COLOURS[i]});
    violations.push_back({[](CDraw& d) { d.DrawGbox(10, 0, 9, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0); }, X_ORDER});
    violations.push_back({[](CDraw& d) { d.DrawGbox(0, 10, 9, 9, 0, 0, 0, 0, 0, 0, 0, 0, 0); }, Y_ORDER});
    violations.push_back({[](CDraw& d) {
                              d.DrawGbox(RECT{9, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0, 0, 0, 0, 0);
                          },
                          X_ORDER});
    expectDeath("void CDraw::DrawGbox(int, int, int, int, int, int, int, int, int, int, int, int, int)",
                violations);
}

TEST(DrawContract, of_DrawButn)
{
    const char* const wide = "(wide >= 0) && (wide < 99)";
    expectDeath("void CDraw::DrawButn(int, int, int, int, int, int, int, int, int, int, int, const char*)",
                {
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, 0, 0, -1, -1, "A"); }, FONT},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, 0, 0, -1, 20, "A"); }, FONT},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, -1, 0, 0, 0, 0, -1, 0, "A"); }, wide},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 99, 0, 0, 0, 0, -1, 0, "A"); }, wide},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, -1, 0, 0, 0, -1, 0, "A"); }, COLR1},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 100, 0, 0, 0, -1, 0, "A"); }, COLR1},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, -1, 0, 0, -1, 0, "A"); },
                     "(colr2 >= 0) && (colr2 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 100, 0, 0, -1, 0, "A"); },
                     "(colr2 >= 0) && (colr2 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, -1, 0, -1, 0, "A"); },
                     "(colr3 >= 0) && (colr3 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, 100, 0, -1, 0, "A"); },
                     "(colr3 >= 0) && (colr3 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, 0, -1, -1, 0, "A"); },
                     "(colr4 >= 0) && (colr4 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(0, 0, 9, 9, 0, 0, 0, 0, 100, -1, 0, "A"); },
                     "(colr4 >= 0) && (colr4 < CONT_COLR)"},
                    {[](CDraw& d) { d.DrawButn(10, 0, 9, 9, 0, 0, 0, 0, 0, -1, 0, "A"); }, X_ORDER},
                    {[](CDraw& d) { d.DrawButn(0, 10, 9, 9, 0, 0, 0, 0, 0, -1, 0, "A"); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawButn(RECT{9, 0, 0, 0, 0, 0}, 0, 0, 0, 0, 0, -1, 0, "A");
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, of_DrawMark)
{
    const char* const front = "(colr1 >= 0) && (colr1 < CONT_COLR )";
    const char* const back = "(colr2 >= -1) && (colr2 < CONT_COLR )";
    const char* const mark = "(mark >= 0) && (mark < CONT_MARK+4)";
    expectDeath("void CDraw::DrawMark(int, int, int, int, int, int, int)",
                {
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, -1, 0, 0); }, front},
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, 100, 0, 0); }, front},
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, 0, -2, 0); }, back},
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, 0, 100, 0); }, back},
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, 0, 0, -1); }, mark},
                    {[](CDraw& d) { d.DrawMark(0, 0, 9, 9, 0, 0, 354); }, mark},
                    {[](CDraw& d) { d.DrawMark(10, 0, 9, 9, 0, 0, 0); }, X_ORDER},
                    {[](CDraw& d) { d.DrawMark(0, 10, 9, 9, 0, 0, 0); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawMark(RECT{9, 0, 0, 0, 0, 0}, 0, 0, 0);
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, of_DrawBmap_and_DrawXpm)
{
    const char* const key = "(colr >= -1) && (colr < CONT_COLR)";
    expectDeath("void CDraw::DrawBmap(int, int, int, int, int, const char*)",
                {
                    {[](CDraw& d) { d.DrawBmap(0, 0, 9, 9, -2, "A"); }, key},
                    {[](CDraw& d) { d.DrawBmap(0, 0, 9, 9, 100, "A"); }, key},
                    {[](CDraw& d) { d.DrawBmap(10, 0, 9, 9, 0, "A"); }, X_ORDER},
                    {[](CDraw& d) { d.DrawBmap(0, 10, 9, 9, 0, "A"); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawBmap(RECT{9, 0, 0, 0, 0, 0}, 0, "A");
                     },
                     X_ORDER},
                });
    expectDeath("void CDraw::DrawXpm(int, int, int, int, const char* const*)",
                {
                    {[](CDraw& d) { d.DrawXpm(10, 0, 9, 9, nullptr); }, X_ORDER},
                    {[](CDraw& d) { d.DrawXpm(0, 10, 9, 9, nullptr); }, Y_ORDER},
                    {[](CDraw& d) {
                         d.DrawXpm(RECT{9, 0, 0, 0, 0, 0}, nullptr);
                     },
                     X_ORDER},
                });
}

TEST(DrawContract, checks_in_the_order_of_the_conditions)
{
    expectDeath(
        "void CDraw::DrawRect(int, int, int, int, int, int, int, int)",
        {
            {[](CDraw& d) { d.DrawRect(10, 10, 9, 9, 99, 0, 100, 100); }, "(wide >= 0) && (wide < 99 )"},
            {[](CDraw& d) { d.DrawRect(10, 10, 9, 9, 98, 0, 100, 100); }, COLR1},
            {[](CDraw& d) { d.DrawRect(10, 10, 9, 9, 98, 0, 99, 100); }, COLR2_OPTIONAL},
            {[](CDraw& d) { d.DrawRect(10, 10, 9, 9, 98, 0, 99, 99); }, X_ORDER},
        });
}

TEST(DrawContract, holds_at_both_ends_of_every_range)
{
    usePalette();
    useFont(0, 16);
    useFont(19, 16);
    Canvas canvas(30, 30);
    for (const int end : {0, 99}) {
        canvas->ClearScreen(end);
        canvas->DrawText(0, 0, 19, end, end, "A");
        canvas->DrawText(0, 0, 0, end, -1, "A");
        canvas->ClearText(0, 0, 19, end, "A");
        canvas->DrawGbox(0, 0, 0, 0, 0, 98, 0, 98, end, end, end, end, end);
        canvas->DrawButn(0, 0, 0, 0, 98, end, end, end, end, 0, 19, "A");
        canvas->DrawMark(0, 0, 9, 9, end, end, 0);
        canvas->DrawMark(0, 0, 0, 0, end, -1, 353);
        canvas->DrawBmap(0, 0, 9, 9, end, "");
        canvas->DrawBmap(0, 0, 9, 9, -1, nullptr);
        for (const int wide : {0, 98}) {
            canvas->DrawRect(0, 0, 9, 9, wide, 0, end, end);
            canvas->DrawCrcl(0, 0, 9, 9, wide, 0, end, -1);
            canvas->DrawLine(9, 9, 0, 0, 0, 98, 0, end);
            canvas->DrawLine(9, 9, 0, 0, 2, 1, 0, end);
        }
    }
    canvas->ClearScreen(99);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(0, 0, 30, 30, color(99))));
}

} // namespace
