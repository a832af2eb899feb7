// Log flags that are there and can not be read.
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"
#include "tests/comndata/CommonData.h"

#include <filesystem>

TEST_F(CommonData, never_writes_over_flags_that_it_could_not_read)
{
    project.code("A", 5);
    const std::string flags = project.folder() + "/PtrnFlag";
    std::filesystem::create_symlink("/proc/self/mem", flags); // whose first byte fails to be read
    project.start();
    EXPECT_FALSE(tessary::SaveFlags());
    std::filesystem::remove(flags);
    project.write("PtrnFlag", std::string(6, '\1')); // the disk is well again
    EXPECT_FALSE(tessary::SaveFlags()) << "these were never read";
    EXPECT_EQ(project.read("PtrnFlag"), std::string(6, '\1'));
    LoadCodeData();
    EXPECT_TRUE(tessary::SaveFlags());
    EXPECT_EQ(project.read("PtrnFlag"), std::string(6, '\1'));
}
