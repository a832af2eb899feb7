#include "tools/ptn/run/Run.h"

#include "base/EucText.h"
#include "config/ProfileText.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/compiled/Build.h"
#include "tools/ptn/run/WatchedPanel.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <glib.h>
#include <iostream>
#include <unistd.h>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

fs::path OutputOf(const RunJob& job)
{
    return fs::path(job.source) / "build" / "ProjPath";
}

/// Checks and builds; what is found is told.
/// @return none when there are mistakes, and nothing has changed
std::optional<OutputReport> Prepare(const RunJob& job)
{
    Diagnostics diagnostics;
    Diagnostics remarks; // of "ptn check" alone
    Check(job.source, "", diagnostics, remarks);
    std::optional<OutputReport> report;
    if (!diagnostics.failed())
        report = Build(job.source, OutputOf(job), "", diagnostics);
    diagnostics.print(std::cerr);
    return report;
}

/// The panel writes its log only into a folder that is there.
void MakeLogFolder(const fs::path& profile)
{
    const auto keys = ProfileValues(ReadBytes(profile).value_or(""), "LOG");
    const auto folder = keys.find("LOGFILE");
    std::error_code elsewhere;
    if (folder != keys.end() && !folder->second.empty())
        fs::create_directory(profile.parent_path() / folder->second, elsewhere);
}

bool HasScreen(const RunJob& job)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(OutputOf(job)))
        if (entry.path().extension() == ".ptn")
            names.push_back(EucToUtf8(entry.path().stem().string()));
    if (job.screen.empty() || std::find(names.begin(), names.end(), job.screen) != names.end())
        return true;
    std::cerr << "ptn: no screen is named " << Quoted(job.screen) << "." << Suggestion(job.screen, names)
              << " --screen takes the 'name' of a screen.\n";
    return false;
}

bool HasDisplay()
{
    const char* display = std::getenv("DISPLAY");
    if (display && *display)
        return true;
    std::cerr
        << "ptn: there is no display to show the panel on. Set DISPLAY to the X server, such as DISPLAY=:0, "
           "or look at the screens with 'ptn render'.\n";
    return false;
}

/// The panel beside this program, else the one that is found by its name; empty without one, which is told.
std::string PanelProgram()
{
    const char* const name = "tessary-panel";
    std::error_code unknown;
    const fs::path beside = fs::read_symlink("/proc/self/exe", unknown).parent_path() / name;
    if (fs::exists(beside, unknown))
        return beside.string();
    const std::unique_ptr<char, void (*)(void*)> found(g_find_program_in_path(name), g_free);
    if (found)
        return found.get();
    std::cerr << "ptn: " << name << " is missing. It is installed with ptn; install it beside "
              << beside.parent_path().string() << "/ptn or in a folder of PATH.\n";
    return "";
}

std::vector<std::string> CommandLine(const std::string& program, const RunJob& job, const fs::path& profile)
{
    std::vector<std::string> line = {program};
    if (!job.screen.empty())
        line.push_back("--screen=" + job.screen);
    line.push_back(profile.string());
    return line;
}

int Become(const std::vector<std::string>& line)
{
    std::vector<char*> words;
    for (const std::string& word : line)
        words.push_back(const_cast<char*>(word.c_str()));
    words.push_back(nullptr);
    std::cout.flush();
    execv(words[0], words.data());
    std::cerr << "ptn: " << line[0] << ": " << std::strerror(errno) << ". Check that it can be run.\n";
    return 1;
}

/// Builds what has been saved. @return whether there is something new to show
bool BuildSaved(const RunJob& job)
{
    try {
        const std::optional<OutputReport> report = Prepare(job);
        if (!report) {
            std::cerr << job.source << ": the panel goes on with what it has.\n";
            return false;
        }
        const int changes = report->written + report->removed;
        if (changes)
            std::cout << job.source << ": " << changes << (changes == 1 ? " file has" : " files have")
                      << " changed and " << (changes == 1 ? "is" : "are") << " shown now." << std::endl;
        return changes > 0;
    } catch (const fs::filesystem_error& problem) {
        Diagnostics diagnostics;
        ReportUnwritten(problem, diagnostics);
        diagnostics.print(std::cerr);
        return false;
    }
}

} // namespace

int Run(const RunJob& job)
{
    const std::optional<OutputReport> report = Prepare(job);
    if (!report) {
        std::cerr << job.source << ": there are mistakes, so nothing is shown.\n";
        return 1;
    }
    MakeLogFolder(report->profile);
    if (!HasScreen(job) || !HasDisplay())
        return 1;
    const std::string program = PanelProgram();
    if (program.empty())
        return 1;
    const std::vector<std::string> line = CommandLine(program, job, report->profile);
    return job.watch ? RunWatched(line, job.source, [&job] { return BuildSaved(job); }) : Become(line);
}

} // namespace ptn
