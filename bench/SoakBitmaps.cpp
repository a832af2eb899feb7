// Ten thousand bitmaps drawn, plain, with a transparent colour and from a file that is missing, with a mark
// and a built-in picture each: resident memory and resources of the X server at the end, against those after
// the first thousand.
//
//   bench_soak_bitmaps [DRAWS]
//
// Needs the X server of $DISPLAY. Ends with 1 when the server holds more than after the first thousand, or
// resident memory has grown by more than 1 % since.
#include "bench/BenchProject.h"
#include "bench/BenchWindow.h"
#include "bench/Holdings.h"
#include "draw/Images.h"

#include <algorithm>

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
    const int draws = std::max(argc > 1 ? std::atoi(argv[1]) : 10000, 2000);
    const BenchProject project(1);
    project.screen("empty", 0, 0);
    {
        const BenchWindow window("empty");
        CPaintDraw draw(window.Pixmap);
        std::printf("Bitmaps, marks and built-in pictures drawn\n");
        PrintHoldingsHead("draws");
        Holdings thousand;
        for (int i = 1; i <= draws; i++) {
            Draw(draw, i);
            if (i == 1000)
                PrintHoldings(i, thousand = MeasureHoldings());
            else if (i % 2500 == 0 && i < draws)
                PrintHoldings(i, MeasureHoldings());
        }
        const Holdings end = MeasureHoldings();
        PrintHoldings(draws, end);
        g_object_unref(draw.gc);
        return Verdict(ServerHoldsMore(end, thousand) || MemoryHasGrown(end, thousand));
    }
}
