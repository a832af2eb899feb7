// A folder of sources: "ptn check" and "ptn build" of it.
#include "fuzz/Target.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/compiled/Build.h"

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.clear("src");
    for (const auto& [name, text] : fuzz::Files(bytes))
        project.write("src/" + name, text);
    ptn::Diagnostics found(ptn::Doubts::Told);
    ptn::Diagnostics remarks;
    ptn::Check("src", "", found, remarks);
    project.clear("out");
    ptn::Diagnostics diagnostics;
    if (!ptn::Build("src", "out/ProjPath", "out/cells.h", diagnostics))
        return;
    ptn::Diagnostics again;
    const auto report = ptn::Build("src", "out/ProjPath", "out/cells.h", again);
    fuzz::promise(report && report->written == 0, "a second build has nothing to do");
}

const fuzz::Target TARGET("sources", Run);

} // namespace
