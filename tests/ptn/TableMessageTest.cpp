// "ptn build": what it says about wrong tables: messages, limits, flags, wiring; and about groups of items.
#include "tests/ptn/Messages.h"

#include <gmock/gmock.h>

namespace
{

using testing::HasSubstr;

// --- messages, limits, flags ---------------------------------------------------------------------------

class TableMessages : public Messages
{
};

TEST_P(TableMessages, name_place_and_remedy)
{
    sources.base().write("t.yaml", GetParam().text);
    expectOnly("t.yaml");
}

#define TEN    "123456789 "
#define NINETY TEN TEN TEN TEN TEN TEN TEN TEN TEN

const MessageCase TABLE_CASES[] = {
    {"message_with_a_comma", "messages:\n  a: Stop, then look\n",
     ":2: message 'a' has ',' or ';' in it, which ends a field of the table. Use the wide characters "
     "instead."},
    {"message_with_a_semicolon", "messages:\n  a: [Stop, 'Halt;']\n",
     ":2: message 'a' has ',' or ';' in it, which ends a field of the table. Use the wide characters "
     "instead."},
    {"message_with_a_blank_at_its_end", "messages:\n  a: 'Stop '\n",
     ":2: message 'a' ends with a blank, which the table does not keep. Remove it."},
    {"message_of_100_bytes", "messages:\n  a: " NINETY "1234567890\n",
     ":2: message 'a' has 100 bytes in EUC-JP. Shorten it to 99."},
    {"messages_longer_than_a_line", "messages:\n  a: " NINETY "x\n",
     ":2: message 'a' is longer than a line of the table with its three languages. Shorten it."},
    {"message_in_four_languages", "messages:\n  a: [a, b, c, d]\n",
     ":2: message 'a' must be one text, or a list of two or three in the order of the languages."},
    {"message_with_a_wrong_key", "messages:\n  a: { txt: x, text: y }\n",
     ":2: message 'a': unknown 'txt'. Did you mean 'text'? Write 'no', 'text' and 'data'."},
    {"message_without_a_text", "messages:\n  a: { no: 4 }\n",
     ":2: message 'a' has no value. Write 'text' for it; a value that begins with '#' needs quotes."},
    {"message_number_0", "messages:\n  a: { no: 0, text: x }\n",
     ":2: message 'a': 'no' can not be '0'. Write a whole number from 1 to 500."},
    {"message_after_the_last", "messages:\n  a: { no: 500, text: x }\n  b: y\n",
     ":3: message 'b' would be number 501; the last is 500. Remove one, or number them with 'no'."},
    {"message_of_a_cell_that_is_not_there", "messages:\n  a: { text: x, data: C }\n",
     ":2: message 'a': 'data': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},

    {"limits_that_are_a_mapping", "limits: { data: A }\n",
     ":1: 'limits' must be a list. Begin each limit with '-'."},
    {"limit_that_is_a_text", "limits:\n  - A\n",
     ":2: limit 1 must be a mapping: write one 'name: value' per line."},
    {"limit_without_cells", "limits:\n  - { minimum: 1 }\n",
     ":2: limit 1 has no cells. Name the first one with 'data'."},
    {"limit_of_a_code_that_is_not_there", "limits:\n  - { data: B+3 }\n",
     ":2: limit 1: 'data': code 'B' has 3 cells, so there is no +3. Write at most +2 or extend the code."},
    {"limit_beyond_its_code", "limits:\n  - { data: A+3, count: 3 }\n",
     ":2: limit 1 ends beyond its code. Lower 'count' to 2."},
    {"limit_below_zero", "limits:\n  - { data: A, minimum: -1 }\n",
     ":2: limit 1: 'minimum' can not be '-1'. Write a whole number from 0 to 65535."},
    {"limit_that_is_too_high", "limits:\n  - { data: A, maximum: 65536 }\n",
     ":2: limit 1: 'maximum' can not be '65536'. Write a whole number from 0 to 65535."},
    {"limit_with_a_message_that_is_not_there",
     "messages: { low: x }\nlimits:\n  - { data: A, below: low, above: high }\n",
     ":3: limit 1: 'above': this project has no message 'high'. Define it in 'messages' or use one that is "
     "there."},
    {"limit_with_a_wrong_key", "limits:\n  - { data: A, min: 1 }\n",
     ":2: limit 1: unknown 'min'. Did you mean 'minimum'? Write data, count, minimum, maximum, below, above "
     "or no."},
    {"limit_number_twice", "limits:\n  - { data: A, no: 7 }\n  - { data: A, no: 7 }\n",
     ":3: limit 7 has a number that is taken or above 500. Give it another 'no'."},
    {"limit_after_the_last", "limits:\n  - { data: A, no: 500 }\n  - { data: A }\n",
     ":3: limit 501 has a number that is taken or above 500. Give it another 'no'."},

    {"flags_that_are_a_list", "flags: [A]\n",
     ":1: 'flags' must be a mapping: write one 'name: value' per line."},
    {"flag_of_a_code_that_is_not_there", "flags:\n  C: yes\n",
     ":2: flag 'C': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},
    {"flag_that_is_no_flag", "flags:\n  A: maybe\n", ":2: flag 'A' must be true or false."},
    {"flag_that_is_too_large", "flags:\n  A: 256\n", ":2: flag 'A' must be true or false."},

    {"profile_key_longer_than_a_line", "profile:\n  A:\n    B: [" NINETY "x, " NINETY "x, " NINETY "x]\n",
     ":3: profile key 'B' is longer than a line of the profile. Shorten it to 256 bytes."},
    {"registry_that_is_not_there", "registry: Registry.cpp\n",
     ":1: 'registry': 'src/Registry.cpp' can not be read. Name the source file that knows the patterns."},
    {"registry_that_is_a_list", "registry: [Registry.cpp]\n", ":1: 'registry' must be a text."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, TableMessages, testing::ValuesIn(TABLE_CASES), CaseName);

// --- the wiring table ------------------------------------------------------------------------------------

class WiringMessages : public Messages
{
};

TEST_P(WiringMessages, name_place_and_remedy)
{
    sources.base().write("t.yaml", GetParam().text);
    expectOnly("t.yaml");
}

const MessageCase WIRING_CASES[] = {
    {"unknown_key", "wiring:\n  sytem: S\n",
     ":2: 'wiring': unknown 'sytem'. Did you mean 'system'? Write system, delivery, work, board, comment and "
     "table."},
    {"header_field_too_long", "wiring:\n  system: 1234567890\n",
     ":2: 'wiring': 'system' has 10 bytes in EUC-JP. Shorten it to 9."},
    {"no_table", "wiring:\n  table: w.csv\n",
     ":2: 'wiring': 'src/w.csv' can not be read. Put the CSV file there or correct 'table'."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, WiringMessages, testing::ValuesIn(WIRING_CASES), CaseName);

class WireMessages : public Messages
{
};

TEST_P(WireMessages, name_place_and_remedy)
{
    sources.base().write("t.yaml", "wiring: { table: w.csv }\n").write("w.csv", GetParam().text);
    expectOnly("w.csv");
}

const MessageCase WIRE_CASES[] = {
    {"unknown_column", "wire,lenght\nW1,5\n",
     ":1: no column 'lenght'. Did you mean 'length'? The first line names the columns."},
    {"more_fields_than_columns", "wire,length\n\nW1,5,mm\n",
     ":3: has 3 fields for 2 columns. Quote fields that have commas in them."},
    {"length_that_is_no_number", "wire,length\nW1,five\n",
     ":2: column 'length' can not be 'five'. Write a whole number."},
    {"text_too_long", "wire\n\"1,2\"\nW-1234567890\n",
     ":3: column 'wire' has 12 bytes in EUC-JP. Shorten it to 9."},
    {"character_that_euc_lacks", u8"wire\n①\n",
     u8":2: column 'wire': EUC-JP has no '①' (U+2460). Use another character."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, WireMessages, testing::ValuesIn(WIRE_CASES), CaseName);

TEST(WireTable, has_no_more_wires_than_the_panel_reads)
{
    Sources sources;
    std::string wires = "wire\n";
    for (int i = 0; i <= 1000000; ++i)
        wires += "W\n";
    sources.base().write("t.yaml", "wiring: { table: w.csv }\n").write("w.csv", wires);
    EXPECT_EQ(sources.build().err, "src/w.csv: has 1000001 wires; the program reads 1000000. Split the "
                                   "table.\n1 error; out/ProjPath is unchanged.\n");
}

// --- groups, parts and grids -----------------------------------------------------------------------------

class GroupMessages : public Messages
{
};

TEST_P(GroupMessages, name_place_and_remedy)
{
    sources.base().screen("name: a\n" + std::string(GetParam().text));
    expectOnly("screens/a.yaml");
}

const MessageCase GROUP_CASES[] = {
    {"group_with_a_wrong_key", "groups:\n  g: { itms: [], items: [] }\n",
     ":3: group 'g': unknown 'itms'. Did you mean 'items'? Write 'parameters' and 'items'."},
    {"group_without_items", "groups:\n  g: { parameters: [a] }\n",
     ":3: group 'g' has no list of 'items'. Begin each item with '-'."},
    {"group_with_a_wrong_parameter", "groups:\n  g: { parameters: [a-b], items: [] }\n",
     ":3: group 'g': 'a-b' is no name of a parameter. Use letters, digits and '_' only."},
    {"part_with_a_wrong_key", "items:\n  - { at: [1, 1], itmes: [], items: [] }\n",
     ":3: item 1: unknown 'itmes'. Did you mean 'items'? Items that belong together have items, at, grid and "
     "repeat."},
    {"part_without_a_list", "items:\n  - { items: { a: b } }\n",
     ":3: item 1: 'items' must be a list. Begin each item with '-'."},
    {"grid_with_a_wrong_key", "items:\n  - { items: [], grid: { columns: 2, steps: 1, step: [8, 8] } }\n",
     ":3: item 1: 'grid': unknown 'steps'. Did you mean 'step'? Write 'columns' and 'step'."},
    {"grid_without_columns", "items:\n  - { items: [], grid: { step: [8, 8] } }\n",
     ":3: item 1: 'grid' needs 'columns' and 'step: [dx, dy]'."},
    {"grid_of_no_columns", "items:\n  - { items: [], grid: { columns: 0, step: [8, 8] } }\n",
     ":3: item 1: 'grid' 'columns' can not be '0'. Write a whole number from 1 to 1000."},
    {"empty_item", "items:\n  -\n", ":4: item 1 is empty. Write its type and attributes, or remove it."},
    {"repeat_of_no_rows", "items:\n  - { type: text, at: [1, 1], text: x, repeat: { count: [3, 0] } }\n",
     ":3: item 1 (text): 'repeat' 'count' must be from 1 to 1000 columns and rows."},
    {"too_many_items",
     "items:\n  - { type: text, at: [1, 1], text: x, repeat: { count: [1000, 101], step: [8, 8] } }\n",
     ":3: item 1 (text): the screen gets more than 100000 items. Repeat less."},
    {"part_beyond_the_coordinates",
     "items:\n  - { at: [32767, 0], items: [{ type: text, at: [1, 1], text: x }] }\n",
     ":3: item 1 reaches beyond the coordinates, which go from -32768 to 32767. Repeat less or in smaller "
     "steps."},

    {"exact_with_a_wrong_key", "items:\n  - { type: text, at: [1, 1], exact: { ofset: 1 } }\n",
     ":3: item 1 (text): 'exact': unknown 'ofset'. Did you mean 'offset'? Write rect, parm, text, pattern, "
     "code, offset, action or reserved."},
    {"exact_bytes_with_a_terminator",
     "items:\n  - { type: text, at: [1, 1], exact: { code: { bytes: 4100 } } }\n",
     ":3: item 1 (text): 'exact' 'code': write 'bytes' as pairs of hexadecimal digits other than 00."},
    {"exact_header_with_a_wrong_key", "exact: { vresion: 2 }\n",
     ":2: 'exact': unknown 'vresion'. Did you mean 'version'? Write version, reserved or bytes."},
    {"exact_header_beyond_its_end", "exact: { bytes: { 465: '0000' } }\n",
     ":2: 'exact' 'bytes': write an offset into the header's 466 bytes and pairs of hexadecimal digits."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, GroupMessages, testing::ValuesIn(GROUP_CASES), CaseName);

// --- what is told although it builds
// ------------------------------------------------------------------------

TEST(TableWarnings, tell_that_the_panel_looks_for_messages_and_limits_in_ProjPath_only)
{
    Sources sources;
    sources.base().write("t.yaml", "messages: { a: Stop }\n");
    const PtnResult result = sources.run("build src out/plant");
    EXPECT_EQ(result.status, 0);
    EXPECT_THAT(result.err, HasSubstr("warning: the program reads messages and limits from a folder "
                                      "'ProjPath' beside which it is started. Call the output ProjPath.\n"));
    EXPECT_EQ(sources.build().err, "");
}

} // namespace
