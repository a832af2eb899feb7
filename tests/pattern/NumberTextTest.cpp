// The text of numbers in later editions: with separators, whole or not at all, with all digits of a double.
#include "pattern/NumberText.h"

#include "base/EucText.h"
#include "tests/pattern/ItemCanvas.h"
#include "tests/support/UseEdition.h"

#include <limits>

using namespace tessary;

namespace
{

constexpr double NAN_NUMBER = std::numeric_limits<double>::quiet_NaN();
constexpr double INFINITE = std::numeric_limits<double>::infinity();

class NumberTexts : public ItemCanvas
{
  public:
    NumberTexts() { load(Pattern("p").item(PTRN_NUMR, 10, 20, 90, 70).code("A")); }

    NumberTexts& field(int room, int decimals = 0)
    {
        item() = fresh();
        item().Parm[FIELD_WIDTH] = room;
        item().Parm[FIELD_DECIMALS] = decimals;
        return *this;
    }
    NumberTexts& with(int parm, int value = 1)
    {
        item().Parm[parm] = value;
        return *this;
    }
    std::string text(double value)
    {
        Set_dData(1, value, nullptr, 0);
        return ConvertNumrData(&item());
    }
    std::string plain(double value)
    {
        Set_dData(1, value, nullptr, 0);
        return PlainNumberText(&item());
    }

    UseEdition edition;

  private:
    static const PTRNDATA& fresh()
    {
        static const CPtrnData PATTERN("p");
        return PATTERN.PtrnData[0];
    }
};

} // namespace

TEST_F(NumberTexts, has_a_separator_before_every_third_digit)
{
    field(12).with(FIELD_GROUPING);
    EXPECT_EQ(text(1234567), "   1,234,567");
    EXPECT_EQ(text(-123456), "    -123,456");
    EXPECT_EQ(text(999), "         999");
    EXPECT_EQ(text(-999), "        -999");
    EXPECT_EQ(text(1000), "       1,000");
    EXPECT_EQ(text(0), "           0");
    EXPECT_EQ(text(123456789), " 123,456,789");
}

TEST_F(NumberTexts, has_separators_beside_decimals)
{
    field(12, 2).with(FIELD_GROUPING);
    EXPECT_EQ(text(1234567.5), "1,234,567.50");
    EXPECT_EQ(text(-1234.5), "   -1,234.50");
    EXPECT_EQ(text(0.5), "        0.50");
}

TEST_F(NumberTexts, has_no_separators_where_it_fits_only_so)
{
    field(7).with(FIELD_GROUPING);
    EXPECT_EQ(text(1234567), "1234567");
    EXPECT_EQ(text(123456), "123,456");
    EXPECT_EQ(text(-123456), "-123456");
    EXPECT_EQ(text(12345678), "#######");
}

TEST_F(NumberTexts, with_separators_is_never_filled_with_zeros)
{
    field(9).with(FIELD_GROUPING).with(FIELD_ZEROFILL);
    EXPECT_EQ(text(1234), "    1,234");
    EXPECT_EQ(text(12), "       12");
    EXPECT_EQ(text(12345678), " 12345678");
    field(9).with(FIELD_ZEROFILL);
    EXPECT_EQ(text(1234), "000001234");
    EXPECT_EQ(text(-1234), "-00001234");
}

TEST_F(NumberTexts, in_hexadecimal_has_no_separators)
{
    field(8).with(FIELD_GROUPING).with(FIELD_HEX);
    EXPECT_EQ(text(0xABCDE), "   ABCDE");
}

TEST_F(NumberTexts, fills_the_field_when_it_does_not_fit)
{
    field(4);
    EXPECT_EQ(text(9999), "9999");
    EXPECT_EQ(text(12345678), "####");
    EXPECT_EQ(text(-1000), "####");
    EXPECT_EQ(text(-999), "-999");
    EXPECT_EQ(text(9999.5), "####") << "rounded it has five digits";
    field(4, 2);
    EXPECT_EQ(text(1.25), "1.25");
    EXPECT_EQ(text(12.5), "####");
    EXPECT_EQ(text(1e300), "####");
    field(4).with(FIELD_HEX);
    EXPECT_EQ(text(0xFFFF), "FFFF");
    EXPECT_EQ(text(0x10000), "####");
    EXPECT_EQ(text(-1), "####");
    EXPECT_EQ(text(-3e9), "####");
}

TEST_F(NumberTexts, in_hexadecimal_is_the_twos_complement_of_32_bits)
{
    field(10).with(FIELD_HEX);
    EXPECT_EQ(text(-1), "  FFFFFFFF");
    EXPECT_EQ(text(4294967295.0), "  FFFFFFFF");
    EXPECT_EQ(text(2147483647.9), "  7FFFFFFF");
    EXPECT_EQ(text(4294967296.0), " 100000000");
    field(10).with(FIELD_HEX).with(FIELD_ZEROFILL);
    EXPECT_EQ(text(255), "00000000FF");
}

TEST_F(NumberTexts, is_a_question_mark_at_the_right_for_what_is_no_number)
{
    for (const int parm : {FIELD_WIDTH, FIELD_HEX, FIELD_ZEROFILL, FIELD_GROUPING}) {
        field(4, 1).with(parm, parm == FIELD_WIDTH ? 4 : 1);
        for (const double value : {NAN_NUMBER, INFINITE, -INFINITE})
            EXPECT_EQ(text(value), "   ?") << parm;
    }
}

TEST_F(NumberTexts, never_is_minus_zero)
{
    field(6);
    EXPECT_EQ(text(-0.0), "     0");
    EXPECT_EQ(text(-0.4), "     0");
    EXPECT_EQ(text(-0.6), "    -1");
    field(6, 2);
    EXPECT_EQ(text(-0.001), "  0.00");
    EXPECT_EQ(text(-0.01), " -0.01");
    field(6).with(FIELD_ZEROFILL);
    EXPECT_EQ(text(-0.1), "000000");
}

TEST_F(NumberTexts, has_room_by_a_width_of_any_sign)
{
    field(-6);
    EXPECT_EQ(text(12), "12    ");
    EXPECT_EQ(text(1234567), "######");
    field(0);
    EXPECT_EQ(text(1), "");
    EXPECT_EQ(text(NAN_NUMBER), "");
    field(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    EXPECT_EQ(text(1).size(), 255U);
}

TEST_F(NumberTexts, keeps_the_digits_beyond_those_of_a_float)
{
    field(12);
    EXPECT_EQ(text(16777217), "    16777217");
    EXPECT_EQ(text(123456789012.0), "123456789012");
}

TEST_F(NumberTexts, for_editing_has_neither_separators_nor_filling)
{
    field(12, 2).with(FIELD_GROUPING).with(FIELD_ZEROFILL);
    EXPECT_EQ(plain(1234567.5), "1234567.50");
    EXPECT_EQ(plain(-0.001), "0.00");
    EXPECT_EQ(plain(1e12), "") << "shown as a filled field";
    EXPECT_EQ(plain(NAN_NUMBER), "");
    EXPECT_EQ(plain(INFINITE), "");
    field(8).with(FIELD_HEX);
    EXPECT_EQ(plain(255), "FF");
}

TEST_F(NumberTexts, in_edition_1_are_as_ever)
{
    SetEdition(1);
    field(7).with(FIELD_GROUPING);
    EXPECT_EQ(text(1234567), "1,4,7");
    field(4);
    EXPECT_EQ(text(12345678), "12345678");
    EXPECT_EQ(text(-0.1), "  -0");
    EXPECT_EQ(text(NAN_NUMBER), " nan");
    field(8);
    EXPECT_EQ(text(16777217), "16777216");
    field(4).with(FIELD_HEX);
    EXPECT_EQ(text(0x12345), "12345");
}

// --- on the display ---------------------------------------------------------------------------------------

TEST_F(NumberTexts, leave_nothing_behind_on_the_display)
{
    load(Pattern("p").size(WIDTH, HEIGHT).item(PTRN_NUMR, 10, 20, 90, 70).parm(FIELD_WIDTH, 4).code("A"));
    set(1, 12345678.0F);
    data().DispTitle(canvas.draw());
    data().DispPtrnData(canvas.draw());
    model->DrawRect(0, 0, WIDTH, HEIGHT, 0, 0, HEDR_BODY_COLOR, HEDR_BODY_COLOR);
    const Picture bare = model.picture();
    model->DrawText(10, 20, 0, 4, -1, "####");
    EXPECT_TRUE(asModelled());
    EXPECT_EQ(canvas.picture().at(10 + 4 * 8 + 2, 30), bare.at(10, 10)) << "nothing outside the field";
    set(1, 12.0F);
    data().UpdtPtrnData(canvas.draw());
    model->DrawRect(0, 0, WIDTH, HEIGHT, 0, 0, HEDR_BODY_COLOR, HEDR_BODY_COLOR);
    model->DrawText(10, 20, 0, 4, -1, "  12");
    EXPECT_TRUE(asModelled());
}

namespace
{

/// Items that show cell 1, of which only the digits beyond a float change.
class LargeNumbers : public ItemCanvas
{
  protected:
    static constexpr double EVEN = 16777216.0;

    /// Whether the item looks different when one is added to its number.
    bool seesOneMore(const Pattern& pattern)
    {
        Set_dData(1, EVEN, nullptr, 0);
        load(pattern);
        clear();
        data().DispPtrnData(canvas.draw());
        data().UpdtPtrnData(canvas.draw());
        const Picture before = canvas.picture();
        Set_dData(1, EVEN + 1, nullptr, 0);
        data().UpdtPtrnData(canvas.draw());
        return !same(canvas.picture(), before);
    }

    static Pattern bound(int type)
    {
        return Pattern("p").size(WIDTH, HEIGHT).item(type, 10, 20, 90, 70).code("A");
    }
};

} // namespace

TEST_F(LargeNumbers, are_shown_and_compared_with_all_their_digits)
{
    const Pattern patterns[] = {
        bound(PTRN_NUMR).parm(FIELD_WIDTH, 9),
        bound(PTRN_RDIO).parm(RDIO_VALUE, 16777217),
        bound(PTRN_BARG).parm(BARG_MINIMUM, 16777210).parm(BARG_MAXIMUM, 16777220),
        bound(PTRN_SBAR).parm(SBAR_TOTAL, 16777230).parm(SBAR_VISIBLE, 12),
    };
    for (const Pattern& pattern : patterns)
        EXPECT_FALSE(seesOneMore(pattern)) << "edition 1";
    const UseEdition edition;
    for (std::size_t i = 0; i < 3; ++i)
        EXPECT_TRUE(seesOneMore(patterns[i])) << i;
}

TEST_F(LargeNumbers, show_a_check_box_on_for_a_number_that_no_float_can_tell_from_zero)
{
    const auto isOn = [&] {
        Set_dData(1, 1e-60, nullptr, 0);
        load(bound(PTRN_CHCK));
        clear();
        data().DispPtrnData(canvas.draw());
        const Picture shown = canvas.picture();
        set(1, 1.0F);
        clear();
        data().DispPtrnData(canvas.draw());
        return static_cast<bool>(same(canvas.picture(), shown));
    };
    EXPECT_FALSE(isOn()) << "edition 1";
    const UseEdition edition;
    EXPECT_TRUE(isOn());
}

TEST_F(LargeNumbers, leave_an_item_its_own_number_when_a_screen_class_gives_it_one)
{
    const UseEdition edition;
    Set_dData(1, 80.0, nullptr, 0);
    PTRNDATA bar = make(bound(PTRN_BARG));
    bar.fData = 20.0F;
    draw(bar);
    const Picture drawn = canvas.picture();
    Set_dData(1, 20.0, nullptr, 0);
    clear();
    draw(bar);
    EXPECT_TRUE(same(canvas.picture(), drawn));
}

TEST_F(LargeNumbers, a_text_is_cut_at_the_last_whole_character)
{
    setText(1, "aあああ");
    PTRNDATA field = make(bound(PTRN_CHAR).parm(FIELD_WIDTH, 4));
    field.DataNo = 1;
    CopyText(field.sData, Get_sData(1, nullptr, 0));
    draw(field);
    const std::string before = field.Text;
    const UseEdition edition;
    draw(field);
    EXPECT_STREQ(field.Text, "aあ");
    EXPECT_EQ(before, "aあ") << "half of a character is never shown";

    setText(1, "ああ");
    CopyText(field.sData, Get_sData(1, nullptr, 0));
    field.Parm[FIELD_WIDTH] = 2;
    draw(field);
    EXPECT_STREQ(field.Text, "あ");
    SetEdition(1);
    draw(field);
    EXPECT_EQ(std::string(field.Text).size(), 1U) << "edition 1 takes one byte less than fits";
}
