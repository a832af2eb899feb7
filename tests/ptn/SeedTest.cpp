// Files that the panel goes on writing: flags and the wiring table.
#include "tests/ptn/Sources.h"
#include "tests/support/Project.h"

#include <gtest/gtest.h>

namespace
{

TEST(Seeds, stay_as_the_panel_left_them_until_their_sources_change)
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

    sources.write("w.csv", "wire,length\nW2,12\n");
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_EQ(sources.built("Haisenhyo").substr(138 + 8, 2), "W2");
    EXPECT_EQ(sources.built("PtrnFlag"), "123456789");
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
