// The pattern code table: which block of data numbers belongs to which code, which numbers are logged, and
// which patterns the project has.
#pragma once

#include "comndata/CodeData.h"

namespace tessary
{

/// Bytes of the name of a data number: a code of 22 bytes, "+", an int of 11, the terminator.
constexpr int SIZE_DTNONAME = 22 + 1 + 11 + 1;

} // namespace tessary

/// Loads "PtrnCode" and "PtrnFlag" of the project directory, creates the cells, brings "PtrnFlag" to the
/// length of the store and lists the project's pattern files. Whatever was loaded before is freed first.
/// The table ends before a row whose count is negative or with which the store would pass CONT_COMNDATA
/// cells; that is logged. Without "PtrnCode" there are no cells and no flags. @return 1
int LoadCodeData();

/// Name of a data number: code, "+", offset within the code.
/// @param name  receives the text; at least SIZE_DTNONAME bytes
/// @return 1; or 0 with an empty name when the number is outside the store, its log flag is clear or no code
///         holds it
int ConvertDtno(int no, char* name);

/// Data number of a code and an offset; the first row with exactly this code counts.
/// @return the number, which is not checked against the store and may lie before the code when the offset
///         is negative; 0 for an empty or null code; -1 when the code is not known, the offset is not below
///         its count, or the number is no int
int ConvertDtno(const char* code, int offset);

/// Number of a pattern: its index in PtrnName; PtrnCount for the built-in version screen, PtrnCount + 1
/// for the built-in maintenance screen.
/// @return -1 for any other name and for null
int ConvertPtrn(const char* pattern);
