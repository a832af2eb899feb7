// "ptn log": the log of a panel, which is EUC-JP, for people.
#include "tools/ptn/commands/Command.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <gio/gio.h>
#include <iostream>
#include <memory>
#include <string>
#include <utility>

namespace ptn
{

namespace
{

namespace fs = std::filesystem;

/// Stands for a byte that is no EUC-JP; the log cuts long lines by bytes.
constexpr char REPLACEMENT[] = "\xEF\xBF\xBD";

/// How soon a change is shown.
constexpr int FOLLOW_MILLISECONDS = 100;

struct Unref {
    void operator()(gpointer object) const { g_object_unref(object); }
    void operator()(GMainLoop* loop) const { g_main_loop_unref(loop); }
};
template <class T> using Owned = std::unique_ptr<T, Unref>;

/// One conversion is opened for the whole log.
class Decoder
{
  public:
    Decoder() = default;
    ~Decoder() { g_iconv_close(converter_); }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    std::string utf8(std::string euc)
    {
        std::string text;
        char* in = euc.data();
        gsize left = euc.size();
        while (left) {
            char buffer[1024];
            char* out = buffer;
            gsize room = sizeof buffer;
            const bool stopped = g_iconv(converter_, &in, &left, &out, &room) == static_cast<gsize>(-1);
            const bool full = stopped && errno == E2BIG;
            text.append(buffer, out);
            if (stopped && !full) {
                text += REPLACEMENT;
                ++in;
                --left;
            }
        }
        return text;
    }

  private:
    GIConv converter_ = g_iconv_open("UTF-8", "EUC-JP");
};

/// A day's file, such as "20261122.log", as panels name them: the names stand in the order of the days.
bool IsDayFile(const fs::path& file)
{
    const std::string day = file.stem().string();
    return file.extension() == ".log" && day.size() == 8 &&
           std::all_of(day.begin(), day.end(), [](unsigned char digit) { return std::isdigit(digit) != 0; });
}

/// The first or last day's file of a folder that comes after `after`; empty when there is none.
fs::path DayFile(const fs::path& folder, const std::string& after, bool last)
{
    fs::path found;
    std::error_code gone;
    for (const auto& entry : fs::directory_iterator(folder, gone)) {
        const std::string name = entry.path().filename().string();
        if (!IsDayFile(entry.path()) || name <= after)
            continue;
        if (found.empty() || (name < found.filename().string()) != last)
            found = entry.path();
    }
    return found;
}

class LogCommand : public Command
{
  public:
    const char* name() const override { return "log"; }
    const char* summary() const override { return "Show the log of a panel as UTF-8, and follow it"; }
    void addOptions(CLI::App& line) override;
    int run() override;

  private:
    static void onChange(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer self);
    int follow();
    bool show();
    void showRest();
    void goOn();

    std::string given_;
    bool follow_ = false;
    fs::path folder_;
    fs::path file_;         ///< that is being shown; empty while a folder has none
    std::streamoff at_ = 0; ///< what lies before has been read
    std::string line_;      ///< the part of the last line that is there
    Decoder decoder_;
    Owned<GMainLoop> loop_;
};

void LogCommand::addOptions(CLI::App& line)
{
    line.add_option("FILE", given_, "A day's file, or the folder of the log, whose newest file is taken")
        ->required()
        ->check(CLI::ExistingPath);
    line.add_flag("-f,--follow", follow_, "Go on with what the panel writes, from day to day");
    line.footer("A byte that is no EUC-JP is shown as U+FFFD. Following ends when it is interrupted.");
}

int LogCommand::run()
{
    const bool isFolder = fs::is_directory(given_);
    folder_ = isFolder ? fs::path(given_) : fs::absolute(given_).parent_path();
    file_ = isFolder ? DayFile(folder_, "", true) : fs::path(given_);
    if (follow_)
        return follow();
    if (file_.empty()) {
        std::cerr << "ptn: '" << given_
                  << "' has no file such as 20260131.log. Name the folder of the log.\n";
        return 1;
    }
    if (!show())
        return 1;
    showRest();
    return 0;
}

/// Shows the whole lines that are new. @return false when the file can not be read
bool LogCommand::show()
{
    std::ifstream in(file_, std::ios::binary | std::ios::ate);
    if (!in || fs::is_directory(file_)) {
        std::cerr << "ptn: '" << file_.string() << "' can not be read. Check its rights.\n";
        return false;
    }
    if (in.tellg() < at_) { // written anew
        at_ = 0;
        line_.clear();
    }
    in.seekg(at_);
    for (std::string part; std::getline(in, part);) {
        line_ += part;
        at_ += static_cast<std::streamoff>(part.size());
        if (in.eof()) // the rest of the line is still to come
            break;
        ++at_;
        std::cout << decoder_.utf8(std::exchange(line_, "")) << '\n';
    }
    std::cout.flush();
    return true;
}

/// A last line that nobody has ended.
void LogCommand::showRest()
{
    if (!line_.empty())
        std::cout << decoder_.utf8(std::exchange(line_, "")) << std::endl;
}

/// What was written since the last look, in this file and in those of the days that have begun since.
void LogCommand::goOn()
{
    if (!file_.empty())
        show();
    const bool byDays = file_.empty() || IsDayFile(file_);
    while (byDays) {
        const fs::path next = DayFile(folder_, file_.filename().string(), false);
        if (next.empty())
            break;
        if (!file_.empty())
            show(); // what was written since, before the new day began
        showRest();
        file_ = next;
        at_ = 0;
        show();
    }
    if (!std::cout)
        g_main_loop_quit(loop_.get());
}

void LogCommand::onChange(GFileMonitor*, GFile*, GFile*, GFileMonitorEvent, gpointer self)
{
    static_cast<LogCommand*>(self)->goOn();
}

int LogCommand::follow()
{
    loop_.reset(g_main_loop_new(nullptr, FALSE));
    const Owned<GFile> folder(g_file_new_for_path(folder_.c_str()));
    const Owned<GFileMonitor> monitor(
        g_file_monitor_directory(folder.get(), G_FILE_MONITOR_NONE, nullptr, nullptr));
    if (!monitor) {
        std::cerr << "ptn: '" << folder_.string() << "' can not be watched. Check its rights.\n";
        return 1;
    }
    g_file_monitor_set_rate_limit(monitor.get(), FOLLOW_MILLISECONDS);
    g_signal_connect(monitor.get(), "changed", G_CALLBACK(onChange), this);
    goOn();
    if (std::cout)
        g_main_loop_run(loop_.get());
    return std::cout ? 0 : 1;
}

} // namespace

std::unique_ptr<Command> MakeLog()
{
    return std::make_unique<LogCommand>();
}

} // namespace ptn
