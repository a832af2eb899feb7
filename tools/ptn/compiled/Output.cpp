#include "tools/ptn/compiled/Output.h"

#include "tools/ptn/common/Files.h"

#include <algorithm>
#include <csignal>
#include <cstdint>
#include <sstream>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

/// Lists what the build has written, one path per line, so that the next one can tell its own old files
/// from those of others.
const char* const LIST_NAME = ".ptn-files";

/// What the build has made of files that the program goes on writing: a check sum and the name per line.
const char* const SEED_LIST_NAME = ".ptn-seeds";

// FNV-1a: it only has to tell whether sources have changed.
std::string CheckSum(const std::string& bytes)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
    return std::to_string(sum);
}

/// Holds signals to end back as long as it lives, so that no half of a build is left.
class SignalsLater
{
  public:
    SignalsLater()
    {
        sigset_t ending;
        sigemptyset(&ending);
        for (const int signal : {SIGHUP, SIGINT, SIGTERM})
            sigaddset(&ending, signal);
        sigprocmask(SIG_BLOCK, &ending, &before_);
    }
    ~SignalsLater() { sigprocmask(SIG_SETMASK, &before_, nullptr); }
    SignalsLater(const SignalsLater&) = delete;
    SignalsLater& operator=(const SignalsLater&) = delete;

  private:
    sigset_t before_;
};

// A list that was tampered with must not lead out of the folder.
bool StaysInside(const fs::path& name)
{
    return name.is_relative() && std::find(name.begin(), name.end(), "..") == name.end();
}

// Removes what the build before has made and this one does not.
int RemoveOld(const fs::path& folder, const std::string& before, const FileMap& files)
{
    int removed = 0;
    std::istringstream names(before);
    for (std::string name; std::getline(names, name);) {
        std::error_code gone;
        if (!files.count(name) && StaysInside(name) && fs::is_regular_file(folder / name, gone))
            removed += fs::remove(folder / name, gone) ? 1 : 0;
    }
    return removed;
}

} // namespace

MadeFolder::MadeFolder(const fs::path& path) : path_(path), made_(fs::create_directories(path)) {}

MadeFolder::~MadeFolder()
{
    std::error_code notEmpty;
    if (made_)
        fs::remove(path_, notEmpty);
}

Staging::Staging(const fs::path& folder) : folder_(folder), temporary_(".ptn-", folder) {}

void Staging::add(const std::string& name, const std::string& bytes)
{
    if (ReadBytes(folder_.path() / name) == bytes)
        return;
    // Found out before anything is moved.
    std::error_code missing;
    if (fs::is_directory(folder_.path() / name, missing))
        throw fs::filesystem_error("is a folder", folder_.path() / name,
                                   std::make_error_code(std::errc::is_a_directory));
    WriteBytes(temporary_.path() / std::to_string(names_.size()), bytes);
    names_.push_back(name);
}

int Staging::moveIn()
{
    for (std::size_t i = 0; i < names_.size(); ++i) {
        const fs::path target = folder_.path() / names_[i];
        fs::create_directories(target.parent_path());
        fs::rename(temporary_.path() / std::to_string(i), target);
    }
    return static_cast<int>(names_.size());
}

OutputReport WriteOutput(const fs::path& folder, const FileMap& files, const FileMap& seeds,
                         const LooseFile& profile, const std::optional<LooseFile>& header)
{
    const SignalsLater uninterrupted;
    const fs::path place = fs::weakly_canonical(folder); // it may be a link
    Staging project(place);
    Staging beside(profile.path.parent_path());
    std::optional<Staging> elsewhere;

    std::string list;
    for (const auto& file : files) {
        list += file.first + "\n";
        project.add(file.first, file.second);
    }
    project.add(LIST_NAME, list);
    const std::string seedsBefore = ReadBytes(place / SEED_LIST_NAME).value_or("");
    std::string seedList;
    for (const auto& seed : seeds) {
        const std::string line = CheckSum(seed.second) + " " + seed.first + "\n";
        seedList += line;
        if (seedsBefore.find(line) == std::string::npos || !ReadBytes(place / seed.first))
            project.add(seed.first, seed.second);
    }
    if (!seedList.empty())
        project.add(SEED_LIST_NAME, seedList);
    beside.add(profile.path.filename().string(), profile.bytes);
    if (header) {
        elsewhere.emplace(header->path.parent_path());
        elsewhere->add(header->path.filename().string(), header->bytes);
    }

    const std::string before = ReadBytes(place / LIST_NAME).value_or("");
    OutputReport report;
    report.profile = profile.path;
    // And the lists, and the profile.
    report.files = static_cast<int>(files.size() + seeds.size()) + (seedList.empty() ? 2 : 3);
    report.written = project.moveIn() + beside.moveIn();
    if (elsewhere)
        elsewhere->moveIn();
    report.removed = RemoveOld(place, before, files);
    return report;
}

} // namespace ptn
