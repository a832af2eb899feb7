// The limit table.
#include "comndata/ComnData.h"
#include "comndata/LimtData.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

#include <cmath>

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.write("ProjPath/LimtData.prf", bytes);
    LoadLimtData(); // the panel does so before it knows the codes, and again on request
    project.load();
    for (int no = -1; no <= PtrnDataNo; ++no) {
        float low = 0;
        float high = 0;
        Get_LimtData(no, &low, &high, __FILE__, __LINE__);
        for (const float value : {0.F, 1e9F, -1e9F, std::nanf("")})
            ChckLimtData(no, value, __FILE__, __LINE__);
    }
    ExitLimtData();
    fuzz::LoadSection("limits", bytes);
}

const fuzz::Target TARGET("limits", Run);

} // namespace
