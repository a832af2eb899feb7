// Colours, the display's size, and the order of loading as a whole.
#include "tests/draw/ResourceFixture.h"

#include "config/Settings.h"

using namespace tessary;

using testing::Contains;
using testing::Each;
using testing::ElementsAre;

namespace
{

class Colors : public Resources
{
};

TEST_F(Colors, are_read_and_allocated_in_the_system_colormap)
{
    colors({{0, {65535, 0, 0}}, {42, {0x1234, 0x8000, 0xFEDC}}, {99, {257, 65535, 256}}});
    DrawCntlInit();

    EXPECT_EQ(ColrData[42].red, 0x1234);
    EXPECT_EQ(ColrData[42].green, 0x8000);
    EXPECT_EQ(ColrData[42].blue, 0xFEDC);
    EXPECT_EQ(DrawColr[42].red, 0x1234);
    EXPECT_EQ(DrawColr[42].green, 0x8000);
    EXPECT_EQ(DrawColr[42].blue, 0xFEDC);
    EXPECT_EQ(DrawColr[42].pixel, pixel24(0x1234, 0x8000, 0xFEDC));
    EXPECT_EQ(DrawColr[0].pixel, pixel24(65535, 0, 0));
    EXPECT_EQ(DrawColr[99].pixel, pixel24(257, 65535, 256));
    EXPECT_EQ(DrawColr[1].pixel, pixel24(0, 0, 0));
}

TEST_F(Colors, keep_the_low_16_bits_of_the_file_s_values)
{
    colors({{3, {65536 + 0x8000, -1, 0x7FFF00AA}}});
    DrawCntlInit();

    EXPECT_EQ(ColrData[3].red, 65536 + 0x8000) << "the file's own value stays as it is";
    EXPECT_EQ(ColrData[3].green, -1);
    EXPECT_EQ(DrawColr[3].red, 0x8000);
    EXPECT_EQ(DrawColr[3].green, 0xFFFF);
    EXPECT_EQ(DrawColr[3].blue, 0x00AA);
    EXPECT_EQ(DrawColr[3].pixel, pixel24(0x8000, 0xFFFF, 0x00AA));
}

TEST_F(Colors, are_all_black_without_the_file_which_the_log_tells)
{
    DrawCntlInit();

    for (const GdkColor& color : DrawColr) {
        EXPECT_EQ(color.red | color.green | color.blue, 0);
        EXPECT_EQ(color.pixel, pixel24(0, 0, 0));
    }
    EXPECT_THAT(project.messages(), Contains("ファイルのオープンに失敗 [PtrnColr]"));
}

TEST_F(Colors, are_all_black_when_the_file_is_short)
{
    project.write("PtrnColr", std::string(1199, '\x7F'));
    DrawCntlInit();

    for (const COLRDATA& color : ColrData)
        EXPECT_EQ(color.red | color.green | color.blue, 0);
    EXPECT_THAT(project.messages(), Contains("ファイルの読込みに失敗 [PtrnColr]"));
}

TEST_F(Colors, take_the_first_1200_bytes_of_a_longer_file)
{
    project.write("PtrnColr", std::string(1200, '\x01') + std::string(5000, '\x02'));
    DrawCntlInit();

    EXPECT_EQ(ColrData[99].blue, 0x01010101);
    EXPECT_EQ(ColrData[0].red, 0x01010101);
}

TEST_F(Colors, any_bytes_in_the_files_are_colors_and_marks)
{
    std::string noise;
    unsigned seed = 1;
    for (int i = 0; i < 179200; ++i) {
        seed = seed * 1103515245 + 12345;
        noise += static_cast<char>(seed >> 16);
    }
    project.write("PtrnColr", noise.substr(0, 1200)).write("PtrnMark", noise);
    DrawCntlInit();

    for (int i = 0; i < CONT_COLR; ++i)
        EXPECT_EQ(DrawColr[i].pixel, pixel24(DrawColr[i].red, DrawColr[i].green, DrawColr[i].blue)) << i;
    for (int mark = 0; mark < CONT_MARK; ++mark)
        for (int row = 0; row < MarkYsize[mark / 50]; ++row) {
            const std::string line = Mark_XPM[mark].data[3 + row];
            EXPECT_EQ(line.size(), static_cast<std::size_t>(MarkXsize[mark / 50])) << mark;
            EXPECT_THAT(line, Each(testing::AnyOf('X', '.')));
        }
}

class Loading : public Resources
{
};

TEST_F(Loading, reads_the_size_of_the_display)
{
    project.set("TESSARY", "DISPSIZE", "1280,1024");
    DrawCntlInit();
    EXPECT_EQ(DispSizeX, 1280);
    EXPECT_EQ(DispSizeY, 1024);
}

TEST_F(Loading, leaves_the_size_of_the_display_0_without_the_key)
{
    DrawCntlInit();
    EXPECT_EQ(DispSizeX, 0);
    EXPECT_EQ(DispSizeY, 0);
}

TEST_F(Loading, says_nothing_of_success)
{
    colors({});
    project.write("PtrnMark", std::string(179200, '\0'))
        .set("FONT", "FONTNAME0", "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*");
    DrawCntlInit();
    EXPECT_THAT(project.messages(), ElementsAre());
}

TEST_F(Loading, reads_the_colors_before_the_marks_and_goes_on_without_both)
{
    project.set("FONT", "FONTNAME4", "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*");
    DrawCntlInit();

    EXPECT_THAT(project.messages(),
                ElementsAre("ファイルのオープンに失敗 [PtrnColr]", "ファイルの読込みに失敗 [PtrnColr]",
                            "ファイルのオープンに失敗 [PtrnMark]", "ファイルの読込みに失敗 [PtrnMark]"));
    EXPECT_NE(DrawFont[4], nullptr);
    EXPECT_EQ(Mark_XPM[353].mark[18], Mark_XPM[353].data[18]);
}

TEST_F(Loading, works_without_a_profile_file)
{
    project.set("TESSARY", "DISPSIZE", "800,600");
    DrawCntlInit();
    writeFile(project.profile(), "");
    DrawCntlInit();
    EXPECT_EQ(DispSizeX, 0);
    EXPECT_EQ(Language, 0);
    EXPECT_EQ(DrawFont[0], nullptr);
}

TEST_F(Loading, a_second_run_starts_from_the_beginning)
{
    colors({{7, {1, 2, 3}}});
    project.write("PtrnMark", std::string(179200, '\xFF'))
        .set("TESSARY", "DISPSIZE", "800,600")
        .set("FONT", "FONTNAME0", "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*")
        .set("COLOR", "CURSOR_FG", "1,2,3")
        .set("COLOR", "CURSOR_BG", "4,5,6")
        .set("COLOR", "XPM_COLR3", "111111,222222,333333");
    DrawCntlInit();
    ASSERT_NE(DrawFont[0], nullptr);
    ASSERT_STREQ(XPM_LeftArrow1[1], "  c #111111");

    colors({});
    project.write("PtrnMark", std::string(179200, '\0'))
        .unset("TESSARY", "DISPSIZE")
        .unset("FONT", "FONTNAME0")
        .unset("COLOR", "CURSOR_FG")
        .unset("COLOR", "CURSOR_BG")
        .unset("COLOR", "XPM_COLR3");
    DrawCntlInit();

    EXPECT_EQ(DispSizeX, 0);
    EXPECT_EQ(DrawColr[7].blue, 0);
    EXPECT_EQ(DrawFont[0], nullptr);
    EXPECT_EQ(FontSize[0].cy, 0);
    EXPECT_EQ(CusrColr[0].red, 0);
    EXPECT_EQ(std::string(Mark_XPM[0].data[3]), std::string(16, '.'));
    EXPECT_THAT(texts(XPM_LeftArrow1, 1, 3), ElementsAre("  c #FFFFFF", ". c #C0C0C0", "X c #000000"));
}

TEST_F(Loading, exit_returns_every_table_to_zero)
{
    colors({{7, {1, 2, 3}}});
    project.write("PtrnMark", std::string(179200, '\xFF'))
        .set("TESSARY", "DISPSIZE", "800,600")
        .set("FONT", "LANGUAGE", "1")
        .set("FONT", "FONTNAME20", "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*")
        .set("COLOR", "CURSOR_FG", "1,2,3")
        .set("COLOR", "CURSOR_BG", "4,5,6")
        .set("COLOR", "XPM_COLR1", "111111,222222,333333");
    DrawCntlInit();
    DrawCntlExit();

    const auto zero = [](const auto& table) {
        const auto* bytes = reinterpret_cast<const char*>(&table);
        return std::all_of(bytes, bytes + sizeof table, [](char byte) { return byte == 0; });
    };
    EXPECT_TRUE(zero(ColrData));
    EXPECT_TRUE(zero(DrawColr));
    EXPECT_TRUE(zero(DrawFont));
    EXPECT_TRUE(zero(FontSize));
    EXPECT_TRUE(zero(MarkData));
    EXPECT_TRUE(zero(Mark_XPM));
    EXPECT_TRUE(zero(CusrColr));
    EXPECT_TRUE(zero(XPM_Cursor1_data));
    EXPECT_TRUE(zero(XPM_Cursor8_mask));
    EXPECT_EQ(DispSizeX, 0);
    EXPECT_EQ(DispSizeY, 0);
    EXPECT_EQ(Language, 0);
    EXPECT_THAT(texts(XPM_Printer, 1, 3), ElementsAre("  c #FFFFFF", ". c #C0C0C0", "X c #000000"));
}

} // namespace
