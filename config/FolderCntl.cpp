// Folders: list, create, delete and copy them.
#include "config/FileCntl.h"
#include "config/FileReport.h"
#include "config/PathName.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <fnmatch.h>
#include <memory>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

using namespace tessary;

namespace
{

struct CloseFolder {
    void operator()(DIR* folder) const { closedir(folder); }
};
using Folder = std::unique_ptr<DIR, CloseFolder>;

/// Names of the regular files in a folder, in the directory's order; nothing when it can not be opened.
/// They are all read before the caller changes the folder.
std::optional<std::vector<std::string>> RegularFiles(const char* path)
{
    const Folder folder(opendir(TextOf(path).c_str()));
    if (!folder)
        return std::nullopt;
    std::vector<std::string> names;
    while (const dirent* entry = readdir(folder.get())) {
        struct stat status = {};
        if (fstatat(dirfd(folder.get()), entry->d_name, &status, 0) == 0 && S_ISREG(status.st_mode))
            names.emplace_back(entry->d_name);
    }
    return names;
}

std::vector<std::string> MatchingFiles(const char* path, const char* pattern)
{
    const std::string wanted = TextOf(pattern);
    std::vector<std::string> names = RegularFiles(path).value_or(std::vector<std::string>());
    const auto unwanted = [&](const std::string& name) {
        return name.front() == '.' || fnmatch(wanted.c_str(), name.c_str(), 0) != 0;
    };
    names.erase(std::remove_if(names.begin(), names.end(), unwanted), names.end());
    return names;
}

/// Makes every folder along the path; stops at the first that neither exists nor can be made.
void MakeFolders(const std::string& path)
{
    for (std::size_t end = 1; end <= path.size(); ++end) {
        const bool complete = end == path.size() || path[end] == '/';
        if (complete && mkdir(path.substr(0, end).c_str(), 0777) != 0 && errno != EEXIST)
            return;
    }
}

} // namespace

int FileCount(const char* dir, const char* pattern)
{
    return static_cast<int>(MatchingFiles(dir, pattern).size());
}

int FolderRead(const char* dir, const char* pattern, char* names, char** list, int bufsize, int maxcount,
               int order)
{
    if (!names || !list)
        return 0;
    int count = 0;
    std::size_t room = bufsize > 0 ? static_cast<std::size_t>(bufsize) : 0;
    for (const std::string& name : MatchingFiles(dir, pattern)) {
        const std::size_t bytes = name.size() + 1;
        if (count >= maxcount || bytes > room)
            break;
        std::memcpy(names, name.c_str(), bytes);
        list[count++] = names;
        names += bytes;
        room -= bytes;
    }

    const auto ascending = [](const char* a, const char* b) { return std::strcmp(a, b) < 0; };
    const auto descending = [](const char* a, const char* b) { return std::strcmp(a, b) > 0; };
    if (order == 1)
        std::stable_sort(list, list + count, ascending);
    else if (order == 2)
        std::stable_sort(list, list + count, descending);
    return count;
}

int CreateFolder(const char* path, const char* file, int line)
{
    const FileReport report(file, line);
    const std::string subject = TextOf(path);
    MakeFolders(subject);
    if (!Folder(opendir(subject.c_str()))) {
        report.failure(CREATE_FOLDER, subject);
        return 0;
    }
    report.success(CREATE_FOLDER, subject);
    return 1;
}

int DeleteFolder(const char* path, const char* file, int line)
{
    const FileReport report(file, line);
    const auto names = RegularFiles(path);
    if (!names) {
        report.failure(OPEN_FOLDER, TextOf(path));
        return 0;
    }
    for (const std::string& name : *names)
        if (!FileDelete(path, name.c_str(), file, line))
            return 0;
    if (rmdir(path) != 0) {
        report.failure(DELETE_FOLDER, TextOf(path));
        return 0;
    }
    report.success(DELETE_FOLDER, TextOf(path));
    return 1;
}

int CopyFolder(const char* srcpath, const char* dstpath, const char* file, int line)
{
    const FileReport report(file, line);
    const auto names = RegularFiles(srcpath);
    if (!names) {
        report.failure(OPEN_FOLDER, TextOf(srcpath));
        return 0;
    }
    if (!CreateFolder(dstpath, file, line))
        return 0;
    for (const std::string& name : *names)
        if (!FileCopy(srcpath, name.c_str(), dstpath, name.c_str(), file, line))
            return 0;
    report.success(COPY_FOLDER, TextOf(srcpath) + " → " + TextOf(dstpath));
    return 1;
}
