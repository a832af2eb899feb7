#include "config/FileReport.h"

#include "base/Constants.h"
#include "config/PathName.h"

namespace tessary
{

FileReportSink FileSink;

void FileReport::success(const FileEvent& event, const std::string& subject) const
{
    if (successes_)
        write(event.success, subject);
}

void FileReport::failure(const FileEvent& event, const std::string& subject) const
{
    if (failures_)
        write(event.failure, subject);
}

void FileReport::write(const char* text, const std::string& subject) const
{
    if (!FileSink)
        return;
    // The log keeps two bytes beyond the nominal size and cuts by bytes; cut here by characters.
    const std::string message = CutText(TextOf(text) + " [" + subject + "]", SIZE_LOGMESG2 + 2);
    FileSink("FILECNTL", message.c_str(), file_, line_);
}

} // namespace tessary
