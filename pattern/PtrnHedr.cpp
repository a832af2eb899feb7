#include "pattern/PtrnHedr.h"

#include "base/EucText.h"
#include "config/FileCntl.h"

#include <cstring>
#include <string>

namespace tessary
{

namespace
{

/// A full field ends within its last two bytes, and not inside a two-byte character.
/// @return 1 when the text was longer
template <std::size_t Size> int CopyField(char (&target)[Size], const char (&field)[Size])
{
    const std::string text(field, BoundedLength(field, Size));
    const std::size_t kept = EucCut(text.c_str(), Size - 2);
    std::memcpy(target, text.data(), kept);
    target[kept] = '\0';
    return kept < text.size();
}

} // namespace

PTRNHEDR ConvertHedr(const HEDRFILE& record, int* cut)
{
    PTRNHEDR header{};
    std::memcpy(header.Parm1, record.Parm1, sizeof header.Parm1);
    std::memcpy(header.Parm2, record.Parm2, sizeof header.Parm2);
    const int longer =
        CopyField(header.PtrnName, InLanguage(record.PtrnName1, record.PtrnName2, record.PtrnName3)) +
        CopyField(header.LogoName, record.LogoName) + CopyField(header.BmapName, record.BmapName);
    if (cut)
        *cut += longer;
    return header;
}

int ReadHedr(const char* name, PTRNHEDR* out)
{
    const std::string fileName = std::string(name ? name : "") + ".ptn";
    const int size = FileSize(ProjPath, fileName.c_str());
    if (size < 1)
        return 0;
    HEDRFILE record;
    if (FileRead(ProjPath, fileName.c_str(), &record, sizeof record, 0, nullptr, 0) != 1 &&
        size >= static_cast<int>(sizeof record))
        return 0;
    *out = ConvertHedr(record);
    return 1;
}

} // namespace tessary
