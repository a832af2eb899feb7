#include "log/Logfile.h"

#include "base/EucText.h"
#include "config/Edition.h"
#include "config/FileCntl.h"
#include "config/FileReport.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "log/Clock.h"

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fnmatch.h>
#include <memory>
#include <optional>
#include <string>
#include <sys/stat.h>
#include <vector>

using namespace tessary;

char LogPath[255];
char LogName[255];
LOGBUFFER* LogBuff;
int LogSize;
int LogCont;
int LogTimr;
int LogDay;

namespace
{

using Watch = std::chrono::steady_clock; // goes on while the clock is set

std::vector<LOGBUFFER> buffer; // what LogBuff points to
Watch::time_point oldest;      // when the first line in the buffer was written

int PositiveOr(int value, int otherwise)
{
    return value > 0 ? value : otherwise;
}

void SetLogName()
{
    char name[sizeof LogPath + 48];
    std::snprintf(name, sizeof name, "%s/%04d%02d%02d.log", LogPath, LocalTime.tm_year, LocalTime.tm_mon,
                  LocalTime.tm_mday);
    CopyText(LogName, name);
}

void SetFileName(LOGBUFFER& record, const char* file)
{
    char base[SIZE_PATH + 1];
    char ext[SIZE_PATH + 1];
    SplitPath(file, nullptr, base, ext);
    std::snprintf(record.file, sizeof record.file, "%.12s.%.3s", base, ext);
}

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

/// Null when the file can not be opened, or is none: a pipe in its place must not make the panel wait.
Stream OpenLog()
{
    const int descriptor = open(LogName, O_WRONLY | O_APPEND | O_CREAT | O_NONBLOCK | O_CLOEXEC, 0666);
    Stream stream(descriptor < 0 ? nullptr : fdopen(descriptor, "a"), std::fclose);
    struct stat status;
    if (stream && (fstat(descriptor, &status) != 0 || !S_ISREG(status.st_mode)))
        stream.reset();
    return stream;
}

void WriteLine(std::FILE* out, const LOGBUFFER& record)
{
    // The longest line, with every number at its widest, has 298 bytes.
    char time[64];
    char middle[80];
    char line[sizeof time + sizeof middle + sizeof record.mesg2 + 8];
    std::snprintf(time, sizeof time, "%02d:%02d:%02d", record.time[0], record.time[1], record.time[2]);
    if (record.file[0])
        std::snprintf(middle, sizeof middle, "%-16s(%5d)  %-20.22s", record.file, record.line, record.mesg1);
    else
        std::snprintf(middle, sizeof middle, "%-16s %5s   %-20.22s", "", "", record.mesg1);
    std::snprintf(line, sizeof line, "%s  %s  %.202s\n", time, middle, record.mesg2);
    std::fputs(line, out);
}

/// Day number that a file name such as "20260101.LOG" stands for. Its characters are taken as digits
/// whatever they are; the century is not read.
int FileDay(const char* name)
{
    const auto number = [name](int tens) {
        const auto digit = [name](int at) { return static_cast<unsigned char>(name[at]) - '0'; };
        return digit(tens) * 10 + digit(tens + 1);
    };
    return CalcDate(2000 + number(2), number(4), number(6));
}

/// Only names in upper case are found, while LogName ends in lower case: this touches the files that
/// somebody renamed for it. A name that ends before the day's last digit has no date and is kept.
void DeleteOldFiles(int days)
{
    char names[1500];
    char* list[100];
    const int today = CalcDate(LocalTime.tm_year, LocalTime.tm_mon, LocalTime.tm_mday);
    const int count = FolderRead(LogPath, "*.LOG", names, list, sizeof names, 100, 0);
    for (int i = 0; i < count; i++)
        if (std::strlen(list[i]) >= 8 && std::int64_t{today} - FileDay(list[i]) > days)
            FileDelete(LogPath, list[i], nullptr, 0);
}

/// Day number of a name that LogName has had; none for other names, whoever has given them.
std::optional<int> OwnFileDay(const std::string& name)
{
    if (fnmatch("[0-9][0-9][0-9][0-9][0-9][0-9][0-9][0-9].log", name.c_str(), 0) != 0)
        return std::nullopt;
    const int year = std::stoi(name.substr(0, 4));
    const int month = std::stoi(name.substr(4, 2));
    const int day = std::stoi(name.substr(6, 2));
    if (day < 1 || day > Get_DayCount(year, month))
        return std::nullopt;
    return CalcDate(year, month, day);
}

/// However many there are: the panel may have stood still for long.
void DeleteOwnOldFiles(int days)
{
    const int today = CalcDate(LocalTime.tm_year, LocalTime.tm_mon, LocalTime.tm_mday);
    std::vector<std::string> old;
    std::error_code unreadable;
    for (std::filesystem::directory_iterator entry(LogPath, unreadable), end; !unreadable && entry != end;
         entry.increment(unreadable)) {
        const std::string name = entry->path().filename().string();
        const std::optional<int> day = OwnFileDay(name);
        std::error_code gone;
        if (day && std::int64_t{today} - *day > days &&
            entry->symlink_status(gone).type() == std::filesystem::file_type::regular)
            old.push_back(name);
    }
    for (const std::string& name : old)
        FileDelete(LogPath, name.c_str(), nullptr, 0);
}

void ChangeDay()
{
    LogDay = LocalTime.tm_mday;
    LogfileSave(); // these lines are yesterday's
    SetLogName();
    const int days = ProfileReadInt(ProfName, "LOG", "LOGSAVE");
    if (days <= 0)
        return;
    DeleteOldFiles(days);
    if (Has(Correction::LogPruning))
        DeleteOwnOldFiles(days);
}

} // namespace

void LogfileInit()
{
    LogfileExit();
    LogName[0] = '\0';
    const char* path = ProfileReadAsc(ProfName, "LOG", "LOGFILE");
    if (!*path)
        return;
    CopyText(LogPath, path);
    LogTimr = PositiveOr(ProfileReadInt(ProfName, "LOG", "LOGTIMR"), 10);
    LogSize = std::min(PositiveOr(ProfileReadInt(ProfName, "LOG", "LOGSIZE"), 100), LOGSIZE_MAX);
    buffer.resize(static_cast<std::size_t>(LogSize));
    LogBuff = buffer.data();
    FileSink = LogfileWrite;
    GetLocalTime();
    SetLogName();
}

void LogfileExit()
{
    LogfileSave();
    FileSink = nullptr;
    buffer = {};
    LogBuff = nullptr;
    LogPath[0] = '\0';
    LogSize = LogCont = LogTimr = LogDay = 0;
}

void LogfileSave()
{
    if (!*LogPath || LogCont == 0)
        return;
    if (const Stream out = OpenLog())
        std::for_each(LogBuff, LogBuff + LogCont, [&](const LOGBUFFER& line) { WriteLine(out.get(), line); });
    LogCont = 0;
}

namespace
{

/// A look at the clock once a second may miss the second that it waits for, and whoever sets the clock may
/// have it waited for again.
bool IsOverdue()
{
    return LogCont > 0 && Watch::now() - oldest >= std::chrono::seconds(LogTimr);
}

} // namespace

void LogfileTimr()
{
    if (!*LogPath)
        return;
    if (LogTimr > 0 &&
        (CalcTime(LocalTime.tm_hour, LocalTime.tm_min, LocalTime.tm_sec) % LogTimr == 0 || IsOverdue()))
        LogfileSave();
    if (LogDay != LocalTime.tm_mday)
        ChangeDay();
}

void LogfileWrite(const char* mesg1, const char* mesg2, const char* file, int line)
{
    if (!LogBuff)
        return;
    LOGBUFFER record{};
    record.time[0] = LocalTime.tm_hour;
    record.time[1] = LocalTime.tm_min;
    record.time[2] = LocalTime.tm_sec;
    if (mesg1)
        std::memcpy(record.mesg1, mesg1, BoundedLength(mesg1, sizeof record.mesg1));
    if (mesg2)
        std::memcpy(record.mesg2, mesg2, BoundedLength(mesg2, sizeof record.mesg2));
    if (file)
        SetFileName(record, file);
    record.line = line;
    if (LogCont == 0)
        oldest = Watch::now();
    LogBuff[LogCont++] = record;
    if (LogCont >= LogSize)
        LogfileSave();
}
