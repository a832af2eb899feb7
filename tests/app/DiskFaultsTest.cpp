// The disk is full, or can only be read: what is saved stays as it was, the operator is told, and the panel
// goes on.
#include "app/WireTable.h"
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"
#include "tests/app/Faults.h"
#include "tests/app/SmallDisk.h"

#include <filesystem>
#include <fstream>
#include <functional>
#include <regex>

using namespace tessary;

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

namespace
{

/// The parameter tells whether the disk is full; else it can only be read.
class DiskFault : public SmallDisk, public FaultyPanel, public testing::WithParamInterface<bool>
{
  protected:
    void SetUp() override
    {
        FaultyPanel::SetUp();
        if (!leave())
            GTEST_SKIP() << "a disk can not be mounted here";
    }

    void fault()
    {
        if (GetParam())
            fill();
        else
            setReadOnly(true);
    }
    void mend()
    {
        if (GetParam())
            makeRoom();
        else
            setReadOnly(false);
    }

    /// Saves a file of the project in this process, first on the bad disk and then on the good one.
    void expectWhole(const std::string& name, const std::function<bool()>& save)
    {
        const std::string before = project.read(name);
        fault();
        EXPECT_FALSE(save()) << name;
        EXPECT_EQ(project.read(name), before);
        mend();
        EXPECT_TRUE(save()) << name;
        EXPECT_NE(project.read(name), before);
    }
};

std::string diskName(const testing::TestParamInfo<bool>& info)
{
    return info.param ? "full" : "read_only";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Disk, DiskFault, testing::Bool(), diskName);

TEST_P(DiskFault, leaves_the_profile_whole_and_shows_on_the_error_line)
{
    runMenu();
    const std::string before = readFile(project.profile());
    fault();
    EXPECT_FALSE(showsError());
    savePlace();
    waitError();
    EXPECT_EQ(readFile(project.profile()), before);
    mend();
    savePlace();
    EXPECT_THAT(readFile(project.profile()), HasSubstr("WINDOW0"));
    EXPECT_THAT(readFile(project.profile()), Not(HasSubstr("filler")));
    stopByButton();
}

TEST_P(DiskFault, loses_lines_of_the_log_and_nothing_else)
{
    project.set("LOG", "LOGSIZE", "1");
    runMenu();
    const auto before = logged();
    fault();
    savePlace();
    EXPECT_FALSE(program->status()) << program->output();
    mend();
    stopByButton();
    const auto after = logged();
    ASSERT_GE(after.size(), before.size());
    EXPECT_TRUE(std::equal(before.begin(), before.end(), after.begin()));
    EXPECT_EQ(after.back(), "システム停止");
}

TEST_P(DiskFault, does_not_keep_the_panel_from_starting_and_stopping)
{
    fault();
    runMenu();
    savePlace();
    stopByButton();
    mend();
}

TEST_P(DiskFault, leaves_the_log_flags_whole)
{
    project.start();
    expectWhole("PtrnFlag", [] {
        PtrnFlag[7] = 1;
        return SaveFlags() != 0;
    });
}

TEST_P(DiskFault, leaves_the_wiring_table_whole)
{
    HAISENHEDR header{};
    header.datacount = 300;
    std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
    bytes += std::string(300 * sizeof(HAISENDATA), 'x');
    project.write("Haisenhyo", bytes);
    project.start();
    LoadHaisenhyo();
    ASSERT_EQ(HaisenData.size(), 300u);
    HaisenData[299].length = 4711;
    expectWhole("Haisenhyo", SaveHaisenhyo);
    FreeHaisenhyo();
}

TEST_P(DiskFault, leaves_the_project_whole_or_marked_when_it_is_built)
{
    const std::string sources = Program::sourceFolder() + "/project";
    const std::string built = project.root() + "/built";
    const auto build = [&](const std::string& from) {
        Program ptn("ptn", "ptn", {"build", "-q", from, built + "/ProjPath"});
        user.waitFor([&] { return ptn.status().has_value(); }, "the end of ptn");
        return std::pair(ptn.status().value_or(-1), ptn.output());
    };
    ASSERT_EQ(build(sources).first, 0);
    const std::string pattern = readFile(built + "/ProjPath/" + MENU + ".ptn");
    const ptn::TemporaryFolder changed("tessary-sources-", "/tmp");
    std::filesystem::copy(sources, changed.path(), std::filesystem::copy_options::recursive);
    std::ofstream(changed.path() / "screens/menu.yaml", std::ios::app)
        << "\n  - { type: text, at: [400, 700], text: new }\n";
    writeFile(changed.path() / "project.yaml",
              std::regex_replace(readFile(changed.path() / "project.yaml"), std::regex("registry: \\S+"),
                                 "registry: " + Program::sourceFolder() + "/app/Registry.cpp"));
    fault();
    const auto [status, output] = build(changed.path());
    EXPECT_NE(status, 0);
    EXPECT_THAT(output,
                AnyOf(HasSubstr("No space left"), HasSubstr("Read-only"), HasSubstr("can not be written")));
    EXPECT_EQ(readFile(built + "/ProjPath/" + MENU + ".ptn"), pattern);
    EXPECT_FALSE(std::filesystem::exists(built + "/ProjPath/.ptn-unfinished"));
    mend();
    EXPECT_EQ(build(changed.path()).first, 0);
    EXPECT_NE(readFile(built + "/ProjPath/" + MENU + ".ptn"), pattern);
}
