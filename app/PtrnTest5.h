// Test screen "mouse": which button, modifier key and item the pointer meets.
#pragma once

#include "tessary.h"

class CPtrnTest5 : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override;
    void PtrnMesgFunc(int no) override;
    void PtrnRbtnFunc(int no) override;
    int PtrnMouseFunc(POINT pt, int button, int state) override;
};
