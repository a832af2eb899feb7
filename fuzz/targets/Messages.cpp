// The message table.
#include "comndata/MesgData.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

#include <cstring>

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.write("ProjPath/MesgData.prf", bytes);
    project.load();
    LoadMesgData(); // now that the codes are known
    for (const MESGDATA* row : MesgData)
        if (row)
            fuzz::promise(std::memchr(row->ID_Code, 0, sizeof row->ID_Code) &&
                              std::memchr(row->MesgText, 0, sizeof row->MesgText),
                          "a text of a message ends");
    for (const int no : {-1, 0, 1, 2, 499, 500, 501})
        DispErrorMesg(no);
    ExitMesgData();
    fuzz::LoadSection("messages", bytes);
}

const fuzz::Target TARGET("messages", Run);

} // namespace
