#include "tools/ptn/render/Render.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "config/Edition.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "draw/DrawCntl.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"
#include "shell/Locale.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/compiled/Build.h"
#include "tools/ptn/render/Picture.h"
#include "tools/ptn/source/StateFile.h"
#include "tools/ptn/system/PrivateServer.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <unistd.h>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

/// The largest pattern that is drawn; a display of this size does not exist.
constexpr int LARGEST = 8192;

// What is drawn right now, for the message when the drawing ends the process.
char drawing[256];

extern "C" void TellWhatIsDrawn(int)
{
    if (write(STDERR_FILENO, drawing, std::strlen(drawing)) < 0)
        _exit(1);
    _exit(1);
}

// A folder with the project in it as "ProjPath" and the profile beside it, which may be written to.
class Stage
{
  public:
    Stage(const RenderJob& job, Diagnostics& diagnostics);
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;

    Compiled compiled;

  private:
    void link(const fs::path& project);
    TemporaryFolder folder_{"ptn-"};
    fs::path before_ = fs::current_path();
};

Stage::Stage(const RenderJob& job, Diagnostics& diagnostics)
{
    const fs::path project = folder_.path() / "ProjPath";
    fs::path profile = folder_.path() / "panel.ini";
    if (IsCompiled(job.project)) {
        link(fs::absolute(job.project));
    } else {
        Build(job.project, project, "", diagnostics);
        if (diagnostics.failed())
            return;
    }
    compiled = ReadCompiled(IsCompiled(job.project) ? job.project : project, diagnostics);
    SetEdition(compiled.project.profile.edition());
    WriteBytes(profile, ReadBytes(compiled.profile).value_or(""));
    CopyText(ProfName, profile.c_str());
    CopyText(ProjPath, project.c_str());
    if (job.language) {
        int language = *job.language;
        ProfileWrite(ProfName, "FONT", "LANGUAGE", "i", &language, nullptr);
    }
    for (const Pattern& pattern : compiled.patterns)
        CheckDrawable(pattern, compiled.project, diagnostics);
}

Stage::~Stage()
{
    std::error_code ignored;
    fs::current_path(before_, ignored);
}

void Stage::link(const fs::path& project)
{
    const fs::path here = folder_.path() / "ProjPath";
    fs::create_directory(here);
    for (const auto& entry : fs::directory_iterator(project))
        if (entry.path().filename() != "PtrnFlag")
            fs::create_symlink(entry.path(), here / entry.path().filename());
}

void SetCells(const ScreenState& state)
{
    for (std::size_t i = 0; i < state.clock.size(); ++i)
        Set_iData(DTNO_SYSCALN + static_cast<int>(i), state.clock.at(i), nullptr, 0);
    for (const CellState& cell : state.cells) {
        Set_fData(cell.cell, cell.value, nullptr, 0);
        Set_sData(cell.cell, cell.text.c_str(), nullptr, 0);
        Set_wData(cell.cell, cell.word, nullptr, 0);
    }
}

// A display to draw on: that of the user or, without one, a server of this process.
bool EnsureDisplay(Diagnostics& diagnostics)
{
    if (const char* display = std::getenv("DISPLAY"); display && *display)
        return true;
    const std::string& display = PrivateDisplay();
    if (display.empty()) {
        diagnostics.error({"", 0},
                          "$DISPLAY is not set and Xvfb does not start. Install the package xvfb, or "
                          "set DISPLAY.");
        return false;
    }
    setenv("DISPLAY", display.c_str(), 1);
    return true;
}

// The framework as start-up leaves it, without a window and without a log.
bool Start(const ScreenState& state, Diagnostics& diagnostics)
{
    if (!EnsureDisplay(diagnostics))
        return false;
    if (!UseEucLocale())
        diagnostics.warning({"", 0}, "the locale ja_JP.eucJP is missing, so no Japanese text is drawn. Make "
                                     "it with localedef.");
    if (!OpenDisplay()) {
        diagnostics.error({"", 0}, "the display can not be opened. Correct $DISPLAY, or leave it unset.");
        return false;
    }
    ComnDataInit();
    DrawCntlInit();
    SetCells(state);
    return true;
}

PicturePtr Draw(const Pattern& pattern)
{
    std::snprintf(drawing, sizeof drawing, "ptn: the panel would end when it draws '%.200s'.\n",
                  EucToUtf8(pattern.name).c_str());
    std::signal(SIGABRT, TellWhatIsDrawn);
    std::signal(SIGTRAP, TellWhatIsDrawn);
    const auto side = [](int pixels) { return std::clamp(pixels, 1, LARGEST); };
    const int width = side(pattern.header.Parm1[HEDR_WIDTH]);
    const int height = side(pattern.header.Parm1[HEDR_HEIGHT]);
    const Pixmap pixmap(width, height);
    CPtrnData data(pattern.name.c_str());
    data.DispTitle(pixmap.draw());
    data.DispPtrnData(pixmap.draw());
    std::signal(SIGABRT, SIG_DFL);
    std::signal(SIGTRAP, SIG_DFL);
    return pixmap.picture();
}

std::vector<const Pattern*> Chosen(const Compiled& compiled, const RenderJob& job, Diagnostics& diagnostics)
{
    std::string name = job.pattern;
    if (name.empty())
        name = EucToUtf8(compiled.project.profile.value("PTRN", "PTRNSTART"));
    std::vector<const Pattern*> chosen;
    std::vector<std::string> names;
    for (const Pattern& pattern : compiled.patterns) {
        names.push_back(EucToUtf8(pattern.name));
        if (job.all || names.back() == name)
            chosen.push_back(&pattern);
    }
    if (!chosen.empty())
        return chosen;
    if (name.empty()) {
        diagnostics.error({"", 0}, "the profile names no screen to start with. Name the screen to draw.");
        return chosen;
    }
    std::string list;
    for (const std::string& one : names)
        list += (list.empty() ? "" : ", ") + Quoted(one);
    diagnostics.error({"", 0}, fmt::format("no screen is named '{}'.{} The screens are: {}.", name,
                                           Suggestion(name, names), list));
    return chosen;
}

} // namespace

std::vector<fs::path> Render(const RenderJob& job, Diagnostics& diagnostics)
{
    const fs::path here = fs::current_path();
    Stage stage(job, diagnostics);
    if (diagnostics.failed())
        return {};
    const ScreenState cells = ReadState(job.state, stage.compiled.project.codes, diagnostics);
    if (diagnostics.failed())
        return {};
    const std::vector<const Pattern*> chosen = Chosen(stage.compiled, job, diagnostics);
    if (diagnostics.failed())
        return {};
    fs::current_path(fs::path(ProjPath).parent_path());
    if (!Start(cells, diagnostics))
        return {};

    std::vector<fs::path> files;
    std::vector<PicturePtr> pictures;
    const auto save = [&](const fs::path& file, const PicturePtr& picture) {
        fs::create_directories(file.parent_path());
        if (SavePicture(picture.get(), file, diagnostics))
            files.push_back(file);
    };
    for (const Pattern* pattern : chosen) {
        pictures.push_back(Draw(*pattern));
        const fs::path name = EucToUtf8(pattern->name) + ".png";
        save(here / (job.all ? job.output / name : job.output.empty() ? name : job.output), pictures.back());
    }
    if (job.all)
        save(here / job.output / "contact-sheet.png", ContactSheet(pictures));
    ComnDataExit();
    DrawCntlExit();
    return files;
}

} // namespace ptn
