// Pointer cursors: bits, hot spots, colours.
#include "tests/draw/ResourceFixture.h"

using namespace tessary;

namespace
{

bool bit(const char* bits, int x, int y)
{
    return static_cast<unsigned char>(bits[y * 4 + x / 8]) >> x % 8 & 1;
}

class Cursors : public Resources
{
};

/// A cursor picture with the given pixels.
struct Picture32 {
    std::vector<std::string> lines{"32 32 3 1", "  c None", ". c #FFFFFF", "X c #000000"};
    Picture32() { lines.resize(36, std::string(32, ' ')); }
    std::vector<char*> xpm()
    {
        std::vector<char*> pointers;
        for (std::string& line : lines)
            pointers.push_back(line.data());
        return pointers;
    }
};

TEST_F(Cursors, become_bits_with_the_lowest_bit_leftmost)
{
    Picture32 picture;
    picture.lines[4] = "X.      .                      X";
    picture.lines[35][31] = '.';
    char data[SIZE_CURSOR];
    char mask[SIZE_CURSOR];
    std::fill_n(data, SIZE_CURSOR, '\x5A');
    std::fill_n(mask, SIZE_CURSOR, '\x5A');
    MakeCursor(picture.xpm().data(), data, mask);

    std::string expectedData(SIZE_CURSOR, '\0');
    std::string expectedMask(SIZE_CURSOR, '\0');
    expectedData[0] = 0x01;
    expectedData[3] = '\x80';
    expectedMask[0] = 0x03;
    expectedMask[1] = 0x01;
    expectedMask[3] = '\x80';
    expectedMask[127] = '\x80';
    EXPECT_EQ(std::string(data, SIZE_CURSOR), expectedData);
    EXPECT_EQ(std::string(mask, SIZE_CURSOR), expectedMask);
}

TEST_F(Cursors, with_short_rows_are_filled_up_with_blanks)
{
    Picture32 picture;
    picture.lines[4] = "X";
    picture.lines[5] = "";
    for (std::string& line : picture.lines)
        line.shrink_to_fit();
    char data[SIZE_CURSOR];
    char mask[SIZE_CURSOR];
    MakeCursor(picture.xpm().data(), data, mask);
    EXPECT_EQ(std::string(data, SIZE_CURSOR), '\x01' + std::string(127, '\0'));
    EXPECT_EQ(std::string(mask, SIZE_CURSOR), '\x01' + std::string(127, '\0'));
}

TEST_F(Cursors, are_the_bits_of_the_built_in_pictures)
{
    DrawCntlInit();
    char** const pictures[] = {XPM_Cursor1, XPM_Cursor2, XPM_Cursor3, XPM_Cursor4,
                               XPM_Cursor5, XPM_Cursor6, XPM_Cursor7, XPM_Cursor8};
    for (int no = 0; no < CONT_CURSOR; ++no)
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x) {
                ASSERT_EQ(bit(CursorData[no], x, y), pictures[no][4 + y][x] == 'X')
                    << no << ' ' << x << ' ' << y;
                ASSERT_EQ(bit(CursorMask[no], x, y), pictures[no][4 + y][x] != ' ')
                    << no << ' ' << x << ' ' << y;
            }
    EXPECT_EQ(CursorData[0], XPM_Cursor1_data);
    EXPECT_EQ(CursorMask[0], XPM_Cursor1_mask);
    EXPECT_EQ(CursorData[7], XPM_Cursor8_data);
    EXPECT_EQ(CursorMask[7], XPM_Cursor8_mask);
}

TEST_F(Cursors, have_their_hot_spots_on_a_foreground_pixel)
{
    const POINT expected[] = {{1, 1}, {15, 15}, {15, 16}, {15, 15}, {9, 15}, {15, 9}, {12, 12}, {12, 12}};
    DrawCntlInit();
    for (int no = 0; no < CONT_CURSOR; ++no) {
        EXPECT_EQ(CursorHome[no].x, expected[no].x) << no;
        EXPECT_EQ(CursorHome[no].y, expected[no].y) << no;
        EXPECT_TRUE(bit(CursorData[no], expected[no].x, expected[no].y)) << no;
    }
}

TEST_F(Cursors, first_is_an_arrow_with_its_tip_at_the_hot_spot)
{
    DrawCntlInit();
    for (int i = 0; i < 32; ++i) {
        EXPECT_FALSE(bit(CursorData[0], i, 0)) << "nothing above the tip";
        EXPECT_FALSE(bit(CursorData[0], 0, i)) << "nothing left of the tip";
    }
    EXPECT_FALSE(bit(CursorData[0], 2, 1));
    EXPECT_TRUE(bit(CursorData[0], 1, 2));
    EXPECT_TRUE(bit(CursorData[0], 2, 2));
}

TEST_F(Cursors, others_are_centred_on_their_hot_spots)
{
    DrawCntlInit();
    for (int no = 1; no < CONT_CURSOR; ++no) {
        int left = 32, top = 32, right = -1, bottom = -1;
        for (int y = 0; y < 32; ++y)
            for (int x = 0; x < 32; ++x)
                if (bit(CursorMask[no], x, y)) {
                    left = std::min(left, x);
                    right = std::max(right, x);
                    top = std::min(top, y);
                    bottom = std::max(bottom, y);
                }
        EXPECT_EQ((left + right) / 2, CursorHome[no].x) << no;
        EXPECT_EQ((top + bottom) / 2, CursorHome[no].y) << no;
    }
}

TEST_F(Cursors, are_made_by_the_toolkit_from_the_tables)
{
    project.set("COLOR", "CURSOR_FG", "0,0,0").set("COLOR", "CURSOR_BG", "65535,65535,65535");
    DrawCntlInit();
    for (int no = 0; no < CONT_CURSOR; ++no) {
        const BitmapPtr data(gdk_bitmap_create_from_data(nullptr, CursorData[no], 32, 32));
        const BitmapPtr mask(gdk_bitmap_create_from_data(nullptr, CursorMask[no], 32, 32));
        GdkCursor* cursor = gdk_cursor_new_from_pixmap(data.get(), mask.get(), &CusrColr[0], &CusrColr[1],
                                                       CursorHome[no].x, CursorHome[no].y);
        ASSERT_NE(cursor, nullptr) << no;
        gdk_cursor_unref(cursor);
    }
}

TEST_F(Cursors, have_the_two_colors_of_the_profile_file)
{
    project.set("COLOR", "CURSOR_FG", "65535,0,0").set("COLOR", "CURSOR_BG", "256,32768,4660");
    DrawCntlInit();
    EXPECT_EQ(CusrColr[0].red, 65535);
    EXPECT_EQ(CusrColr[0].green, 0);
    EXPECT_EQ(CusrColr[0].blue, 0);
    EXPECT_EQ(CusrColr[0].pixel, pixel24(65535, 0, 0));
    EXPECT_EQ(CusrColr[1].red, 256);
    EXPECT_EQ(CusrColr[1].green, 32768);
    EXPECT_EQ(CusrColr[1].blue, 4660);
    EXPECT_EQ(CusrColr[1].pixel, pixel24(256, 32768, 4660));
}

TEST_F(Cursors, keep_the_low_16_bits_of_color_values)
{
    project.set("COLOR", "CURSOR_FG", "65536,65537,131071").set("COLOR", "CURSOR_BG", "1,2,3");
    DrawCntlInit();
    EXPECT_EQ(CusrColr[0].red, 0);
    EXPECT_EQ(CusrColr[0].green, 1);
    EXPECT_EQ(CusrColr[0].blue, 65535);
}

TEST_F(Cursors, allocate_neither_color_when_one_is_incomplete)
{
    project.set("COLOR", "CURSOR_FG", "65535,65535").set("COLOR", "CURSOR_BG", "1000,2000,3000");
    DrawCntlInit();
    EXPECT_EQ(CusrColr[0].red, 65535);
    EXPECT_EQ(CusrColr[0].green, 65535);
    EXPECT_EQ(CusrColr[0].blue, 0);
    EXPECT_EQ(CusrColr[0].pixel, 0u);
    EXPECT_EQ(CusrColr[1].red, 1000);
    EXPECT_EQ(CusrColr[1].pixel, 0u);
}

TEST_F(Cursors, count_a_refused_number_as_incomplete)
{
    project.set("COLOR", "CURSOR_FG", "65535,65535,65535").set("COLOR", "CURSOR_BG", "-1,65535,65535");
    DrawCntlInit();
    EXPECT_EQ(CusrColr[0].pixel, 0u);
    EXPECT_EQ(CusrColr[1].pixel, 0u);
    EXPECT_EQ(CusrColr[1].red, 0);
    EXPECT_EQ(CusrColr[1].green, 65535);
}

} // namespace
