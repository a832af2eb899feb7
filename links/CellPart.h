// Parts of cells as values.
#pragma once

#include "links/Looks.h"
#include "links/Values.h"

namespace tessary
{

/// The value of a cell's number, text or state.
LinkValue ReadPart(int cell, int part);

/// Whether the part is still that value; without copying a text.
bool IsPart(int cell, int part, const LinkValue& value);

/// Gives it a value. A text where a number belongs goes to the cell's text; a number where a text belongs is
/// written out.
void WritePart(int cell, int part, const LinkValue& value, Looks& looks);

/// Data number of a cell by its code; -1 when there is none.
int CellNumber(const CellName& name);

/// "CODE+n" in the character set of the panel.
std::string CellText(const CellName& name, int element);

} // namespace tessary
