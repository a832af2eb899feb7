#include "comndata/TableFile.h"

#include "log/LogText.h"

namespace tessary
{

bool TablePath(char (&path)[SIZE_PATH + 1], const char* name, const char* mesg1)
{
    MakePath(path, "ProjPath", name, "prf");
    const int size = FileSize(path, "");
    if (size <= SIZE_TABLEFILE)
        return true;
    LogText(mesg1, __FILE__, __LINE__, "%s: %d bytes, at most %d are read", path, size, SIZE_TABLEFILE);
    return false;
}

} // namespace tessary
