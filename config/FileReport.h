// What the file helpers put into the log, and for whom.
#pragma once

#include <string>

namespace tessary
{

/// Where the lines go; null: nowhere. The log enters itself here while it is open.
/// @param mesg1  category
/// @param mesg2  message
/// @param file   caller's source file, null for none
using FileReportSink = void (*)(const char* mesg1, const char* mesg2, const char* file, int line);
extern FileReportSink FileSink;

/// The two texts of an operation; the log line is the text and the subject in brackets.
struct FileEvent {
    const char* success;
    const char* failure;
};

constexpr FileEvent OPEN_FILE = {"ファイルのオープン", "ファイルのオープンに失敗"};
constexpr FileEvent CREATE_FILE = {"ファイルの生成", "ファイルの生成に失敗"};
constexpr FileEvent READ_FILE = {"ファイルの読込み", "ファイルの読込みに失敗"};
constexpr FileEvent WRITE_BLOCK = {"ファイルの書込み", "ファイルの書込みに失敗"};
// A record that was written is recorded with the text for reading; only its failure speaks of writing.
constexpr FileEvent WRITE_RECORD = {READ_FILE.success, WRITE_BLOCK.failure};
constexpr FileEvent COPY_FILE = {"ファイルの複写", "ファイルの複写に失敗"};
constexpr FileEvent RENAME_FILE = {"ファイルの名称変更", "ファイルの名称変更に失敗"};
constexpr FileEvent DELETE_FILE = {"ファイルの削除", "ファイルの削除に失敗"};
constexpr FileEvent OPEN_FOLDER = {nullptr, "フォルダーが存在しない"};
constexpr FileEvent CREATE_FOLDER = {"フォルダーを作成", "フォルダーの作成に失敗"};
constexpr FileEvent DELETE_FOLDER = {"フォルダーを削除", "フォルダーの削除に失敗"};
constexpr FileEvent COPY_FOLDER = {"フォルダーを複写", nullptr}; // its failures are those of its steps

/// The caller of a file operation. Successes are recorded when the caller named its source file,
/// failures always.
class FileReport
{
  public:
    FileReport(const char* file, int line) : FileReport(file, line, file != nullptr, true) {}

    /// For an operation that nobody hears of.
    static FileReport none() { return {nullptr, 0, false, false}; }

    /// For a step of an operation that reports its own success.
    FileReport failuresOnly() const { return {file_, line_, false, failures_}; }

    void success(const FileEvent& event, const std::string& subject) const;
    void failure(const FileEvent& event, const std::string& subject) const;

  private:
    FileReport(const char* file, int line, bool successes, bool failures)
        : file_(file), line_(line), successes_(successes), failures_(failures)
    {
    }
    void write(const char* text, const std::string& subject) const;

    const char* file_;
    int line_;
    bool successes_;
    bool failures_;
};

} // namespace tessary
