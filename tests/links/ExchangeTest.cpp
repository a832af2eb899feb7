// What is handed between a connection's thread and the tick.
#include "links/Exchange.h"

#include <gtest/gtest.h>
#include <thread>

using namespace tessary;

TEST(Readings, are_the_newest_for_each_cell)
{
    Readings readings(130);
    for (int i = 0; i < 1000; ++i)
        readings.put(129, {{static_cast<double>(i), "", false}, 0});
    readings.put(3, {{7, "", false}, 5});
    std::vector<std::pair<std::size_t, double>> taken;
    const auto take = [&](std::size_t cell, const Reading& reading) {
        taken.emplace_back(cell, reading.value.number);
    };
    readings.take(take);
    const std::vector<std::pair<std::size_t, double>> expected = {{3, 7}, {129, 999}};
    EXPECT_EQ(taken, expected);
    readings.take(take);
    EXPECT_EQ(taken.size(), 2U);
}

TEST(Readings, of_a_thread_that_floods_end_with_the_last_one)
{
    constexpr int LAST = 200000;
    Readings readings(64);
    std::thread flood([&] {
        for (int i = 1; i <= LAST; ++i)
            readings.put(static_cast<std::size_t>(i) % 64, {{static_cast<double>(i), "x", false}, 0});
    });
    double newest = 0;
    while (newest < LAST)
        readings.take([&](std::size_t cell, const Reading& reading) {
            EXPECT_EQ(static_cast<std::size_t>(reading.value.number) % 64, cell);
            newest = std::max(newest, reading.value.number);
        });
    flood.join();
}

TEST(Ring, keeps_the_order_and_says_when_it_is_full)
{
    Ring<int> ring(3);
    int value = 1;
    EXPECT_FALSE(ring.pop(value));
    for (int i = 1; i <= 3; ++i)
        EXPECT_TRUE(ring.push(value = i));
    EXPECT_FALSE(ring.push(value = 4));
    for (int i = 1; i <= 3; ++i) {
        ASSERT_TRUE(ring.pop(value));
        EXPECT_EQ(value, i);
    }
    EXPECT_FALSE(ring.pop(value));
}

TEST(Ring, hands_everything_over_between_threads)
{
    constexpr int COUNT = 100000;
    Ring<std::string> ring(16);
    std::thread producer([&] {
        for (int i = 0; i < COUNT;) {
            std::string text = std::to_string(i);
            if (ring.push(text))
                ++i;
            else
                std::this_thread::yield();
        }
    });
    for (int i = 0; i < COUNT;) {
        std::string text;
        if (ring.pop(text))
            EXPECT_EQ(text, std::to_string(i++));
        else
            std::this_thread::yield();
    }
    producer.join();
}
