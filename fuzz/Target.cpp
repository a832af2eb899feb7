#include "fuzz/Target.h"

#include "base/EucText.h"
#include "comndata/PtrnCode.h"
#include "config/Edition.h"
#include "config/Settings.h"
#include "log/Logfile.h"
#include "shell/Locale.h"
#include "tests/support/Sanitizer.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <unistd.h>
#include <vector>

// The names are the sanitizers'.
extern "C" const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions()
{
    return LEAK_SUPPRESSIONS;
}

/// No input is worth more memory at a time than the largest picture takes, about twice.
extern "C" const char* __asan_default_options();
extern "C" const char* __asan_default_options()
{
    return "max_allocation_size_mb=1024";
}

namespace fuzz
{

namespace fs = std::filesystem;

namespace
{

std::vector<Target*>& Targets()
{
    static std::vector<Target*> targets;
    return targets;
}

/// A folder in memory unless $TMPDIR names another: a disk takes its time for each file.
fs::path Place()
{
    const fs::path memory = "/dev/shm";
    const bool free = !std::getenv("TMPDIR") && access(memory.c_str(), W_OK) == 0;
    return free ? memory : fs::temp_directory_path();
}

} // namespace

Target::Target(const char* name, Run run) : name_(name), run_(run)
{
    Targets().push_back(this);
}

Target* Target::find(std::string_view name)
{
    for (Target* target : Targets())
        if (target->name_ == name)
            return target;
    return nullptr;
}

Target& Target::only()
{
    return *Targets().front();
}

void Target::operator()(const std::string& bytes) const
{
    Project::own();
    // Nothing else tells an input from others that could also have been run in this edition.
    tessary::SetEdition(bytes.size() % 2 == 0 ? 1 : tessary::LATEST_EDITION);
    run_(bytes);
    LogCont = 0;
}

Project& Project::own()
{
    static Project project;
    return project;
}

Project::Project()
{
    static const ptn::TemporaryFolder FOLDER("tessary-fuzz-", Place());
    std::signal(SIGTRAP, [](int) { std::abort(); }); // the toolkit's end, at which no input would be kept
    fs::current_path(FOLDER.path());
    fs::create_directories("ProjPath/Bitmap");
    tessary::UseEucLocale();
    tessary::CopyText(ProfName, (FOLDER.path() / "panel.ini").c_str());
    tessary::CopyText(ProjPath, (FOLDER.path() / "ProjPath").c_str());
    write("panel.ini", "[LOG]\nLOGFILE=" + FOLDER.path().string() + "\nLOGSIZE=10000\n");
    LogfileInit();
    tessary::CopyText(LogName, "/dev/null"); // where a full buffer goes
}

void Project::write(const std::string& name, const std::string& bytes) const
{
    const fs::path path(name);
    std::error_code taken; // the name of the folder is that of another file
    if (path.has_parent_path())
        fs::create_directories(path.parent_path(), taken);
    std::ofstream(path, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string Project::read(const std::string& name) const
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

void Project::clear(const std::string& folder) const
{
    fs::remove_all(folder);
    fs::create_directories(folder);
}

void Project::load() const
{
    const auto row = [](const char* code, std::int32_t count, std::int32_t first) {
        std::string bytes(34, '\0');
        std::memcpy(bytes.data(), code, std::strlen(code));
        std::memcpy(&bytes[22], &count, sizeof count);
        std::memcpy(&bytes[26], &first, sizeof first);
        return bytes;
    };
    write("ProjPath/PtrnCode", row("A", 5, 1) + row("B", 3, 6));
    LoadCodeData();
}

std::uint8_t Input::byte()
{
    if (rest_.empty())
        return 0;
    const auto value = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return value;
}

std::int32_t Input::number()
{
    std::uint32_t value = 0;
    for (int shift = 0; shift < 32; shift += 8)
        value |= static_cast<std::uint32_t>(byte()) << shift;
    return static_cast<std::int32_t>(value);
}

std::string Input::text()
{
    std::string value(rest_.substr(0, rest_.find('\0')));
    rest_.remove_prefix(std::min(value.size() + 1, rest_.size()));
    return value;
}

std::map<std::string, std::string> Files(const std::string& bytes)
{
    static const std::string MARK = "@@@ ";
    std::map<std::string, std::string> files;
    for (std::size_t at = bytes.find(MARK); at != std::string::npos;) {
        const std::size_t begin = at + MARK.size();
        const std::size_t line = std::min(bytes.find('\n', begin), bytes.size());
        at = bytes.find("\n" + MARK, line);
        const fs::path name(bytes.substr(begin, line - begin));
        const bool within = !name.empty() && name.is_relative() && name.native().size() < 200 &&
                            name == name.lexically_normal() && *name.begin() != ".." && name.has_filename() &&
                            name.native().find('\0') == std::string::npos &&
                            std::distance(name.begin(), name.end()) <= 2;
        if (line < bytes.size() && within)
            files[name.string()] =
                bytes.substr(line + 1, at == std::string::npos ? at : at - std::min(at, line + 1));
        if (at != std::string::npos)
            ++at;
    }
    return files;
}

void promise(bool kept, const char* what)
{
    if (kept)
        return;
    std::fprintf(stderr, "BROKEN PROMISE: %s\n", what);
    std::abort();
}

} // namespace fuzz
