// Files that the panel goes on writing: flags and the wiring table.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{

TEST(Seeds, stay_as_the_panel_left_them)
{
    Sources sources;
    sources.base().write("t.yaml", "flags: { B: yes }\nwiring: { system: S, table: w.csv }\n");
    sources.write("w.csv", "wire,length\nW1,12\n");
    const PtnResult first = sources.build();
    ASSERT_EQ(first.status, 0) << first.err;
    EXPECT_EQ(first.out, "out/ProjPath: 8 files, 8 written, 0 removed.\n");
    EXPECT_EQ(sources.built("PtrnFlag"), std::string(6, '\0') + "\1\1\1");
    const std::string table =
        field("S", 10) + field("", 124) + int32(1) + int32(0) + int32(12) + field("W1", 10) + field("", 90);
    ASSERT_EQ(table.size(), 138u + 108u);
    EXPECT_EQ(sources.built("Haisenhyo"), table);

    writeFile(sources.output() + "/Haisenhyo", "changed by the panel");
    writeFile(sources.output() + "/PtrnFlag", "123456789");
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_EQ(sources.built("Haisenhyo"), "changed by the panel");
    EXPECT_EQ(sources.built("PtrnFlag"), "123456789");
}

class SavedSeeds : public testing::Test
{
  protected:
    void SetUp() override
    {
        sources.base().write("t.yaml", "wiring: { system: S, table: w.csv }\n");
        sources.write("w.csv", "wire,length\nW1,12\n");
        ASSERT_EQ(sources.build().status, 0);
    }

    void changeSource() { sources.write("w.csv", "wire,length\nW2,12\n"); }
    void savePanels() { writeFile(sources.output() + "/Haisenhyo", "saved by the operator"); }
    std::string wire() { return sources.built("Haisenhyo").substr(138 + 8, 2); }

    /// Of the copies that have the time in their names.
    std::vector<std::string> copies() const
    {
        std::vector<std::string> found;
        for (const auto& entry : std::filesystem::directory_iterator(sources.output()))
            if (entry.path().filename().string().rfind("Haisenhyo.2", 0) == 0)
                found.push_back(readFile(entry.path().string()));
        return found;
    }

    static constexpr const char* WARNING =
        "Haisenhyo: warning: its source has changed, but the panel has saved";
    Sources sources;
};

TEST_F(SavedSeeds, follow_their_sources_as_long_as_the_panel_has_saved_nothing)
{
    changeSource();
    const PtnResult result = sources.build();
    EXPECT_EQ(result.status, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(wire(), "W2");
    EXPECT_THAT(copies(), testing::IsEmpty());
}

TEST_F(SavedSeeds, are_kept_when_their_sources_change_and_every_build_says_so)
{
    savePanels();
    changeSource();
    for (int build = 0; build < 2; ++build) {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0);
        EXPECT_THAT(result.err, testing::HasSubstr(WARNING));
        EXPECT_EQ(sources.built("Haisenhyo"), "saved by the operator");
    }
}

TEST_F(SavedSeeds, are_kept_in_a_folder_of_which_no_build_has_told)
{
    savePanels();
    std::filesystem::remove(sources.output() + "/.ptn-seeds");
    EXPECT_THAT(sources.build().err, testing::HasSubstr(WARNING));
    EXPECT_EQ(sources.built("Haisenhyo"), "saved by the operator");
}

TEST_F(SavedSeeds, are_kept_when_they_can_not_be_read)
{
    std::filesystem::remove(sources.output() + "/Haisenhyo");
    std::filesystem::create_symlink("nowhere", sources.output() + "/Haisenhyo");
    EXPECT_THAT(sources.build().err, testing::HasSubstr(WARNING));
    EXPECT_TRUE(std::filesystem::is_symlink(sources.output() + "/Haisenhyo"));
}

TEST_F(SavedSeeds, are_written_anew_on_request_and_copied_before)
{
    savePanels();
    for (const char* saved : {"saved by the operator", "saved again"}) {
        writeFile(sources.output() + "/Haisenhyo", saved);
        const PtnResult result = sources.run("build --reseed src out/ProjPath");
        EXPECT_EQ(result.status, 0);
        EXPECT_EQ(result.err, "");
        EXPECT_EQ(wire(), "W1");
        EXPECT_THAT(copies(), testing::Contains(saved));
    }
    EXPECT_EQ(copies().size(), 2u);
    EXPECT_EQ(sources.run("build --reseed src out/ProjPath").status, 0);
    EXPECT_EQ(copies().size(), 2u) << "nothing was saved meanwhile";
}

TEST(Seeds, of_messages_and_limits_are_tables_in_the_form_that_the_panel_reads)
{
    Sources sources;
    sources.base().write("t.yaml", "messages:\n  low: [L, M]\n  high: { no: 40, text: H, data: A+1 }\n"
                                   "limits: [{ data: A+1, count: 3, minimum: 5, maximum: 255, below: low, "
                                   "above: high }]\n");
    ASSERT_EQ(sources.build().status, 0) << sources.build().err;
    EXPECT_EQ(sources.built("MesgData.prf"), "[MESGDATA]\nMESG1=,,L,M,M\nMESG40=A,1,H,H,H\n");
    EXPECT_EQ(sources.built("LimtData.prf"), "[LIMTDATA]\nLIMT1=A,3,1,5,FF,1,40\n");
}

} // namespace
