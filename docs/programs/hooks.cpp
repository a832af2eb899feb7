// A screen class with all ten hooks. Each writes a line into the log when it is called.
#include <tessary/tessary.h>

#include <cstring>

namespace
{

class TourWnd : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override { Tell("PtrnInitFunc"); }

    void PtrnExitFunc() override { Tell("PtrnExitFunc"); }

    void PtrnDispFunc(CDraw*, int mode) override
    {
        if (mode == 0 || Ticks == 1)
            Tell(mode == 0 ? "PtrnDispFunc, paint" : "PtrnDispFunc, tick");
    }

    void PtrnTimrFunc() override
    {
        if (++Ticks == 1)
            Tell("PtrnTimrFunc");
    }

    void PtrnMesgFunc(int mesg) override { tessary::LogText("TOUR", nullptr, 0, "PtrnMesgFunc %d", mesg); }

    void PtrnRbtnFunc(int dataNo) override
    {
        tessary::LogText("TOUR", nullptr, 0, "PtrnRbtnFunc %d", dataNo);
    }

    int PtrnMouseFunc(POINT pt, int button, int flags) override
    {
        if (button != 0)
            tessary::LogText("TOUR", nullptr, 0, "PtrnMouseFunc (%d,%d) %d %d", pt.x, pt.y, button, flags);
        return 0; // the items get it too
    }

    int PtrnKeyInput(int, int) override { return 0; } // never called

    int PtrnKeyStart(PTRNDATA* item) override
    {
        tessary::LogText("TOUR", nullptr, 0, "PtrnKeyStart %d", item->DataNo);
        return 1; // the input may begin
    }

    void PtrnKeyFunc(int key, int flags, PTRNDATA* item) override
    {
        tessary::LogText("TOUR", nullptr, 0, "PtrnKeyFunc 0x%04X %d %d", static_cast<unsigned>(key), flags,
                         item->DataNo);
    }

  private:
    static void Tell(const char* hook) { LogfileWrite("TOUR", hook, nullptr, 0); }

    int Ticks = 0;
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return std::strcmp(name, "Main") == 0 ? new TourWnd : nullptr;
}

int UserInit()
{
    LogfileWrite("TOUR", "UserInit", nullptr, 0);
    return 1;
}

void UserExit()
{
    LogfileWrite("TOUR", "UserExit", nullptr, 0);
}

void UserTimr() {}
