// The ready-made screen classes: which one a pattern is to be shown with where the program has none of its
// own for it. A pattern's header names it by number.
#pragma once

#include "pattern/ParmSchema.h"

namespace tessary
{

/// Numbers in headers; they never change their meaning.
enum ScreenClassNo {
    SCREEN_PLAIN = 0,       ///< what its items and their actions do, nothing else
    SCREEN_MAINTENANCE = 1, ///< dialogs/PtrnMente.h
};

struct ScreenClass {
    int number;
    const char* name; ///< in sources, after "class:"
    const char* help; ///< for authors
};

/// All of them, in the order of their numbers.
SchemaTable<ScreenClass> ScreenClasses();

/// Null when there is none.
const ScreenClass* FindScreenClass(int number);
const ScreenClass* FindScreenClass(const char* name);

} // namespace tessary
