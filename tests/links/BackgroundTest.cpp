// The thread of a link hands on what has ended it.
#include "links/Background.h"

#include <chrono>
#include <gtest/gtest.h>
#include <new>

using tessary::Background;

namespace
{

TEST(ABackground, throws_in_the_thread_of_the_tick_what_has_ended_it)
{
    Background background;
    background.start([] { throw std::bad_alloc(); });
    background.end(std::chrono::steady_clock::now() + std::chrono::seconds(30));
    EXPECT_THROW(background.rethrow(), std::bad_alloc);
    EXPECT_NO_THROW(background.rethrow()) << "it is thrown once";
}

TEST(ABackground, that_has_ended_by_itself_throws_nothing)
{
    Background background;
    background.start([] {});
    background.end(std::chrono::steady_clock::now() + std::chrono::seconds(30));
    EXPECT_NO_THROW(background.rethrow());
}

} // namespace
