// The wiring table's own window: fifteen lines of the table, sorted by any column, edited cell by cell.
#pragma once

#include "tessary.h"

class CHaisenhyo : public CPtrnDisp
{
  public:
    int DispDtno = 0;  ///< display position of the first shown line
    int SortCulm = -1; ///< column of the last sort; -1 none
    int SortFlag = 0;  ///< 0 ascending, 1 descending

    void PtrnInitFunc() override;
    void PtrnMesgFunc(int no) override;
    /// Scrolls the field's column into view.
    int PtrnKeyStart(PTRNDATA* item) override;
    /// Stores the shown lines and moves key input on.
    void PtrnKeyFunc(int key, int state, PTRNDATA* item) override;

    /// Shows the lines from a display position on. Lines behind the table's end are hidden.
    void DispDataSet(int first);
    /// Stores the cells of the shown lines in their records.
    void DispDataGet();
    /// Sorts by a column; by the same column again in the other direction.
    void SortDispData(int column);
};
