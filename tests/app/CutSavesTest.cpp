// Log flags and wiring table have the old bytes or the new ones, wherever their saving is cut.
#include "app/WireTable.h"
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"
#include "tests/support/CutCalls.h"
#include "tests/support/Project.h"

#include <cstring>
#include <functional>
#include <gtest/gtest.h>

using namespace tessary;

namespace
{

/// The parameter is what happens at the call.
class CutSaves : public testing::TestWithParam<Cut>
{
  protected:
    void SetUp() override
    {
        if (!CanCutCalls())
            GTEST_SKIP() << "this machine does not let a process watch another one's calls";
        HAISENHEDR header{};
        header.datacount = 50;
        std::string bytes(reinterpret_cast<const char*>(&header), sizeof header);
        bytes += std::string(50 * sizeof(HAISENDATA), 'x');
        project.write("Haisenhyo", bytes).code("DATA", 200);
        project.start();
        LoadHaisenhyo();
    }
    void TearDown() override { FreeHaisenhyo(); }

    void cutEach(const std::string& name, const std::function<void()>& change,
                 const std::function<bool()>& save)
    {
        const std::string old = project.read(name);
        change();
        ASSERT_TRUE(save());
        const std::string fresh = project.read(name);
        ASSERT_NE(fresh, old);
        int number = 1;
        for (;; ++number) {
            project.write(name, old);
            const CutResult cut = CutCall(number, GetParam(), [&] { return save() ? 0 : 1; });
            if (!cut.reached)
                break;
            const std::string found = project.read(name);
            ASSERT_TRUE(found == old || found == fresh) << "call " << number << ", " << cut.call;
        }
        EXPECT_GT(number, 8);
    }

    Project project;
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Calls, CutSaves, testing::Values(Cut::Die, Cut::NoRoom, Cut::Broken));

TEST_P(CutSaves, leave_the_log_flags_old_or_new)
{
    cutEach(
        "PtrnFlag", [] { std::memset(PtrnFlag, 1, 200); }, [] { return SaveFlags() != 0; });
}

TEST_P(CutSaves, leave_the_wiring_table_old_or_new)
{
    cutEach(
        "Haisenhyo", [] { HaisenData[49].length = 4711; }, SaveHaisenhyo);
}
