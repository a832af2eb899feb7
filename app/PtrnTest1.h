// Test screen "shapes": marks that change colour and blink for a while when they are clicked.
#pragma once

#include "app/Cells.h"
#include "tessary.h"

class CPtrnTest1 : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override;
    void PtrnTimrFunc() override;
    void PtrnMesgFunc(int no) override;

  private:
    int BlinkTimr[BLINK_MARKS.count] = {}; ///< ticks left to blink, per mark; 0 still
};
