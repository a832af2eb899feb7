// Mistakes of the kind that were made silently: each is found, with its place and what to do about it.
#include "tests/ptn/Plant.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gdk-pixbuf/gdk-pixbuf.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ostream>

namespace
{

namespace fs = std::filesystem;

using testing::HasSubstr;

/// One mistake in a project without any.
struct Mistake {
    const char* name;
    const char* file; ///< of the sources
    const char* from; ///< what it has there; empty: the whole file is new
    const char* to;
    const char* found; ///< place and text, or what the text begins with
};

void PrintTo(const Mistake& one, std::ostream* out)
{
    *out << one.name;
}

std::string NameOf(const testing::TestParamInfo<Mistake>& info)
{
    return info.param.name;
}

class MistakeIn : public testing::TestWithParam<Mistake>
{
  protected:
    Plant plant;
};

TEST(Mistakes, are_not_found_where_there_are_none)
{
    const Plant plant;
    const PtnResult result = plant.run("check src");
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out, "src: 4 screens, nothing found.\n");
    const PtnResult built = plant.run("build src out/ProjPath");
    EXPECT_EQ(built.err, "");
    EXPECT_EQ(plant.run("check --registry src/program out/ProjPath").err, "");
}

TEST_P(MistakeIn, is_found_with_its_place)
{
    ASSERT_TRUE(plant.change(GetParam().file, GetParam().from, GetParam().to));
    const PtnResult result = plant.run("check src");
    EXPECT_EQ(result.status, 1) << result.out;
    EXPECT_THAT(result.err, HasSubstr(GetParam().found));
}

// --- names ---------------------------------------------------------------------------------------------

const Mistake NAMES[] = {
    {"code_in_small_letters", "screens/main.yaml", "data: SPEED+1", "data: speed+1",
     "src/screens/main.yaml:8: item 3 (spin): 'data': no code 'speed'. Did you mean 'SPEED'? "},
    {"attribute_in_capitals", "screens/main.yaml", "data: NOTE", "DATA: NOTE",
     "src/screens/main.yaml:11: item 6 (variable-text): unknown attribute 'DATA'. Did you mean 'data'? "},
    {"screen_key_in_capitals", "screens/main.yaml", "title: Plant", "Title: Plant",
     "src/screens/main.yaml:2: unknown 'Title'. Did you mean 'title'? "},
};

INSTANTIATE_TEST_SUITE_P(Names, MistakeIn, testing::ValuesIn(NAMES), NameOf);

// --- files ---------------------------------------------------------------------------------------------

const Mistake FILES[] = {
    {"second_document", "screens/stop.yaml", "items:", "---\nitems:",
     "src/screens/stop.yaml:4: a second document begins before this line, with '---', and would not be "
     "read. "},
    {"second_document_of_the_project", "look.yaml",
     "styles:", "---\nstyles:", "src/look.yaml:3: a second document begins before this line, "},
    {"comma_first", "more.yaml", "", "# flags\n  , flags: {}\n",
     "src/more.yaml:2: not valid YAML: a ',' belongs to no list. A text that begins with ',' needs quotes; "},
    {"comma_behind_brackets", "more.yaml", "", "{ flags: {} }, codes\n",
     "src/more.yaml:1: not valid YAML: a ',' belongs to no list. "},
    {"document_behind_nothing", "more.yaml", "", "---\n---\nflags: {}\n",
     "src/more.yaml:3: a second document begins before this line, "},
    {"yml", "screens/tank.yml", "", "name: Tank\n",
     "src/screens/tank.yml: warning: this file is not read: sources end in '.yaml'. Rename it, "},
    {"capital_yaml", "more.YAML", "", "flags: {}\n",
     "src/more.YAML: warning: this file is not read: sources end in '.yaml'. Rename it, "},
    {"not_utf8", "screens/main.yaml", "title: Plant", "title: \xBB\xAE\xC8\xF7",
     "src/screens/main.yaml:2: not UTF-8: the byte BB in this line is no character of it. Save the file as "
     "UTF-8."},
    {"utf16", "more.yaml", "",
     "\xFF\xFE"
     "f",
     "src/more.yaml:1: not UTF-8: the byte FF in this line "},
};

INSTANTIATE_TEST_SUITE_P(Files, MistakeIn, testing::ValuesIn(FILES), NameOf);

TEST(Mistakes, in_the_folder_of_screens_are_named)
{
    const Plant plant;
    fs::remove_all(plant.root() + "/src/screens");
    writeFile(plant.root() + "/src/screens", "");
    EXPECT_THAT(
        plant.run("check src").err,
        HasSubstr("src/screens: this folder can not be read: Not a directory. Check that it is a folder, "));
}

// --- groups --------------------------------------------------------------------------------------------

const Mistake GROUPS[] = {
    {"group_that_uses_itself", "groups.yaml", "  foot:\n    items:\n",
     "  foot:\n    items:\n      - { use: foot }\n",
     "src/groups.yaml:7: group 'foot' uses itself: foot > foot. A group can not use itself. Take one "},
    {"unused_groups_that_use_each_other", "groups.yaml", "  foot:",
     "  a: { items: [{ use: b }] }\n"
     "  b: { items: [{ at: [1, 1], items: [{ use: a }] }] }\n  foot:",
     "src/groups.yaml:7: group 'a' uses itself: a > b > a. "},
    {"group_of_a_screen_that_uses_itself_by_one_of_all", "screens/stop.yaml", "items:",
     "groups: { pump: { items: [{ use: p2 }] },"
     " p2: { items: [{ use: pump }] } }\nitems:",
     "src/screens/stop.yaml:3: group 'p2' uses itself: p2 > pump > p2. "},
    {"attribute_in_a_group_of_another_file", "groups.yaml", "fill: grey", "fil: grey",
     "src/groups.yaml:5: item 4.1 (circle): unknown attribute 'fil'. Did you mean 'fill'? Correct or "
     "remove it. Used in "
     "src/screens/main.yaml:9.\n"},
    {"value_in_a_group_of_another_file", "groups.yaml", "at: [44, 6]", "at: [170, 6]",
     "reaches beyond the pattern of 640 x 480 pixels, to 642,130. Move it, or enlarge the window. Used in "
     "src/screens/main.yaml:9.\n"},
};

INSTANTIATE_TEST_SUITE_P(Groups, MistakeIn, testing::ValuesIn(GROUPS), NameOf);

// --- items ---------------------------------------------------------------------------------------------

const Mistake ITEMS[] = {
    {"rect_with_at", "screens/main.yaml", "rect: [32, 160, 384, 184]",
     "rect: [32, 160, 384, 184], at: [32, 160]",
     "src/screens/main.yaml:7: item 2 (bar-graph): has both 'rect' and 'at', which say the same. Remove one "
     "of them."},
    {"rect_with_size", "screens/main.yaml", "rect: [32, 160, 384, 184]",
     "size: [9, 9], rect: [32, 160, 384, 184]",
     "src/screens/main.yaml:7: item 2 (bar-graph): has both 'rect' and 'size', which say the same. "},
    {"size_on_a_text", "screens/stop.yaml", "at: [34, 64]", "at: [34, 64], size: [100, 40]",
     "src/screens/stop.yaml:4: warning: item 1 (text): 'size' changes nothing, since a text is as large as "
     "what it "},
    {"size_on_a_field", "screens/main.yaml", "at: [32, 112]", "at: [32, 112], size: [100, 40]",
     "src/screens/main.yaml:6: warning: item 1 (numeric): 'size' changes nothing, since a numeric is as "
     "large "},
    {"number_without_a_cell", "screens/main.yaml", "data: SPEED, width: 6, entry: yes", "width: 6",
     "src/screens/main.yaml:6: numeric at 32,112: has no cell whose value it could show. Name one with "
     "'data'."},
    {"text_field_without_a_cell", "screens/main.yaml", "data: NOTE, ", "",
     "src/screens/main.yaml:11: variable-text at 32,208: has no cell whose value it could show. "},
    {"bar_without_a_cell", "screens/main.yaml", "data: SPEED, minimum", "minimum",
     "src/screens/main.yaml:7: bar-graph at 32,160: has no cell whose value it could show. "},
    {"spin_without_a_cell", "screens/main.yaml", "data: SPEED+1, ", "",
     "src/screens/main.yaml:8: spin at 352,104: has no cell whose value it could show. "},
    {"radio_without_a_cell", "screens/detail.yaml", "data: PUMP+2, ", "",
     "src/screens/detail.yaml:3: radio at 32,100: has no cell whose value it could show. "},
    {"check_without_a_cell", "screens/detail.yaml", "data: PUMP+3, ", "",
     "src/screens/detail.yaml:5: check at 32,164: has no cell whose value it could show. "},
    {"scroll_bar_without_a_cell", "screens/detail.yaml", "data: NOTE, ", "",
     "src/screens/detail.yaml:6: scroll-bar at 400,100: has no cell whose value it could show. "},
    {"button_without_action", "screens/ask.yaml", ", action: close", "",
     "src/screens/ask.yaml:5: warning: item 2 (button): does nothing when it is pressed. Write an 'action' "
     "such as "},
    {"message_without_data", "screens/detail.yaml", ", data: PUMP+0", "",
     "src/screens/detail.yaml:7: button at 192,416: sends the number of no cell, by which the program could "
     "tell "},
    {"two_buttons_on_one_key", "screens/main.yaml", "key: 3", "key: 2",
     "src/screens/main.yaml:15: button at 192,416: has 'key: 2', as the button at 16,416 has, which alone "
     "is "},
    {"buttons_that_overlap", "screens/main.yaml", "at: [192, 416]", "at: [160, 416]",
     "src/screens/main.yaml:15: button at 160,416: overlaps the button at 16,416. Move one of them."},
    {"fields_that_overlap", "screens/main.yaml", "at: [32, 208]", "at: [40, 120]",
     "src/screens/main.yaml:11: variable-text at 40,120: overlaps the numeric at 32,112. Move one of them."},
    {"limits_of_a_bar_exchanged", "screens/main.yaml", "data: SPEED, minimum: 0, maximum: 100",
     "data: SPEED, minimum: 100, maximum: 0",
     "src/screens/main.yaml:7: bar-graph at 32,160: 'minimum' is not below "},
    {"limits_of_a_spin_button_exchanged", "screens/main.yaml", "minimum: 0, maximum: 50",
     "minimum: 50, maximum: 0", "src/screens/main.yaml:8: spin at 352,104: 'minimum' is above 'maximum', "},
    {"limits_of_a_field_exchanged", "screens/main.yaml", "entry: yes, minimum: 0, maximum: 100",
     "entry: yes, minimum: 100, maximum: 9",
     "src/screens/main.yaml:6: numeric at 32,112: 'minimum' is 100 and 'maximum' 9"},
};

INSTANTIATE_TEST_SUITE_P(Items, MistakeIn, testing::ValuesIn(ITEMS), NameOf);

TEST(Mistakes, of_a_text_without_background_are_told_where_the_edition_has_them)
{
    Plant plant;
    ASSERT_TRUE(plant.change("project.yaml", "edition: 2\n", ""));
    ASSERT_TRUE(plant.change("look.yaml", "variable-text: { color: black, back: white,",
                             "variable-text: { color: black,"));
    EXPECT_THAT(
        plant.run("check src").out,
        HasSubstr("src/screens/main.yaml:11: warning: variable-text at 32,208: [edition 2: layers] without a "
                  "background its values are drawn over each other"));
}

TEST(Mistakes, are_none_where_items_take_turns_or_belong_together)
{
    Plant plant;
    ASSERT_TRUE(
        plant.change("screens/detail.yaml", "  - { use: foot }\n",
                     "  - { use: foot }\n"
                     "  - { type: button, rect: [8, 200, 80, 240], key: 5, action: message, data: PUMP+0 }\n"
                     "  - { type: button, rect: [8, 200, 80, 240], key: 5, action: message, data: PUMP+1 }\n"
                     "  - { type: button, rect: [98, 200, 180, 240], action: message, data: NOTE }\n"
                     "  - { type: variable-text, at: [100, 212], data: NOTE, width: 8 }\n"
                     "  - { type: button, rect: [198, 200, 280, 240], action: none }\n"));
    EXPECT_EQ(plant.run("check src").err, "");
}

// --- what all screens share ----------------------------------------------------------------------------

const Mistake TABLES[] = {
    {"code_below_100", "project.yaml", "  SPARE: 3", "  LEVEL: 3",
     "src/project.yaml:6: code 'LEVEL' has the cells 8 to 10. The framework keeps those below 100: "},
    {"code_at_the_error_line", "project.yaml", "  ERROR: 1", "  FAULT: 1",
     "src/project.yaml:7: code 'FAULT' has cell 11. "},
    {"renamed_clock", "project.yaml", "  CLOCK: 7", "  TIME: 7",
     "src/project.yaml:5: code 'TIME' has the cells 1 to 7. The framework keeps those below 100: 1 to 7 for "
     "the "},
    {"code_that_moves_the_clock", "project.yaml", "  CLOCK: 7", "  FIRST: 1\n  CLOCK: 7",
     "src/project.yaml:6: code 'CLOCK' has the cells 2 to 8. "},
    {"limits_exchanged", "project.yaml", "minimum: 0, maximum: 100", "minimum: 100, maximum: 0",
     "src/project.yaml:19: limit 1 has a 'minimum' above its 'maximum', so every entry is refused. Exchange "
     "them."},
    {"message_that_euc_lacks", "project.yaml", "Too high", u8"한",
     u8"src/project.yaml:17: message 'high': EUC-JP has no '한'"},
    {"message_that_fonts_lack", "project.yaml", "Too high", u8"Zu heiß für",
     u8"src/project.yaml:17: message 'high' has 'ß', which the fonts of a panel lack. Use another "
     u8"character."},
    {"full_width_hyphen", "screens/stop.yaml", "Stopping", u8"－１",
     u8"src/screens/stop.yaml:4: item 1 (text): 'text': EUC-JP has no '－' (U+FF0D). Use '−' (U+2212), which "
     u8"looks alike."},
    {"micro_sign", "screens/stop.yaml", "Stopping", u8"5 µm",
     u8"src/screens/stop.yaml:4: item 1 (text): 'text': EUC-JP has no 'µ' (U+00B5). Use 'μ' (U+03BC), which "
     u8"looks alike."},
    {"full_width_tilde", "screens/stop.yaml", "Stopping", u8"１～２",
     u8"src/screens/stop.yaml:4: text at 34,64: its text has '～', which the fonts of a panel lack. Use '〜' "
     u8"(U+301C), "},
    {"mark_with_a_short_row", "marks.yaml", "      X", "      ",
     "src/marks.yaml:4: warning: mark 'dot' (100), row 1: has 31 of 32 columns. Write the others as '.'."},
    {"mark_with_a_row_too_few", "marks.yaml", "      ................................\n", "",
     "src/marks.yaml:4: warning: mark 'dot' (100): has 31 of 32 rows. Write the others too."},
    {"mark_with_another_letter", "marks.yaml", "      .", "      o",
     "src/marks.yaml:4: mark 'dot' (100), row 2: column 1 has neither '.' nor 'X'. "},
    {"mark_of_another_group", "marks.yaml", "no: 100", "no: 0",
     "mark 'dot' (0), row 1: the picture is too large. "},
};

const Mistake FONTS[] = {
    {"font_that_there_is_not", "project.yaml", "small: '-*-fixed-", "small: '-*-fixd-",
     "src/project.yaml:13: warning: font 'small': the X server has none that is called "
     "'-*-fixd-medium-r-normal--14-"},
};

INSTANTIATE_TEST_SUITE_P(Fonts, MistakeIn, testing::ValuesIn(FONTS), NameOf);

INSTANTIATE_TEST_SUITE_P(Tables, MistakeIn, testing::ValuesIn(TABLES), NameOf);

const Mistake PROFILE[] = {
    {"misspelled_display_size", "project.yaml", "DISPSIZE", "DIPSIZE",
     "src/project.yaml:21: warning: profile key 'DIPSIZE' of section 'TESSARY' is none that is read. Did you "
     "mean "
     "'DISPSIZE'? "},
    {"misspelled_language", "project.yaml", "LANGUAGE", "LANGAUGE",
     "src/project.yaml:24: warning: profile key 'LANGAUGE' of section 'FONT' is none that is read. Did you "
     "mean 'LANGUAGE'? "},
    {"key_in_small_letters", "project.yaml", "LOGSIZE", "logsize",
     "src/project.yaml:23: warning: profile key 'logsize' of section 'LOG' is none that is read. Did you "
     "mean 'LOGSIZE'? "},
    {"key_in_a_wrong_section", "project.yaml", "FONT: { LANGUAGE: 0 }", "PANEL: { LANGUAGE: 0 }",
     "src/project.yaml:24: warning: profile key 'LANGUAGE' stands in section 'PANEL', where nothing reads "
     "it. Put it into "},
    {"display_size_of_one_number", "project.yaml", "[640, 480]", "640",
     "src/project.yaml:21: profile key 'DISPSIZE' can not be '640'. Write a list of 2 whole numbers from 0 "
     "to 32767."},
    {"display_size_in_words", "project.yaml", "[640, 480]", "[wide, high]",
     "src/project.yaml:21: profile key 'DISPSIZE' can not be 'wide,high'. "},
    {"language_by_its_name", "project.yaml", "LANGUAGE: 0", "LANGUAGE: english",
     "src/project.yaml:24: profile key 'LANGUAGE' can not be 'english'. Write one whole number from 0 to 2."},
    {"language_that_there_is_not", "project.yaml", "LANGUAGE: 0", "LANGUAGE: 3",
     "src/project.yaml:24: profile key 'LANGUAGE' can not be '3'. "},
    {"seconds_in_words", "project.yaml", "WAITTIMER: 2", "WAITTIMER: two",
     "src/project.yaml:21: profile key 'WAITTIMER' can not be 'two'. Write one whole number from 0 on."},
};

INSTANTIATE_TEST_SUITE_P(Profile, MistakeIn, testing::ValuesIn(PROFILE), NameOf);

// --- screens -------------------------------------------------------------------------------------------

const Mistake SCREENS[] = {
    {"title_that_runs_into_the_clock", "screens/main.yaml", "title: Plant",
     "title: A plant with a name that is longer than its window is wide",
     "src/screens/main.yaml:1: its title reaches 500, into the clock, which begins at 453. Shorten it, "},
    {"window_larger_than_the_display", "screens/ask.yaml", "size: [320, 160]", "size: [641, 160]",
     "src/screens/ask.yaml:1: its window of 641 x 160 pixels is larger than the display, DISPSIZE, of 640 x "
     "480. "},
    {"window_beyond_the_display", "screens/ask.yaml", "remember: yes", "at: [400, 10]",
     "src/screens/ask.yaml:1: its window of 320 x 160 pixels at 400,10 opens beyond the display, DISPSIZE, "
     "of 640 x 480. "},
    {"modal_child_that_can_not_be_closed", "screens/ask.yaml", "action: close", "action: hardcopy",
     "src/screens/ask.yaml:1: nothing in the screen 'Ask' closes it, while it blocks 'Main' that opens it. "},
    {"screen_without_a_way_back", "screens/detail.yaml",
     "  - { type: button, at: [192, 416], size: [160, 48], text: Reset, "
     "action: message, data: PUMP+0 }\n  - { use: foot }\n",
     "",
     "src/screens/detail.yaml:1: warning: nothing leads away from the screen 'Detail' again. Give it a "
     "button with an "
     "action "},
    {"screen_in_a_comment_only", "program/Registry.cpp", "\"Ask\", ", "/* \"Ask\", */",
     "src/screens/main.yaml:15: button at 192,416: the program's registry does not know 'Ask', so nothing "
     "opens. "},
    {"screen_behind_a_comment_only", "program/Registry.cpp", "\"Stop\"", "// \"Stop\"\n",
     "src/project.yaml:22: profile key 'PTRNSTOP': the program's registry does not know 'Stop'. Add it "
     "there."},
};

INSTANTIATE_TEST_SUITE_P(Screens, MistakeIn, testing::ValuesIn(SCREENS), NameOf);

TEST(Mistakes, are_not_seen_in_what_only_looks_like_a_comment)
{
    Plant plant;
    ASSERT_TRUE(plant.change("program/Registry.cpp", "constexpr",
                             "const char* u = \"http://a/*\"; char q = '\"'; "
                             "int n = 1'000; auto r = R\"(x \" // )\";\nconstexpr"));
    EXPECT_EQ(plant.run("check src").err, "");
}

// --- pictures ------------------------------------------------------------------------------------------

class PictureMistake : public testing::Test
{
  protected:
    std::string said(const std::string& bytes)
    {
        plant.write("bitmaps/logo.png", bytes);
        const PtnResult result = plant.run("check src");
        EXPECT_EQ(result.status, 1);
        return result.err;
    }
    std::string picture(int width, int height, const char* format)
    {
        GdkPixbuf* pixels = gdk_pixbuf_new(GDK_COLORSPACE_RGB, FALSE, 8, width, height);
        gdk_pixbuf_fill(pixels, 0x336699FF);
        gchar* bytes = nullptr;
        gsize size = 0;
        EXPECT_TRUE(gdk_pixbuf_save_to_buffer(pixels, &bytes, &size, format, nullptr, nullptr));
        std::string made(bytes, size);
        g_free(bytes);
        g_object_unref(pixels);
        return made;
    }

    Plant plant;
    static constexpr const char* NOT = "src/bitmaps/logo.png: not a picture that the panel can show: ";
};

TEST_F(PictureMistake, is_an_empty_a_fake_or_another_file)
{
    EXPECT_THAT(said(""), HasSubstr(std::string(NOT) + "it is empty. Save it anew."));
    EXPECT_THAT(said("no picture"),
                HasSubstr(std::string(NOT) + "it is no PNG, JPEG, BMP, XPM, XBM or GIF picture."));
    EXPECT_THAT(said(picture(16, 16, "ico")), HasSubstr(std::string(NOT) + "it is no PNG, "));
    EXPECT_THAT(said("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>"),
                HasSubstr(std::string(NOT) + "it is no PNG, "));
}

TEST_F(PictureMistake, is_a_file_that_is_cut_off)
{
    for (const char* format : {"png", "jpeg", "bmp"}) {
        const std::string whole = picture(64, 64, format);
        for (const std::size_t size : {whole.size() / 2, whole.size() - 20, std::size_t{20}})
            EXPECT_THAT(said(whole.substr(0, size)), HasSubstr(NOT)) << format << " " << size;
        plant.write("bitmaps/logo.png", whole);
        EXPECT_EQ(plant.run("check src").err, "") << format;
    }
    for (const std::size_t place : {10, 14}) // where the pixels begin, and how long the second header is
        EXPECT_THAT(said(picture(64, 64, "bmp").replace(place, 4, "\xFF\xFF\xFF\x7F")),
                    HasSubstr(std::string(NOT) + "its end is missing"));
    const std::string gif("GIF89a\x01\0\x01\0\x80\0\0\0\0\0\xFF\xFF\xFF,\0\0\0\0\x01\0\x01\0\0\x02\x02"
                          "D\x01\0;",
                          35);
    EXPECT_THAT(said(gif.substr(0, 30)), HasSubstr(NOT));
    plant.write("bitmaps/logo.png", gif);
    EXPECT_EQ(plant.run("check src").err, "");
    EXPECT_THAT(said("/* XPM */\nstatic char* a[] = {\n\"2 2 1 1\",\n\"a c black\",\n\"aa\","),
                HasSubstr(NOT));
}

TEST_F(PictureMistake, is_one_that_is_larger_than_any_display)
{
    EXPECT_THAT(
        said(picture(2400, 2400, "png")),
        HasSubstr(
            "src/bitmaps/logo.png: warning: has 2400 x 2400 pixels, on a display of 640 x 480. Scale it "));
    // The head alone tells: nothing of that size is decoded.
    std::string head = picture(16, 16, "png");
    head.replace(16, 8, std::string("\0\0\xEA\x60\0\0\xEA\x60", 8));
    EXPECT_THAT(said(head),
                HasSubstr(std::string(NOT) + "it has 60000 x 60000 pixels, more than any display. "));
    EXPECT_THAT(said("/* XPM */\nstatic char* a[] = {\n\"60000 60000 1 1\",\n\"a c black\"};"),
                HasSubstr("60000 x 60000 pixels"));
}

// --- the output ----------------------------------------------------------------------------------------

TEST(Mistakes, in_the_place_of_the_output_are_named)
{
    const Plant plant;
    const auto said = [&](const std::string& output) { return plant.run("build src " + output).err; };
    EXPECT_THAT(said("src/screens/out"),
                HasSubstr("src/screens/out: lies in 'screens' of the sources, which the "));
    EXPECT_THAT(said("src/bitmaps"), HasSubstr("src/bitmaps: lies in 'bitmaps' of the sources, "));
    EXPECT_THAT(said("."), HasSubstr(".: the sources lie in this folder. Name another for the output."));
    EXPECT_THAT(said("src/."), HasSubstr("this is the folder of the sources."));
    EXPECT_THAT(said("src/ProjPath"),
                HasSubstr("src/ProjPath: warning: the profile, which goes beside the output, "));
    EXPECT_EQ(said("src/build/ProjPath"), "");
}

// --- words on the command line -------------------------------------------------------------------------

TEST(Mistakes, in_the_words_after_help_are_named)
{
    const Sources sources;
    const auto said = [&](const std::string& words) {
        const PtnResult result = sources.run("help " + words);
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.out, "");
        return result.err.substr(0, result.err.find('\n'));
    };
    EXPECT_EQ(said("biuld"), "ptn: no type 'biuld'. Did you mean 'build'? The types are:");
    EXPECT_EQ(said("edition"), "ptn: no type 'edition'. Did you mean 'editions'? The types are:");
    EXPECT_EQ(said("attributes Buton"), "ptn: no type 'Buton'. Did you mean 'button'? The types are:");
    EXPECT_EQ(said("check everything"), "ptn: 'everything' is one word too many. Write 'ptn help check'.");
    EXPECT_EQ(said("editions button"),
              "ptn: 'button' is one word too many. Write 'ptn help editions' or 'ptn "
              "help attributes button'.");
}

} // namespace
