// Editions: what an operator sees and does is versioned by project. Edition 1 is the behaviour of every
// project that does not ask for another; a later edition corrects it in named rows, and the code that differs
// asks for its row by name.
#pragma once

#include <vector>

namespace tessary
{

/// What a later edition does differently, in the order of the manual.
enum class Correction {
#define TESSARY_CORRECTION(row, edition, name, surprising, text) row,
#include "config/Editions.def"
#undef TESSARY_CORRECTION
};

/// One row of the table of editions.
struct EditionRow {
    Correction row;
    int edition;      ///< the first one that has it
    const char* name; ///< in messages and in the manual
    bool surprising;  ///< the check warns where a screen of an earlier edition uses what this row corrects
    const char* text; ///< one sentence: what happens from that edition on
};

/// The newest edition that this framework knows.
constexpr int LATEST_EDITION = 2;

/// The whole table.
const std::vector<EditionRow>& EditionRows();

/// The row of a correction.
const EditionRow& RowOf(Correction row);

/// The edition of the running project: 1 until SetEdition.
int Edition();

/// Reads the profile key "EDITION" of section "TESSARY" of ProfName as its numbers are read; missing, 0, 1
/// and negative numbers are edition 1.
/// @return the number, which may be one that this framework does not know
int ReadEdition();

/// Makes an edition that of the running project. Numbers below 1 count as 1, those above LATEST_EDITION as
/// that.
void SetEdition(int edition);

/// Whether the running project has a correction.
bool Has(Correction row);

/// The same for any edition.
bool Has(Correction row, int edition);

} // namespace tessary
