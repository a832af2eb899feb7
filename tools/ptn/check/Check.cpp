#include "tools/ptn/check/Check.h"

#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemSchema.h"
#include "tools/ptn/source/Placement.h"
#include "tools/ptn/source/ScreenSource.h"

#include <algorithm>

namespace ptn
{

namespace fs = std::filesystem;

std::string ItemName(const PatternItem& item, std::size_t index)
{
    const ItemSchema* schema = FindItemSchema(item.record.Type);
    const std::string type = schema ? schema->name : "item of type " + std::to_string(item.record.Type);
    return (item.place.line ? "" : "item " + std::to_string(index + 1) + ", ") + type + " at " +
           std::to_string(item.record.Parm[PARM_X1]) + "," + std::to_string(item.record.Parm[PARM_Y1]);
}

RECT DrawnRect(const PatternItem& item, const ProjectSource& project)
{
    const std::int32_t* parm = item.record.Parm;
    const RECT rect = SetRect(parm[PARM_X1], parm[PARM_Y1], parm[PARM_X2], parm[PARM_Y2]);
    const int type = item.record.Type;
    PatternItem shown = item;
    if (type == PTRN_FCHR)
        shown.record.Parm[FIELD_WIDTH] = Placement::longestText(item);
    else if (type != PTRN_CHAR && type != PTRN_NUMR && type != PTRN_RDIO && type != PTRN_CHCK)
        return rect;
    const std::optional<SIZE> size = Placement::naturalSize(shown, project.resources);
    const auto end = [](int start, int length) {
        return static_cast<int>(std::clamp<long long>(0LL + start + length, -40000, 40000));
    };
    return SetRect(parm[PARM_X1], parm[PARM_Y1], end(parm[PARM_X1], size->cx), end(parm[PARM_Y1], size->cy));
}

int Check(const fs::path& folder, const std::string& registry, Diagnostics& diagnostics)
{
    Compiled read;
    if (IsCompiled(folder)) {
        read = ReadCompiled(folder, diagnostics);
    } else {
        read.project = ReadProject(folder, diagnostics);
        ScreenSet screens = ReadScreens(folder, read.project, diagnostics);
        read.patterns = std::move(screens.patterns);
        read.complete = screens.complete;
    }
    if (!registry.empty())
        read.project.registry = QuotedTexts(registry, {registry, 0}, diagnostics);
    for (const Pattern& pattern : read.patterns) {
        CheckItems(pattern, read.project, diagnostics);
        CheckLayout(pattern, read.project, diagnostics);
    }
    if (read.complete)
        CheckScreens(read.patterns, read.project, {folder.string(), 0}, diagnostics);
    return static_cast<int>(read.patterns.size());
}

} // namespace ptn
