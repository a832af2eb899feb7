// The steps that the reader, the writer (config/FileClass.h) and the whole-file functions share.
#pragma once

#include "config/FileClass.h"
#include "config/FileReport.h"

#include <cstdint>

namespace tessary
{

/// Where a block lies in its file.
class FilePlace
{
  public:
    /// Offset 0 is the current position, any other counts from the start.
    static FilePlace block(int offset) { return FilePlace(offset != 0, offset); }
    /// size x number + offset from the start; no place when that is not a position within 32 bits.
    static FilePlace record(int number, int size, int offset);

    /// Moves the stream there.
    /// @return false when there is no such place
    bool seek(FILE* fp) const;

  private:
    FilePlace(bool moves, std::int64_t position) : moves_(moves), position_(position) {}

    bool moves_;
    std::int64_t position_; ///< below 0: no such place
};

/// The steps below close a file that was open before, keep the name in the object and return 1 or 0.
int OpenFile(CFileRead& reader, const char* dir, const char* name, const FileReport& report);
int OpenFile(CFileWrite& writer, const char* dir, const char* name, const FileReport& report);
int CreateFile(CFileWrite& writer, const char* dir, const char* name, const FileReport& report);

/// @return 1, or -1 with `buffer` zeroed
int ReadBytes(CFileRead& reader, const FilePlace& place, void* buffer, int size, const FileReport& report);

/// @param event  texts for the log, WRITE_BLOCK or WRITE_RECORD
/// @return 1 or -1
int WriteBytes(CFileWrite& writer, const FilePlace& place, const void* buffer, int size,
               const FileEvent& event, const FileReport& report);

/// Zeros in place of what could not be read; a negative size and a null buffer are left alone.
void ClearBuffer(void* buffer, int size);

} // namespace tessary
