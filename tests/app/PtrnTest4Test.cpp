// Graphs: the trend that the screen draws in the frame of an item.
#include "tests/app/SampleScreen.h"

#include <algorithm>
#include <set>

using namespace tessary;

namespace
{

constexpr int FRAME_COLOR = 60;
constexpr int OVERLAY_COLOR = 61;
constexpr int LEFT = 20; ///< of the frame
constexpr int TOP = 30;
constexpr int WIDTH = 200;  ///< two pixels a sample
constexpr int HEIGHT = 100; ///< one pixel a value
constexpr int OVERLAY_X = LEFT + 6;
constexpr int TICKS_PER_SAMPLE = 5;
constexpr int LOWEST[] = {15, 35, 55, 75};

class Trend : public SampleScreen
{
  protected:
    Pattern trend()
    {
        Pattern pattern("テスト  （グラフ）");
        pattern.size(300, 200)
            .item(PTRN_RECT, LEFT, TOP, LEFT + WIDTH, TOP + HEIGHT)
            .parm(SHAPE_FILLED, 1)
            .parm(SHAPE_WIDTH, 0)
            .parm4(SHAPE_FILL4, FRAME_COLOR, FRAME_COLOR, FRAME_COLOR, FRAME_COLOR)
            .code(CODE, offset(113))
            .item(PTRN_LINE, OVERLAY_X, TOP, OVERLAY_X, TOP + HEIGHT)
            .parm4(LINE_COLOR4, OVERLAY_COLOR, OVERLAY_COLOR, OVERLAY_COLOR, OVERLAY_COLOR)
            .code(CODE, offset(112));
        return pattern;
    }

    /// The window as it is shown after its next update.
    Picture shown()
    {
        AppliWnd->PtrnUpdate();
        user.settle();
        return user.picture(0, 0, 300, 200);
    }
    /// Number of samples that a series shows: it ends where the last one is.
    int samples(const Picture& picture, int series)
    {
        int right = -1;
        for (int y = 0; y < picture.height(); y++)
            for (int x = 0; x < picture.width(); x++)
                if (picture.at(x, y) == color(50 + series))
                    right = std::max(right, x);
        return right < 0 ? 0 : (right + 1 - LEFT) / 2 + 1;
    }
};

} // namespace

TEST_F(Trend, takes_a_sample_of_every_series_at_every_fifth_tick)
{
    open(trend());
    tick(2 * TICKS_PER_SAMPLE); // from two samples on there is a line
    int before = samples(shown(), 0);
    ASSERT_GE(before, 2);
    for (int round = 0; round < 3; round++) {
        tick(TICKS_PER_SAMPLE - 1);
        EXPECT_EQ(samples(shown(), 0), before);
        tick();
        before++;
        const Picture picture = shown();
        for (int series = 0; series < 4; series++)
            EXPECT_EQ(samples(picture, series), before);
    }
}

TEST_F(Trend, a_full_paint_takes_a_sample_at_once)
{
    open(trend());
    tick(2 * TICKS_PER_SAMPLE);
    const int before = samples(shown(), 0);
    AppliWnd->PaintEvent();
    EXPECT_EQ(samples(shown(), 0), before + 1);
}

TEST_F(Trend, each_series_keeps_to_its_band_and_moves_in_it)
{
    open(trend());
    tick(60 * TICKS_PER_SAMPLE);
    const Picture picture = shown();
    std::set<int> rows[4];
    for (int y = 0; y < picture.height(); y++)
        for (int x = 0; x < picture.width(); x++)
            for (int series = 0; series < 4; series++)
                if (picture.at(x, y) == color(50 + series)) {
                    EXPECT_GE(x, LEFT);
                    EXPECT_LT(x, LEFT + WIDTH);
                    rows[series].insert(y - TOP);
                }
    for (int series = 0; series < 4; series++) {
        ASSERT_FALSE(rows[series].empty());
        EXPECT_GE(*rows[series].begin(), LOWEST[series]);
        EXPECT_LE(*rows[series].rbegin(), LOWEST[series] + 9);
        EXPECT_GT(rows[series].size(), 5u) << "series " << series;
    }
}

TEST_F(Trend, samples_lie_at_hundredths_of_the_frame_s_width_and_height)
{
    constexpr int wide = 250; // neither is a multiple of 100
    constexpr int high = 130;
    Pattern("テスト  （グラフ）")
        .size(300, 200)
        .item(PTRN_RECT, LEFT, TOP, LEFT + wide, TOP + high)
        .code(CODE, offset(113))
        .save(project);
    start();
    openTop("テスト  （グラフ）");
    tick(95 * TICKS_PER_SAMPLE);
    const Picture picture = shown();
    for (int series = 0; series < 4; series++) {
        std::set<int> taken;
        std::set<int> rows;
        for (int value = LOWEST[series]; value < LOWEST[series] + 10; value++)
            rows.insert(high * value / 100);
        for (int i = 0; i < 95; i++) {
            const int x = LEFT + wide * i / 100;
            const auto hit = std::find_if(rows.begin(), rows.end(), [&](int row) {
                return picture.at(x, TOP + row) == color(50 + series);
            });
            ASSERT_NE(hit, rows.end()) << "series " << series << ", sample " << i;
            taken.insert(*hit);
        }
        EXPECT_EQ(taken, rows) << "all ten values of series " << series;
    }
}

TEST_F(Trend, starts_again_from_the_left_after_100_samples)
{
    open(trend());
    tick(2 * TICKS_PER_SAMPLE);
    const int before = samples(shown(), 0);
    tick((100 - before) * TICKS_PER_SAMPLE);
    EXPECT_EQ(samples(shown(), 0), 100);
    tick(TICKS_PER_SAMPLE); // one sample is no line yet
    EXPECT_EQ(samples(shown(), 0), 0);
    tick(TICKS_PER_SAMPLE);
    EXPECT_EQ(samples(shown(), 0), 2);
}

TEST_F(Trend, lies_on_the_frame_and_below_the_overlay)
{
    open(trend());
    tick(10 * TICKS_PER_SAMPLE);
    const Picture picture = shown();
    for (int y = TOP; y < TOP + HEIGHT; y++)
        EXPECT_EQ(picture.at(OVERLAY_X, y), color(OVERLAY_COLOR)) << y;
    EXPECT_EQ(picture.at(LEFT, TOP), color(FRAME_COLOR));
    EXPECT_EQ(picture.at(LEFT + WIDTH - 1, TOP + HEIGHT - 1), color(FRAME_COLOR));
}

TEST_F(Trend, wipes_the_frame_before_each_drawing)
{
    open(trend());
    tick(90 * TICKS_PER_SAMPLE);
    const int ink = samples(shown(), 3);
    ASSERT_GE(ink, 90);
    tick(15 * TICKS_PER_SAMPLE);
    const Picture picture = shown();
    for (int x = LEFT + 60; x < LEFT + WIDTH; x++)
        for (int y = TOP; y < TOP + HEIGHT; y++)
            EXPECT_EQ(picture.at(x, y), color(FRAME_COLOR)) << x << "," << y;
}

TEST_F(Trend, draws_nothing_without_a_frame_item)
{
    open(Pattern("テスト  （グラフ）")
             .size(300, 200)
             .item(PTRN_CRCL, LEFT, TOP, LEFT + WIDTH, TOP + HEIGHT)
             .code(CODE, offset(113)));
    tick(20 * TICKS_PER_SAMPLE);
    const Picture picture = shown();
    for (int series = 0; series < 4; series++)
        EXPECT_EQ(samples(picture, series), 0) << "another type is no frame";
}

TEST_F(Trend, survives_frames_of_any_size)
{
    for (const auto& [x, y] : {std::pair(LEFT, TOP), std::pair(LEFT + 1, TOP + 1), std::pair(30000, 30000),
                               std::pair(2147483647, 2147483647)}) {
        Pattern("テスト  （グラフ）")
            .size(300, 200)
            .item(PTRN_RECT, LEFT, TOP, x, y)
            .code(CODE, offset(113))
            .save(project);
        if (!AppliWnd)
            start();
        openTop("テスト  （グラフ）");
        tick(3 * TICKS_PER_SAMPLE);
    }
}
