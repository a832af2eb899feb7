#include "program/Reload.h"

#include "comndata/ComnData.h"
#include "comndata/KeptCells.h"
#include "comndata/PatternNames.h"
#include "comndata/PtrnCode.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "draw/Resource.h"
#include "log/Guard.h"
#include "window/Reload.h"
#include "window/Request.h"

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <glib-unix.h>
#include <map>
#include <set>
#include <string>
#include <sys/stat.h>
#include <tuple>

namespace fs = std::filesystem;

namespace tessary
{

namespace
{

/// What tells a file from another one that has been put in its place.
using Stamp = std::tuple<ino_t, off_t, time_t, long>;

/// The project as it was loaded.
struct Project {
    std::map<std::string, Stamp> files; ///< by path below the project directory
    std::string profile;                ///< without what the program itself writes there
};

/// The table of flags gets a byte for each cell.
constexpr const char* WRITTEN_BY_LOADING = "PtrnFlag";

Project loaded;
bool asked;

gboolean TakeSignal(void*)
{
    asked = true;
    return TRUE;
}

Stamp StampOf(const fs::path& path)
{
    struct stat file {
    };
    stat(path.c_str(), &file);
    return {file.st_ino, file.st_size, file.st_mtim.tv_sec, file.st_mtim.tv_nsec};
}

/// Takes a file for the one that was loaded.
void NoteFile(const char* name)
{
    loaded.files[name] = StampOf(fs::path(ProjPath) / name);
}

/// Without the places of windows, which the program saves.
std::string ReadProfile()
{
    std::ifstream in(ProfName);
    std::string text;
    bool own = false;
    for (std::string line; std::getline(in, line);) {
        if (!line.empty() && line[0] == '[')
            own = line.compare(0, 8, "[WINDOW]") == 0;
        if (!own)
            text += line + "\n";
    }
    return text;
}

Project ReadProject()
{
    Project project;
    std::error_code unreadable;
    for (const auto& entry : fs::recursive_directory_iterator(ProjPath, unreadable)) {
        const std::string name = entry.path().lexically_relative(ProjPath).string();
        struct stat file {
        };
        if (name[0] != '.' && stat(entry.path().c_str(), &file) == 0 && S_ISREG(file.st_mode))
            project.files[name] = {file.st_ino, file.st_size, file.st_mtim.tv_sec, file.st_mtim.tv_nsec};
    }
    project.profile = ReadProfile();
    return project;
}

/// The files that are others now, or are not there any more, or were not.
std::set<std::string> Differences(const Project& before, const Project& now)
{
    std::set<std::string> names;
    const auto add = [&](const Project& from, const Project& to) {
        for (const auto& [name, stamp] : from.files)
            if (const auto other = to.files.find(name); other == to.files.end() || other->second != stamp)
                names.insert(name);
    };
    add(before, now);
    add(now, before);
    return names;
}

bool IsPattern(const std::string& name)
{
    return fs::path(name).extension() == ".ptn";
}

/// Everything that screens share.
void LoadShared()
{
    ReqKeyReset(); // an edit marks its cell, whose number may be another one's soon
    const KeptCells kept;
    SetEdition(std::min(ReadEdition(), LATEST_EDITION));
    ComnDataInit();
    NoteFile(WRITTEN_BY_LOADING);
    kept.giveBack();
    DrawCntlInit();
}

void Reload(void (*before)(), void (*after)())
{
    const Project now = ReadProject();
    const std::set<std::string> names = Differences(loaded, now);
    const bool shared = now.profile != loaded.profile || !std::all_of(names.begin(), names.end(), IsPattern);
    loaded = now;
    if (shared) {
        before();
        LoadShared();
        after();
    } else {
        LoadPatternNames();
    }
    ReloadPtrnWnds([&](const char* name) { return shared || names.count(std::string(name) + ".ptn") > 0; });
}

} // namespace

void WatchReload()
{
    g_unix_signal_add(SIGUSR1, Guarded<TakeSignal, TRUE>::call, nullptr);
    // Whoever has started the program may have held it back until now: before, it would have ended the
    // program.
    sigset_t reload;
    sigemptyset(&reload);
    sigaddset(&reload, SIGUSR1);
    pthread_sigmask(SIG_UNBLOCK, &reload, nullptr);
}

void NoteProject()
{
    loaded = ReadProject();
}

void ReloadTimr(void (*before)(), void (*after)())
{
    if (!asked || !AppliWnd)
        return;
    asked = false;
    Reload(before, after);
}

} // namespace tessary
