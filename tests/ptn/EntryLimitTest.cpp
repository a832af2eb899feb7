// What an operator may enter: attributes of items and rows of the limit table, from the sources and back.
#include "pattern/ItemParm.h"
#include "pattern/PtrnFile.h"
#include "pattern/RealParm.h"
#include "tests/ptn/Messages.h"
#include "tests/support/Project.h"

#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace tessary;

namespace
{

using testing::HasSubstr;

class EntryLimit : public testing::Test
{
  protected:
    EntryLimit()
    {
        sources.checkedBase();
        sources.write("profile.yaml", "edition: 2\nprofile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
        screen("");
        sources.write("messages.yaml", "messages: { low: Low, high: { no: 40, text: High } }\n");
    }

    void screen(const std::string& items)
    {
        sources.screen("name: a\nwindow: { size: [320, 240] }\nitems:\n" + items);
    }
    void limits(const std::string& rows) { sources.write("limits.yaml", "limits:\n" + rows); }

    void build()
    {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 0) << result.err;
    }
    std::int32_t parm(std::size_t item, int index) const
    {
        const std::string bytes = sources.built("a.ptn");
        PTRNFILE record{};
        const std::size_t at = sizeof(HEDRFILE) + item * sizeof record;
        EXPECT_LE(at + sizeof record, bytes.size());
        std::memcpy(&record, bytes.data() + at, sizeof record);
        return record.Parm[index];
    }
    void setParm(int index, std::int32_t value) const
    {
        std::string bytes = sources.built("a.ptn");
        std::memcpy(&bytes[sizeof(HEDRFILE) + offsetof(PTRNFILE, Parm) +
                           static_cast<std::size_t>(index) * sizeof value],
                    &value, sizeof value);
        writeFile(sources.output() + "/a.ptn", bytes);
    }
    /// Neither "build" nor "check" take the sources.
    void expectRefused(const std::string& message)
    {
        EXPECT_EQ(sources.build().err, message + "1 error; out/ProjPath is unchanged.\n");
    }
    std::string found(const std::string& what = "src") { return sources.run("check " + what).err; }

    Sources sources;
};

TEST_F(EntryLimit, of_items_stand_in_the_pattern)
{
    screen(
        "  - { type: numeric, at: [1, 1], data: A, minimum: -2.5, maximum: 1e3, step: .25, message: high }\n"
        "  - { type: spin, rect: [1, 41, 20, 60], data: A, maximum: 9, step: 3, message: 1 }\n"
        "  - { type: numeric, at: [1, 101], data: A, message: none }\n"
        "  - { type: button, rect: [1, 121, 60, 160], default: yes, action: hardcopy }\n"
        "  - { type: button, rect: [1, 181, 60, 220], cancel: yes, action: hardcopy }\n");
    build();
    EXPECT_EQ(RealParm(parm(0, FIELD_MINIMUM)), -2.5F);
    EXPECT_EQ(RealParm(parm(0, FIELD_MAXIMUM)), 1000.0F);
    EXPECT_EQ(RealParm(parm(0, FIELD_STEP)), 0.25F);
    EXPECT_EQ(parm(0, FIELD_MESSAGE), 40);
    EXPECT_EQ(RealParm(parm(1, SPIN_STEP)), 3.0F);
    EXPECT_EQ(parm(1, SPIN_MESSAGE), 1);
    for (const int index : {FIELD_MINIMUM, FIELD_MAXIMUM, FIELD_STEP, FIELD_MESSAGE})
        EXPECT_EQ(parm(2, index), 0) << index;
    EXPECT_EQ(parm(3, BUTN_DEFAULT), 1);
    EXPECT_EQ(parm(3, BUTN_CANCEL), 0);
    EXPECT_EQ(parm(4, BUTN_CANCEL), 1);
    EXPECT_EQ(found(), "");
}

TEST_F(EntryLimit, of_items_are_dumped_as_they_were_written)
{
    screen("  - { type: numeric, at: [1, 1], data: A, minimum: -0.1, maximum: 2.75, step: 0.05, message: "
           "high }\n"
           "  - { type: spin, rect: [1, 41, 20, 60], data: A, step: 100 }\n"
           "  - { type: button, rect: [1, 121, 60, 160], default: yes, action: hardcopy }\n");
    build();
    const std::string before = sources.built("a.ptn");
    const PtnResult dump = sources.run("dump out/ProjPath -o dumped");
    EXPECT_EQ(dump.err, "");
    const std::string text = readFile(sources.root() + "/dumped/screens/a.yaml");
    for (const char* one :
         {"minimum: -0.1", "maximum: 2.75", "step: 0.05", "message: message-40", "step: 100", "default: yes"})
        EXPECT_THAT(text, HasSubstr(one));
    EXPECT_EQ(sources.run("build dumped again/ProjPath").status, 0);
    EXPECT_EQ(readFile(sources.root() + "/again/ProjPath/a.ptn"), before);
}

TEST_F(EntryLimit, that_an_attribute_can_not_say_is_dumped_as_a_parameter)
{
    screen("  - { type: numeric, at: [1, 1], data: A, parm: { 22: -1, 24: -5, 25: 7 } }\n");
    build();
    const std::string before = sources.built("a.ptn");
    EXPECT_EQ(sources.run("dump out/ProjPath -o dumped").err, "");
    EXPECT_THAT(readFile(sources.root() + "/dumped/screens/a.yaml"), HasSubstr("{ 22: -1, 24: -5, 25: 7 }"));
    EXPECT_EQ(sources.run("build dumped again/ProjPath").status, 0);
    EXPECT_EQ(readFile(sources.root() + "/again/ProjPath/a.ptn"), before);
}

TEST_F(EntryLimit, that_is_no_number_or_no_message_is_refused)
{
    const std::string place = "src/screens/a.yaml:4: item 1 (numeric): ";
    const std::pair<const char*, const char*> cases[] = {
        {"minimum: low", "'minimum' can not be 'low'. Write a number, such as 10 or -2.5."},
        {"minimum: [1]", "'minimum' can not be ''. Write a number, such as 10 or -2.5."},
        {"maximum: 1e40", "'maximum' can not be '1e40'. Write a number, such as 10 or -2.5."},
        {"maximum: nan", "'maximum' can not be 'nan'. Write a number, such as 10 or -2.5."},
        {"step: 0", "'step' is 0. Write a number above 0, or remove the line."},
        {"step: -0.5", "'step' is -0.5. Write a number above 0, or remove the line."},
        {"message: lwo", "'message': this project has no message 'lwo'. Did you mean 'low'? Define it in "
                         "'messages' or use one that is there."},
        {"message: 41",
         "'message': this project has no message '41'. Define it in 'messages' or use one that "
         "is there."},
    };
    for (const auto& [attribute, message] : cases) {
        SCOPED_TRACE(attribute);
        screen(std::string("  - { type: numeric, at: [1, 1], data: A, ") + attribute + " }\n");
        expectRefused(place + message + "\n");
    }
}

TEST_F(EntryLimit, that_no_entry_can_meet_is_a_mistake_from_the_edition_on_that_has_them)
{
    screen("  - { type: numeric, at: [1, 1], data: A, minimum: 10.5, maximum: 2, back: white }\n");
    EXPECT_EQ(found(),
              "src/screens/a.yaml:4: numeric at 1,1: 'minimum' is 10.5 and 'maximum' 2, so every entry "
              "is refused. Write both, the lower one as 'minimum'.\n");
    sources.write("profile.yaml", "profile: { PTRN: { PTRNSTART: a, PTRNSTOP: a } }\n");
    EXPECT_EQ(found(), "");
}

TEST_F(EntryLimit, of_a_compiled_pattern_are_checked)
{
    screen("  - { type: numeric, at: [1, 1], data: A, back: white }\n");
    build();
    const std::string item = "out/ProjPath/a.ptn: item 1, numeric at 1,1: ";
    setParm(FIELD_MESSAGE, 41);
    EXPECT_EQ(found("out/ProjPath"),
              item + "'message' is 41, which is not among the messages, so nothing is said. "
                     "Correct it, or add it to 'messages'.\n");
    setParm(FIELD_MESSAGE, 40);
    EXPECT_EQ(found("out/ProjPath"), "");
    setParm(FIELD_STEP, ParmOfReal(-1));
    EXPECT_EQ(found("out/ProjPath"), item + "'step' is -1. Write a number above 0, or remove it.\n");
    setParm(FIELD_STEP, 0);
    setParm(FIELD_MAXIMUM, 0x7FC00000);
    EXPECT_EQ(found("out/ProjPath"), item + "'maximum' is nan. Write a number.\n");
}

TEST_F(EntryLimit, of_items_are_explained_by_the_help)
{
    const std::string help = sources.run("help attributes numeric").out;
    EXPECT_THAT(help, HasSubstr("number with decimals; default 0; from edition 2 on\n"));
    EXPECT_THAT(help, HasSubstr("number with decimals, above 0; default 0; from edition 2 on\n"));
    EXPECT_THAT(help, HasSubstr("message or none; default none; from edition 2 on\n"));
    EXPECT_THAT(sources.run("help button").out, HasSubstr("yes | no; default no; from edition 2 on\n"));
}

TEST_F(EntryLimit, of_the_table_have_signs_and_decimals_from_edition_2_on)
{
    limits("  - { data: A, minimum: -2.5, maximum: 10.25, below: low, above: high }\n"
           "  - { data: B+1, count: 2, minimum: 0, maximum: 70000 }\n");
    build();
    EXPECT_EQ(sources.built("LimtData.prf"),
              "[LIMTDATA]\nLIMT1=A,0,0,-2.5,10.25,1,40\nLIMT2=B,2,1,0,70000,0,0\n");
    ASSERT_EQ(sources.run("dump out/ProjPath -o dumped").err, "");
    EXPECT_THAT(readFile(sources.root() + "/dumped/tables.yaml"),
                HasSubstr("minimum: -2.5, maximum: 10.25, "));
    EXPECT_EQ(sources.run("build dumped again/ProjPath").status, 0);
    EXPECT_EQ(readFile(sources.root() + "/again/ProjPath/LimtData.prf"), sources.built("LimtData.prf"));
}

TEST_F(EntryLimit, of_the_table_are_words_in_edition_1)
{
    sources.write("profile.yaml", "");
    limits("  - { data: A, minimum: 10, maximum: 255 }\n");
    build();
    EXPECT_EQ(sources.built("LimtData.prf"), "[LIMTDATA]\nLIMT1=A,0,0,A,FF,0,0\n");
    limits("  - { data: A, maximum: 2.5 }\n");
    expectRefused("src/limits.yaml:2: limit 1: 'maximum' can not be '2.5'. Write a whole number from 0 to "
                  "65535.\n");
}

TEST_F(EntryLimit, of_the_table_that_no_entry_can_meet_are_refused_where_they_hold)
{
    limits("  - { data: A, minimum: 2, maximum: -2 }\n");
    expectRefused(
        "src/limits.yaml:2: limit 1 has a 'minimum' above its 'maximum', so every entry is refused. "
        "Exchange them.\n");
    limits("  - { data: A, minimum: low }\n");
    expectRefused(
        "src/limits.yaml:2: limit 1: 'minimum' can not be 'low'. Write a number, such as 10 or -2.5.\n");
}

} // namespace
