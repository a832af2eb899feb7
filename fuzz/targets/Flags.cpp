// The log flags, which are read and written back at the start.
#include "comndata/ComnData.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.write("ProjPath/PtrnFlag", bytes);
    project.load();
    const std::string after = project.read("ProjPath/PtrnFlag");
    const auto cells = static_cast<std::size_t>(PtrnDataNo);
    fuzz::promise(after.size() == std::max(bytes.size(), cells), "the file has a byte for each cell");
    if (bytes.size() >= cells)
        fuzz::promise(after == bytes, "flags that were read stay");
    for (int no = 0; no < PtrnDataNo; ++no) {
        Set_wData(no, 1, __FILE__, __LINE__);
        Get_fData(no, __FILE__, __LINE__);
    }
    fuzz::LoadSection("flags", bytes);
}

const fuzz::Target TARGET("flags", Run);

} // namespace
