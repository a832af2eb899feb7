// A made-up plant, from its compiled links to the cells of a running store.
#include "links/Simulate.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "links/ModelFile.h"
#include "links/Waves.h"
#include "tessary_plant.h"
#include "tests/support/Project.h"

#include <cmath>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;
using testing::AllOf;
using testing::Contains;
using testing::Ge;
using testing::HasSubstr;
using testing::Le;

namespace
{

LinkPoint wave(Wave kind, double from, double to, int period)
{
    LinkPoint point;
    point.wave = kind;
    point.from = from;
    point.to = to;
    point.period = period;
    return point;
}

class Simulated : public testing::Test
{
  protected:
    Simulated() { project.code("SYS", 99).code("A", 20).start(); }

    static LinkPoint of(const std::string& code, int offset, LinkPoint point)
    {
        point.data = {code, offset};
        return point;
    }
    static LinkConnection made(std::vector<LinkPoint> points)
    {
        LinkConnection connection;
        connection.name = "demo";
        connection.kind = LINK_SIMULATE;
        connection.points = std::move(points);
        return connection;
    }
    static double cell(int offset) { return Get_dData(100 + offset, nullptr, 0); }

    Project project;
    Looks looks;
};

} // namespace

TEST(Waves, go_from_one_value_to_the_other)
{
    EXPECT_EQ(WaveAt(wave(WAVE_SINE, 10, 30, 4000), 0), 10);
    EXPECT_EQ(WaveAt(wave(WAVE_SINE, 10, 30, 4000), 2), 30);
    EXPECT_EQ(WaveAt(wave(WAVE_RAMP, 0, 8, 4000), 5), 2);
    EXPECT_EQ(WaveAt(wave(WAVE_TRIANGLE, 0, 8, 4000), 3), 4);
    EXPECT_EQ(WaveAt(wave(WAVE_SQUARE, 1, 2, 4000), 1), 1);
    EXPECT_EQ(WaveAt(wave(WAVE_SQUARE, 1, 2, 4000), 3), 2);
    EXPECT_EQ(WaveAt(wave(WAVE_COUNTER, 5, 7, 1000), 4.5), 6);
    EXPECT_EQ(WaveAt(wave(WAVE_CONSTANT, 5, 7, 1000), 4.5), 5);
    LinkPoint steps = wave(WAVE_STEPS, 0, 0, 2000);
    steps.steps = {3, 5};
    EXPECT_EQ(WaveAt(steps, 3), 5);
    EXPECT_EQ(WaveAt(steps, 4), 3);
    steps.times = {0, 10};
    EXPECT_EQ(WaveAt(steps, 9.9), 3);
    EXPECT_EQ(WaveAt(steps, 11.9), 5);
    EXPECT_EQ(WaveAt(steps, 12.1), 3);
}

TEST(Waves, that_walk_stay_within_their_range)
{
    for (const Wave kind : {WAVE_RANDOM, WAVE_WALK}) {
        const LinkPoint point = wave(kind, -5, 5, 1000);
        WalkingWave walking(point, 1);
        double low = 0;
        double high = 0;
        for (double seconds = 0; seconds < 5000; seconds += 1) {
            const double value = walking.step(point, seconds);
            low = std::min(low, value);
            high = std::max(high, value);
        }
        EXPECT_THAT(low, AllOf(Ge(-5), Le(-3)));
        EXPECT_THAT(high, AllOf(Le(5), Ge(3)));
    }
}

TEST_F(Simulated, values_are_those_of_the_waves)
{
    Simulate demo(
        made({of("A", 0, wave(WAVE_RAMP, 0, 100, 10000)), of("A", 5, wave(WAVE_CONSTANT, 7, 0, 0))}), looks,
        0);
    demo.tick(1000);
    EXPECT_EQ(cell(0), 0);
    EXPECT_EQ(cell(5), 7);
    Set_iData(105, 9, nullptr, 0);
    demo.tick(1004);
    EXPECT_NEAR(cell(0), 40, 1e-9);
    EXPECT_EQ(cell(5), 9) << "a constant may be changed";
    EXPECT_EQ(demo.status().state, LinkState::Connected);
}

TEST_F(Simulated, flow_has_the_level_rise_while_a_pump_runs)
{
    LinkPoint level = wave(WAVE_FLOW, 0, 50, 0);
    level.start = 10;
    level.rate = -1;
    level.by = {{{"A", 1}, 3.0}};
    LinkPoint alarm = wave(WAVE_ABOVE, 0, 0, 0);
    alarm.of = {"A", 0};
    alarm.limit = 40;
    alarm.part = PART_COLOR;
    alarm.values = {{0, 0}, {1, 2}};
    Simulate demo(made({of("A", 0, level), of("A", 0, alarm)}), looks, 0);
    demo.tick(0);
    EXPECT_EQ(cell(0), 10);
    for (int tick = 1; tick <= 50; ++tick)
        demo.tick(tick * 0.1);
    EXPECT_NEAR(cell(0), 5, 1e-6);
    EXPECT_EQ(Get_wData(100, nullptr, 0), 0);
    Set_iData(101, 1, nullptr, 0);
    for (int tick = 51; tick <= 300; ++tick)
        demo.tick(tick * 0.1);
    EXPECT_EQ(cell(0), 50) << "never beyond its end";
    EXPECT_EQ(Get_wData(100, nullptr, 0), 2);
}

TEST_F(Simulated, follow_goes_after_a_cell_by_its_rate)
{
    LinkPoint point = wave(WAVE_FOLLOW, 0, 0, 0);
    point.of = {"A", 1};
    point.rate = 10;
    Simulate demo(made({of("A", 0, point)}), looks, 0);
    Set_iData(101, 25, nullptr, 0);
    demo.tick(0);
    demo.tick(1);
    EXPECT_NEAR(cell(0), 10, 1e-9);
    demo.tick(5);
    EXPECT_EQ(cell(0), 25);
}

TEST_F(Simulated, state_leaves_the_bits_that_are_the_windows_own)
{
    Set_wData(100, 0x1801, nullptr, 0);
    LinkPoint word = wave(WAVE_CONSTANT, 0xC002, 0, 0);
    word.part = PART_WORD;
    Simulate demo(made({of("A", 0, word)}), looks, 0);
    demo.tick(0);
    EXPECT_EQ(Get_wData(100, nullptr, 0), 0xC002 | 0x1800);
}

TEST_F(Simulated, links_of_a_project_are_run_by_the_three_calls)
{
    EXPECT_EQ(LinksInit(nullptr), 1) << "a project may have no links";
    EXPECT_THAT(LinksStatus(), testing::IsEmpty());

    project.write("PtrnLink", LinkBytes({made({of("A", 2, wave(WAVE_CONSTANT, 42, 0, 0))})}));
    ASSERT_EQ(LinksInit(nullptr), 1);
    LinksTimr();
    EXPECT_EQ(cell(2), 42);
    ASSERT_EQ(LinksStatus().size(), 1U);
    EXPECT_EQ(LinksStatus()[0].name, "demo");
    LinksExit();
    EXPECT_THAT(LinksStatus(), testing::IsEmpty());
    LinksTimr();
    LinksExit();
}

TEST_F(Simulated, links_that_are_damaged_are_refused_in_the_log)
{
    project.write("PtrnLink", "{}");
    EXPECT_EQ(LinksInit(nullptr), 0);
    EXPECT_THAT(project.messages(), Contains(HasSubstr("PtrnLink: no links")));
}

TEST_F(Simulated, cell_that_is_not_there_is_told_and_left_out)
{
    Simulate demo(made({of("B", 0, wave(WAVE_CONSTANT, 1, 0, 0)), of("A", 3, wave(WAVE_CONSTANT, 4, 0, 0))}),
                  looks, 0);
    demo.tick(0);
    EXPECT_EQ(cell(3), 4);
    EXPECT_THAT(project.messages(), Contains(HasSubstr("demo: no cell B+0")));
}
