// Fixed text, variable text and numeric field. Text colours are 4..7, backgrounds 8..11, clear colour 29.
#include "tests/pattern/ItemCanvas.h"
#include "tests/support/UseEdition.h"

using namespace tessary;

namespace
{

constexpr int NONE = -1;

class TextItem : public ItemCanvas
{
  protected:
    static Pattern fixed(const std::string& text = "Tank")
    {
        return Pattern("p").item(PTRN_FCHR, 10, 20, 60, 40).text(text);
    }
    static Pattern variable(int bytes = 5)
    {
        return Pattern("p").item(PTRN_CHAR, 10, 20, 60, 40).parm(FIELD_WIDTH, bytes);
    }
    static Pattern number(int bytes = 5)
    {
        return Pattern("p").item(PTRN_NUMR, 10, 20, 60, 40).parm(FIELD_WIDTH, bytes).code("A", 2);
    }

    /// Draws a variable text and returns the text it shows.
    std::string shown(int bytes, const std::string& text)
    {
        PTRNDATA item = make(variable(bytes));
        EXPECT_LT(text.size(), sizeof item.sData);
        std::memcpy(item.sData, text.c_str(), text.size() + 1);
        canvas.clear();
        draw(item);
        model.clear();
        model->DrawText(10, 20, 0, 4, NONE, item.Text);
        EXPECT_TRUE(asModelled()) << text;
        return item.Text;
    }
};

class FixedText : public TextItem
{
};

TEST_F(FixedText, has_colours_for_each_selection)
{
    for (int c = 0; c < 4; c++) {
        for (const int updt : {0, 1}) {
            clear();
            PTRNDATA item = make(fixed(), c);
            draw(item, updt);
            model->DrawText(10, 20, 0, 4 + c, NONE, "Tank");
            EXPECT_TRUE(asModelled()) << c;
            clear();
            item = make(fixed().parm(TEXT_BACKED, 2).parm(TEXT_FONT, 1), c);
            draw(item, updt);
            model->DrawText(10, 20, 1, 4 + c, 8 + c, "Tank");
            EXPECT_TRUE(asModelled()) << c;
        }
    }
}

TEST_F(FixedText, stands_at_the_first_corner_as_written)
{
    PTRNDATA item = make(Pattern("p").item(PTRN_FCHR, 60, 40, 10, 20).text("Tank"));
    draw(item);
    model->DrawText(60, 40, 0, 4, NONE, "Tank");
    EXPECT_TRUE(asModelled());
}

TEST_F(FixedText, keeps_its_old_picture_when_disabled_without_background)
{
    cover(50);
    PTRNDATA item = make(fixed());
    draw(item);
    model->DrawText(10, 20, 0, 4, NONE, "Tank");
    item.wData = STATE_DISABLE;
    draw(item, 1);
    EXPECT_TRUE(asModelled());
}

TEST_F(FixedText, turns_to_its_background_when_disabled)
{
    for (int c = 0; c < 4; c++) {
        cover(50);
        PTRNDATA item = make(fixed().parm(TEXT_BACKED, 1), STATE_DISABLE | c);
        draw(item);
        model->ClearText(10, 20, 0, 8 + c, "Tank");
        EXPECT_TRUE(asModelled()) << c;
        EXPECT_GT(canvas.picture().count(color(8 + c)), 0);
    }
}

TEST_F(FixedText, whose_background_is_no_colour_is_drawn_without_one)
{
    PTRNDATA item = make(fixed().parm(TEXT_BACKED, 1).parm(TEXT_BACK4, NONE));
    draw(item);
    model->DrawText(10, 20, 0, 4, NONE, "Tank");
    EXPECT_TRUE(asModelled());
    clear();
    item.wData = STATE_DISABLE;
    draw(item);
    EXPECT_TRUE(untouched());
}

TEST_F(FixedText, is_erased_as_a_box_in_the_clear_colour)
{
    for (const int type : {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR}) {
        cover(50);
        PTRNDATA item = make(Pattern("p").item(type, 10, 20, 60, 40).text("Tank"));
        erase(item);
        model->DrawText(10, 20, 0, 29, 29, "Tank");
        EXPECT_TRUE(asModelled()) << type;
    }
}

TEST_F(FixedText, blinks_on_its_background_even_when_it_has_none)
{
    for (const int type : {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR}) {
        for (const int backed : {0, 1}) {
            for (int c = 0; c < 4; c++) {
                PTRNDATA item =
                    make(Pattern("p").item(type, 10, 20, 60, 40).text("Tank").parm(TEXT_BACKED, backed), c);
                std::memcpy(item.sData, "fresh", 6);
                clear();
                data().FlikPtrnData06(canvas.draw(), &item, 1);
                model->DrawText(10, 20, 0, 4 + c, 8 + c, "Tank");
                EXPECT_TRUE(asModelled()) << type << ' ' << c;
                data().FlikPtrnData06(canvas.draw(), &item, 0);
                model->DrawText(10, 20, 0, 8 + c, 8 + c, "Tank");
                EXPECT_TRUE(asModelled()) << type << ' ' << c;
            }
        }
    }
}

class VariableText : public TextItem
{
};

TEST_F(VariableText, shows_the_text_of_its_cell_up_to_its_width)
{
    EXPECT_EQ(shown(5, ""), "");
    EXPECT_EQ(shown(5, "abcd"), "abcd");
    EXPECT_EQ(shown(5, "abcde"), "abcde");
    EXPECT_EQ(shown(5, "abcdef"), "abcde");
    EXPECT_EQ(shown(1, "abcdef"), "a");
}

TEST_F(VariableText, leaves_out_a_character_that_it_would_split)
{
    EXPECT_EQ(shown(5, "abcd漢"), "abcd");
    EXPECT_EQ(shown(5, "abc漢"), "abc漢");
    EXPECT_EQ(shown(5, "a漢字x"), "a漢字");
    EXPECT_EQ(shown(3, "漢字"), "漢");
    EXPECT_EQ(shown(1, "漢"), "");
}

TEST_F(VariableText, looks_at_the_two_bytes_of_the_cut_only)
{
    // Between two characters both bytes look like halves: one byte too much is left out.
    EXPECT_EQ(shown(2, "漢字"), std::string("漢").substr(0, 1));
    EXPECT_EQ(shown(4, "漢字列"), std::string("漢字").substr(0, 3));
    EXPECT_EQ(shown(2, "\xA0\xA1\xA1"), std::string("\xA0"));     // 161 is the first
    EXPECT_EQ(shown(2, "\xA1\xA0\xA1"), std::string("\xA1\xA0")); // 160 is none
    EXPECT_EQ(shown(2, "\xFE\xFE\xFE"), std::string("\xFE"));     // 254 is the last
    EXPECT_EQ(shown(2, "\xFE\xFF\xFE"), std::string("\xFE\xFF")); // 255 is none
}

TEST_F(VariableText, is_cut_at_the_last_whole_character_in_edition_2)
{
    const UseEdition edition;
    const std::string mixed = "a漢字b列\xA0漢c";
    for (int width = 0; width <= 12; width++) {
        std::string fits;
        for (const char* character : {"a", "漢", "字", "b", "列", "\xA0", "漢", "c"}) {
            if (fits.size() + std::strlen(character) > static_cast<std::size_t>(width))
                break;
            fits += character;
        }
        EXPECT_EQ(shown(width, mixed), fits) << width;
    }
    EXPECT_EQ(shown(2, "漢字"), "漢");
    EXPECT_EQ(shown(4, "漢字列"), "漢字");
    EXPECT_EQ(shown(2, "\xFE\xFE\xFE"), "\xFE\xFE");
}

TEST_F(VariableText, paints_its_whole_field_before_its_text)
{
    for (int c = 0; c < 4; c++) {
        for (const int updt : {0, 1}) {
            cover(50);
            PTRNDATA item = make(variable(8).parm(TEXT_BACKED, 1), c);
            std::memcpy(item.sData, "abc", 4);
            draw(item, updt);
            model->DrawRect(10, 20, 10 + 8 * 8, 20 + 16, 0, 0, 8 + c, 8 + c);
            model->DrawText(10, 20, 0, 4 + c, 8 + c, "abc");
            EXPECT_TRUE(asModelled()) << c;
        }
    }
}

TEST_F(VariableText, without_background_paints_its_text_only)
{
    cover(50);
    PTRNDATA item = make(variable(8), 2);
    std::memcpy(item.sData, "abc", 4);
    draw(item);
    model->DrawText(10, 20, 0, 6, NONE, "abc");
    EXPECT_TRUE(asModelled());
}

TEST_F(VariableText, is_blanked_as_a_fixed_text_when_disabled)
{
    cover(50);
    PTRNDATA item = make(variable(8).parm(TEXT_BACKED, 1), STATE_DISABLE | 1);
    std::memcpy(item.sData, "abc", 4);
    draw(item);
    model->ClearText(10, 20, 0, 9, "abc");
    EXPECT_TRUE(asModelled());
    EXPECT_STREQ(item.Text, "abc");
    cover(50);
    item.Parm[TEXT_BACKED] = 0;
    draw(item);
    EXPECT_TRUE(asModelled());
}

TEST_F(VariableText, keeps_within_its_record)
{
    const std::string longest(255, 'x');
    for (const int bytes : {99, 100, 101, 102, 103, 255, 256, 1000, INT32_MAX})
        EXPECT_EQ(shown(bytes, longest), longest.substr(0, static_cast<std::size_t>(std::min(bytes, 100))));
    for (const int bytes : {0, -1, INT32_MIN})
        EXPECT_EQ(shown(bytes, longest), "");
}

TEST_F(VariableText, of_an_absurd_width_paints_to_the_edge)
{
    PTRNDATA item = make(variable(INT32_MAX).parm(TEXT_BACKED, 1));
    draw(item);
    EXPECT_TRUE(same(canvas.picture(), canvas.blank().fill(10, 20, WIDTH, 36, color(8))));
    clear();
    item = make(variable(-1).parm(TEXT_BACKED, 1));
    draw(item);
    EXPECT_TRUE(untouched());
}

class NumericItem : public TextItem
{
};

TEST_F(NumericItem, shows_its_number_and_keeps_the_text)
{
    for (int c = 0; c < 4; c++) {
        for (const int updt : {0, 1}) {
            cover(50);
            PTRNDATA item = make(number(7).parm(FIELD_DECIMALS, 2).parm(TEXT_BACKED, 1), c);
            set(item.DataNo, 3.25f);
            draw(item, updt);
            model->DrawRect(10, 20, 10 + 7 * 8, 20 + 16, 0, 0, 8 + c, 8 + c);
            model->DrawText(10, 20, 0, 4 + c, 8 + c, "   3.25");
            EXPECT_TRUE(asModelled()) << c;
            EXPECT_STREQ(item.Text, "   3.25");
        }
    }
}

TEST_F(NumericItem, is_not_cut_at_its_width)
{
    PTRNDATA item = make(number(3));
    set(item.DataNo, 123456);
    draw(item);
    model->DrawText(10, 20, 0, 4, NONE, "123456");
    EXPECT_TRUE(asModelled());
}

TEST_F(NumericItem, passes_on_fill_grouping_and_hexadecimal)
{
    PTRNDATA item = make(number(4).parm(FIELD_HEX, 1).parm(FIELD_ZEROFILL, 1));
    set(item.DataNo, 255);
    draw(item);
    EXPECT_STREQ(item.Text, "00FF");
    item.Parm[FIELD_HEX] = 0;
    draw(item);
    EXPECT_STREQ(item.Text, "0255");
}

TEST_F(NumericItem, is_blanked_when_disabled)
{
    cover(50);
    PTRNDATA item = make(number().parm(TEXT_BACKED, 1), STATE_DISABLE);
    set(item.DataNo, 42);
    draw(item);
    model->ClearText(10, 20, 0, 8, "   42");
    EXPECT_TRUE(asModelled());
}

TEST_F(NumericItem, keeps_within_its_record)
{
    PTRNDATA item = make(number(250));
    set(item.DataNo, 42);
    draw(item);
    EXPECT_LT(std::strlen(item.Text), sizeof item.Text);
    EXPECT_EQ(val(item.ID_Type), 0);
}

TEST_F(TextItem, in_a_font_that_is_not_loaded_draws_nothing)
{
    for (const int type : {PTRN_FCHR, PTRN_CHAR, PTRN_NUMR}) {
        PTRNDATA item = make(
            Pattern("p").item(type, 10, 20, 60, 40).text("Tank").parm(TEXT_FONT, 7).parm(TEXT_BACKED, 1));
        draw(item);
        item.wData = STATE_DISABLE;
        draw(item);
        EXPECT_TRUE(untouched()) << type;
    }
}

} // namespace
