// "ptn dump": what it writes builds the same bytes again.
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tests/ptn/Sources.h"
#include "tests/support/PatternBuilder.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace tessary;

namespace fs = std::filesystem;

namespace
{

using testing::HasSubstr;
using testing::Not;

// Every file below a folder but the build's own lists.
std::map<std::string, std::string> FilesBelow(const std::string& folder)
{
    std::map<std::string, std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(folder)) {
        const std::string name = entry.path().lexically_relative(folder).string();
        if (entry.is_regular_file() && name[0] != '.')
            files[name] = readFile(entry.path().string());
    }
    return files;
}

class Dump : public testing::Test
{
  protected:
    // A pattern of the compiled project, written by the test's own code.
    void add(const Pattern& pattern)
    {
        writeFile(sources.output() + "/" + pattern.name() + ".ptn", pattern.bytes());
    }

    // Dumps the compiled project, builds the dump and expects the same bytes in every file.
    void expectRoundTrip()
    {
        const PtnResult dump = sources.run("dump out/ProjPath -o dumped");
        EXPECT_EQ(dump.status, 0) << dump.err;
        EXPECT_EQ(dump.err, "");
        const PtnResult build = sources.run("build dumped again/ProjPath");
        ASSERT_EQ(build.status, 0) << build.err;
        const auto before = FilesBelow(sources.output());
        const auto after = FilesBelow(sources.root() + "/again/ProjPath");
        ASSERT_EQ(before.size(), after.size());
        for (const auto& file : before) {
            ASSERT_TRUE(after.count(file.first)) << file.first;
            EXPECT_TRUE(after.at(file.first) == file.second) << file.first;
        }
    }

    Sources sources;
};

TEST_F(Dump, of_the_sample_project_builds_the_same_files_and_profile)
{
    ASSERT_EQ(sources.run("build " + Program::sourceFolder() + "/project out/ProjPath").status, 0);
    expectRoundTrip();
    std::string profile = readFile(sources.root() + "/again/panel.ini");
    const std::string own = sources.root() + "/again";
    for (std::size_t at = profile.find(own); at != std::string::npos; at = profile.find(own))
        profile.replace(at, own.size(), sources.root() + "/out");
    EXPECT_EQ(profile, readFile(sources.profile()));
}

TEST_F(Dump, keeps_tables_flags_marks_and_colours_of_every_kind)
{
    sources.base()
        .write("tables.yaml",
               u8"messages:\n"
               u8"  low: [低すぎます, Too low]\n"
               u8"  high: { no: 40, text: High, data: A+1 }\n"
               u8"limits:\n"
               u8"  - { data: A+1, count: 3, minimum: 5, maximum: 65535, below: low, above: high }\n"
               u8"flags: { A: yes, B+2: 129 }\n"
               u8"wiring: { system: S-1, comment: 配線, table: w.csv }\n")
        .write("w.csv", u8"wire,length,sheet\nW1,120,A1\n\"a,b\",-7,枚\n")
        .screen("name: a\nitems: []\n");
    ASSERT_EQ(sources.build().status, 0) << sources.build().err;
    std::string marks = sources.built("PtrnMark");
    marks[3 * 512 + 100] = 'x'; // behind the 64 bytes that a mark of 16 x 32 shows
    writeFile(sources.output() + "/PtrnMark", marks);
    std::string colors = sources.built("PtrnColr");
    colors.replace(std::size_t{7} * 12, 12, int32(-5) + int32(70000) + int32(256));
    writeFile(sources.output() + "/PtrnColr", colors);
    std::string codes = sources.built("PtrnCode");
    codes.replace(34 + 30, 4, int32(9)); // the line shown first on the maintenance screen
    writeFile(sources.output() + "/PtrnCode", codes);
    expectRoundTrip();
}

// --- random patterns -----------------------------------------------------------------------------------

class Random
{
  public:
    explicit Random(unsigned seed) : engine_(seed) {}

    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(engine_); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    // EUC-JP of one and two bytes, with everything that a YAML file treats specially.
    std::string text(int longest)
    {
        static const std::string ASCII = " !\"#$%&'()*+,-./0123456789:;<=>?@ABCxyz[]^_`{|}~\\";
        std::string text;
        const int length = chance(40) ? 0 : number(1, longest);
        while (static_cast<int>(text.size()) + 2 <= length) {
            if (chance(50)) {
                text += ASCII[static_cast<std::size_t>(number(0, static_cast<int>(ASCII.size()) - 1))];
            } else { // hiragana and a page of kanji are complete
                const bool kana = chance(50);
                text += static_cast<char>(kana ? 0xA4 : 0xB0 + number(0, 30));
                text += static_cast<char>(0xA1 + number(0, kana ? 82 : 93));
            }
        }
        return text;
    }

    int any() { return static_cast<int>(engine_()); }

    // Within the schema, near zero, or anything.
    int value(const ParmSchema* parm)
    {
        const int kind = number(1, 100);
        if (parm && kind <= 70)
            return parm->minimum >= parm->maximum ? parm->initial : number(parm->minimum, parm->maximum);
        return kind <= 85 ? number(-3, 120) : any();
    }

  private:
    std::mt19937 engine_;
};

Pattern RandomPattern(Random& random, const std::string& name)
{
    Pattern pattern(name);
    const bool exact = random.chance(30);
    for (int i = 0; i < CONT_PARM1; ++i) {
        const ParmSchema* parm = FindParm(HeaderParms(), i);
        const int value = random.value(parm);
        const bool inside = !parm || (value >= parm->minimum && value <= parm->maximum);
        pattern.header(i, exact || inside ? value : parm->initial);
    }
    for (int i = 0; i < CONT_PARM2; ++i)
        pattern.header2(i, random.chance(80) ? 0 : random.any());
    pattern.title(random.text(80), random.text(80), random.text(80));
    pattern.logo(random.text(20)).bitmap(random.chance(50) ? "logo.png" : random.text(20));
    if (random.chance(30))
        pattern.version(random.any());
    if (random.chance(30))
        pattern.reserved(random.any());

    const int items = random.number(0, 12);
    for (int i = 0; i < items; ++i) {
        const int type = random.chance(90) ? random.number(1, CONT_PTRN) : random.number(-2, 40);
        const int x = random.number(-100, 1000);
        const int y = random.number(-100, 700);
        pattern.item(type, x, y, x + random.number(-20, 300), y + random.number(-20, 200));
        const ItemClass* schema = FindItemClass(type);
        for (int index = random.chance(10) ? 0 : 4; index < CONT_PARM; ++index)
            pattern.parm(index, random.value(schema ? schema->parm(index) : nullptr));
        pattern.text(random.text(100), random.text(100), random.text(100));
        pattern.code(random.chance(60) ? (random.chance(50) ? "A" : "B") : random.text(20),
                     random.chance(80) ? random.number(0, 4) : random.any());
        pattern.action(random.chance(80) ? random.number(0, 16) : random.any(),
                       random.chance(50) ? "p1" : random.text(80));
    }
    return pattern;
}

TEST_F(Dump, of_random_patterns_builds_the_same_bytes)
{
    sources.base().write("bitmaps/logo.png", "L");
    ASSERT_EQ(sources.build().status, 0);
    for (const unsigned seed : {20251121U, 1U, 2U, 3U, 4U, 5U}) {
        Random random(seed);
        for (int i = 0; i < 60; ++i)
            add(RandomPattern(random, "p" + std::to_string(seed) + "-" + std::to_string(i)));
    }
    expectRoundTrip();
}

TEST_F(Dump, of_a_text_with_a_parameter_that_means_nothing_to_it_builds_the_same_bytes)
{
    sources.base().screen(
        "name: a\nwindow: { size: [320, 240] }\nitems:\n"
        "  - { type: text, at: [16, 60], text: hello, parm: {14: 5} }\n"
        "  - { type: text, at: [16, 90], text: hello }\n"
        "  - { type: text, at: [16, 120], text: hello, width: 9, parm: {14: 5} }\n"
        "  - { type: text, rect: [16, 150, 90, 166], text: hello, exact: {parm: {16: 0}} }\n");
    ASSERT_EQ(sources.build().status, 0);
    expectRoundTrip();
}

TEST_F(Dump, keeps_texts_that_are_no_euc_or_longer_than_their_fields)
{
    sources.base();
    ASSERT_EQ(sources.build().status, 0);
    add(Pattern("p")
            .title(std::string(82, 'T'))
            .item(PTRN_FCHR, 1, 1, 9, 9)
            .text("\x01\xFF\xA4")
            .item(PTRN_BUTN, 1, 1, 9, 9)
            .text(std::string(300, 'x'))
            .code(std::string(40, 'C'), -9)
            .item(PTRN_LINE, 9, 9, 1, 1)
            .text("a line has none")
            .action(8, "nowhere"));
    expectRoundTrip();
}

// --- what it says ----------------------------------------------------------------------------------------

TEST_F(Dump, prints_the_source_of_one_pattern_with_the_names_of_its_project)
{
    sources.base().screen(u8"name: a\ntitle: [図, A]\nwindow: { size: [320, 240] }\nitems:\n"
                          u8"  - { type: line, rect: [8, 8, 80, 8], color: hot, width: 3, data: B+1 }\n");
    ASSERT_EQ(sources.build().status, 0);
    const PtnResult dump = sources.run("dump out/ProjPath/a.ptn");
    EXPECT_EQ(dump.status, 0) << dump.err;
    EXPECT_EQ(dump.out, u8"name: a\ntitle: [図, A]\nwindow:\n  size: [320, 240]\n\nitems:\n"
                        u8"  - { type: line, rect: [8, 8, 80, 8], color: color-50, width: 3, data: B+1 }\n");
}

TEST_F(Dump, learns_styles_from_what_most_items_have_in_common)
{
    std::string items;
    for (int i = 0; i < 5; ++i)
        items +=
            "  - { type: line, rect: [8, 8, 80, 8], color: hot, width: " + std::to_string(i < 4 ? 7 : 9) +
            " }\n";
    sources.base().screen("name: a\nitems:\n" + items);
    ASSERT_EQ(sources.build().status, 0);
    ASSERT_EQ(sources.run("dump out/ProjPath -o dumped").status, 0);
    EXPECT_EQ(readFile("dumped/styles.yaml"), "styles:\n  line:\n    color: color-50\n    width: 7\n");
    EXPECT_THAT(readFile("dumped/screens/a.yaml"),
                HasSubstr("{ type: line, rect: [8, 8, 80, 8], width: 9 }"));
    EXPECT_THAT(readFile("dumped/screens/a.yaml"), Not(HasSubstr("width: 7")));
}

TEST_F(Dump, leaves_a_folder_alone_that_has_something_in_it)
{
    sources.base();
    ASSERT_EQ(sources.build().status, 0);
    const PtnResult dump = sources.run("dump out/ProjPath -o src");
    EXPECT_EQ(dump.status, 1);
    EXPECT_EQ(dump.err, "src: this folder is not empty. Name a new one for the sources.\n");
}

TEST_F(Dump, needs_a_compiled_project_and_a_place_for_the_sources)
{
    sources.base();
    EXPECT_EQ(sources.run("dump src -o new").err,
              "src: this is no compiled project. Name one, or a *.ptn file.\n");
    ASSERT_EQ(sources.build().status, 0);
    EXPECT_EQ(sources.run("dump out/ProjPath").err, "ptn: name a folder for the sources with -o.\n");
    writeFile("file", "");
    const PtnResult dump = sources.run("dump out/ProjPath -o file/new");
    EXPECT_EQ(dump.status, 1);
    EXPECT_EQ(dump.err, "file/new: Not a directory. Check the folder's rights and space.\n");
}

TEST_F(Dump, tells_what_its_sources_do_not_build)
{
    sources.base();
    ASSERT_EQ(sources.build().status, 0);
    writeFile(sources.output() + "/Letter", "from someone else");
    writeFile(sources.output() + "/PtrnColr", sources.built("PtrnColr") + "tail");
    PtnResult dump = sources.run("dump out/ProjPath -o new");
    EXPECT_EQ(dump.status, 1);
    EXPECT_THAT(dump.err,
                HasSubstr(sources.output() + "/Letter: warning: the sources do not build this file. "
                                             "Keep it if it is needed.\n"));
    EXPECT_THAT(dump.err, HasSubstr(sources.output() + "/PtrnColr: warning: the sources build this file "
                                                       "differently. Compare the two.\n"));
    EXPECT_EQ(dump.out, "new: the sources build 2 files of out/ProjPath byte for byte.\n");

    writeFile(sources.output() + "/PtrnCode", field("A+B", 22) + int32(1) + int32(1) + int32(0));
    dump = sources.run("dump out/ProjPath -o newer");
    EXPECT_EQ(dump.status, 1);
    EXPECT_EQ(
        dump.err,
        "newer: warning: these sources need work before they build:\n"
        "newer/codes.yaml:2: code 'A+B' could be taken for a cell. Write a name that is neither empty nor "
        "a number and has no '+'.\n");
}

TEST_F(Dump, of_a_pattern_tells_when_its_source_can_not_be_written)
{
    writeFile("p.ptn", Pattern("p").bytes());
    EXPECT_EQ(sources.run("dump p.ptn -o src").err,
              "src: Is a directory. Check the folder's rights and space.\n");
    sources.run("dump p.ptn 2>said >/dev/full || echo $? >status; true");
    EXPECT_EQ(readFile("said"), "ptn: the output can not be written. Check where it goes.\n");
    EXPECT_EQ(readFile("status"), "1\n");
}

TEST_F(Dump, refuses_pattern_files_that_are_not_as_long_as_they_say)
{
    const std::string whole = Pattern("p").item(PTRN_LINE, 1, 1, 9, 9).text("a").bytes();
    const std::pair<std::string, const char*> files[] = {
        {whole.substr(0, 465), "it ends within its header"},
        {whole.substr(0, 500), "it has no room for its 1 items"},
        {whole.substr(0, whole.size() - 1), "its texts are not as long as it says"},
        {whole + "x", "its texts are not as long as it says"},
        {Pattern("p").item(PTRN_LINE, 1, 1, 9, 9).rawTexts("abc").claimTextSize(3).bytes(),
         "a text of item 1 does not end"},
        {Pattern("p").claimItems(-1).bytes(), "it has no room for its -1 items"},
    };
    for (const auto& file : files) {
        writeFile("p.ptn", file.first);
        const PtnResult dump = sources.run("dump p.ptn");
        EXPECT_EQ(dump.status, 1);
        EXPECT_EQ(dump.err, std::string("p.ptn: not a whole pattern file: ") + file.second +
                                ". Get an undamaged copy.\n");
    }
}

} // namespace
