// A compiled folder and its profile: "ptn dump" and "ptn check" of it.
#include "tools/ptn/emit/Dump.h"
#include "fuzz/Target.h"
#include "tools/ptn/check/Check.h"

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.clear("made/ProjPath/Bitmap");
    project.clear("made");
    for (const auto& [name, text] : fuzz::Files(bytes))
        project.write((name == "panel.ini" ? "made/" : "made/ProjPath/") + name, text);
    ptn::Diagnostics diagnostics;
    project.clear("dumped");
    ptn::DumpProject("made/ProjPath", "dumped", diagnostics);
    ptn::Diagnostics found(ptn::Doubts::Told);
    ptn::Diagnostics remarks;
    ptn::Check("made/ProjPath", "", found, remarks);
}

const fuzz::Target TARGET("dump", Run);

} // namespace
