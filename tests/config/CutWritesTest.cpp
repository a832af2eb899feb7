// A file that is saved has the old bytes or the new ones, wherever the writing of it is cut.
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "tests/config/FileFixture.h"
#include "tests/support/CutCalls.h"

#include <sys/wait.h>

namespace
{

/// The parameter is what happens at the call.
class CutWrites : public FileFixture, public testing::WithParamInterface<Cut>
{
  protected:
    void SetUp() override
    {
        FileFixture::SetUp();
        if (!CanCutCalls())
            GTEST_SKIP() << "this machine does not let a process watch another one's calls";
    }

    /// Cuts each call of a save in turn, until one save comes through.
    /// @param save  1 or more when it says that the file is saved
    void cutEach(const std::string& name, const std::string& old, const std::function<int()>& save)
    {
        write(name, old);
        ASSERT_GE(save(), 1);
        const std::string fresh = read(name);
        ASSERT_NE(fresh, old);
        int kept = 0;
        int number = 1;
        for (;; ++number) {
            write(name, old);
            const CutResult cut = CutCall(number, GetParam(), [&] { return save() >= 1 ? 0 : 1; });
            if (!cut.reached)
                break;
            const std::string where = "call " + std::to_string(number) + ", " + cut.call;
            const std::string found = read(name);
            ASSERT_TRUE(found == old || found == fresh) << where << ": " << found.size() << " bytes";
            kept += found == old;
            if (WIFEXITED(cut.status) && WEXITSTATUS(cut.status) == 0) {
                EXPECT_EQ(found, fresh) << where << ": it says that it has saved the file";
            }
            // Whatever was left does not keep the next one from saving.
            ASSERT_GE(save(), 1) << where;
            ASSERT_EQ(read(name), fresh) << where;
        }
        EXPECT_GT(number, 8) << "too few calls for a file that is replaced";
        EXPECT_GT(kept, 3);
    }
};

std::string cutName(const testing::TestParamInfo<Cut>& info)
{
    return info.param == Cut::Die ? "killed" : info.param == Cut::NoRoom ? "no_room" : "input_output_error";
}

} // namespace

INSTANTIATE_TEST_SUITE_P(Calls, CutWrites, testing::Values(Cut::Die, Cut::NoRoom, Cut::Broken), cutName);

TEST_P(CutWrites, leave_a_file_old_or_new)
{
    const std::string bytes(5000, 'n');
    cutEach("data", std::string(5000, 'o'), [&] {
        return FileWrite(dir(), "data", bytes.data(), static_cast<int>(bytes.size()), 0, nullptr, 0);
    });
}

TEST_P(CutWrites, leave_a_longer_file_old_or_new_with_its_tail)
{
    const std::string bytes(3000, 'n');
    cutEach("data", std::string(5000, 'o'), [&] {
        return FileWrite(dir(), "data", bytes.data(), static_cast<int>(bytes.size()), 0, nullptr, 0);
    });
}

TEST_P(CutWrites, leave_a_record_old_or_new)
{
    const std::string record(100, 'n');
    cutEach("data", std::string(5000, 'o'), [&] {
        return FileWrite(dir(), "data", 7, record.data(), static_cast<int>(record.size()), 0, nullptr, 0);
    });
}

TEST_P(CutWrites, leave_a_profile_old_or_new)
{
    int left = 123;
    int top = 456;
    std::string old = "[WINDOW]\nWINDOW001=1,2\n[OTHER]\n";
    for (int i = 0; i < 100; ++i)
        old += "KEY" + std::to_string(i) + "=value\n";
    // Its result does not tell whether the file was written, so only the bytes are looked at.
    cutEach("panel.ini", old, [&] {
        ProfileWrite(path("panel.ini").c_str(), "WINDOW", "WINDOW001", "ii", &left, &top);
        return read("panel.ini") != old ? 1 : 0;
    });
}
