// The rows that describe parameters: what an entry of PTRNDATA::Parm or PTRNHEDR::Parm1 is called, what it
// may hold and what it means. The authoring tool reads, checks and explains screens from them.
#pragma once

#include "base/Constants.h"
#include "base/Limits.h"
#include "config/Edition.h"

#include <cstddef>
#include <limits>
#include <optional>

namespace tessary
{

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
    Real,          ///< a value with decimals, held as the bits of a float
    Message,       ///< message number, or 0 for none
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
    bool blinks = false;             ///< an item that blinks is drawn with it, whatever that flag says
    bool fatal = false;              ///< drawing ends the program when the value is out of its range
    bool written = false;            ///< the program writes it; what a screen says has no effect
    std::optional<Correction> since; ///< has an effect only with it
    SchemaTable<ParmChoice> choices; ///< of Choice and Bits
    const char* help = "";           ///< one line

    constexpr bool accepts(int value) const
    {
        constexpr int exponent = 0x7F800000; // all of it set: infinite, or no number
        if (kind == ParmKind::Real && (value & exponent) == exponent)
            return false;
        return kind == ParmKind::Bits ? (value & ~maximum) == 0 : value >= minimum && value <= maximum;
    }
};

/// Builds one row so that it reads: name and place, kind with its range, default, help.
class ParmRow
{
  public:
    constexpr ParmRow(const char* name, int index)
    {
        row_.name = name;
        row_.index = index;
    }

    // The drawing primitives take these as indexes.
    constexpr ParmRow color() const { return kind(ParmKind::Color, 0, CONT_COLR - 1).fatal(); }
    constexpr ParmRow optionalColor() const
    {
        return kind(ParmKind::OptionalColor, -1, CONT_COLR - 1).fatal();
    }
    constexpr ParmRow font() const { return kind(ParmKind::Font, 0, CONT_FONT - 1).fatal(); }
    constexpr ParmRow mark() const { return kind(ParmKind::Mark, 0, CONT_MARK + 3).fatal(); }
    /// Thickness of a line, frame or edge as the drawing primitives take it.
    constexpr ParmRow thickness(int minimum = 0) const { return pixels(minimum, LINE_WIDTH_MAX).fatal(); }

    constexpr ParmRow pixels(int minimum, int maximum) const
    {
        return kind(ParmKind::Pixels, minimum, maximum);
    }
    constexpr ParmRow coordinate() const { return pixels(COORDINATE_MIN, COORDINATE_MAX); }
    constexpr ParmRow count(int minimum, int maximum) const
    {
        return kind(ParmKind::Count, minimum, maximum);
    }
    constexpr ParmRow flag() const { return kind(ParmKind::Flag, 0, 1); }
    constexpr ParmRow number(int minimum, int maximum) const
    {
        return kind(ParmKind::Number, minimum, maximum);
    }
    constexpr ParmRow number() const
    {
        return number(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    constexpr ParmRow real() const
    {
        return kind(ParmKind::Real, std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    }
    /// A number above 0, or 0 for none: the bits of floats are in the order of the numbers.
    constexpr ParmRow positiveReal() const
    {
        return kind(ParmKind::Real, 0, std::numeric_limits<int>::max());
    }
    constexpr ParmRow message() const { return kind(ParmKind::Message, 0, CONT_MESGDATA); }

    template <std::size_t N> constexpr ParmRow choice(const ParmChoice (&choices)[N]) const
    {
        ParmRow made = kind(ParmKind::Choice, choices[0].value, choices[N - 1].value);
        made.row_.choices = choices;
        return made;
    }

    template <std::size_t N> constexpr ParmRow bits(const ParmChoice (&choices)[N]) const
    {
        int all = 0;
        for (const ParmChoice& choice : choices)
            all |= choice.value;
        ParmRow made = kind(ParmKind::Bits, 0, all);
        made.row_.choices = choices;
        return made;
    }

    /// Four variants, one per colour selection.
    constexpr ParmRow perState() const
    {
        ParmRow made = *this;
        made.row_.count = 4;
        return made;
    }

    constexpr ParmRow initial(int value) const
    {
        ParmRow made = *this;
        made.row_.initial = value;
        return made;
    }

    /// Has an effect only while the flag at `index` is set.
    constexpr ParmRow enabledBy(int index) const
    {
        ParmRow made = *this;
        made.row_.enable = index;
        return made;
    }

    constexpr ParmRow usedByBlinking() const
    {
        ParmRow made = *this;
        made.row_.blinks = true;
        return made;
    }

    constexpr ParmRow fatal() const
    {
        ParmRow made = *this;
        made.row_.fatal = true;
        return made;
    }

    constexpr ParmRow written() const
    {
        ParmRow made = *this;
        made.row_.written = true;
        return made;
    }

    /// Has no effect in the editions before that of the correction.
    constexpr ParmRow since(Correction correction) const
    {
        ParmRow made = *this;
        made.row_.since = correction;
        return made;
    }

    constexpr ParmSchema help(const char* text) const
    {
        ParmSchema made = row_;
        made.help = text;
        return made;
    }

  private:
    constexpr ParmRow kind(ParmKind kind, int minimum, int maximum) const
    {
        ParmRow made = *this;
        made.row_.kind = kind;
        made.row_.minimum = minimum;
        made.row_.maximum = maximum;
        return made;
    }

    ParmSchema row_;
};

constexpr ParmRow parm(const char* name, int index)
{
    return ParmRow(name, index);
}

/// Parameters that every item has: corners, drawing pass and clear colour.
SchemaTable<ParmSchema> CommonParms();
/// Parameters of the pattern header, PTRNHEDR::Parm1.
SchemaTable<ParmSchema> HeaderParms();

/// The attribute of that name, null when the table has none.
const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, const char* name);
/// The attribute whose parameter, or group of four, covers `index`; null when none does.
const ParmSchema* FindParm(SchemaTable<ParmSchema> parms, int index);

} // namespace tessary
