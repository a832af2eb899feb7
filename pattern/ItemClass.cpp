#include "pattern/ItemClass.h"

#include <algorithm>

namespace tessary
{

int ItemDraft::longestText() const
{
    std::size_t longest = 0;
    for (const std::string& text : texts)
        longest = std::max(longest, text.size());
    return static_cast<int>(longest);
}

const ParmSchema* ItemClass::parm(const char* wanted) const
{
    const ParmSchema* own = FindParm(parms, wanted);
    return own ? own : FindParm(CommonParms(), wanted);
}

const ParmSchema* ItemClass::parm(int index) const
{
    const ParmSchema* own = FindParm(parms, index);
    return own ? own : FindParm(CommonParms(), index);
}

} // namespace tessary
