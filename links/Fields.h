// The fields of connections and points: what they are called, may hold and mean. The one table of each serves
// the reader of the sources, the compiled file and "ptn help links".
#pragma once

#include "links/Model.h"

#include <variant>
#include <vector>

namespace tessary
{

/// What an int, double or text stands for beside itself.
enum class FieldForm {
    Plain,
    Choice,   ///< one of the names in `choices`, by its number
    Duration, ///< milliseconds; in sources a number with ms, s, min or h
    Path      ///< a file; "@DIR@" is the folder beside the project directory
};

/// @tparam T  LinkPoint or LinkConnection
template <class T> struct Field {
    using Member = std::variant<int T::*, double T::*, bool T::*, std::string T::*, std::vector<double> T::*,
                                ValuePairs T::*, BitRange T::*, CellName T::*, CellFactors T::*,
                                LostLook T::*, std::vector<std::string> T::*>;

    const char* name;
    Member member;
    unsigned kinds; ///< bit 1 << LinkKind for each kind of connection that has it
    double minimum; ///< of numbers; of texts: bytes
    double maximum;
    const char* initial; ///< the default, for people
    const char* help;
    FieldForm form = FieldForm::Plain;
    const char* const* choices = nullptr; ///< ends with null

    bool of(int kind) const { return (kinds >> kind & 1U) != 0; }
};

const std::vector<Field<LinkPoint>>& PointFields();
const std::vector<Field<LinkConnection>>& ConnectionFields();

/// Names of choices.
extern const char* const PART_NAMES[];
extern const char* const TYPE_NAMES[];
extern const char* const ORDER_NAMES[];
extern const char* const WAVE_NAMES[];

/// Number of a name among choices; -1 for none.
int ChoiceOf(const char* const* choices, const std::string& name);

/// The parts of a lost look.
struct LookPart {
    const char* name;
    int LostLook::*member;
    int maximum;
};
extern const std::array<LookPart, 4> LOOK_PARTS;

} // namespace tessary
