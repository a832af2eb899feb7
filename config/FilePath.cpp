#include "config/FilePath.h"

#include "base/EucText.h"
#include "config/PathName.h"

using namespace tessary;

namespace
{

void Store(char* target, const std::string& text)
{
    if (target)
        CopyText(target, SIZE_PATH + 1, CutText(text, SIZE_PATH).c_str());
}

std::string FolderOf(const std::string& path)
{
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? "/" : path.substr(0, slash);
}

} // namespace

void MakePath(char* path, const char* dir, const char* name, const char* ext)
{
    Store(path, JoinPath(dir, name, ext));
}

void SplitPath(const char* path, char* dir, char* base, char* ext)
{
    // Taken apart before anything is stored: a result may stand in the place of the path.
    const std::string whole = TextOf(path);
    const std::string folder = FolderOf(whole);
    const std::string name = whole.substr(whole.rfind('/') + 1); // npos + 1 is 0
    const std::size_t dot = name.find('.');

    std::string extension;
    if (dot != std::string::npos) {
        const bool twoDots = name.compare(dot, 2, "..") == 0;
        extension = name.substr(dot + (twoDots ? 2 : 1));
    }
    Store(dir, folder);
    Store(base, name.substr(0, dot));
    Store(ext, extension);
}
