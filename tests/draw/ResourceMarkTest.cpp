// Marks: bits to XPM text, sizes by group, the built-in ones.
#include "tests/draw/ResourceFixture.h"

using namespace tessary;

using testing::ElementsAre;

namespace
{

class Marks : public testing::Test
{
  protected:
    ~Marks() override { DrawCntlExit(); }

    static void setBit(int mark, int bit)
    {
        MarkData[mark].mark[bit / 8] = static_cast<BYTE>(MarkData[mark].mark[bit / 8] | 1 << bit % 8);
    }

    /// Places of the foreground pixels, row by row.
    static std::vector<std::pair<int, int>> foreground(int mark)
    {
        std::vector<std::pair<int, int>> places;
        for (int y = 0; y < MarkYsize[mark / 50]; ++y)
            for (int x = 0; x < MarkXsize[mark / 50]; ++x)
                if (Mark_XPM[mark].data[3 + y][x] == 'X')
                    places.emplace_back(x, y);
        return places;
    }
};

using Places = std::vector<std::pair<int, int>>;

TEST_F(Marks, have_one_size_in_each_group_of_50)
{
    MarkDataSet();
    const char* const headers[] = {"16 32 2 1", "16 32 2 1", "32 32 2 1", "32 32 2 1",
                                   "64 32 2 1", "32 64 2 1", "64 64 2 1"};
    for (int mark = 0; mark < CONT_MARK; ++mark)
        EXPECT_STREQ(Mark_XPM[mark].data[0], headers[mark / 50]) << mark;
}

TEST_F(Marks, take_the_lowest_bit_of_a_byte_first)
{
    MarkData[0].mark[0] = 0x01;
    MarkData[0].mark[1] = 0x80;
    MarkData[1].mark[0] = 0x0A;
    MarkDataSet();
    EXPECT_STREQ(Mark_XPM[0].data[3], "X..............X");
    EXPECT_STREQ(Mark_XPM[1].data[3], ".X.X............");
}

TEST_F(Marks, read_their_rows_as_one_stream_of_bits)
{
    setBit(50, 16);            // 16 wide: first pixel of row 1
    setBit(149, 32 * 31 + 31); // 32 x 32: last pixel
    setBit(200, 64 * 5 + 63);  // 64 wide: row 5
    setBit(250, 32 * 63);      // 32 x 64: first pixel of the last row
    setBit(300, 64 * 63 + 63); // 64 x 64: the last of all 512 bytes
    MarkDataSet();
    EXPECT_EQ(foreground(50), (Places{{0, 1}}));
    EXPECT_EQ(foreground(149), (Places{{31, 31}}));
    EXPECT_EQ(foreground(200), (Places{{63, 5}}));
    EXPECT_EQ(foreground(250), (Places{{0, 63}}));
    EXPECT_EQ(foreground(300), (Places{{63, 63}}));
}

TEST_F(Marks, of_64_by_32_use_the_first_256_bytes_only)
{
    std::fill_n(MarkData[249].mark + 256, 256, 0xFF);
    std::fill_n(MarkData[248].mark, 256, 0xFF);
    MarkDataSet();
    EXPECT_TRUE(foreground(249).empty());
    EXPECT_EQ(foreground(248).size(), 64u * 32u);
}

TEST_F(Marks, of_64_by_64_use_all_bytes)
{
    std::fill_n(MarkData[349].mark, 512, 0xFF);
    MarkDataSet();
    EXPECT_EQ(foreground(349).size(), 64u * 64u);
}

TEST_F(Marks, get_their_color_lines_when_they_are_drawn)
{
    CopyText(Mark_XPM[10].data[1], ". c #123456");
    CopyText(Mark_XPM[10].data[2], "X c #123456");
    MarkDataSet();
    EXPECT_STREQ(Mark_XPM[10].data[1], "");
    EXPECT_STREQ(Mark_XPM[10].data[2], "");
}

TEST_F(Marks, point_at_their_own_lines)
{
    MarkDataInit();
    for (const MARK_XPM& entry : Mark_XPM)
        for (int line = 0; line < 67; ++line)
            ASSERT_EQ(entry.mark[line], entry.data[line]);
}

TEST_F(Marks, are_followed_by_the_built_in_ones)
{
    MarkDataInit();
    const std::pair<int, char**> builtin[] = {
        {350, XPM_Radio_OFF}, {351, XPM_Radio_ON}, {352, XPM_Check_OFF}, {353, XPM_Check_ON}};
    for (const auto& [mark, lines] : builtin)
        EXPECT_EQ(texts(Mark_XPM[mark].mark, 0, 19), texts(lines, 0, 19)) << mark;
}

class MarkFile : public Resources
{
};

TEST_F(MarkFile, gives_each_mark_512_bytes)
{
    std::string bytes(179200, '\0');
    bytes[512 * 1] = 0x02;
    bytes[512 * 350 - 1] = static_cast<char>(0x80);
    project.write("PtrnMark", bytes);
    DrawCntlInit();
    EXPECT_EQ(MarkData[1].mark[0], 0x02);
    EXPECT_EQ(MarkData[349].mark[511], 0x80);
    EXPECT_STREQ(Mark_XPM[1].data[3], ".X..............");
    EXPECT_EQ(Mark_XPM[349].data[66], std::string(63, '.') + 'X');
}

TEST_F(MarkFile, that_is_missing_or_short_leaves_the_marks_empty)
{
    for (const bool missing : {true, false}) {
        if (!missing)
            project.write("PtrnMark", std::string(179199, '\xFF'));
        DrawCntlInit();
        for (int mark = 0; mark < CONT_MARK; ++mark)
            for (int row = 0; row < MarkYsize[mark / 50]; ++row)
                ASSERT_EQ(Mark_XPM[mark].data[3 + row],
                          std::string(static_cast<std::size_t>(MarkXsize[mark / 50]), '.'));
        EXPECT_THAT(project.messages(), testing::Contains("ファイルの読込みに失敗 [PtrnMark]"));
        project.clearLog();
    }
}

TEST_F(MarkFile, every_mark_is_a_picture_that_the_toolkit_reads)
{
    project.write("PtrnMark", std::string(179200, '\x55'));
    DrawCntlInit();
    for (int mark = 0; mark < CONT_MARK + 4; ++mark) {
        CopyText(Mark_XPM[mark].data[1], ". c #0000FF");
        CopyText(Mark_XPM[mark].data[2], "X c #FF0000");
        const PixbufPtr image(gdk_pixbuf_new_from_xpm_data(const_cast<const char**>(Mark_XPM[mark].mark)));
        ASSERT_TRUE(image) << mark;
        EXPECT_EQ(gdk_pixbuf_get_width(image.get()), mark < 350 ? MarkXsize[mark / 50] : 16) << mark;
        EXPECT_EQ(gdk_pixbuf_get_height(image.get()), mark < 350 ? MarkYsize[mark / 50] : 16) << mark;
        EXPECT_FALSE(gdk_pixbuf_get_has_alpha(image.get())) << mark;
    }
}

} // namespace
