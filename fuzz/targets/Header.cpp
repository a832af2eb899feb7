// The header of a pattern, without its items.
#include "base/EucText.h"
#include "config/Settings.h"
#include "fuzz/Target.h"
#include "pattern/PtrnHedr.h"

#include <cstring>

namespace
{

template <std::size_t Size> void Ends(const char (&text)[Size])
{
    fuzz::promise(std::memchr(text, 0, Size) != nullptr, "a text of a header ends");
}

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("ProjPath/h.ptn", bytes);
    for (Language = 0; Language < 3; ++Language) {
        PTRNHEDR header;
        if (tessary::ReadHedr("h", &header) != 1)
            continue;
        Ends(header.PtrnName);
        Ends(header.LogoName);
        Ends(header.BmapName);
    }
    Language = 0;
}

const fuzz::Target TARGET("header", Run);

} // namespace
