#include "comndata/PatternNames.h"

#include "base/EucText.h"
#include "config/FileCntl.h"
#include "config/Settings.h"

#include <algorithm>
#include <limits>
#include <vector>

using namespace tessary;

PTRNNAME* PtrnName;
std::int32_t PtrnCount;

namespace
{

std::vector<PTRNNAME> names; // what PtrnName points at

} // namespace

void tessary::LoadPatternNames()
{
    ExitPatternNames();
    constexpr int longestName = 256;
    const int count = std::min(FileCount(ProjPath, "*.ptn"), std::numeric_limits<int>::max() / longestName);
    if (count < 1)
        return;

    std::vector<char> text(static_cast<std::size_t>(count) * longestName);
    std::vector<char*> list(static_cast<std::size_t>(count));
    PtrnCount = FolderRead(ProjPath, "*.ptn", text.data(), list.data(), count * longestName, count, 0);
    names.resize(static_cast<std::size_t>(PtrnCount));
    for (std::size_t i = 0; i < names.size(); i++) {
        char base[SIZE_PATH + 1];
        SplitPath(list[i], nullptr, base, nullptr);
        base[EucCut(base, sizeof names[i].name - 1)] = '\0';
        CopyText(names[i].name, base);
    }
    PtrnName = names.empty() ? nullptr : names.data();
}

void tessary::ExitPatternNames()
{
    names = std::vector<PTRNNAME>();
    PtrnName = nullptr;
    PtrnCount = 0;
}
