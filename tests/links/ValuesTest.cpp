// Values in registers and messages: against a reference of its own, and from a plant that can not be
// believed.
#include "links/Values.h"

#include "base/EucText.h"

#include <cmath>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <limits>
#include <random>

using namespace tessary;

namespace
{

struct TypeCase {
    RegisterType type;
    int bytes;
};

constexpr TypeCase TYPES[] = {{TYPE_INT16, 2}, {TYPE_UINT16, 2}, {TYPE_INT32, 4},   {TYPE_UINT32, 4},
                              {TYPE_INT64, 8}, {TYPE_UINT64, 8}, {TYPE_FLOAT32, 4}, {TYPE_FLOAT64, 8}};

LinkPoint pointOf(RegisterType type, ByteOrder order = ORDER_ABCD)
{
    LinkPoint point;
    point.holding = 0;
    point.type = type;
    point.order = order;
    return point;
}

/// The bytes of a value as the wire has them, the highest first, by the order's letters.
std::vector<std::uint16_t> wire(const std::vector<unsigned char>& big, ByteOrder order)
{
    std::vector<std::uint16_t> words;
    for (std::size_t i = 0; i < big.size(); i += 2)
        words.push_back(static_cast<std::uint16_t>(big[i] << 8 | big[i + 1]));
    if (order == ORDER_CDAB || order == ORDER_DCBA)
        std::reverse(words.begin(), words.end());
    if (order == ORDER_BADC || order == ORDER_DCBA)
        for (std::uint16_t& word : words)
            word = static_cast<std::uint16_t>((word & 0xFF) << 8 | word >> 8);
    return words;
}

template <class T> std::vector<unsigned char> bigEndian(T value)
{
    std::vector<unsigned char> bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    std::reverse(bytes.begin(), bytes.end());
    return bytes;
}

/// A number of the type, and its bytes.
std::pair<double, std::vector<unsigned char>> sample(RegisterType type, std::mt19937_64& random)
{
    const std::uint64_t bits = random();
    switch (type) {
    case TYPE_INT16:
        return {static_cast<std::int16_t>(bits), bigEndian(static_cast<std::int16_t>(bits))};
    case TYPE_UINT16:
        return {static_cast<std::uint16_t>(bits), bigEndian(static_cast<std::uint16_t>(bits))};
    case TYPE_INT32:
        return {static_cast<std::int32_t>(bits), bigEndian(static_cast<std::int32_t>(bits))};
    case TYPE_UINT32:
        return {static_cast<std::uint32_t>(bits), bigEndian(static_cast<std::uint32_t>(bits))};
    case TYPE_INT64: // what a double holds exactly
        return {static_cast<double>(static_cast<std::int64_t>(bits) >> 12),
                bigEndian(static_cast<std::int64_t>(bits) >> 12)};
    case TYPE_UINT64:
        return {static_cast<double>(bits >> 12), bigEndian(bits >> 12)};
    case TYPE_FLOAT32: {
        const auto value = static_cast<float>(static_cast<std::int64_t>(bits)) / 3e9F;
        return {static_cast<double>(value), bigEndian(value)};
    }
    default: {
        const double value = static_cast<double>(static_cast<std::int64_t>(bits)) / 7e9;
        return {value, bigEndian(value)};
    }
    }
}

std::optional<LinkValue> read(const LinkPoint& point, std::vector<std::uint16_t> registers)
{
    return FromRegisters(point, registers.data());
}

LinkValue number(double value)
{
    return {value, "", false};
}

LinkValue text(const std::string& euc)
{
    return {0, euc, true};
}

LinkPoint topic(CellPart part = PART_VALUE, const std::string& json = "")
{
    LinkPoint point;
    point.topic = "t";
    point.part = part;
    point.json = json;
    return point;
}

} // namespace

TEST(Values, of_every_type_and_order_are_those_of_the_wire)
{
    std::mt19937_64 random(1);
    for (const TypeCase& type : TYPES)
        for (const ByteOrder order : {ORDER_ABCD, ORDER_CDAB, ORDER_BADC, ORDER_DCBA})
            for (int i = 0; i < 200; ++i) {
                const LinkPoint point = pointOf(type.type, order);
                ASSERT_EQ(RegistersOf(point) * 2, type.bytes);
                const auto [value, bytes] = sample(type.type, random);
                const auto registers = wire(bytes, order);
                const auto found = read(point, registers);
                ASSERT_TRUE(found);
                EXPECT_EQ(found->number, value) << type.type << " " << order;
                std::vector<std::uint16_t> written(registers.size());
                ASSERT_TRUE(IntoRegisters(point, number(value), written.data()));
                EXPECT_EQ(written, registers) << type.type << " " << order;
            }
}

TEST(Values, that_a_type_can_not_hold_are_not_written)
{
    const double infinite = std::numeric_limits<double>::infinity();
    const double none = std::numeric_limits<double>::quiet_NaN();
    const std::pair<RegisterType, std::vector<double>> cases[] = {
        {TYPE_INT16, {32768, -32769, infinite, none}},
        {TYPE_UINT16, {65536, -1, -0.6, 1e300, none}},
        {TYPE_INT32, {2147483648.0, -2147483649.0, none}},
        {TYPE_UINT32, {4294967296.0, -1}},
        {TYPE_INT64, {9223372036854775808.0, -1e19}},
        {TYPE_UINT64, {18446744073709551616.0, -1}},
        {TYPE_FLOAT32, {1e39, -1e39, infinite, none}},
        {TYPE_FLOAT64, {infinite, none}},
        {TYPE_BCD16, {10000, -1, none}},
    };
    std::uint16_t registers[4];
    for (const auto& [type, values] : cases)
        for (const double value : values)
            EXPECT_FALSE(IntoRegisters(pointOf(type), number(value), registers)) << type << " " << value;
    EXPECT_TRUE(IntoRegisters(pointOf(TYPE_INT16), number(32767.4), registers));
    EXPECT_TRUE(IntoRegisters(pointOf(TYPE_UINT16), number(-0.4), registers));
}

TEST(Values, that_are_no_numbers_are_not_believed)
{
    EXPECT_FALSE(read(pointOf(TYPE_FLOAT32), {0x7FC0, 0})); // not a number
    EXPECT_FALSE(read(pointOf(TYPE_FLOAT32), {0x7F80, 0})); // infinite
    EXPECT_FALSE(read(pointOf(TYPE_FLOAT64), {0xFFF0, 0, 0, 0}));
    EXPECT_FALSE(read(pointOf(TYPE_BCD16), {0x12A4}));
    LinkPoint large = pointOf(TYPE_FLOAT64);
    large.scale = 1e300;
    EXPECT_FALSE(read(large, {0x7FE0, 0, 0, 0}));
}

TEST(Values, are_scaled_and_mapped_both_ways)
{
    LinkPoint point = pointOf(TYPE_INT16);
    point.scale = 0.1;
    point.offset = -20;
    EXPECT_NEAR(read(point, {300})->number, 10.0, 1e-12);
    std::uint16_t registers[1];
    ASSERT_TRUE(IntoRegisters(point, number(10.04), registers));
    EXPECT_EQ(registers[0], 300);
    EXPECT_NEAR(AsHeld(point, number(10.04))->number, 10.0, 1e-12);

    LinkPoint mapped = pointOf(TYPE_UINT16);
    mapped.values = {{0, 3}, {7, 1}};
    EXPECT_EQ(read(mapped, {7})->number, 1);
    EXPECT_EQ(read(mapped, {5})->number, 5);
    ASSERT_TRUE(IntoRegisters(mapped, number(3), registers));
    EXPECT_EQ(registers[0], 0);
}

TEST(Values, of_bits_leave_the_others)
{
    LinkPoint point = pointOf(TYPE_UINT16);
    point.bits = {4, 6};
    EXPECT_EQ(read(point, {0xFFDF})->number, 5);
    std::uint16_t registers[] = {0xFF0F};
    ASSERT_TRUE(IntoRegisters(point, number(5), registers));
    EXPECT_EQ(registers[0], 0xFF5F);
    EXPECT_FALSE(IntoRegisters(point, number(8), registers));
    EXPECT_EQ(registers[0], 0xFF5F);
}

TEST(Values, in_binary_code_are_decimal)
{
    EXPECT_EQ(read(pointOf(TYPE_BCD16), {0x1234})->number, 1234);
    std::uint16_t registers[1];
    ASSERT_TRUE(IntoRegisters(pointOf(TYPE_BCD16), number(9080), registers));
    EXPECT_EQ(registers[0], 0x9080);
}

TEST(Values, that_are_texts_end_at_their_length_or_zero)
{
    LinkPoint point = pointOf(TYPE_TEXT);
    point.length = 5;
    point.part = PART_TEXT;
    EXPECT_EQ(RegistersOf(point), 3);
    EXPECT_EQ(read(point, {0x4142, 0x4344, 0x4546})->text, "ABCDE");
    EXPECT_EQ(read(point, {0x4142, 0x4300, 0x4546})->text, "ABC");
    EXPECT_EQ(read(point, {0x4120, 0x2020, 0x2020})->text, "A");
    std::uint16_t registers[3];
    ASSERT_TRUE(IntoRegisters(point, text("AB"), registers));
    EXPECT_EQ(registers[0], 0x4142);
    EXPECT_EQ(registers[1], 0);
    EXPECT_FALSE(IntoRegisters(point, text("ABCDEF"), registers));
    ASSERT_TRUE(IntoRegisters(point, text("あ"), registers)); // three bytes of UTF-8
    EXPECT_EQ(registers[0], 0xE381);
    point.order = ORDER_BADC;
    EXPECT_EQ(read(point, {0x4241, 0x0043, 0})->text, "ABC");
}

TEST(TextFromOutside, is_cut_at_a_character_and_has_nothing_that_a_cell_can_not_hold)
{
    EXPECT_EQ(TextFromOutside("a\tb\nc\x7F"), "a b c ");
    EXPECT_EQ(TextFromOutside(std::string("ab\0cd", 5)), "ab");
    EXPECT_EQ(TextFromOutside("\xF0\x9F\x98\x80 ok"), "? ok"); // a face, which EUC-JP lacks
    EXPECT_EQ(TextFromOutside("\xFF\xFEx").find_first_not_of("?x"), std::string::npos);
    std::string utf8 = "x";
    for (int i = 0; i < 2000; ++i)
        utf8 += EucToUtf8("あ");
    const std::string cut = TextFromOutside(utf8);
    EXPECT_EQ(cut.size(), 255U);
    EXPECT_EQ(cut.substr(253), "あ");
}

TEST(TextFromOutside, takes_any_bytes)
{
    std::mt19937 random(1);
    for (int i = 0; i < 2000; ++i) {
        std::string bytes(random() % 600, '\0');
        for (char& byte : bytes)
            byte = static_cast<char>(random());
        EXPECT_LE(TextFromOutside(bytes).size(), 255U);
    }
}

TEST(ParseNumber, takes_finite_decimal_numbers_alone)
{
    EXPECT_EQ(ParseNumber(" -2.5e3\n"), -2500.0);
    EXPECT_EQ(ParseNumber("+7"), 7.0);
    for (const char* other : {"", " ", "1,5", "0x10", "nan", "inf", "1e999", "12 m", "--1", "+-1", "1 2"})
        EXPECT_FALSE(ParseNumber(other)) << other;
}

TEST(Message, is_a_number_or_a_text)
{
    EXPECT_EQ(FromMessage(topic(), "12.5")[0], number(12.5));
    EXPECT_EQ(FromMessage(topic(), "open")[0], text("open"));
    EXPECT_EQ(FromMessage(topic(), "nan")[0], text("nan"));
    EXPECT_EQ(FromMessage(topic(PART_TEXT), "12")[0], text("12"));
    EXPECT_FALSE(FromMessage(topic(PART_COLOR), "red")[0]);
    EXPECT_FALSE(FromMessage(topic(), std::string(MESSAGE_MAX + 1, '1'))[0]);
}

TEST(Message, in_json_is_what_its_pointer_names)
{
    const std::string json = R"({"sensor":{"t":21.5,"on":true,"name":"T1","list":[1,2,"x"]}})";
    EXPECT_EQ(FromMessage(topic(PART_VALUE, "/sensor/t"), json)[0], number(21.5));
    EXPECT_EQ(FromMessage(topic(PART_VALUE, "/sensor/on"), json)[0], number(1));
    EXPECT_EQ(FromMessage(topic(PART_TEXT, "/sensor/name"), json)[0], text("T1"));
    EXPECT_EQ(FromMessage(topic(PART_VALUE, "/sensor/list/1"), json)[0], number(2));
    LinkPoint list = topic(PART_VALUE, "/sensor/list");
    list.count = 4;
    const MessageValues values = FromMessage(list, json);
    ASSERT_EQ(values.size(), 4U);
    EXPECT_EQ(values[1], number(2));
    EXPECT_EQ(values[2], text("x"));
    EXPECT_FALSE(values[3]);
}

TEST(Message, in_json_that_makes_no_sense_has_no_value)
{
    const LinkPoint point = topic(PART_VALUE, "/a/0");
    for (const char* json : {"", "{", "[]", "{\"a\":5}", "{\"a\":{}}", "{\"a\":[]}", "{\"a\":[null]}",
                             "{\"a\":[{}]}", "{\"a\":[1e999]}", "\xFF"})
        EXPECT_FALSE(FromMessage(point, json)[0]) << json;
    EXPECT_FALSE(FromMessage(topic(PART_VALUE, "/a/x"), "{\"a\":[1]}")[0]);
    EXPECT_FALSE(FromMessage(topic(PART_VALUE, "/a"), "{\"a\":" + std::string(100000, '[') + "}")[0]);
}

TEST(Message, that_is_sent_has_the_number_of_the_plant)
{
    LinkPoint point = topic();
    point.scale = 0.5;
    EXPECT_EQ(IntoMessage(point, number(10)), "20");
    EXPECT_EQ(IntoMessage(topic(), number(0.1)), "0.1");
    EXPECT_EQ(IntoMessage(topic(PART_TEXT), text("あ")), EucToUtf8("あ"));
    EXPECT_EQ(IntoMessage(topic(PART_VALUE, "/set/value"), number(3)), R"({"set":{"value":3.0}})");
}
