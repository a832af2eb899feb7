// A hundred thousand bitmaps drawn, plain, with a transparent colour and from a file that is missing, with a
// mark and a built-in picture each: what is held at the end, against what was held after the first thousand.
//
//   bench_soak_bitmaps [DRAWS]
//
// Needs the X server of $DISPLAY. Ends with 1 when something is left behind, see bench/Holdings.h.
#include "bench/BenchProject.h"
#include "bench/BenchWindow.h"
#include "bench/Holdings.h"
#include "draw/Images.h"

namespace
{

/// Boxes of 899 sizes, as on all the screens of a panel together, some of which reach beyond the drawable.
/// Each has come once after the first thousand.
RECT Box(int round)
{
    const int left = round * 37 % BenchProject::WIDTH - 20;
    const int top = round * 53 % BenchProject::HEIGHT - 20;
    return SetRect(left, top, left + 3 * (round % 31), top + 3 * (round % 29));
}

void Draw(CDraw& draw, int round)
{
    const RECT box = Box(round);
    draw.DrawBmap(box, round % 3 == 0 ? -1 : round % CONT_COLR, round % 10 == 9 ? "none.ppm" : "lamp.ppm");
    draw.DrawMark(box, round % CONT_COLR, round % 2 == 0 ? -1 : 1, round % CONT_MARK);
    draw.DrawXpm(box, XPM_Printer);
}

} // namespace

int main(int argc, char** argv)
{
    const BenchProject project(1);
    project.screen("empty", 0, 0);
    const BenchWindow window("empty");
    CPaintDraw draw(window.Pixmap);
    const bool kept = Soak("Bitmaps, marks and built-in pictures drawn",
                           argc > 1 ? std::atoi(argv[1]) : 100000, [&](int round) { Draw(draw, round); });
    g_object_unref(draw.gc);
    return kept ? 0 : 1;
}
