// The action codes: what authors call them.
#pragma once

#include "pattern/ParmSchema.h"

namespace tessary
{

/// One action code, PTRNDATA::ID_Type.
struct ActionSchema {
    int code; ///< ActionCode
    const char* name;
    bool opens; ///< carries out something with the pattern named by ID_Name
    const char* help;
};

/// Action codes, in the order of their numbers.
SchemaTable<ActionSchema> Actions();

/// Null when there is no such action.
const ActionSchema* FindAction(const char* name);
const ActionSchema* FindAction(int code);

} // namespace tessary
