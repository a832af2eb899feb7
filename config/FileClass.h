// The reader and the writer of one open file; config/FileCntl.h tells the rules for names, sizes and the log.
#pragma once

#include <cstdio>

/// Reads blocks and records of one file. The file is closed with the object, or by the next Open.
class CFileRead
{
  public:
    FILE* fp = nullptr;      ///< the open file, owned; null when none is open
    char FileName[255] = {}; ///< name given to Open, without the directory; used in log lines

    CFileRead() = default;
    /// Opens at once; `fp` stays null when that fails.
    CFileRead(const char* dir, const char* name, const char* file, int line);
    ~CFileRead();
    CFileRead(const CFileRead&) = delete;
    CFileRead& operator=(const CFileRead&) = delete;

    /// @return 1, or 0 when the file can not be opened for reading
    int Open(const char* dir, const char* name, const char* file, int line);

    /// Reads exactly `size` bytes. A non-zero `offset` counts from the start of the file; offset 0 reads
    /// on from the current position.
    /// @return 1, or -1 when the bytes are not all there; `buffer` is zeros then. A negative size is a
    /// failure that leaves the buffer alone. Without an open file: -1, zeros, and nothing in the log.
    int ReadBlock(void* buffer, int size, int offset, const char* file, int line);

    /// Reads `size` bytes at size x number + offset; always seeks, also to 0. Otherwise as ReadBlock.
    /// A negative number, and a position below 0 or beyond 32 bits, is a failure.
    int ReadRecord(int number, void* buffer, int size, int offset, const char* file, int line);
};

/// Writes blocks and records of one file. The file is closed with the object, or by the next Open or Create.
class CFileWrite
{
  public:
    FILE* fp = nullptr;      ///< the open file, owned; null when none is open
    char FileName[255] = {}; ///< name given to Open or Create, without the directory; used in log lines

    CFileWrite() = default;
    /// Opens (does not create) at once; `fp` stays null when that fails.
    CFileWrite(const char* dir, const char* name, const char* file, int line);
    ~CFileWrite();
    CFileWrite(const CFileWrite&) = delete;
    CFileWrite& operator=(const CFileWrite&) = delete;

    /// Opens an existing file for update; its content stays.
    /// @return 1, or 0 when it does not exist or can not be written
    int Open(const char* dir, const char* name, const char* file, int line);

    /// Creates the file, or empties an existing one.
    /// @return 1 or 0
    int Create(const char* dir, const char* name, const char* file, int line);

    /// Writes `size` bytes; `offset` as in ReadBlock. The bytes have reached the system on return.
    /// @return 1, or -1 on failure; without an open file -1 and nothing in the log
    int WriteBlock(const void* buffer, int size, int offset, const char* file, int line);

    /// Writes `size` bytes at size x number + offset; place and failures as in ReadRecord.
    int WriteRecord(int number, const void* buffer, int size, int offset, const char* file, int line);
};
