// Test screen "table and key input": the header form of the wiring table, around the window that shows the
// table itself.
#pragma once

#include "tessary.h"

class CPtrnTest3 : public CPtrnDisp
{
  public:
    /// Loads the table and opens it as a child window in the frame item.
    void PtrnInitFunc() override;
    void PtrnExitFunc() override;
    void PtrnMesgFunc(int no) override;
    int PtrnKeyStart(PTRNDATA* item) override;
    void PtrnKeyFunc(int key, int state, PTRNDATA* item) override;

    void InitHaisenhyo();
    /// Does nothing yet.
    void PrintHaisenhyo();
};
