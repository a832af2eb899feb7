#include "shell/Locale.h"
#include "tests/support/Variable.h"
#include "tests/support/XServer.h"

#include <clocale>
#include <cstdlib>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <gtk/gtk.h>
#include <langinfo.h>
#include <string>

using namespace tessary;

using testing::HasSubstr;

namespace
{

std::string codeset()
{
    return nl_langinfo(CODESET);
}

/// Each test sets the locale of the environment and leaves that of the test program.
class Locale : public testing::Test
{
  protected:
    ~Locale() override
    {
        locales.set(nullptr);
        std::setlocale(LC_ALL, "C");
        std::setlocale(LC_CTYPE, "ja_JP.eucJP");
        UseEucLocale();
    }

    Variable locales{"LOCPATH", nullptr};
};

TEST_F(Locale, of_the_environment_stays_when_it_is_euc_jp)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "ja_JP.eucJP"));
    EXPECT_TRUE(UseEucLocale());
    EXPECT_EQ(codeset(), "EUC-JP");
    EXPECT_STREQ(std::setlocale(LC_TIME, nullptr), "ja_JP.eucJP");
    EXPECT_EQ(LocaleProblem(), nullptr);
}

TEST_F(Locale, with_another_code_set_becomes_euc_jp_for_characters_alone)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    ASSERT_EQ(codeset(), "UTF-8");
    EXPECT_TRUE(UseEucLocale());
    EXPECT_EQ(codeset(), "EUC-JP");
    EXPECT_STREQ(std::setlocale(LC_TIME, nullptr), "C.UTF-8");
    EXPECT_EQ(LocaleProblem(), nullptr);
    EXPECT_EQ(std::mblen("漢", MB_CUR_MAX), 2);
}

TEST_F(Locale, writes_numbers_with_a_point)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "ja_JP.eucJP"));
    EXPECT_TRUE(UseEucLocale());
    EXPECT_STREQ(std::setlocale(LC_NUMERIC, nullptr), "C");
}

TEST_F(Locale, that_is_not_installed_is_reported_with_the_way_out)
{
    std::setlocale(LC_ALL, "C");
    locales.set("/nonexistent");
    if (std::setlocale(LC_CTYPE, "ja_JP.eucJP"))
        GTEST_SKIP() << "this system's locales can not be hidden: they are not in the archive";

    testing::internal::CaptureStderr();
    EXPECT_FALSE(UseEucLocale());
    const std::string text = testing::internal::GetCapturedStderr();
    EXPECT_THAT(text, HasSubstr("\"locales\""));
    EXPECT_THAT(text, HasSubstr("localedef -i ja_JP -f EUC-JP ja_JP.eucJP"));

    ASSERT_NE(LocaleProblem(), nullptr);
    const std::string problem = LocaleProblem();
    EXPECT_THAT(problem, HasSubstr("locales"));
    EXPECT_THAT(problem, HasSubstr("localedef -i ja_JP -f EUC-JP ja_JP.eucJP"));
    EXPECT_LE(problem.size(), 200u) << "fits into a line of the log";
}

TEST_F(Locale, problem_is_gone_when_the_next_call_succeeds)
{
    std::setlocale(LC_ALL, "C");
    locales.set("/nonexistent");
    if (std::setlocale(LC_CTYPE, "ja_JP.eucJP"))
        GTEST_SKIP() << "this system's locales can not be hidden: they are not in the archive";
    testing::internal::CaptureStderr();
    UseEucLocale();
    testing::internal::GetCapturedStderr();
    ASSERT_NE(LocaleProblem(), nullptr);

    locales.set(nullptr);
    EXPECT_TRUE(UseEucLocale());
    EXPECT_EQ(LocaleProblem(), nullptr);
}

/// What main() does first, in a process of its own, with an environment in UTF-8: the width of two kanji.
[[noreturn]] void startToolkit()
{
    setenv("LC_ALL", "C.UTF-8", 1);
    gtk_set_locale();
    UseEucLocale();
    gtk_init(nullptr, nullptr);
    GdkFont* font = gdk_fontset_load("-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*");
    const int width = font ? gdk_text_width(font, "漢字", 4) : -1;
    std::fprintf(stderr, "code set %s, width %d\n", codeset().c_str(), width);
    std::_Exit(0);
}

TEST_F(Locale, survives_the_start_of_the_toolkit)
{
    testing::GTEST_FLAG(death_test_style) = "threadsafe";
    XServer::ensure();
    EXPECT_EXIT(startToolkit(), testing::ExitedWithCode(0), "code set EUC-JP, width 28");
}

} // namespace
