// The reader and the writer of one open file.
#include "config/FileStream.h"

#include "base/EucText.h"
#include "config/PathName.h"

#include <climits>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

using namespace tessary;

namespace tessary
{

namespace
{

struct OpenMode {
    int flags;
    const char* stream;
    const FileEvent& event;
};

const OpenMode READING = {O_RDONLY, "r", OPEN_FILE};
const OpenMode UPDATING = {O_RDWR, "r+", OPEN_FILE};
const OpenMode CREATING = {O_WRONLY | O_CREAT | O_TRUNC, "w", CREATE_FILE};

/// As fopen, but without ever waiting for the other end of a pipe.
FILE* OpenStream(const std::string& path, const OpenMode& mode)
{
    const int descriptor = open(path.c_str(), mode.flags | O_NONBLOCK | O_CLOEXEC, 0666);
    if (descriptor < 0)
        return nullptr;
    FILE* const stream = fdopen(descriptor, mode.stream);
    if (!stream)
        close(descriptor);
    return stream;
}

/// Opens for either class; both have the same two fields.
template <class File>
int Open(File& object, const char* dir, const char* name, const OpenMode& mode, const FileReport& report)
{
    const std::string path = JoinPath(dir, name);
    CopyText(object.FileName, CutText(TextOf(name), sizeof object.FileName - 1).c_str());
    if (object.fp)
        std::fclose(object.fp);
    object.fp = OpenStream(path, mode);
    if (!object.fp) {
        report.failure(mode.event, object.FileName);
        return 0;
    }
    report.success(mode.event, object.FileName);
    return 1;
}

/// A buffer that can hold `size` bytes.
bool IsBuffer(const void* buffer, int size)
{
    return size == 0 || (size > 0 && buffer);
}

/// Bytes go straight to the file, so that a full disk shows in the write that met it.
int Unbuffered(const CFileWrite& writer, int opened)
{
    if (opened)
        std::setvbuf(writer.fp, nullptr, _IONBF, 0);
    return opened;
}

} // namespace

FilePlace FilePlace::record(int number, int size, int offset)
{
    const std::int64_t position = std::int64_t{size} * number + offset;
    const bool exists = number >= 0 && size >= 0 && position <= INT_MAX;
    return FilePlace(true, exists ? position : -1);
}

bool FilePlace::seek(FILE* fp) const
{
    return !moves_ || (position_ >= 0 && std::fseek(fp, static_cast<long>(position_), SEEK_SET) == 0);
}

int OpenFile(CFileRead& reader, const char* dir, const char* name, const FileReport& report)
{
    return Open(reader, dir, name, READING, report);
}

int OpenFile(CFileWrite& writer, const char* dir, const char* name, const FileReport& report)
{
    return Unbuffered(writer, Open(writer, dir, name, UPDATING, report));
}

int CreateFile(CFileWrite& writer, const char* dir, const char* name, const FileReport& report)
{
    return Unbuffered(writer, Open(writer, dir, name, CREATING, report));
}

int ReadBytes(CFileRead& reader, const FilePlace& place, void* buffer, int size, const FileReport& report)
{
    if (!reader.fp) {
        ClearBuffer(buffer, size);
        return -1;
    }
    const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 0;
    const bool read = IsBuffer(buffer, size) && place.seek(reader.fp) &&
                      (bytes == 0 || std::fread(buffer, 1, bytes, reader.fp) == bytes);
    if (!read) {
        ClearBuffer(buffer, size);
        report.failure(READ_FILE, reader.FileName);
        return -1;
    }
    report.success(READ_FILE, reader.FileName);
    return 1;
}

int WriteBytes(CFileWrite& writer, const FilePlace& place, const void* buffer, int size,
               const FileEvent& event, const FileReport& report)
{
    if (!writer.fp)
        return -1;
    const std::size_t bytes = size > 0 ? static_cast<std::size_t>(size) : 0;
    const bool written = IsBuffer(buffer, size) && place.seek(writer.fp) &&
                         (bytes == 0 || std::fwrite(buffer, 1, bytes, writer.fp) == bytes);
    if (!written) {
        report.failure(event, writer.FileName);
        return -1;
    }
    report.success(event, writer.FileName);
    return 1;
}

void ClearBuffer(void* buffer, int size)
{
    if (buffer && size > 0)
        std::memset(buffer, 0, static_cast<std::size_t>(size));
}

} // namespace tessary

CFileRead::CFileRead(const char* dir, const char* name, const char* file, int line)
{
    Open(dir, name, file, line);
}

CFileRead::~CFileRead()
{
    if (fp)
        std::fclose(fp);
}

int CFileRead::Open(const char* dir, const char* name, const char* file, int line)
{
    return OpenFile(*this, dir, name, FileReport(file, line));
}

int CFileRead::ReadBlock(void* buffer, int size, int offset, const char* file, int line)
{
    return ReadBytes(*this, FilePlace::block(offset), buffer, size, FileReport(file, line));
}

int CFileRead::ReadRecord(int number, void* buffer, int size, int offset, const char* file, int line)
{
    return ReadBytes(*this, FilePlace::record(number, size, offset), buffer, size, FileReport(file, line));
}

CFileWrite::CFileWrite(const char* dir, const char* name, const char* file, int line)
{
    Open(dir, name, file, line);
}

CFileWrite::~CFileWrite()
{
    if (fp)
        std::fclose(fp);
}

int CFileWrite::Open(const char* dir, const char* name, const char* file, int line)
{
    return OpenFile(*this, dir, name, FileReport(file, line));
}

int CFileWrite::Create(const char* dir, const char* name, const char* file, int line)
{
    return CreateFile(*this, dir, name, FileReport(file, line));
}

int CFileWrite::WriteBlock(const void* buffer, int size, int offset, const char* file, int line)
{
    return WriteBytes(*this, FilePlace::block(offset), buffer, size, WRITE_BLOCK, FileReport(file, line));
}

int CFileWrite::WriteRecord(int number, const void* buffer, int size, int offset, const char* file, int line)
{
    return WriteBytes(*this, FilePlace::record(number, size, offset), buffer, size, WRITE_RECORD,
                      FileReport(file, line));
}
