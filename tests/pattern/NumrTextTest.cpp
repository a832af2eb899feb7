// The text of a numeric field.
#include "tests/pattern/LoadedPattern.h"

#include <cmath>
#include <limits>
#include <string>

using namespace tessary;

namespace
{

class NumericText : public LoadedPattern
{
  public:
    NumericText() { field.DataNo = 1; }

    NumericText& width(int value) { return parm(FIELD_WIDTH, value); }
    NumericText& decimals(int value) { return parm(FIELD_DECIMALS, value); }
    NumericText& zeroFill() { return parm(FIELD_ZEROFILL, 1); }
    NumericText& grouping() { return parm(FIELD_GROUPING, 1); }
    NumericText& hexadecimal() { return parm(FIELD_HEX, 1); }
    std::string of(float value)
    {
        set(1, value);
        return ConvertNumrData(&field);
    }

    PTRNDATA field{};

  private:
    NumericText& parm(int index, int value)
    {
        field.Parm[index] = value;
        return *this;
    }
};

constexpr int INT_HIGH = std::numeric_limits<int>::max();
constexpr int INT_LOW = std::numeric_limits<int>::min();

} // namespace

TEST_F(NumericText, fills_its_width_with_blanks_on_the_left)
{
    width(7).decimals(2);

    EXPECT_EQ(of(3.14159F), "   3.14");
    EXPECT_EQ(of(-3.14159F), "  -3.14");
    EXPECT_EQ(of(0.0F), "   0.00");
}

TEST_F(NumericText, fills_its_width_with_zeros_when_asked)
{
    width(5).decimals(2).zeroFill();

    EXPECT_EQ(of(3.14159F), "03.14");
    EXPECT_EQ(of(-1.0F), "-1.00");
    EXPECT_EQ(of(-0.5F), "-0.50");
}

TEST_F(NumericText, is_longer_than_its_width_when_the_value_needs_it)
{
    width(3);

    EXPECT_EQ(of(123456.0F), "123456");
}

TEST_F(NumericText, is_hexadecimal_when_asked)
{
    width(4).hexadecimal();
    EXPECT_EQ(of(255.0F), "  FF");

    zeroFill();
    EXPECT_EQ(of(255.0F), "00FF");
    EXPECT_EQ(of(2.9F), "0002") << "the integer of the cell";
    EXPECT_EQ(of(-1.0F), "FFFFFFFF");
}

TEST_F(NumericText, has_neither_decimals_nor_separators_in_hexadecimal)
{
    width(8).decimals(3).grouping().hexadecimal();
    EXPECT_EQ(of(1193046.0F), "  123456");

    decimals(0);
    EXPECT_EQ(of(1193046.0F), "  123456");
}

TEST_F(NumericText, has_separators_that_take_the_place_of_digits)
{
    // From the right, each separator removes one digit and covers the next, so the text becomes shorter.
    grouping();

    EXPECT_EQ(width(4).of(1234.0F), "1,4");
    EXPECT_EQ(width(4).of(9876.0F), "9,6");
    EXPECT_EQ(width(7).of(1234567.0F), "1,4,7");
    EXPECT_EQ(width(6).of(1234.0F), "  1,4");
    EXPECT_EQ(width(9).of(1234567.0F), "  1,4,7");
}

TEST_F(NumericText, has_separators_in_leading_zeros_too)
{
    width(7).grouping().zeroFill();

    EXPECT_EQ(of(12.0F), "0,0,2");
}

TEST_F(NumericText, has_no_separator_before_the_first_digit)
{
    grouping();

    EXPECT_EQ(width(6).of(123.0F), "   123");
    EXPECT_EQ(width(6).of(12.0F), "    12");
    EXPECT_EQ(width(4).of(-123.0F), "-123") << "a sign ends the grouping";
    EXPECT_EQ(width(3).of(123.0F), "123");
}

TEST_F(NumericText, keeps_the_end_of_a_grouped_text_that_is_longer_than_its_width)
{
    grouping();

    EXPECT_EQ(width(3).of(12345.0F), "345");
    // "12345" in a width of 4: one separator at place 1 gives "1,45", the last four of which are all.
    EXPECT_EQ(width(4).of(12345.0F), "1,45");
    EXPECT_EQ(width(4).of(123456.0F), ",456");
    EXPECT_EQ(width(0).of(12345.0F), "");
}

TEST_F(NumericText, has_no_separators_with_decimals)
{
    width(9).decimals(1).grouping();

    EXPECT_EQ(of(12345.5F), "  12345.5");
    EXPECT_EQ(width(12).decimals(-1).of(1234.5F), " 1234.500000");
}

TEST_F(NumericText, takes_any_number_as_on_for_its_switches)
{
    field.Parm[FIELD_ZEROFILL] = -7;
    field.Parm[FIELD_HEX] = 2;

    EXPECT_EQ(width(4).of(10.0F), "000A");
}

TEST_F(NumericText, fills_on_the_right_for_a_negative_width)
{
    width(-6);
    EXPECT_EQ(of(42.0F), "42    ");
    EXPECT_EQ(zeroFill().of(42.0F), "42    ");
    EXPECT_EQ(grouping().of(42.0F), "42    ");
    EXPECT_EQ(hexadecimal().of(42.0F), "2A    ");
}

TEST_F(NumericText, has_six_decimals_for_a_negative_number_of_them)
{
    EXPECT_EQ(decimals(-1).of(1.5F), "1.500000");
    EXPECT_EQ(decimals(INT_LOW).of(1.5F), "1.500000");
}

TEST_F(NumericText, is_never_longer_than_its_buffer)
{
    for (const int wide : {255, 256, 2000000000, INT_HIGH}) {
        EXPECT_EQ(width(wide).decimals(0).of(42.0F), std::string(253, ' ') + "42");
        EXPECT_EQ(width(-wide).of(42.0F), "42" + std::string(253, ' '));
    }
    EXPECT_EQ(width(INT_LOW).of(42.0F), "42" + std::string(253, ' '));
    EXPECT_EQ(width(2000000000).hexadecimal().zeroFill().of(42.0F), std::string(253, '0') + "2A");
}

TEST_F(NumericText, is_cut_at_the_end_of_its_buffer)
{
    for (const int places : {255, 2000000000, INT_HIGH})
        EXPECT_EQ(width(5).decimals(places).of(42.0F), "42." + std::string(252, '0'));
    const std::string largest = decimals(255).of(std::numeric_limits<float>::max());
    EXPECT_EQ(largest.substr(0, 40), "340282346638528859811704183484516925440.");
    EXPECT_EQ(largest.size(), 255U);
}

TEST_F(NumericText, groups_within_its_buffer_whatever_the_width)
{
    // 255 zeros and digits: 84 separators fit before place 1, each makes the text one shorter.
    width(INT_HIGH).grouping().zeroFill();
    const std::string text = of(1234567.0F);
    EXPECT_EQ(text.size(), 255U - 84U);
    EXPECT_EQ(text.substr(text.size() - 6), ",1,4,7");

    EXPECT_EQ(width(INT_LOW).of(1234567.0F), "1234567" + std::string(248, ' '));
    EXPECT_EQ(width(1).of(std::numeric_limits<float>::max()), "0");
}

TEST_F(NumericText, shows_values_that_are_no_numbers)
{
    width(5).zeroFill().grouping();

    EXPECT_EQ(of(std::numeric_limits<float>::infinity()), "  inf");
    EXPECT_EQ(of(std::nanf("")), "  nan");
    EXPECT_EQ(hexadecimal().of(std::nanf("")), "00000");
}

TEST_F(NumericText, is_zero_for_a_number_outside_the_store)
{
    set(0, 7.0F);
    width(3);

    field.DataNo = -1;
    EXPECT_STREQ(ConvertNumrData(&field), "  0");
    field.DataNo = INT_HIGH;
    EXPECT_STREQ(ConvertNumrData(&field), "  0");
    field.DataNo = 0;
    EXPECT_STREQ(ConvertNumrData(&field), "  7") << "an unbound field shows cell 0";
}

TEST_F(NumericText, stands_in_one_buffer_that_the_next_call_overwrites)
{
    set(1, 1.0F);
    const char* first = ConvertNumrData(&field);
    set(1, 2.0F);
    const char* second = CPtrnData::ConvertNumrData(&field);

    EXPECT_EQ(first, second);
    EXPECT_STREQ(first, "2");
}

TEST_F(NumericText, reads_its_cell_without_a_log_line)
{
    project.flag(1);
    ComnDataInit();
    project.clearLog();

    of(5.0F);
    hexadecimal().of(5.0F);
    field.DataNo = 1000;
    ConvertNumrData(&field);

    EXPECT_TRUE(project.log().empty());
}
