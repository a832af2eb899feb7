// What the tables of this folder do with the cells beyond reading and writing them.
#pragma once

namespace tessary
{

/// Frees the cells and makes `count` new ones, all zero and without text; 0 leaves no store.
void CreateCells(int count);

/// Makes the text of a cell point at `text` without copying it. The text must live until the cell is
/// written, freed, or released by ReleaseText. A number outside the store is ignored.
void ShareText(int no, char* text);

/// Leaves the cell without text if it still shares `text`.
void ReleaseText(int no, const char* text);

} // namespace tessary
