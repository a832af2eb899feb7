// Files and folders: blocks and records, whole files, listings, paths.
//
// Everything here keeps to one rule for the log (category "FILECNTL"): a failure is always recorded, a
// success only when the caller passes its source file. `file` and `line`, the last two parameters, are
// the caller's place; pass nullptr, 0 to stay silent on success.
//
// A file is named by a directory and a name, joined as MakePath does; an empty name means that the
// directory is the whole path. A null text counts as an empty one. Sizes, offsets and positions are
// bytes and fit 32 bits. No call waits for the other end of a pipe or for a terminal: without data at once it
// fails.
#pragma once

#include "config/FileClass.h"
#include "config/FilePath.h"

/// Reads a block of a file that is opened and closed by the call.
/// @return 1, or -1 with `buffer` zeroed; a file that can not be opened is recorded twice, as a failure
/// to open and a failure to read
int FileRead(const char* dir, const char* name, void* buffer, int size, int offset, const char* file,
             int line);
/// The same with a record, see CFileRead::ReadRecord.
int FileRead(const char* dir, const char* name, int number, void* buffer, int size, int offset,
             const char* file, int line);

/// Writes a block of a file that is opened and closed by the call. A missing file is created (the failure
/// to open is recorded first); an existing one is never truncated, so a longer file keeps its tail.
/// @return 1 or -1
int FileWrite(const char* dir, const char* name, const void* buffer, int size, int offset, const char* file,
              int line);
/// The same with a record, see CFileWrite::WriteRecord.
int FileWrite(const char* dir, const char* name, int number, const void* buffer, int size, int offset,
              const char* file, int line);

/// Copies a file; the bytes of a longer target beyond the source's size stay. An empty source is a failure.
/// @return 1 or 0
int FileCopy(const char* srcdir, const char* srcname, const char* dstdir, const char* dstname,
             const char* file, int line);

/// Renames within `dir`; refused when the old name does not exist or the new one does.
/// @return 1 or 0
int FileRename(const char* dir, const char* oldname, const char* newname, const char* file, int line);

/// @return 1, or 0 when the file does not exist or can not be removed (a folder, for example)
int FileDelete(const char* dir, const char* name, const char* file, int line);

/// @return 1 when the path exists, as a file or a folder, else 0
int FileExist(const char* dir, const char* name);

/// @return bytes of the file; -1 when it does not exist, or is too long for 32 bits
int FileSize(const char* dir, const char* name);

/// Modification time in local time.
/// @param date  receives year (four digits), month counted from 0 (the clock cells count from 1), day,
///              hour, minute, second; left alone on failure
/// @return 1, or 0 when the path does not exist
int FileDate(const char* dir, const char* name, int date[6]);

/// Compares modification times.
/// @return 2 when the first path does not exist, 3 when the second does not, 1 when the first was
/// modified earlier than the second, else 0
int FileCompare(const char* dir1, const char* name1, const char* dir2, const char* name2);

/// Reads a block into `buffer` (zeros when it can not be read) and tells whether it is all zeros: what is
/// read is compared with an empty area, not with what the buffer held. Nothing is logged.
/// @return 1 when all `size` bytes are zero, else 0
int FileVerify(const char* dir, const char* name, void* buffer, int size, int offset);
/// The same with a record.
int FileVerify(const char* dir, const char* name, int number, void* buffer, int size, int offset);

/// Counts the regular files in `dir` whose names match the shell pattern (case counts) and do not begin
/// with ".".
/// @return the count, 0 when the folder can not be opened
int FileCount(const char* dir, const char* pattern);

/// Lists the files that FileCount counts. Stops before the first name that does not fit.
/// @param names     receives the names one after another, each with its terminator; `bufsize` bytes
/// @param list      receives a pointer into `names` for each name; `maxcount` entries
/// @param order     1 ascending, 2 descending by byte comparison, any other value as the directory gives them
/// @return names listed; 0 when the folder can not be opened or a limit is below 1
int FolderRead(const char* dir, const char* pattern, char* names, char** list, int bufsize, int maxcount,
               int order);

/// Makes the folder and all missing folders above it (mode 0777 less the process mask).
/// @return 1 when the folder exists afterwards, else 0
int CreateFolder(const char* path, const char* file, int line);

/// Deletes the regular files in a folder and the folder itself. Subfolders are not entered; while one
/// remains the folder stays, without its files.
/// @return 1, or 0 at the first file that can not be deleted
int DeleteFolder(const char* path, const char* file, int line);

/// Copies the regular files of a folder, without subfolders, into a folder that is made when missing.
/// @return 1, or 0 at the first file that can not be copied (an empty file, for example)
int CopyFolder(const char* srcpath, const char* dstpath, const char* file, int line);

namespace tessary
{

/// Whether a file can not be read although it is there, as far as can be told: what it holds is not known
/// then and must not be written over. Nothing is recorded.
/// @return false for a file that is missing
bool IsUnreadable(const char* dir, const char* name);

} // namespace tessary
