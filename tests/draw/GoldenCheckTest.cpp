// The comparison with golden pictures itself: what it notices, what it leaves behind, how it renews.
#include "tests/support/Golden.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/Toolkit.h"
#include "tests/support/Variable.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

namespace fs = std::filesystem;

constexpr std::uint32_t GROUND = 0x123456;

class GoldenCheck : public testing::Test
{
  protected:
    GoldenCheck() { useToolkit(); }

    Goldens goldens(bool renew = false) const { return {folder(), results(), renew}; }
    std::string folder() const { return project.root() + "/golden"; }
    std::string results() const { return project.root() + "/results"; }
    std::string golden() const { return folder() + "/dot.png"; }
    std::string actual() const { return results() + "/dot.actual.png"; }
    std::string diff() const { return results() + "/dot.diff.png"; }

    /// Makes this the golden picture "dot".
    void keep(const Picture& picture) const
    {
        fs::create_directories(folder());
        ASSERT_TRUE(picture.save(golden()));
    }

    std::string failure(const Picture& picture) const
    {
        const auto result = goldens().check(picture, "dot");
        EXPECT_FALSE(result);
        return result.message();
    }

    Picture drawn{6, 4, GROUND};
    Project project;
};

} // namespace

TEST_F(GoldenCheck, passes_when_every_pixel_is_alike)
{
    drawn.set(1, 2, 0xFFFFFF).set(2, 2, 0x000001);
    keep(drawn);
    EXPECT_TRUE(goldens().check(drawn, "dot"));
    EXPECT_FALSE(fs::exists(actual()));
}

TEST_F(GoldenCheck, keeps_all_colors_in_the_file)
{
    Picture colors(256, 3, 0);
    for (int value = 0; value < 256; value++)
        for (int row = 0; row < 3; row++)
            colors.set(value, row, static_cast<std::uint32_t>(value) << 8 * row);
    keep(colors);
    const auto kept = Picture::load(golden());
    ASSERT_TRUE(kept);
    EXPECT_TRUE(same(*kept, colors));
}

TEST_F(GoldenCheck, notices_the_smallest_difference_and_names_it)
{
    keep(drawn);
    drawn.set(3, 1, GROUND + 1).set(0, 3, 0xFF00FF);
    EXPECT_THAT(failure(drawn),
                AllOf(HasSubstr("dot: 2 pixels differ"),
                      HasSubstr("first at (3, 1): drawn 123457, expected 123456"), HasSubstr(golden()),
                      HasSubstr(actual()), HasSubstr(diff()), HasSubstr("TESSARY_RENEW_GOLDENS=1 ctest")));
}

TEST_F(GoldenCheck, leaves_what_was_drawn_and_the_difference)
{
    keep(drawn);
    drawn.set(5, 3, 0xABCDEF);
    failure(drawn);

    const auto left = Picture::load(actual());
    ASSERT_TRUE(left);
    EXPECT_TRUE(same(*left, drawn));
    const auto difference = Picture::load(diff());
    ASSERT_TRUE(difference);
    EXPECT_EQ(difference->count(0xFF0000), 1);
    EXPECT_EQ(difference->at(5, 3), 0xFF0000u);
    EXPECT_EQ(difference->count(difference->at(0, 0)), 23) << "the rest is pale";
}

TEST_F(GoldenCheck, marks_what_only_one_of_two_sizes_has)
{
    keep(drawn);
    const Picture larger(8, 3, GROUND);
    EXPECT_THAT(failure(larger), HasSubstr("sizes differ: drawn 8 x 3, expected 6 x 4"));
    const auto difference = Picture::load(diff());
    ASSERT_TRUE(difference);
    EXPECT_EQ(difference->width(), 8);
    EXPECT_EQ(difference->height(), 4);
    EXPECT_EQ(difference->count(0xFF0000), 8 * 4 - 6 * 3);
}

TEST_F(GoldenCheck, takes_its_files_away_once_the_picture_is_right_again)
{
    keep(drawn);
    failure(Picture(6, 4, 0));
    EXPECT_TRUE(fs::exists(actual()) && fs::exists(diff()));
    EXPECT_TRUE(goldens().check(drawn, "dot"));
    EXPECT_FALSE(fs::exists(actual()) || fs::exists(diff()));
}

TEST_F(GoldenCheck, fails_without_a_golden_picture_and_tells_how_to_make_it)
{
    EXPECT_THAT(failure(drawn), AllOf(HasSubstr("there is no " + golden()), HasSubstr(actual()),
                                      Not(HasSubstr(diff())), HasSubstr("TESSARY_RENEW_GOLDENS=1 ctest")));
    EXPECT_FALSE(fs::exists(golden())) << "it is made on demand only";
}

TEST_F(GoldenCheck, fails_with_a_golden_file_that_is_no_picture)
{
    fs::create_directories(folder());
    writeFile(golden(), "\x89PNG\r\n\x1A\nnot really");
    EXPECT_THAT(failure(drawn), HasSubstr("there is no " + golden()));
}

TEST_F(GoldenCheck, fails_when_it_renews_and_passes_afterwards)
{
    const auto renewed = goldens(true).check(drawn, "dot");
    EXPECT_FALSE(renewed);
    EXPECT_THAT(std::string(renewed.message()),
                AllOf(HasSubstr("renewed " + golden()), HasSubstr("fails on purpose")));
    EXPECT_TRUE(goldens().check(drawn, "dot"));

    drawn.set(0, 0, 0);
    EXPECT_FALSE(goldens(true).check(drawn, "dot"));
    EXPECT_TRUE(goldens().check(drawn, "dot"));
}

TEST_F(GoldenCheck, does_not_touch_pictures_that_are_right_when_it_renews)
{
    keep(drawn);
    const std::string before = readFile(golden());
    EXPECT_TRUE(goldens(true).check(drawn, "dot"));
    EXPECT_EQ(readFile(golden()), before);
}

TEST_F(GoldenCheck, tells_when_it_can_not_renew)
{
    writeFile(folder(), "a file in the way");
    const auto result = goldens(true).check(drawn, "dot");
    EXPECT_FALSE(result);
    EXPECT_THAT(std::string(result.message()), HasSubstr("can not write " + golden()));
}

TEST_F(GoldenCheck, tells_the_versions_when_they_are_not_those_of_the_golden_picture)
{
    keep(drawn);
    EXPECT_THAT(failure(Picture(6, 4, 0)), HasSubstr("this is gdk-pixbuf "));
    ASSERT_TRUE(drawn.save(golden(), "gdk-pixbuf 0.1, Acme 7"));
    EXPECT_THAT(failure(Picture(6, 4, 0)),
                HasSubstr("made with gdk-pixbuf 0.1, Acme 7; this is gdk-pixbuf "));
    EXPECT_FALSE(goldens(true).check(Picture(6, 4, 0), "dot"));
    EXPECT_THAT(failure(drawn), Not(HasSubstr("made with"))) << "the same versions";
}

TEST_F(GoldenCheck, fails_the_running_test_and_leaves_files_in_the_build_folder)
{
    const Variable renew("TESSARY_RENEW_GOLDENS", nullptr);
    EXPECT_NONFATAL_FAILURE(expectGolden(Picture(1, 1, 0), "no-such-golden-picture"),
                            Program::sourceFolder() + "/tests/golden/no-such-golden-picture.png");
    const std::string left = Program::buildFolder() + "/golden/no-such-golden-picture.actual.png";
    EXPECT_TRUE(fs::exists(left));
    fs::remove(left);
}
