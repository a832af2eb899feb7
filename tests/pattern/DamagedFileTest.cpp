// Pattern files as they should not be: what is there is kept, the log tells what is wrong, nothing crashes.
#include "tests/pattern/LoadedPattern.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <limits>
#include <random>
#include <string>
#include <sys/stat.h>

namespace
{

using testing::ElementsAre;
using testing::IsEmpty;

constexpr int INT_HIGH = std::numeric_limits<int>::max();
constexpr int INT_LOW = std::numeric_limits<int>::min();

class DamagedPattern : public LoadedPattern
{
  protected:
    int loadBytes(const std::string& bytes)
    {
        project.write("damaged.ptn", bytes);
        result_ = std::make_unique<CPtrnData>("missing");
        return result_->LoadPtrnData("damaged");
    }
    CPtrnData& result() { return *result_; }

    /// Three items with the texts "x0", "y0", "z0", "name0", code "A" + 0, and so on.
    static Pattern three()
    {
        Pattern pattern("three");
        pattern.title("Title");
        for (int i = 0; i < 3; ++i) {
            const std::string no = std::to_string(i);
            pattern.item(PTRN_RECT, 10 * i, 0, 10 * i + 9, 9).text("x" + no, "y" + no, "z" + no);
            pattern.code("A", i).action(8, "name" + no);
        }
        return pattern;
    }

    /// Everything that is promised of any loaded pattern.
    void expectSound(const CPtrnData& data)
    {
        EXPECT_GE(data.PtrnCont, 0);
        EXPECT_EQ(data.PtrnData == nullptr, data.PtrnCont == 0);
        EXPECT_LE(BoundedLengthOf(data.PtrnHedr.PtrnName), 80U);
        EXPECT_LE(BoundedLengthOf(data.PtrnHedr.LogoName), 20U);
        EXPECT_LE(BoundedLengthOf(data.PtrnHedr.BmapName), 20U);
        for (int i = 0; i < data.PtrnCont; ++i) {
            const PTRNDATA& item = data.PtrnData[i];
            ASSERT_EQ(val(item.Recd), i);
            ASSERT_EQ(val(item.wData), 0x0800);
            ASSERT_LE(BoundedLengthOf(item.Text), 100U);
            ASSERT_LE(BoundedLengthOf(item.ID_Name), 80U);
            ASSERT_LE(BoundedLengthOf(item.ID_Code), 20U);
        }
    }

  private:
    template <std::size_t Size> static std::size_t BoundedLengthOf(const char (&field)[Size])
    {
        return strnlen(field, Size);
    }

    std::unique_ptr<CPtrnData> result_;
};

} // namespace

TEST_F(DamagedPattern, without_a_whole_header_is_not_loaded)
{
    const std::string bytes = three().bytes();
    for (const std::size_t size : {0, 1, 4, 458, 465}) {
        project.clearLog();
        EXPECT_EQ(loadBytes(bytes.substr(0, size)), 0) << size;
        EXPECT_EQ(result().PtrnCont, 0);
        EXPECT_EQ(result().PtrnData, nullptr);
        EXPECT_STREQ(result().PtrnHedr.PtrnName, "");
        EXPECT_EQ(project.log().size(), 1U) << "the reader's own line";
    }
}

TEST_F(DamagedPattern, cut_anywhere_keeps_the_items_and_texts_that_are_whole)
{
    const std::string bytes = three().bytes();
    const std::size_t textStart = 466 + 3 * 136;
    for (std::size_t size = 466; size < bytes.size(); ++size) {
        ASSERT_EQ(loadBytes(bytes.substr(0, size)), 1) << size;
        expectSound(result());
        const auto items = static_cast<int>(std::min<std::size_t>(3, (size - 466) / 136));
        ASSERT_EQ(result().PtrnCont, items) << size;
        ASSERT_STREQ(result().PtrnHedr.PtrnName, "Title");
        // "x0" ends with byte 2 of the texts, "name0" with byte 14.
        if (size > textStart) {
            ASSERT_STREQ(result().PtrnData[0].Text, size > textStart + 2 ? "x0" : "") << size;
            ASSERT_STREQ(result().PtrnData[0].ID_Name, size > textStart + 14 ? "name0" : "") << size;
            ASSERT_STREQ(result().PtrnData[2].ID_Code, "") << size;
            ASSERT_EQ(val(result().PtrnData[2].DataNo), 0) << size;
        }
    }
    ASSERT_EQ(loadBytes(bytes), 1);
    EXPECT_STREQ(result().PtrnData[2].ID_Code, "A");
}

TEST_F(DamagedPattern, that_claims_more_items_than_it_has_gets_those_that_are_there)
{
    // Without texts the file ends with its last record.
    const std::string bytes = Pattern("p")
                                  .item(PTRN_RECT, 1, 2, 3, 4)
                                  .item(PTRN_LINE, 5, 6, 7, 8)
                                  .rawTexts("")
                                  .claimItems(5)
                                  .bytes();

    EXPECT_EQ(loadBytes(bytes), 1);

    ASSERT_EQ(result().PtrnCont, 2);
    EXPECT_EQ(result().PtrnData[1].Type, PTRN_LINE);
    EXPECT_EQ(result().PtrnData[1].Rect.left, 5);
    EXPECT_THAT(project.messages(),
                ElementsAre("Item Count Error [damaged.ptn / 5 / 2]", "Text End Error [damaged.ptn / 10]"));
    EXPECT_EQ(project.log().front().mesg1, "PTRNDATA");
}

TEST_F(DamagedPattern, reads_texts_that_follow_fewer_records_than_claimed)
{
    EXPECT_EQ(loadBytes(three().claimItems(4).bytes()), 1);

    ASSERT_EQ(result().PtrnCont, 3);
    EXPECT_STREQ(result().PtrnData[0].Text, "x0");
    EXPECT_STREQ(result().PtrnData[2].ID_Name, "name2");
    EXPECT_EQ(val(result().PtrnData[2].DataNo), 3);
    EXPECT_THAT(project.messages(), ElementsAre("Item Count Error [damaged.ptn / 4 / 3]"));
}

TEST_F(DamagedPattern, does_not_believe_impossible_item_counts)
{
    for (const auto& [claimed, loaded] : {std::pair(-1, 0), std::pair(INT_LOW, 0), std::pair(INT_HIGH, 3)}) {
        project.clearLog();
        EXPECT_EQ(loadBytes(three().claimItems(claimed).bytes()), 1);
        EXPECT_EQ(result().PtrnCont, loaded);
        expectSound(result());
        EXPECT_THAT(project.messages(),
                    ElementsAre("Item Count Error [damaged.ptn / " + std::to_string(claimed) + " / " +
                                std::to_string(loaded) + "]"));
    }
}

TEST_F(DamagedPattern, does_not_believe_impossible_text_sizes)
{
    const int size = 3 * 17;
    for (const int claimed : {INT_HIGH, size + 1}) {
        project.clearLog();
        EXPECT_EQ(loadBytes(three().claimTextSize(claimed).bytes()), 1);
        EXPECT_STREQ(result().PtrnData[2].ID_Name, "name2") << "the texts that are there are read";
        EXPECT_THAT(project.messages(),
                    ElementsAre("Text Size Error [damaged.ptn / " + std::to_string(claimed) + " / " +
                                std::to_string(size) + "]"));
    }
    for (const int claimed : {-1, INT_LOW}) {
        project.clearLog();
        EXPECT_EQ(loadBytes(three().claimTextSize(claimed).bytes()), 1);
        ASSERT_EQ(result().PtrnCont, 3);
        EXPECT_STREQ(result().PtrnData[0].Text, "");
        EXPECT_EQ(val(result().PtrnData[0].DataNo), 0);
        EXPECT_THAT(project.messages(),
                    ElementsAre("Text Size Error [damaged.ptn / " + std::to_string(claimed) + " / 0]",
                                "Text End Error [damaged.ptn / 15]"));
    }
}

TEST_F(DamagedPattern, drops_a_text_that_has_no_end_and_those_that_should_follow_it)
{
    // The last string is the start of a code, and a code of its own.
    project.code("AB", 1);
    ComnDataInit();
    project.clearLog();
    Pattern pattern("p");
    pattern.item(PTRN_NUMR, 0, 0, 1, 1).item(PTRN_NUMR, 0, 0, 1, 1);
    EXPECT_EQ(loadBytes(pattern.rawTexts(std::string("t\0\0\0n\0A", 7)).bytes()), 1);

    EXPECT_STREQ(result().PtrnData[0].Text, "t");
    EXPECT_STREQ(result().PtrnData[0].ID_Name, "n");
    EXPECT_STREQ(result().PtrnData[0].ID_Code, "");
    EXPECT_EQ(val(result().PtrnData[0].DataNo), 0);
    EXPECT_STREQ(result().PtrnData[1].Text, "");
    EXPECT_THAT(project.messages(), ElementsAre("Text End Error [damaged.ptn / 6]"));
}

TEST_F(DamagedPattern, with_a_text_block_of_one_endless_text_has_no_texts)
{
    Pattern pattern("p");
    pattern.item(PTRN_FCHR, 0, 0, 1, 1);
    EXPECT_EQ(loadBytes(pattern.rawTexts(std::string(100000, 'x')).bytes()), 1);

    expectSound(result());
    EXPECT_STREQ(result().PtrnData[0].Text, "");
    EXPECT_THAT(project.messages(), ElementsAre("Text End Error [damaged.ptn / 5]"));
}

TEST_F(DamagedPattern, cuts_texts_that_are_too_long_for_their_fields_and_says_so_once)
{
    Pattern pattern("p");
    for (int i = 0; i < 2; ++i)
        pattern.item(PTRN_FCHR, 0, 0, 1, 1)
            .text(std::string(101, 'x'))
            .code(std::string(300, 'c'))
            .action(8, std::string(5000, 'n'));
    EXPECT_EQ(loadBytes(pattern.bytes()), 1);

    expectSound(result());
    EXPECT_EQ(result().PtrnData[1].Text, std::string(100, 'x'));
    EXPECT_EQ(result().PtrnData[1].ID_Name, std::string(80, 'n'));
    EXPECT_EQ(result().PtrnData[1].ID_Code, std::string(20, 'c'));
    EXPECT_THAT(project.messages(), ElementsAre("Text Length Error [damaged.ptn / 6]"));
}

TEST_F(DamagedPattern, does_not_cut_a_two_byte_character_in_half)
{
    const std::string text = std::string(99, 'x') + "漢";
    const std::string code = std::string(19, 'c') + "漢";
    const std::string name = "n" + std::string(78, 'n') + "漢字";
    Pattern pattern("p");
    EXPECT_EQ(loadBytes(pattern.item(PTRN_FCHR, 0, 0, 1, 1).text(text).code(code).action(8, name).bytes()),
              1);

    EXPECT_EQ(result().PtrnData[0].Text, std::string(99, 'x'));
    EXPECT_EQ(result().PtrnData[0].ID_Name, std::string(79, 'n'));
    EXPECT_EQ(result().PtrnData[0].ID_Code, std::string(19, 'c'));
}

TEST_F(DamagedPattern, does_not_take_the_start_of_a_long_code_for_a_code)
{
    const std::string known(20, 'c');
    project.code(known, 5);
    ComnDataInit();
    Pattern pattern("p");
    pattern.item(PTRN_NUMR, 0, 0, 1, 1).code(known).item(PTRN_NUMR, 0, 0, 1, 1).code(known + "c");
    EXPECT_EQ(loadBytes(pattern.bytes()), 1);

    EXPECT_EQ(val(result().PtrnData[0].DataNo), 26);
    EXPECT_EQ(val(result().PtrnData[1].DataNo), -1);
}

TEST_F(DamagedPattern, cuts_header_texts_that_fill_their_fields_without_an_end)
{
    Pattern pattern("p");
    const std::string title = "x" + std::string(81, 't');
    EXPECT_EQ(loadBytes(pattern.title(title).logo(std::string(22, 'l')).bitmap(std::string(22, 'b')).bytes()),
              1);

    expectSound(result());
    EXPECT_EQ(result().PtrnHedr.PtrnName, title.substr(0, 80));
    EXPECT_EQ(result().PtrnHedr.LogoName, std::string(20, 'l'));
    EXPECT_EQ(result().PtrnHedr.BmapName, std::string(20, 'b'));
    EXPECT_THAT(project.messages(), ElementsAre("Text Length Error [damaged.ptn / 3]"));
}

TEST_F(DamagedPattern, ignores_what_follows_the_texts)
{
    EXPECT_EQ(loadBytes(three().bytes() + std::string(1000, '\1')), 1);

    ASSERT_EQ(result().PtrnCont, 3);
    EXPECT_STREQ(result().PtrnData[2].ID_Name, "name2");
    EXPECT_THAT(project.log(), IsEmpty());
}

TEST_F(DamagedPattern, that_is_too_large_for_a_pattern_is_not_read)
{
    const std::string path = project.folder() + "/huge.ptn";
    three().claimItems(INT_HIGH).claimTextSize(INT_HIGH).save(project);
    std::filesystem::rename(project.folder() + "/three.ptn", path);
    CPtrnData data("missing");

    std::filesystem::resize_file(path, 16 * 1024 * 1024 + 1);
    EXPECT_EQ(data.LoadPtrnData("huge"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_THAT(project.messages(), ElementsAre("File Size Error [huge.ptn / 16777217]"));

    std::filesystem::resize_file(path, 3ULL * 1024 * 1024 * 1024);
    EXPECT_EQ(data.LoadPtrnData("huge"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
}

TEST_F(DamagedPattern, of_zeros_as_large_as_a_pattern_may_be_is_loaded)
{
    const std::string path = project.folder() + "/zeros.ptn";
    Pattern("zeros").claimItems(INT_HIGH).save(project);
    std::filesystem::resize_file(path, 16 * 1024 * 1024);
    CPtrnData data("missing");

    EXPECT_EQ(data.LoadPtrnData("zeros"), 1);
    EXPECT_EQ(data.PtrnCont, (16 * 1024 * 1024 - 466) / 136);
    expectSound(data);
    EXPECT_EQ(data.TestPtrnData(POINT{0, 0}), -1) << "records of zeros are of no type";
}

TEST_F(DamagedPattern, that_is_no_file_is_not_loaded)
{
    std::filesystem::create_directory(project.folder() + "/folder.ptn");
    ASSERT_EQ(mkfifo((project.folder() + "/pipe.ptn").c_str(), 0600), 0);
    CPtrnData data("missing");

    EXPECT_EQ(data.LoadPtrnData("folder"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_EQ(data.LoadPtrnData("pipe"), 0);
    EXPECT_EQ(data.PtrnCont, 0);
}

TEST_F(DamagedPattern, names_that_no_file_can_have_load_nothing)
{
    CPtrnData data(nullptr);

    EXPECT_EQ(data.PtrnCont, 0);
    EXPECT_EQ(data.LoadPtrnData(nullptr), 0);
    EXPECT_EQ(data.LoadPtrnData(""), 0);
    EXPECT_EQ(data.LoadPtrnData(std::string(10000, 'n').c_str()), 0);
    EXPECT_EQ(data.LoadPtrnData("no/such/folder"), 0);
}

TEST_F(DamagedPattern, loads_without_a_code_table)
{
    Project bare;
    bare.start();
    three().save(bare);
    const CPtrnData data("three");

    ASSERT_EQ(data.PtrnCont, 3);
    EXPECT_EQ(val(data.PtrnData[0].DataNo), -1);
}

TEST_F(DamagedPattern, survives_any_bytes)
{
    std::mt19937 random(20240301);
    const auto below = [&](std::size_t count) { return static_cast<std::size_t>(random() % count); };
    const int extremes[] = {0, 1, -1, 15, 16, 1000000, INT_HIGH, INT_LOW};
    const std::string whole = three().bytes();
    for (int round = 0; round < 500; ++round) {
        std::string bytes = whole.substr(0, round % 3 == 0 ? below(whole.size() + 1) : whole.size());
        for (std::size_t i = 0; i < 8 && bytes.size() > 8; ++i) {
            const std::size_t at = below(bytes.size() - 4);
            if (i % 2)
                bytes[at] = static_cast<char>(random());
            else // numbers lie at even places in header and records
                bytes.replace(at & ~std::size_t{1}, 4, int32(extremes[below(std::size(extremes))]));
        }
        loadBytes(bytes);
        expectSound(result());
    }
}
