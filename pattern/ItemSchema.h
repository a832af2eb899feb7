// One schema of item and header parameters: what every entry of PTRNDATA::Parm and PTRNHEDR::Parm1 is called,
// what it may hold and what it means. The authoring tool reads, checks and explains screens from it.
// Pure data; needs neither toolkit nor files.
#pragma once

#include "base/Constants.h"

#include <cstddef>

enum class ParmKind {
    Color,         ///< colour number 0..99
    OptionalColor, ///< colour number, or -1 for none
    Font,          ///< font number 0..19
    Mark,          ///< mark number 0..353, the built-in marks included
    Pixels,        ///< coordinate, width or height
    Count,         ///< how many: characters, rows, digits
    Flag,          ///< 0 or 1
    Choice,        ///< one of a few named values
    Bits,          ///< any sum of a few named bits
    Number,        ///< a value of the application
};

/// A named value of a Choice, or a named bit of Bits.
struct ParmChoice {
    const char* name;
    int value;
};

/// A constant array of rows, to be walked with a range-based for.
template <typename Row> struct SchemaTable {
    const Row* first = nullptr;
    std::size_t count = 0;

    constexpr SchemaTable() = default;
    template <std::size_t N> constexpr SchemaTable(const Row (&rows)[N]) : first(rows), count(N) {}
    constexpr const Row* begin() const { return first; }
    constexpr const Row* end() const { return first + count; }
};

/// One attribute: a parameter, or a group of four with one parameter per colour selection.
struct ParmSchema {
    const char* name = "";
    int index = 0; ///< first entry in Parm or Parm1
    int count = 1; ///< 1, or 4 state variants in consecutive entries
    ParmKind kind = ParmKind::Number;
    int minimum = 0;
    int maximum = 0;
    int initial = 0;                 ///< value of every variant when a screen says nothing
    int enable = -1;                 ///< entry of the flag without which this one has no effect; -1 none
    SchemaTable<ParmChoice> choices; ///< of Choice and Bits
    const char* help = "";           ///< one line
};

/// What an item's text is.
enum class ItemText {
    None,       ///< not shown, or written by the program
    Caption,    ///< shown as it stands
    BitmapName, ///< file in the bitmap folder
};

/// One item type with the parameters that it alone gives a meaning to.
struct ItemSchema {
    int type = 0; ///< PtrnType
    const char* name = "";
    ItemText text = ItemText::None;
    SchemaTable<ParmSchema> parms;
    const char* help = "";
};

/// One action code, PTRNDATA::ID_Type.
struct ActionSchema {
    int code;
    const char* name;
    bool opens; ///< carries out something with the pattern named by ID_Name
    const char* help;
};

/// The fifteen item types, in the order of their numbers.
SchemaTable<ItemSchema> ItemSchemas();
/// Parameters that every item has: corners, drawing pass and clear colour.
SchemaTable<ParmSchema> CommonParms();
/// Parameters of the pattern header, PTRNHEDR::Parm1.
SchemaTable<ParmSchema> HeaderParms();
/// Action codes, in the order of their numbers.
SchemaTable<ActionSchema> Actions();

/// Look-ups; null when there is no such type, attribute, index or action.
const ItemSchema* FindItemSchema(const char* name);
const ItemSchema* FindItemSchema(int type);
const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, const char* name);
/// The attribute whose parameter, or group of four, covers `index`.
const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, int index);
/// An item's attribute, its own or a common one.
const ParmSchema* FindItemParm(const ItemSchema& item, const char* name);
const ParmSchema* FindItemParm(const ItemSchema& item, int index);
const ActionSchema* FindAction(const char* name);
const ActionSchema* FindAction(int code);
