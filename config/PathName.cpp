#include "config/PathName.h"

#include "base/EucText.h"

namespace tessary
{

std::string TextOf(const char* text)
{
    return text ? text : "";
}

std::string CutText(const std::string& text, std::size_t limit)
{
    return text.substr(0, EucCut(text.c_str(), limit));
}

std::string JoinPath(const char* dir, const char* name, const char* ext)
{
    std::string path = TextOf(dir);
    const std::string base = TextOf(name);
    const std::string extension = TextOf(ext);
    if (!path.empty() && path.back() != '/' && !base.empty())
        path += '/';
    path += base;
    if (!extension.empty() && extension.front() != '.')
        path += '.';
    return path + extension;
}

} // namespace tessary
