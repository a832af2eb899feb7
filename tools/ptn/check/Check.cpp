#include "tools/ptn/check/Check.h"

#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tools/ptn/source/Placement.h"
#include "tools/ptn/source/ReadProject.h"
#include "tools/ptn/source/ScreenSource.h"

#include <algorithm>

namespace ptn
{

namespace fs = std::filesystem;

Subject ItemName(const PatternItem& item, std::size_t index)
{
    const ItemClass* schema = FindItemClass(item.record.Type);
    const std::string type = schema ? schema->name : "item of type " + std::to_string(item.record.Type);
    return Subject::oneOf((item.place.line ? "" : "item " + std::to_string(index + 1) + ", ") + type +
                          " at " + std::to_string(item.record.Parm[PARM_X1]) + "," +
                          std::to_string(item.record.Parm[PARM_Y1]));
}

int Check(const fs::path& folder, const std::string& registry, Diagnostics& diagnostics, Diagnostics& remarks)
{
    Compiled read;
    const bool compiled = IsCompiled(folder);
    if (compiled) {
        read = ReadCompiled(folder, diagnostics);
        read.project.profile.checkLines(diagnostics);
    } else {
        read.project = ReadProject(folder, diagnostics);
        ScreenSet screens = ReadScreens(folder, read.project, diagnostics);
        read.patterns = std::move(screens.patterns);
        read.complete = screens.complete;
    }
    if (!registry.empty())
        read.project.registry = QuotedTexts(registry, {registry, 0}, diagnostics);
    CheckTables(read.project, diagnostics);
    CheckProfile(read.project, diagnostics);
    CheckFonts(read.project, {folder.string(), 0}, diagnostics);
    CheckPictures(read.project, folder / (compiled ? "Bitmap" : "bitmaps"), diagnostics);
    for (const Pattern& pattern : read.patterns) {
        CheckWindow(pattern, read.project, diagnostics);
        CheckItems(pattern, read.project, diagnostics);
        CheckControls(pattern, read.project, diagnostics);
        CheckLayout(pattern, read.project, diagnostics);
    }
    CheckEditions(read.patterns, read.project, remarks);
    if (read.complete) {
        CheckScreens(read.patterns, read.project, {folder.string(), 0}, diagnostics);
        CheckWaysBack(read.patterns, read.project, diagnostics);
    }
    return static_cast<int>(read.patterns.size());
}

} // namespace ptn
