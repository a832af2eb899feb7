// Test screen "texts and buttons": colours and blinking set by radio buttons and check boxes, child windows
// and a popup menu.
#pragma once

#include "tessary.h"

class CPtrnTest2 : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override;
    void PtrnMesgFunc(int no) override;
};
