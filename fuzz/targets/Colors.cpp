// The colour table. The panel takes it as it is; the tool makes sources of it.
#include "base/Constants.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

namespace
{

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("ProjPath/PtrnColr", bytes);
    const int read = FileRead(ProjPath, "PtrnColr", ColrData, sizeof ColrData, 0, nullptr, 0);
    fuzz::promise((read == 1) == (bytes.size() >= sizeof ColrData), "a whole table is read");
    fuzz::LoadSection("colors", bytes);
}

const fuzz::Target TARGET("colors", Run);

} // namespace
