// An application one of whose hooks throws: the one that the profile names.
#include "tessary.h"

#include <new>
#include <stdexcept>
#include <string>

namespace
{

void come(const std::string& hook)
{
    if (hook != ProfileReadAsc(ProfName, "TEST", "THROWS"))
        return;
    const std::string what = ProfileReadAsc(ProfName, "TEST", "WHAT");
    if (what == "memory")
        throw std::bad_alloc();
    if (what == "number")
        throw 7;
    throw std::runtime_error("thrown by " + hook);
}

class Screen : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override { come("screen-init"); }
    void PtrnExitFunc() override { come("screen-exit"); }
    void PtrnDispFunc(CDraw*, int) override { come("display"); }
    void PtrnTimrFunc() override { come("timer"); }
    void PtrnMesgFunc(int) override { come("message"); }
    int PtrnMouseFunc(POINT, int, int) override
    {
        come("mouse");
        return 0;
    }
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char*)
{
    come("registry");
    return new Screen;
}

int UserInit()
{
    come("init");
    return 1;
}

void UserExit()
{
    come("exit");
}

void UserTimr()
{
    static int ticks = 0;
    if (++ticks > 3)
        come("tick");
    if (ticks > 3 && ProfileReadInt(ProfName, "TEST", "BOX") && ticks % 1000 == 4)
        MessageBox("box", "", 1, 1);
}
