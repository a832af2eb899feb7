// "ptn build": what it says about wrong sources, and where.
#include "tests/ptn/Messages.h"

namespace
{

// --- sections that all screens share -----------------------------------------------------------------

class ProjectMessages : public Messages
{
};

TEST_P(ProjectMessages, name_place_and_remedy)
{
    sources.write("p.yaml", GetParam().text);
    expectOnly("p.yaml");
}

const MessageCase PROJECT_CASES[] = {
    {"not_yaml", "codes: [1, 2\n",
     ":2: not valid YAML: end of sequence flow not found. Look for a missing ',', '}', ']' or quote; a text "
     "with '#' or ': ' in it needs quotes."},
    {"not_yaml_but_indented_with_tabs", "codes:\n\tA: 1\n",
     ":2: not valid YAML: illegal map value. Indent with blanks, not with tabs."},
    {"not_yaml_for_a_colon", "messages:\n  a: Stop: look\n",
     ":2: not valid YAML: illegal map value. A text with ': ' in it needs quotes."},
    {"not_yaml_for_an_at_sign", "messages:\n  a: @look\n",
     ":2: not valid YAML: unknown token. A text that begins with '@', '%' or '`' needs quotes."},
    {"not_yaml_for_an_asterisk", "messages:\n  a: *look\n",
     ":2: not valid YAML: the referenced anchor is not defined. A text that begins with '*' or '&' needs "
     "quotes."},
    {"not_yaml_for_its_indentation", "messages:\n  a: Stop\n b: Look\n",
     ":3: not valid YAML: end of map not found. Look at this line and the one before it; what belongs "
     "together is indented alike."},
    {"not_a_mapping", "\n- codes\n", ":2: the file must be a mapping: write one 'name: value' per line."},
    {"key_that_is_no_name", "[a]: 1\n",
     ":1: the file has a key that is not a plain name. Write a name before the ':'."},
    {"unknown_section", "colours: {}\n",
     ":1: unknown section 'colours'. Did you mean 'colors'? Screens go into the folder 'screens'."},
    {"section_twice", "fonts: {}\nfonts: {}\n", ":2: the file has 'fonts' twice. Remove one of them."},
    {"program_with_a_slash", "program: a/b\n",
     ":1: program 'a/b' can not be a file name. Write a name without '/' and without '.' in front."},
    {"program_that_is_a_list", "program: [a]\n", ":1: 'program' must be a text."},

    {"codes_that_are_a_list", "codes: [A]\n",
     ":1: 'codes' must be a mapping: write one 'name: value' per line."},
    {"no_codes", "codes: {}\n", ":1: 'codes' is empty. Write one 'name: count' per line, or leave it out."},
    {"code_named_by_a_number", "codes:\n  12: 5\n",
     ":2: code '12' could be taken for a cell. Write a name that is neither empty nor a number and has no "
     "'+'."},
    {"code_with_a_plus", "codes: { A+B: 5 }\n",
     ":1: code 'A+B' could be taken for a cell. Write a name that is neither empty nor a number and has no "
     "'+'."},
    {"code_too_long", "codes: { ABCDEFGHIJKLMNOPQRSTU: 5 }\n",
     ":1: code 'ABCDEFGHIJKLMNOPQRSTU' has 21 bytes in EUC-JP. Shorten it to 20."},
    {"code_twice", "codes:\n  A: 1\n  A: 2\n", ":3: 'codes' has 'A' twice. Remove one of them."},
    {"code_without_count", "codes:\n  A: { first: 1 }\n",
     ":2: code 'A' has no 'count'. Write how many cells it has."},
    {"code_without_cells", "codes: { A: 0 }\n",
     ":1: code 'A': 'count' can not be '0'. Write a whole number from 1 to 999999."},
    {"code_counted_in_words", "codes: { A: many }\n",
     ":1: code 'A': 'count' can not be 'many'. Write a whole number from 1 to 999999."},
    {"code_counted_beyond_an_int", "codes: { A: 99999999999999999999 }\n",
     ":1: code 'A': 'count' can not be '99999999999999999999'. Write a whole number from 1 to 999999."},
    {"code_at_cell_zero", "codes: { A: { first: 0, count: 2 } }\n",
     ":1: code 'A': 'first' can not be '0'. Write a whole number from 1 to 999999."},
    {"code_with_a_wrong_key", "codes: { A: { frst: 1, count: 2 } }\n",
     ":1: code 'A': unknown 'frst'. Did you mean 'first'? Write 'first' and 'count'."},
    {"code_beyond_the_last_cell", "codes:\n  A: 999999\n  B: 1\n",
     ":3: code 'B' ends beyond cell 999999. Give it fewer cells or a lower 'first'."},
    {"codes_that_overlap", "codes:\n  A: 5\n  B: { first: 5, count: 2 }\n",
     ":3: code 'B' begins with cell 5, which belongs to 'A'. Give it another 'first'."},
    {"codes_with_a_gap", "codes:\n  A: 5\n  B: { first: 8, count: 2 }\n",
     ":3: code 'B' begins with cell 8, but the cells from 6 to 7 belong to no code. Add a code for them."},

    {"colour_without_quotes", "colors:\n  red: #FF0000\n",
     ":2: color 'red' has no value. Write 'rgb' for it; a value that begins with '#' needs quotes."},
    {"colour_that_is_none", "colors:\n  red: '#FF00'\n",
     ":2: color 'red' is no colour. Write it as \"#RRGGBB\", in quotes."},
    {"colour_with_a_wrong_digit", "colors:\n  red: '#FF00G0'\n",
     ":2: color 'red' is no colour. Write it as \"#RRGGBB\", in quotes."},
    {"colour_with_a_wrong_key", "colors:\n  red: { no: 3, rbg: '#FF0000', rgb: '#FF0000' }\n",
     ":2: color 'red': unknown 'rbg'. Did you mean 'rgb'? Write 'no' and 'rgb'."},
    {"colour_number_out_of_range", "colors:\n  red: { no: 100, rgb: '#FF0000' }\n",
     ":2: color 'red': 'no' can not be '100'. Write a whole number from 0 to 99."},
    {"colour_after_the_last", "colors:\n  red: { no: 99, rgb: '#FF0000' }\n  green: '#00FF00'\n",
     ":3: color 'green' would be number 100; the last is 99. Remove one, or number them with 'no'."},
    {"colour_number_twice", "colors:\n  red: '#FF0000'\n  green: { no: 0, rgb: '#00FF00' }\n",
     ":3: color 'green' has the number 0, as 'red' has. Give it another 'no'."},
    {"colour_named_by_a_number", "colors:\n  7: '#FF0000'\n",
     ":2: color '7' could be taken for a number. Choose another name."},
    {"colour_named_none", "colors:\n  none: '#FF0000'\n",
     ":2: color 'none' could be taken for a number. Choose another name."},

    {"font_with_a_comma", "fonts:\n  a: '-*-f-m-r-n--14-*,-*'\n",
     ":2: font 'a' has ',' or ';' in its X name, which ends a field of the profile. Write one name, with '*' "
     "for "
     "what may vary."},
    {"font_without_a_size", "fonts:\n  a: fixed\n",
     ":2: font 'a' has no size in its X name. Write the pixel size after the seventh '-', as in "
     "-*-fixed-medium-r-normal--16-*."},
    {"font_with_four_names", "fonts:\n  a: [b, c, d, e]\n",
     ":2: font 'a' must be one text, or a list of two or three in the order of the languages."},
    {"font_after_the_last", "fonts: { a: { no: 20, x11: fixed } }\n",
     ":1: font 'a': 'no' can not be '20'. Write a whole number from 0 to 19."},

    {"mark_too_wide", "marks:\n  a:\n    no: 0\n    art: |\n      .\n      .................\n",
     ":4: mark 'a' (0), row 2: the picture is too large. Marks of this number have 16 x 32 pixels; choose a "
     "number "
     "of a larger group."},
    {"mark_too_high",
     "marks:\n  a: { no: 100, art: 'X\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\n\nX' "
     "}\n",
     ":2: mark 'a' (100), row 33: the picture is too large. Marks of this number have 32 x 32 pixels; choose "
     "a "
     "number of a larger group."},
    {"mark_with_a_wrong_letter", "marks:\n  a: '..O'\n",
     ":2: mark 'a' (0), row 1: column 3 has neither '.' nor 'X'. Draw with these two."},

    {"style_with_a_wrong_attribute", "styles:\n  button: { colour: 1 }\n",
     ":2: style 'button': unknown attribute 'colour'. Did you mean 'color'? Correct or remove it."},
    {"style_of_windows_with_an_items_attribute", "styles:\n  window: { font: 1 }\n",
     ":2: style 'window': unknown attribute 'font'. Correct or remove it."},
    {"style_that_is_a_text", "styles:\n  thick: 5\n",
     ":2: style 'thick' must be a mapping: write one 'name: value' per line."},

    {"profile_section_of_window_positions", "profile:\n  WINDOW: {}\n",
     ":2: 'profile' can not have a section 'WINDOW': the program writes it itself. Remove it."},
    {"profile_section_with_a_bracket", "profile:\n  'A]': {}\n",
     ":2: 'profile' can not have a section 'A]'. Use letters, digits and '_' only."},
    {"profile_key_with_a_blank", "profile:\n  A: { 'B C': 1 }\n",
     ":2: profile key 'B C' is no key. Use letters, digits and '_' only."},
    {"profile_value_with_a_comma", "profile:\n  A: { B: '1,2' }\n",
     ":2: profile key 'B': a value can have no ',' or ';' and no blank at its end. Write several fields as a "
     "list."},
    {"profile_value_with_a_semicolon", "profile:\n  A: { B: [1, '2;3'] }\n",
     ":2: profile key 'B': a value can have no ',' or ';' and no blank at its end. Write several fields as a "
     "list."},
    {"profile_value_with_a_blank_at_its_end", "profile:\n  A: { B: '1 ' }\n",
     ":2: profile key 'B': a value can have no ',' or ';' and no blank at its end. Write several fields as a "
     "list."},
    {"profile_value_that_is_a_mapping", "profile:\n  A: { B: { C: 1 } }\n",
     ":2: profile key 'B' must be a text."},
    {"profile_value_over_two_lines", "profile:\n  A: { B: \"1\\n2\" }\n",
     ":2: profile key 'B': EUC-JP has no U+000A. Use another character."},
    {"start_pattern_that_is_not_there", "profile:\n  PTRN:\n    PTRNSTART: menu\n",
     ":3: profile key 'PTRNSTART' names a pattern that no screen defines. Use the 'name' of a screen."},
    {"stop_pattern_that_is_not_there", "profile:\n  PTRN: { PTRNSTART: '', PTRNSTOP: stop }\n",
     ":2: profile key 'PTRNSTOP' names a pattern that no screen defines. Use the 'name' of a screen."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, ProjectMessages, testing::ValuesIn(PROJECT_CASES), CaseName);

// --- screens -------------------------------------------------------------------------------------------

class ScreenMessages : public Messages
{
};

TEST_P(ScreenMessages, name_place_and_remedy)
{
    sources.base().screen(GetParam().text);
    expectOnly("screens/a.yaml");
}

const MessageCase SCREEN_CASES[] = {
    {"no_name", "items: []\n", ": the screen has no 'name'. Write the name of its pattern."},
    {"empty_file", "", ": the screen has no 'name'. Write the name of its pattern."},
    {"empty_name", "name:\n",
     ":1: the name '' can not be a file name. Write a name without '/' and without '.' in front."},
    {"name_with_a_dot", "name: a.b\n", ":1: the name 'a.b' has '.', ',' or ';' in it. Write it without."},
    {"name_too_long",
     "name: 123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_1\ntitle: a\n",
     ":1: the name has 81 bytes in EUC-JP. Shorten it to 80."},
    {"title_that_is_a_mapping", "name: a\ntitle: { a: b }\n", ":2: 'title' must be a text."},
    {"title_in_no_language", "name: a\ntitle: []\n",
     ":2: 'title' must be one text, or a list of two or three in the order of the languages."},
    {"unknown_key", "name: a\nitem: []\n",
     ":2: unknown 'item'. Did you mean 'items'? A screen has name, title, logo, background, window, styles, "
     "groups, items."},
    {"logo_that_is_not_there", "name: a\nlogo: x.png\n",
     ":2: 'logo': no file 'x.png' in 'bitmaps'. Put it there or correct the name."},
    {"background_too_long", "name: a\nbackground: 123456789_1234567.png\n",
     ":2: 'background' has 21 bytes in EUC-JP. Shorten it to 20."},
    {"items_that_are_a_mapping", "name: a\nitems: { a: b }\n",
     ":2: 'items' must be a list. Begin each item with '-'."},

    {"window_attribute", "name: a\nwindow:\n  titel-height: 3\n",
     ":3: 'window': unknown attribute 'titel-height'. Did you mean 'title-height'? Correct or remove it."},
    {"window_choice", "name: a\nwindow: { clock: minuets }\n",
     ":2: 'window': 'clock' can not be 'minuets'. Did you mean 'minutes'? Write one of: none, date, minutes, "
     "seconds, kanji-date, kanji-minutes, kanji-seconds."},
    {"window_flag", "name: a\nwindow: { remember: maybe }\n",
     ":2: 'window': 'remember' must be true or false."},
    {"window_size", "name: a\nwindow: { size: [640] }\n",
     ":2: 'window': 'size' must be a list of 2 whole numbers, such as [8, 8]."},
    {"window_without_extent", "name: a\nwindow: { size: [640, 0] }\n",
     ":2: 'window' has a side of 0 pixels. Write a 'size' from 1 to 32767."},
    {"window_without_value", "name: a\nwindow:\n  cursor:\n",
     ":3: 'window': 'cursor' has no value. Write one, or remove the line."},
    {"window_parameters", "name: a\nwindow: { parm2: [1, 2] }\n",
     ":2: 'window': 'parm2' must be a list of 10 whole numbers, such as [8, 8]."},
    {"style_of_the_screen", "name: a\nstyles: { thick: { widht: 3 } }\n",
     ":2: style 'thick': unknown attribute 'widht'. Did you mean 'width'? Correct or remove it."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, ScreenMessages, testing::ValuesIn(SCREEN_CASES), CaseName);

// --- items ---------------------------------------------------------------------------------------------

class ItemMessages : public Messages
{
};

TEST_P(ItemMessages, name_place_and_remedy)
{
    sources.base().screen("name: a\nitems:\n  - " + std::string(GetParam().text) + "\n");
    expectOnly("screens/a.yaml");
}

const MessageCase ITEM_CASES[] = {
    {"no_item", "{}",
     ":3: item 1 has no 'type'. Write one of: group-box, line, rectangle, circle, bar-graph, text, "
     "variable-text, numeric, button, radio, check, bitmap, mark, scroll-bar, spin."},
    {"item_that_is_a_text", "hello", ":3: item 1 must be a mapping: write one 'name: value' per line."},
    {"type", "{ type: buton, rect: [1, 1, 2, 2] }",
     ":3: item 1: no type 'buton'. Did you mean 'button'? Write one of: group-box, line, rectangle, circle, "
     "bar-graph, text, variable-text, numeric, button, radio, check, bitmap, mark, scroll-bar, spin."},
    {"attribute", "{ type: line, rect: [1, 1, 2, 2], colour: hot }",
     ":3: item 1 (line): unknown attribute 'colour'. Did you mean 'color'? Correct or remove it."},
    {"attribute_of_another_type", "{ type: spin, rect: [1, 1, 2, 2], zero-fill: yes }",
     ":3: item 1 (spin): unknown attribute 'zero-fill'. Correct or remove it."},
    {"attribute_in_other_words", "{ type: spin, rect: [1, 1, 2, 2], code: A }",
     ":3: item 1 (spin): unknown attribute 'code'. Did you mean 'data'? Correct or remove it."},
    {"attribute_cut_short", "{ type: spin, rect: [1, 1, 2, 2], max: 9 }",
     ":3: item 1 (spin): unknown attribute 'max'. Did you mean 'maximum'? Correct or remove it."},
    {"attribute_twice", "{ type: line, rect: [1, 1, 2, 2], color: hot, color: white }",
     ":3: item 1 has 'color' twice. Remove one of them."},
    {"attribute_without_value", "{ type: line, rect: [1, 1, 2, 2], color: }",
     ":3: item 1 (line): 'color' has no value. Write one, or remove the line."},
    {"corner", "{ type: line, rect: [1, 1, 2, 2], x1: 4 }",
     ":3: item 1 (line): write its place as rect: [x1, y1, x2, y2] or at: [x, y], not as 'x1'."},
    {"other_words_for_its_place", "{ type: line, rect: [1, 1, 2, 2], from: [1, 1] }",
     ":3: item 1 (line): write its place as rect: [x1, y1, x2, y2] or at: [x, y], not as 'from'."},
    {"short_form", "line: { rect: [1, 1, 2, 2], colour: hot }",
     ":3: item 1 (line): unknown attribute 'colour'. Did you mean 'color'? Correct or remove it."},
    {"colour_name", "{ type: line, rect: [1, 1, 2, 2], color: whit }",
     ":3: item 1 (line): 'color': this project has no color 'whit'. Did you mean 'white'? Define it in "
     "'colors' or "
     "use one that is there."},
    {"colour_number", "{ type: line, rect: [1, 1, 2, 2], color: 51 }",
     ":3: item 1 (line): 'color': this project has no color '51'. Define it in 'colors' or use one that is "
     "there."},
    {"no_colour_where_there_must_be_one", "{ type: line, rect: [1, 1, 2, 2], color: none }",
     ":3: item 1 (line): 'color': this project has no color 'none'. Define it in 'colors' or use one that is "
     "there."},
    {"colour_that_is_a_list", "{ type: button, rect: [1, 1, 2, 2], face: [hot, hot, hot, hot] }",
     ":3: item 1 (button): 'face': this project has no color. Define it in 'colors' or use one that is "
     "there."},
    {"three_state_colours", "{ type: line, rect: [1, 1, 2, 2], color: [hot, hot, hot] }",
     ":3: item 1 (line): 'color' has 3 values. Write one for all states, or four."},
    {"font", "{ type: text, at: [1, 1], font: smal }",
     ":3: item 1 (text): 'font': this project has no font 'smal'. Did you mean 'small'? Define it in 'fonts' "
     "or use "
     "one that is there."},
    {"mark", "{ type: mark, at: [1, 1], mark: 354 }",
     ":3: item 1 (mark): 'mark': this project has no mark '354'. Define it in 'marks' or use one that is "
     "there."},
    {"choice", "{ type: line, rect: [1, 1, 2, 2], dash: dotted }",
     ":3: item 1 (line): 'dash' can not be 'dotted'. Write one of: solid, long, short."},
    {"bits", "{ type: numeric, at: [1, 1], navigation: [up, dwon] }",
     ":3: item 1 (numeric): 'navigation' can not be 'dwon'. Did you mean 'down'? Write one of: up, down, "
     "left, right."},
    {"number_out_of_range", "{ type: line, rect: [1, 1, 2, 2], width: 99 }",
     ":3: item 1 (line): 'width' can not be '99'. Write a whole number from 1 to 98."},
    {"number_with_a_fraction", "{ type: spin, rect: [1, 1, 2, 2], maximum: 1.5 }",
     ":3: item 1 (spin): 'maximum' can not be '1.5'. Write a whole number from -2147483648 to 2147483647."},
    {"number_that_is_a_list", "{ type: spin, rect: [1, 1, 2, 2], maximum: [1] }",
     ":3: item 1 (spin): 'maximum' can not be this. Write a whole number from -2147483648 to 2147483647."},
    {"parameter", "{ type: line, rect: [1, 1, 2, 2], parm: { 30: 1 } }",
     ":3: item 1 (line): 'parm' has no entry '30'. Write the number of a parameter, from 0 to 29."},

    {"style", "{ type: line, rect: [1, 1, 2, 2], style: shap }",
     ":3: item 1 (line): no style 'shap'. Did you mean 'shape'? Add it to 'styles' or use another."},
    {"style_of_another_type", "{ type: line, rect: [1, 1, 2, 2], style: shape }",
     ":3: item 1 (line): style 'shape' sets 'fill', which a line does not have. Use another style."},

    {"text_of_a_shape", "{ type: line, rect: [1, 1, 2, 2], text: hello }",
     ":3: item 1 (line): a line has no text of its own. Remove 'text'."},
    {"text_too_long",
     "{ type: text, at: [1, 1], text: "
     "123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_123456789_1 "
     "}",
     ":3: item 1 (text): 'text' has 101 bytes in EUC-JP. Shorten it to 100."},
    {"bitmap", "{ type: bitmap, rect: [1, 1, 2, 2], text: x.png }",
     ":3: item 1 (bitmap): no file 'x.png' in 'bitmaps'. Put it there or correct the name."},

    {"action", "{ type: spin, rect: [1, 1, 2, 2], action: clos }",
     ":3: item 1 (spin): no action 'clos'. Did you mean 'close'? Write an action such as close, message or "
     "open-application."},
    {"action_without_pattern", "{ type: spin, rect: [1, 1, 2, 2], action: open-system }",
     ":3: item 1 (spin): the action 'open-system' opens a pattern. Name it with 'pattern'."},
    {"pattern_that_is_not_there", "{ type: spin, rect: [1, 1, 2, 2], action: open-child-1, pattern: b }",
     ":3: no screen is named 'b', which this item opens. Correct 'pattern' or add the screen."},

    {"code", "{ type: spin, rect: [1, 1, 2, 2], data: C+1 }",
     ":3: item 1 (spin): 'data': no code 'C'. Did you mean 'A'? Add it to 'codes' or use another."},
    {"code_offset", "{ type: spin, rect: [1, 1, 2, 2], data: B+3 }",
     ":3: item 1 (spin): 'data': code 'B' has 3 cells, so there is no +3. Write at most +2 or extend the "
     "code."},
    {"code_offset_that_is_no_number", "{ type: spin, rect: [1, 1, 2, 2], data: B+x }",
     ":3: item 1 (spin): 'data': write a code with the number of its cell, such as SPEED+0, or a cell "
     "number."},
    {"cell", "{ type: spin, rect: [1, 1, 2, 2], data: 9 }",
     ":3: item 1 (spin): 'data': no code covers cell 9. Use a cell of 'codes' or extend it."},
    {"repeat_key", "{ type: spin, rect: [1, 1, 2, 2], repeat: { cont: 2 } }",
     ":3: item 1 (spin): 'repeat': unknown 'cont'. Did you mean 'count'? Write 'count', 'step' and 'data'."},
    {"repeat_count", "{ type: spin, rect: [1, 1, 2, 2], repeat: { count: 1001 } }",
     ":3: item 1 (spin): 'repeat' 'count' can not be '1001'. Write a whole number from 1 to 1000."},
    {"repeat_beyond_the_code", "{ type: spin, rect: [1, 1, 2, 2], data: B+1, repeat: { count: 3 } }",
     ":3: item 1 (spin): 'repeat' ends with cell +3 of a code of 3 cells. Repeat less, or extend the code."},
    {"repeat_beyond_the_coordinates",
     "{ type: spin, rect: [1, 1, 2, 2], repeat: { count: 1000, step: [-2147483648, 0] } }",
     ":3: item 1 (spin) with its repetitions reaches beyond the coordinates, which go from -32768 to 32767. "
     "Repeat "
     "less or in smaller steps."},

    {"no_place", "{ type: spin }", ":3: item 1 (spin) has no place. Write 'rect', or 'at' and 'size'."},
    {"no_size", "{ type: spin, at: [1, 1] }", ":3: item 1 (spin) has 'at' but no 'size'. A spin needs both."},
    {"rect_of_three", "{ type: spin, rect: [1, 1, 2] }",
     ":3: item 1 (spin): 'rect' must be a list of 4 whole numbers, such as [8, 8, 80, 32]."},
    {"at_that_is_a_text", "{ type: spin, at: here, size: [1, 1] }",
     ":3: item 1 (spin): 'at' must be a list of 2 whole numbers, such as [8, 8]."},
    {"coordinate_out_of_range", "{ type: spin, rect: [1, 1, 40000, 2] }",
     ":3: item 1 (spin) reaches 40000. Coordinates go from -32768 to 32767."},
    {"size_beyond_an_int", "{ type: spin, at: [2147483647, 1], size: [2147483647, 1] }",
     ":3: item 1 (spin) reaches 2147483647. Coordinates go from -32768 to 32767."},
    {"corners_reversed", "{ type: spin, rect: [9, 1, 2, 2] }",
     ":3: item 1 (spin) has its corners the wrong way round. Write the upper left one first."},
    {"rising_line", "{ type: line, rect: [1, 9, 9, 1] }",
     ":3: item 1 (line) has its corners the wrong way round. Write the upper left one first; no line rises "
     "to the "
     "right."},
    {"bar_graph_smaller_than_its_frame", "{ type: bar-graph, rect: [0, 0, 5, 50], frame-width: 3 }",
     ":3: item 1 (bar-graph) is too small for its frame and needle. Make it larger."},
    {"bar_graph_smaller_than_its_needle",
     "{ type: bar-graph, rect: [0, 0, 50, 12], frame-width: 1, needle: 11 }",
     ":3: item 1 (bar-graph) is too small for its frame and needle. Make it larger."},
};

INSTANTIATE_TEST_SUITE_P(Ptn, ItemMessages, testing::ValuesIn(ITEM_CASES), CaseName);

} // namespace
