// The schema of item and header parameters: nothing in it may contradict itself or the records.
#include "pattern/ActionTable.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

struct Table {
    std::string name;
    std::vector<ParmSchema> rows;
};

// Every set of attributes that shares one array of parameters.
std::vector<Table> Tables()
{
    std::vector<Table> tables;
    for (const ItemClass& item : ItemClasses()) {
        Table table{item.name, {CommonParms().begin(), CommonParms().end()}};
        table.rows.insert(table.rows.end(), item.parms.begin(), item.parms.end());
        tables.push_back(table);
    }
    tables.push_back({"header", {HeaderParms().begin(), HeaderParms().end()}});
    return tables;
}

TEST(ItemSchema, has_one_row_for_each_type_in_the_order_of_their_numbers)
{
    int type = PTRN_GBOX;
    for (const ItemClass& item : ItemClasses())
        EXPECT_EQ(item.type, type++) << item.name;
    EXPECT_EQ(type, CONT_PTRN + 1);
}

TEST(ItemSchema, gives_no_index_to_two_attributes_of_a_type)
{
    for (const Table& table : Tables()) {
        std::map<int, std::string> owners;
        for (const ParmSchema& row : table.rows)
            for (int index = row.index; index < row.index + row.count; ++index)
                EXPECT_TRUE(owners.emplace(index, row.name).second)
                    << table.name << ": " << row.name << " and " << owners[index] << " share " << index;
    }
}

TEST(ItemSchema, gives_no_name_to_two_attributes_of_a_type)
{
    for (const Table& table : Tables()) {
        std::set<std::string> names;
        for (const ParmSchema& row : table.rows)
            EXPECT_TRUE(names.insert(row.name).second) << table.name << ": " << row.name;
    }
}

TEST(ItemSchema, keeps_every_attribute_and_group_of_four_within_the_record)
{
    for (const Table& table : Tables()) {
        for (const ParmSchema& row : table.rows) {
            EXPECT_TRUE(row.count == 1 || row.count == 4) << table.name << ": " << row.name;
            EXPECT_GE(row.index, 0) << table.name << ": " << row.name;
            EXPECT_LE(row.index + row.count, CONT_PARM) << table.name << ": " << row.name;
        }
    }
}

TEST(ItemSchema, has_defaults_that_are_allowed_values)
{
    for (const Table& table : Tables()) {
        for (const ParmSchema& row : table.rows) {
            EXPECT_LE(row.minimum, row.initial) << table.name << ": " << row.name;
            EXPECT_GE(row.maximum, row.initial) << table.name << ": " << row.name;
            if (row.kind != ParmKind::Choice)
                continue;
            bool named = false;
            for (const ParmChoice& choice : row.choices)
                named = named || choice.value == row.initial;
            EXPECT_TRUE(named) << table.name << ": " << row.name;
        }
    }
}

TEST(ItemSchema, names_the_values_of_choices_and_bits_and_of_nothing_else)
{
    for (const Table& table : Tables()) {
        for (const ParmSchema& row : table.rows) {
            const bool named = row.kind == ParmKind::Choice || row.kind == ParmKind::Bits;
            EXPECT_EQ(row.choices.count > 0, named) << table.name << ": " << row.name;
            std::set<std::string> names;
            for (const ParmChoice& choice : row.choices) {
                EXPECT_TRUE(names.insert(choice.name).second) << row.name << ": " << choice.name;
                EXPECT_GE(choice.value, row.minimum) << row.name << ": " << choice.name;
                EXPECT_LE(choice.value, row.maximum) << row.name << ": " << choice.name;
            }
        }
    }
}

TEST(ItemSchema, enables_attributes_by_flags_of_the_same_type)
{
    int enabled = 0;
    for (const Table& table : Tables()) {
        for (const ParmSchema& row : table.rows) {
            if (row.enable < 0)
                continue;
            ++enabled;
            const ParmSchema* flag = nullptr;
            for (const ParmSchema& other : table.rows)
                if (other.index == row.enable)
                    flag = &other;
            ASSERT_TRUE(flag) << table.name << ": " << row.name;
            EXPECT_EQ(flag->kind, ParmKind::Flag) << table.name << ": " << row.name;
        }
    }
    // Fill of two shapes, background of three texts, indent, two backgrounds of two controls, key colour of
    // bitmaps, background of marks.
    EXPECT_EQ(enabled, 2 + 3 + 1 + 4 + 1 + 1);
}

TEST(ItemSchema, explains_everything_in_one_line)
{
    const auto oneLine = [](const std::string& help) {
        return !help.empty() && help.find('\n') == std::string::npos;
    };
    for (const Table& table : Tables())
        for (const ParmSchema& row : table.rows)
            EXPECT_TRUE(oneLine(row.help)) << table.name << ": " << row.name;
    for (const ItemClass& item : ItemClasses())
        EXPECT_TRUE(oneLine(item.help)) << item.name;
    for (const ActionSchema& action : Actions())
        EXPECT_TRUE(oneLine(action.help)) << action.name;
}

TEST(ItemSchema, has_only_names_that_need_no_quotes_in_the_sources)
{
    const auto plain = [](const std::string& name) {
        return !name.empty() &&
               name.find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789-") == std::string::npos;
    };
    // What the sources of items and windows say beside parameters.
    const std::set<std::string> reserved = {"type",   "style",   "rect", "at",   "size",   "text",
                                            "action", "pattern", "data", "parm", "repeat", "parm2"};
    for (const Table& table : Tables()) {
        for (const ParmSchema& row : table.rows) {
            EXPECT_TRUE(plain(row.name)) << table.name << ": " << row.name;
            EXPECT_FALSE(reserved.count(row.name)) << table.name << ": " << row.name;
        }
    }
}

TEST(ItemSchema, places_attributes_where_the_named_indexes_are)
{
    const auto index = [](const char* type, const char* name) {
        const ParmSchema* parm = FindItemClass(type)->parm(name);
        return parm ? parm->index : -1;
    };
    EXPECT_EQ(index("group-box", "face"), GBOX_FACE4);
    EXPECT_EQ(index("line", "dash"), LINE_TYPE);
    EXPECT_EQ(index("circle", "fill"), SHAPE_FILL4);
    EXPECT_EQ(index("bar-graph", "maximum"), BARG_MAXIMUM);
    EXPECT_EQ(index("text", "font"), TEXT_FONT);
    EXPECT_EQ(index("numeric", "decimals"), FIELD_DECIMALS);
    EXPECT_EQ(index("button", "face"), BUTN_FACE);
    EXPECT_EQ(index("radio", "value"), RDIO_VALUE);
    EXPECT_EQ(index("mark", "mark"), MARK_NUMBER4);
    EXPECT_EQ(index("scroll-bar", "total"), SBAR_TOTAL);
    EXPECT_EQ(index("spin", "minimum"), SPIN_MINIMUM);
    EXPECT_EQ(index("spin", "clear"), PARM_CLEAR);
    EXPECT_EQ(index("spin", "pass"), PARM_PASS);
    EXPECT_EQ(index("spin", "face"), -1);
    EXPECT_EQ(FindParm(HeaderParms(), "clock")->index, HEDR_CLOCK);
}

TEST(ItemSchema, finds_attributes_by_any_index_of_a_group_and_types_and_actions_by_number)
{
    const ItemClass* mark = FindItemClass(PTRN_MARK);
    ASSERT_TRUE(mark);
    EXPECT_STREQ(mark->parm(MARK_NUMBER4 + 3)->name, "mark");
    EXPECT_STREQ(mark->parm(PARM_CLEAR)->name, "clear");
    EXPECT_EQ(mark->parm(25), nullptr);
    EXPECT_EQ(FindItemClass(0), nullptr);
    EXPECT_EQ(FindItemClass(CONT_PTRN + 1), nullptr);
    EXPECT_EQ(FindItemClass("knob"), nullptr);
    EXPECT_STREQ(FindAction(16)->name, "stop");
    EXPECT_EQ(FindAction("open-application")->code, 8);
    EXPECT_EQ(FindAction(17), nullptr);
    EXPECT_EQ(FindAction("explode"), nullptr);
}

} // namespace
