// Whole files: read, write, copy, rename, delete, and what the file system knows about them.
#include "config/FileCntl.h"

#include "config/FileStream.h"
#include "config/PathName.h"
#include "config/Replacement.h"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <ctime>
#include <memory>
#include <new>
#include <optional>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>

using namespace tessary;

namespace
{

std::optional<struct stat> Status(const char* dir, const char* name)
{
    struct stat status = {};
    if (stat(JoinPath(dir, name).c_str(), &status) != 0)
        return std::nullopt;
    return status;
}

bool IsRegularFile(FILE* fp)
{
    struct stat status = {};
    return fstat(fileno(fp), &status) == 0 && S_ISREG(status.st_mode);
}

std::string FromTo(const char* from, const char* to)
{
    return TextOf(from) + " → " + TextOf(to);
}

bool IsEarlier(const timespec& first, const timespec& second)
{
    return std::tie(first.tv_sec, first.tv_nsec) < std::tie(second.tv_sec, second.tv_nsec);
}

int ReadWhole(const char* dir, const char* name, const FilePlace& place, void* buffer, int size,
              const FileReport& report)
{
    CFileRead reader;
    if (!OpenFile(reader, dir, name, report.failuresOnly())) {
        ClearBuffer(buffer, size);
        report.failure(READ_FILE, reader.FileName);
        return -1;
    }
    return ReadBytes(reader, place, buffer, size, report);
}

/// Directs a writer to the file that is to replace the one it has open.
bool WriteBeside(CFileWrite& writer, const Replacement& replacement)
{
    FILE* const fp = std::fopen(replacement.path().c_str(), "r+e");
    if (!fp)
        return false;
    std::setvbuf(fp, nullptr, _IONBF, 0);
    if (writer.fp)
        std::fclose(writer.fp);
    writer.fp = fp;
    return true;
}

int WriteInPlace(CFileWrite& writer, const char* dir, const char* name, const FilePlace& place,
                 const void* buffer, int size, const FileEvent& event, const FileReport& report)
{
    if (!writer.fp && !CreateFile(writer, dir, name, report.failuresOnly())) {
        report.failure(event, writer.FileName);
        return -1;
    }
    return WriteBytes(writer, place, buffer, size, event, report);
}

/// Whether that is why a folder takes no new file, for ever. A full or failing disk would take half of a file
/// that is written in place.
bool IsRefusal(int reason)
{
    return reason == EACCES || reason == EPERM || reason == EROFS || reason == ENAMETOOLONG;
}

/// The file is replaced as a whole. Where its folder takes no new file it is written in place: better than
/// not at all.
int WriteWhole(const char* dir, const char* name, const FilePlace& place, const void* buffer, int size,
               const FileEvent& event, const FileReport& report)
{
    CFileWrite writer;
    const bool exists = OpenFile(writer, dir, name, report.failuresOnly()) == 1;
    if (exists && !IsRegularFile(writer.fp)) { // a pipe, a device
        report.failure(event, writer.FileName);
        return -1;
    }
    Replacement replacement;
    const bool closed = !exists && FileExist(dir, name); // to create it would empty it
    const bool begun = !closed && replacement.begin(JoinPath(dir, name));
    if (!closed && !begun && IsRefusal(errno))
        return WriteInPlace(writer, dir, name, place, buffer, size, event, report);
    if (!begun || !WriteBeside(writer, replacement)) {
        if (!exists)
            report.failure(CREATE_FILE, writer.FileName);
        report.failure(event, writer.FileName);
        return -1;
    }
    const int written = WriteBytes(writer, place, buffer, size, event, report.failuresOnly());
    if (written == 1 && !replacement.commit()) {
        report.failure(event, writer.FileName);
        return -1;
    }
    if (written == 1)
        report.success(event, writer.FileName);
    return written;
}

bool CopyBytes(const char* srcdir, const char* srcname, const char* dstdir, const char* dstname,
               const FileReport& report)
{
    const int size = FileSize(srcdir, srcname);
    if (size <= 0)
        return false;
    // All of the source is read before the target is touched: a damaged source spoils no target.
    const std::unique_ptr<char[]> bytes(new (std::nothrow) char[static_cast<std::size_t>(size)]);
    const FilePlace start = FilePlace::block(0);
    return bytes && ReadWhole(srcdir, srcname, start, bytes.get(), size, report) == 1 &&
           WriteWhole(dstdir, dstname, start, bytes.get(), size, WRITE_BLOCK, report) == 1;
}

int Verify(const char* dir, const char* name, const FilePlace& place, void* buffer, int size)
{
    ReadWhole(dir, name, place, buffer, size, FileReport::none());
    if (size <= 0 || !buffer)
        return size == 0;
    // The area that the file is compared with is never filled: it stands for zeros.
    const char* const bytes = static_cast<const char*>(buffer);
    return std::all_of(bytes, bytes + size, [](char byte) { return byte == 0; });
}

} // namespace

int FileRead(const char* dir, const char* name, void* buffer, int size, int offset, const char* file,
             int line)
{
    return ReadWhole(dir, name, FilePlace::block(offset), buffer, size, FileReport(file, line));
}

int FileRead(const char* dir, const char* name, int number, void* buffer, int size, int offset,
             const char* file, int line)
{
    return ReadWhole(dir, name, FilePlace::record(number, size, offset), buffer, size,
                     FileReport(file, line));
}

int FileWrite(const char* dir, const char* name, const void* buffer, int size, int offset, const char* file,
              int line)
{
    return WriteWhole(dir, name, FilePlace::block(offset), buffer, size, WRITE_BLOCK, FileReport(file, line));
}

int FileWrite(const char* dir, const char* name, int number, const void* buffer, int size, int offset,
              const char* file, int line)
{
    return WriteWhole(dir, name, FilePlace::record(number, size, offset), buffer, size, WRITE_RECORD,
                      FileReport(file, line));
}

int FileCopy(const char* srcdir, const char* srcname, const char* dstdir, const char* dstname,
             const char* file, int line)
{
    const FileReport report(file, line);
    if (!CopyBytes(srcdir, srcname, dstdir, dstname, report.failuresOnly())) {
        report.failure(COPY_FILE, FromTo(srcname, dstname));
        return 0;
    }
    report.success(COPY_FILE, FromTo(srcname, dstname));
    return 1;
}

int FileRename(const char* dir, const char* oldname, const char* newname, const char* file, int line)
{
    const FileReport report(file, line);
    if (!FileExist(dir, oldname)) {
        report.failure(RENAME_FILE, TextOf(oldname) + " が存在しない");
        return 0;
    }
    if (FileExist(dir, newname)) {
        report.failure(RENAME_FILE, TextOf(newname) + " が存在する");
        return 0;
    }
    if (rename(JoinPath(dir, oldname).c_str(), JoinPath(dir, newname).c_str()) != 0) {
        report.failure(RENAME_FILE, FromTo(oldname, newname));
        return 0;
    }
    report.success(RENAME_FILE, FromTo(oldname, newname));
    return 1;
}

int FileDelete(const char* dir, const char* name, const char* file, int line)
{
    const FileReport report(file, line);
    if (!FileExist(dir, name)) {
        report.failure(DELETE_FILE, TextOf(name) + " が存在しない");
        return 0;
    }
    if (unlink(JoinPath(dir, name).c_str()) != 0) {
        report.failure(DELETE_FILE, TextOf(name));
        return 0;
    }
    report.success(DELETE_FILE, TextOf(name));
    return 1;
}

bool tessary::IsUnreadable(const char* dir, const char* name)
{
    const std::string path = JoinPath(dir, name);
    struct stat status = {};
    if (stat(path.c_str(), &status) != 0)
        return errno != ENOENT;
    CFileRead reader;
    if (!OpenFile(reader, dir, name, FileReport::none()))
        return true;
    char bytes[4096];
    while (std::fread(bytes, 1, sizeof bytes, reader.fp) == sizeof bytes)
        if (!S_ISREG(status.st_mode)) // it may have no end
            break;
    return std::ferror(reader.fp) != 0;
}

int FileExist(const char* dir, const char* name)
{
    return Status(dir, name).has_value();
}

int FileSize(const char* dir, const char* name)
{
    const auto status = Status(dir, name);
    return status && status->st_size <= INT_MAX ? static_cast<int>(status->st_size) : -1;
}

int FileDate(const char* dir, const char* name, int date[6])
{
    const auto status = Status(dir, name);
    std::tm local = {};
    if (!status || !localtime_r(&status->st_mtime, &local) || local.tm_year > INT_MAX - 1900)
        return 0;
    date[0] = local.tm_year + 1900;
    date[1] = local.tm_mon; // from 0, unlike the clock
    date[2] = local.tm_mday;
    date[3] = local.tm_hour;
    date[4] = local.tm_min;
    date[5] = local.tm_sec;
    return 1;
}

int FileCompare(const char* dir1, const char* name1, const char* dir2, const char* name2)
{
    const auto first = Status(dir1, name1);
    if (!first)
        return 2;
    const auto second = Status(dir2, name2);
    if (!second)
        return 3;
    return IsEarlier(first->st_mtim, second->st_mtim);
}

int FileVerify(const char* dir, const char* name, void* buffer, int size, int offset)
{
    return Verify(dir, name, FilePlace::block(offset), buffer, size);
}

int FileVerify(const char* dir, const char* name, int number, void* buffer, int size, int offset)
{
    return Verify(dir, name, FilePlace::record(number, size, offset), buffer, size);
}
