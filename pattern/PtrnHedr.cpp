#include "pattern/PtrnHedr.h"

#include "base/EucText.h"
#include "config/Settings.h"

#include <cstring>
#include <string>

namespace
{

template <std::size_t Size> void CopyField(char (&target)[Size], const char (&field)[Size])
{
    // A full field ends within its last two bytes, and not inside a two-byte character.
    const std::string text(field, BoundedLength(field, Size));
    const std::size_t kept = EucCut(text.c_str(), Size - 2);
    std::memcpy(target, text.data(), kept);
    target[kept] = '\0';
}

} // namespace

PTRNHEDR ConvertHedr(const HEDRFILE& record)
{
    PTRNHEDR header{};
    std::memcpy(header.Parm1, record.Parm1, sizeof header.Parm1);
    std::memcpy(header.Parm2, record.Parm2, sizeof header.Parm2);
    CopyField(header.PtrnName, Language == 0   ? record.PtrnName1
                               : Language == 1 ? record.PtrnName2
                                               : record.PtrnName3);
    CopyField(header.LogoName, record.LogoName);
    CopyField(header.BmapName, record.BmapName);
    return header;
}
