#include "tools/ptn/compiled/Output.h"

#include "config/ProjectMark.h"
#include "tools/ptn/compiled/Staging.h"

#include <csignal>
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

// Removes what the build before has made and this one does not. A list that was tampered with must not lead
// out of the folder.
int RemoveOld(const fs::path& folder, const std::string& before, const FileMap& files)
{
    int removed = 0;
    std::istringstream names(before);
    for (std::string name; std::getline(names, name);) {
        std::error_code gone;
        if (!files.count(name) && StaysInside(folder, name) &&
            fs::is_regular_file(fs::symlink_status(folder / name, gone)))
            removed += fs::remove(folder / name, gone) ? 1 : 0;
    }
    return removed;
}

std::string NamesOf(const FileMap& files)
{
    std::string names;
    for (const auto& file : files)
        names += file.first + "\n";
    return names;
}

void WarnOfKept(const fs::path& folder, const SeedPlan& plan, Diagnostics& diagnostics)
{
    for (const std::string& name : plan.kept)
        diagnostics.warning({(folder / name).string(), 0},
                            "its source has changed, but the panel has saved another one since: that stays. "
                            "'ptn build --reseed' writes it anew and keeps a copy with the time in its "
                            "name.");
}

} // namespace

OutputReport WriteOutput(const fs::path& folder, const FileMap& files, const FileMap& seeds,
                         const LooseFile& profile, const std::optional<LooseFile>& header, Reseed reseed,
                         Diagnostics& diagnostics)
{
    const SignalsLater uninterrupted;
    const MadeFolder place(fs::weakly_canonical(folder)); // it may be a link
    const FolderLock alone(place.path());
    const fs::path mark = place.path() / tessary::UNFINISHED_MARK;
    const std::string before = ReadBytes(place.path() / LIST_NAME).value_or("");
    const std::string unfinished = ReadBytes(mark).value_or("");
    const SeedPlan plan =
        PlanSeeds(place.path(), seeds, ReadBytes(place.path() / SEED_LIST_NAME).value_or(""), reseed);

    // Everything that can fail for want of rights or space comes before anything changes.
    OutputReport report;
    report.profile = profile.path;
    Staging project(place.path());
    for (const FileMap* const part : {&plan.copies, &files, &plan.files})
        for (const auto& [name, bytes] : *part)
            project.add(name, bytes);
    const std::string list = NamesOf(files);
    project.add(LIST_NAME, list);
    if (!plan.list.empty())
        project.add(SEED_LIST_NAME, plan.list);
    LooseStaging beside(profile.path, profile.bytes);
    std::optional<LooseStaging> elsewhere;
    if (header)
        elsewhere.emplace(header->path, header->bytes);

    // And the lists, and the profile.
    report.files = static_cast<int>(files.size() + seeds.size()) + (plan.list.empty() ? 2 : 3);
    const bool changes = !project.empty() || before != list;
    if (changes)
        project.mark(tessary::UNFINISHED_MARK, unfinished + list + before);
    report.written = project.moveIn() + (beside.moveIn() ? 1 : 0);
    if (elsewhere)
        elsewhere->moveIn();
    report.removed = RemoveOld(place.path(), before + unfinished, files);
    project.unmark(tessary::UNFINISHED_MARK);
    WarnOfKept(place.path(), plan, diagnostics);
    return report;
}

} // namespace ptn
