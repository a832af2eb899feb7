// A pump: buttons that send messages, a lamp that shows a state, a question before the pump stops.
#include <tessary/tessary.h>

#include <cstring>

namespace
{

// Cells, as the project numbers them.
constexpr int PUMP_RUNS = 100;  ///< 0 or 1; a lamp shows its colour selection
constexpr int PUMP_SPEED = 101; ///< a numeric field
constexpr int START_BUTTON = 102;
constexpr int STOP_BUTTON = 103;

enum Lamp { LAMP_STOPPED = 0, LAMP_RUNNING = 1, LAMP_FAULT = 3 };

void ShowPump(bool fault)
{
    const bool runs = Get_iData(PUMP_RUNS, nullptr, 0) != 0;
    Set_Color(PUMP_RUNS, fault ? LAMP_FAULT : runs ? LAMP_RUNNING : LAMP_STOPPED, nullptr, 0);
    Set_Flikr(PUMP_RUNS, fault ? 1 : 0, nullptr, 0);
    Set_Color(START_BUTTON, runs ? 1 : 0, nullptr, 0);     // colour selections 1 and 3 lock a button
    Set_Disable(STOP_BUTTON, runs ? 0 : 1, 1, nullptr, 0); // 1: hidden
    Set_Disable(PUMP_SPEED, runs ? 0 : 1, 0, nullptr, 0);  // 0: drawn blanked
}

class PumpWnd : public CPtrnDisp
{
  public:
    void PtrnInitFunc() override { ShowPump(false); }

    // The buttons have the action "message": `no` is the data number of the one that was pressed.
    void PtrnMesgFunc(int no) override
    {
        if (no == START_BUTTON)
            Set_iData(PUMP_RUNS, 1, __FILE__, __LINE__);
        else if (no == STOP_BUTTON && MessageBox("Pump", "Stop the pump?", 1, 2) == 1)
            Set_iData(PUMP_RUNS, 0, __FILE__, __LINE__);
    }

    void PtrnTimrFunc() override
    {
        const bool fault = Get_fData(PUMP_SPEED, nullptr, 0) > 3000;
        if (fault && !Fault)
            DispErrorMesg("The pump is too fast");
        Fault = fault;
        ShowPump(Fault);
    }

  private:
    bool Fault = false;
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return std::strcmp(name, "Pump") == 0 ? new PumpWnd : nullptr;
}

int UserInit()
{
    return 1;
}

void UserExit() {}

void UserTimr() {}
