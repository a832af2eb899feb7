// A panel that ends because a drawing contract was broken leaves the reason in its log.
#include "base/Constants.h"
#include "draw/DrawCntl.h"
#include "log/Logfile.h"
#include "tests/support/Canvas.h"
#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using testing::ElementsAre;
using testing::HasSubstr;

TEST(ContractLogDeathTest, keeps_the_buffered_lines_and_the_reason)
{
    testing::FLAGS_gtest_death_test_style = "fast"; // the child shares this project
    Project project;
    project.set("LOG", "LOGSIZE", "100");
    project.start();
    project.clearLog();
    Canvas canvas(10, 10);

    EXPECT_DEATH(
        {
            LogfileWrite("TEST", "still buffered", nullptr, 0);
            canvas.draw()->ClearScreen(CONT_COLR);
        },
        "assertion failed");
    EXPECT_THAT(project.messages(),
                ElementsAre("still buffered", HasSubstr("(colr >= 0) && (colr < CONT_COLR)")));
}
