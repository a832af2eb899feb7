// Fonts: which names are read, what becomes of them, and what the log says when something is missing.
#include "tests/draw/ResourceFixture.h"

#include "config/Settings.h"

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace
{

const char* const GOTHIC14 = "-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*";
const char* const GOTHIC16 = "-*-fixed-medium-r-normal--16-*-*-*-*-*-*-*";

class Fonts : public Resources
{
};

TEST_F(Fonts, of_the_first_language_are_numbered_from_0)
{
    project.set("FONT", "LANGUAGE", "0")
        .set("FONT", "FONTNAME0", GOTHIC14)
        .set("FONT", "FONTNAME19", GOTHIC16);
    DrawCntlInit();

    EXPECT_EQ(Language, 0);
    EXPECT_NE(DrawFont[0], nullptr);
    EXPECT_EQ(FontSize[0].cx, 7);
    EXPECT_EQ(FontSize[0].cy, 14);
    EXPECT_NE(DrawFont[19], nullptr);
    EXPECT_EQ(FontSize[19].cx, 8);
    EXPECT_EQ(FontSize[19].cy, 16);
}

TEST_F(Fonts, of_the_second_language_are_numbered_from_20)
{
    project.set("FONT", "LANGUAGE", "1")
        .set("FONT", "FONTNAME0", GOTHIC14)
        .set("FONT", "FONTNAME21", GOTHIC16);
    DrawCntlInit();

    EXPECT_EQ(Language, 1);
    EXPECT_EQ(DrawFont[0], nullptr);
    EXPECT_EQ(FontSize[0].cy, 0);
    EXPECT_NE(DrawFont[1], nullptr);
    EXPECT_EQ(FontSize[1].cy, 16);
}

TEST_F(Fonts, without_a_name_stay_unused)
{
    project.set("FONT", "FONTNAME0", GOTHIC14).set("FONT", "FONTNAME2", "");
    DrawCntlInit();

    for (int no = 1; no < CONT_FONT; ++no) {
        EXPECT_EQ(DrawFont[no], nullptr) << no;
        EXPECT_EQ(FontSize[no].cx, 0) << no;
        EXPECT_EQ(FontSize[no].cy, 0) << no;
    }
    EXPECT_THAT(reports(), IsEmpty()) << "one named font is enough";
}

TEST_F(Fonts, draw_two_byte_characters_twice_as_wide_as_single_ones)
{
    project.set("FONT", "FONTNAME0", GOTHIC14);
    DrawCntlInit();
    ASSERT_NE(DrawFont[0], nullptr);

    const auto width = [](const std::string& text) {
        int lbearing, rbearing, advance, ascent, descent;
        gdk_text_extents(DrawFont[0], text.c_str(), static_cast<int>(text.size()), &lbearing, &rbearing,
                         &advance, &ascent, &descent);
        return advance;
    };
    EXPECT_EQ(width("ABC"), 3 * 7);
    EXPECT_EQ(width("漢字"), 2 * 14);
    EXPECT_EQ(width("A漢"), 7 + 14);
}

TEST_F(Fonts, have_one_name_which_a_comma_ends)
{
    // The first name has no kanji; the second, which has nothing else, is not read.
    project.set("FONT", "FONTNAME0",
                "-sony-fixed-medium-r-normal--24-*-*-*-*-*-*-*,-jis-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
    DrawCntlInit();

    ASSERT_NE(DrawFont[0], nullptr);
    EXPECT_EQ(FontSize[0].cx, 12);
    EXPECT_EQ(FontSize[0].cy, 24);
    EXPECT_EQ(gdk_text_width(DrawFont[0], "A", 1), 12);
    EXPECT_NE(gdk_text_width(DrawFont[0], "漢", 2), 16);
    EXPECT_THAT(reports(), Contains(AllOf(HasSubstr("FONTNAME0: "), HasSubstr("JISX0208"))));
    EXPECT_THAT(reports(), Contains(HasSubstr("コンマ")));
}

TEST_F(Fonts, that_match_nothing_keep_their_size_and_are_reported)
{
    project.set("FONT", "LANGUAGE", "1")
        .set("FONT", "FONTNAME23", "-nobody-nothing-medium-r-normal--18-*-*-*-*-*-*-*");
    DrawCntlInit();

    EXPECT_EQ(DrawFont[3], nullptr);
    EXPECT_EQ(FontSize[3].cx, 9);
    EXPECT_EQ(FontSize[3].cy, 18);
    EXPECT_THAT(
        reports(),
        ElementsAre("フォントの読込みに失敗 [FONTNAME23=-nobody-nothing-medium-r-normal--18-*-*-*-*-*-*-*]",
                    AllOf(HasSubstr("xfonts-base"), HasSubstr("xfonts-intl-japanese"), HasSubstr("コンマ"))));
}

TEST_F(Fonts, that_lack_a_character_set_are_used_and_reported)
{
    project.set("FONT", "FONTNAME5", "-sony-fixed-medium-r-normal--16-*-*-*-*-*-*-*");
    DrawCntlInit();

    EXPECT_NE(DrawFont[5], nullptr);
    EXPECT_EQ(FontSize[5].cy, 16);
    EXPECT_THAT(reports(), ElementsAre(AllOf(HasSubstr("フォントに文字集合がない [FONTNAME5: "),
                                             HasSubstr("JISX0208.1983-0")),
                                       HasSubstr("xfonts-intl-japanese")));
}

TEST_F(Fonts, advice_comes_once_for_all_fonts)
{
    for (int no = 0; no < CONT_FONT; ++no)
        project.set("FONT", "FONTNAME" + std::to_string(no), "nothing");
    DrawCntlInit();
    EXPECT_EQ(reports().size(), CONT_FONT + 1u);
}

TEST_F(Fonts, none_named_for_the_language_is_reported)
{
    project.set("FONT", "LANGUAGE", "2").set("FONT", "FONTNAME0", GOTHIC14);
    DrawCntlInit();
    EXPECT_THAT(reports(), ElementsAre(AllOf(HasSubstr("FONTNAME40"), HasSubstr("FONTNAME59"))));
}

TEST_F(Fonts, of_a_huge_language_number_have_huge_key_numbers)
{
    project.set("FONT", "LANGUAGE", "2147483647").set("FONT", "FONTNAME42949672947", GOTHIC14);
    DrawCntlInit();

    EXPECT_EQ(Language, 2147483647);
    EXPECT_NE(DrawFont[7], nullptr);
}

TEST_F(Fonts, with_a_senseless_name_are_not_loaded)
{
    project.set("FONT", "FONTNAME0", std::string(99, '-'))
        .set("FONT", "FONTNAME1", std::string(240, '*'))
        .set("FONT", "FONTNAME2", "\xA1\xFF%s%n%s%n")
        .set("FONT", "FONTNAME3", ",,,,,,,,,,,,,")
        .set("FONT", "FONTNAME4", "-a-b-c-d-e-f-g-h-i-j-k-l-m-n-o-p-q-r-s");
    DrawCntlInit();

    EXPECT_EQ(DrawFont[0], nullptr);
    EXPECT_EQ(DrawFont[2], nullptr);
    EXPECT_EQ(DrawFont[3], nullptr);
    EXPECT_EQ(DrawFont[4], nullptr);
    EXPECT_THAT(reports(), Contains("フォントの読込みに失敗 [FONTNAME2=\xA1\xFF%s%n%s%n]"));
}

TEST(FontData, takes_the_size_from_the_name)
{
    const struct {
        const char* name;
        int cx;
        int cy;
    } cases[] = {
        {"-*-fixed-medium-r-normal--14-*-*-*-*-*-*-*", 7, 14},  // pixels
        {"-*-fixed-medium-r-normal--*-140-*-*-*-*-*-*", 7, 14}, // tenths of a point
        {"-*-fixed-medium-r-normal--*-145-*-*-*-*-*-*", 7, 14}, // rounded down
        {"-*-fixed-medium-r-normal--15-*", 7, 15},              // half rounded down
        {"-*-fixed-medium-r-normal--14", 7, 14},                // ends after the digits
        {"-*-fixed-medium-r-normal--14x5", 7, 14},              // ends at a non-digit
        {"-*-fixed-medium-r-normal--12345-*", 617, 1234},       // four digits
        {"-*-fixed-medium-r-normal--*-12345-*", 61, 123},       // four digits, then / 10
        {"-*-fixed-medium-r-normal---140-*", 0, 0},             // empty field
        {"-*-fixed-medium-r-normal--*--75", 0, 0},              // empty point size
        {"-*-fixed-medium-r-normal--*-*-75", 0, 0},             // no size at all
        {"-*-fixed-medium-r-normal--*5140", 7, 14},             // two characters skipped
        {"-*-fixed-medium-r-normal--*-", 0, 0},                 // ends after "*-"
        {"-*-fixed-medium-r-normal--*", 0, 0},                  // ends after "*"
        {"-*-fixed-medium-r-normal--", 0, 0},                   // ends at the field
        {"-*-fixed-medium-r-normal-14", 0, 0},                  // six dashes
        {"k14", 0, 0},
        {"-------16", 8, 16},
        {"", 0, 0},
    };
    for (const auto& expected : cases) {
        // Exactly as long as the text, so that reading past its end is seen.
        const std::size_t size = std::strlen(expected.name) + 1;
        const std::unique_ptr<char[]> name(new char[size]);
        std::memcpy(name.get(), expected.name, size);
        FontSize[6] = {99, 99};
        FontDataInit(6, name.get());
        EXPECT_EQ(FontSize[6].cx, expected.cx) << expected.name;
        EXPECT_EQ(FontSize[6].cy, expected.cy) << expected.name;
    }
    FontSize[6] = {0, 0};
}

TEST(FontData, of_a_number_out_of_range_is_ignored)
{
    const SIZE before = FontSize[0];
    FontDataInit(-1, "-*-fixed-medium-r-normal--14-*");
    FontDataInit(CONT_FONT, "-*-fixed-medium-r-normal--14-*");
    EXPECT_EQ(FontSize[0].cy, before.cy);
}

TEST(FontData, of_a_null_name_is_0)
{
    FontSize[6] = {99, 99};
    FontDataInit(6, nullptr);
    EXPECT_EQ(FontSize[6].cx, 0);
    EXPECT_EQ(FontSize[6].cy, 0);
}

} // namespace
