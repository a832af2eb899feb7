// The reader and the writer of one open file.
#include "config/FileStream.h"

using namespace tessary;

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
