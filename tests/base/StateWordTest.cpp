// The state word, each of its values.
#include "base/StateWord.h"

#include <gtest/gtest.h>

using namespace tessary;

namespace
{

template <class Check> void forEveryWord(Check check)
{
    for (unsigned value = 0; value <= 0xFFFF; value++) {
        check(static_cast<WORD>(value));
        if (testing::Test::HasFailure())
            return;
    }
}

} // namespace

TEST(StateWord, selects_a_colour_by_its_two_lowest_bits)
{
    forEveryWord([](WORD word) { EXPECT_EQ(ColorSelection(word), word % 4) << word; });
}

TEST(StateWord, locks_by_the_lower_of_the_two_bits_of_the_colour)
{
    forEveryWord([](WORD word) { EXPECT_EQ(IsLocked(word), word % 2 == 1) << word; });
}

TEST(StateWord, has_one_bit_for_each_other_state)
{
    const struct {
        bool (*is)(WORD);
        unsigned bit;
    } states[] = {
        {IsNeverShown, 11}, {IsFrozen, 12}, {IsFlickering, 13}, {IsDisabled, 14}, {IsHidden, 15},
    };
    for (const auto& state : states)
        forEveryWord([&](WORD word) { EXPECT_EQ(state.is(word), (word >> state.bit) % 2 == 1) << word; });
}

TEST(StateWord, leaves_an_item_usable_below_the_two_highest_bits)
{
    forEveryWord([](WORD word) { EXPECT_EQ(IsUsable(word), word < 0x4000) << word; });
}
