// A recipe: fields for entry that can be changed only while the machine stands; Return goes from one to the
// next.
#include <tessary/tessary.h>

#include <cstring>

namespace
{

constexpr int MACHINE_RUNS = 100;
constexpr int FIRST_FIELD = 101;
constexpr int FIELDS = 5;
constexpr int SUM = 106;

class RecipeWnd : public CPtrnDisp
{
  public:
    // The fields have `entry: yes`; a click on one comes here first.
    int PtrnKeyStart(PTRNDATA* item) override
    {
        if (Get_iData(MACHINE_RUNS, nullptr, 0) != 0) {
            DispErrorMesg("Stop the machine first");
            return 0;
        }
        tessary::RefreshFieldText(item);
        return 1;
    }

    // The value is in its cell already, unless the key is Escape.
    void PtrnKeyFunc(int key, int, PTRNDATA* item) override
    {
        if (key == tessary::KEYVAL_ESCAPE)
            return;
        double sum = 0;
        for (int no = FIRST_FIELD; no < FIRST_FIELD + FIELDS; ++no)
            sum += Get_dData(no, nullptr, 0);
        Set_dData(SUM, sum, nullptr, 0);

        const int next = item->DataNo + 1;
        if (key == tessary::KEYVAL_RETURN && next < FIRST_FIELD + FIELDS)
            KeyInputStart(next, nullptr, 0);
    }
};

} // namespace

CPtrnDisp* GetPtrnWnd(const char* name)
{
    return std::strcmp(name, "Recipe") == 0 ? new RecipeWnd : nullptr;
}

int UserInit()
{
    return 1;
}

void UserExit() {}

void UserTimr() {}
