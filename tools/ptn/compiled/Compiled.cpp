#include "tools/ptn/compiled/Compiled.h"

#include "base/EucText.h"
#include "config/ProfileText.h"
#include "pattern/ItemTable.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/source/Sections.h"

#include <algorithm>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

void Collect(const SchemaTable<ParmSchema>& parms, const std::int32_t* values, UsedNumbers& used)
{
    for (const ParmSchema& parm : parms)
        for (int i = parm.index; i < parm.index + parm.count; ++i) {
            if (parm.kind == ParmKind::Color || parm.kind == ParmKind::OptionalColor)
                used.colors.insert(values[i]);
            if (parm.kind == ParmKind::Mark)
                used.marks.insert(values[i]);
        }
}

UsedNumbers NumbersIn(const std::vector<Pattern>& patterns)
{
    UsedNumbers used;
    for (const Pattern& pattern : patterns) {
        Collect(HeaderParms(), pattern.header.Parm1, used);
        for (const PatternItem& item : pattern.items) {
            Collect(CommonParms(), item.record.Parm, used);
            if (const ItemClass* schema = FindItemClass(item.record.Type))
                Collect(schema->parms, item.record.Parm, used);
        }
    }
    return used;
}

std::vector<fs::path> FilesOf(const fs::path& folder, const std::string& extension)
{
    std::vector<fs::path> files;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing))
        if (entry.is_regular_file(missing) && entry.path().filename().string()[0] != '.' &&
            (extension.empty() || entry.path().extension() == extension))
            files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

// The profile beside the folder that names it as its project, or the only one there is.
fs::path FindProfile(const fs::path& folder)
{
    const std::vector<fs::path> profiles = FilesOf(folder.parent_path(), ".ini");
    for (const fs::path& profile : profiles) {
        std::error_code missing;
        const auto keys = tessary::ProfileValues(ReadBytes(profile).value_or(""), "TESSARY");
        const auto project = keys.find("PROJECT");
        if (project != keys.end() && fs::equivalent(folder.parent_path() / project->second, folder, missing))
            return profile;
    }
    return profiles.size() == 1 ? profiles[0] : fs::path();
}

void LoadProfile(const fs::path& folder, Compiled& compiled)
{
    compiled.profile = FindProfile(folder);
    if (compiled.profile.empty())
        return;
    compiled.project.program = compiled.profile.stem().string();
    const std::map<int, std::string> fonts = compiled.project.profile.load(
        ReadBytes(compiled.profile).value_or(""), folder.parent_path().string(), folder.filename().string(),
        compiled.profile.lexically_proximate(fs::current_path()).string());
    const auto name = [&](int number) {
        const auto font = fonts.find(number);
        return font == fonts.end() ? std::string() : font->second;
    };
    for (int font = 0; font < CONT_FONT; ++font) {
        const std::array<std::string, 3> names = {name(font), name(CONT_FONT + font),
                                                  name(2 * CONT_FONT + font)};
        if (compiled.project.resources.loadFont(font, names))
            continue;
        for (std::size_t language = 0; language < names.size(); ++language)
            if (!names.at(language).empty())
                compiled.project.profile.keepFont(CONT_FONT * static_cast<int>(language) + font,
                                                  names.at(language));
    }
}

} // namespace

bool IsCompiled(const fs::path& folder)
{
    std::error_code missing;
    if (fs::is_regular_file(folder / "PtrnCode", missing) ||
        fs::is_regular_file(folder / "PtrnColr", missing))
        return true;
    return YamlFiles(folder).empty() && !FilesOf(folder, ".ptn").empty();
}

Compiled ReadCompiled(const fs::path& given, Diagnostics& diagnostics)
{
    const fs::path path = fs::absolute(given).lexically_normal();
    const fs::path folder = path.has_filename() ? path : path.parent_path();
    Compiled compiled;
    ProjectSource& project = compiled.project;
    LoadProfile(folder, compiled); // first, since its edition tells how to read the others

    for (const fs::path& file : FilesOf(folder, ".ptn"))
        if (auto pattern =
                ParsePattern(file.stem().string(), ReadBytes(file).value_or(""),
                             {(given / EucToUtf8(file.filename().string())).string(), 0}, diagnostics))
            compiled.patterns.push_back(std::move(*pattern));
        else
            compiled.complete = false;
    const UsedNumbers used = NumbersIn(compiled.patterns);
    for (const auto& section : Sections())
        if (const char* name = section->file())
            section->load(project,
                          {ReadBytes(folder / name), used, {(given / name).string(), 0}, diagnostics});
    for (const fs::path& file : FilesOf(folder / "Bitmap", ""))
        project.bitmaps[file.filename().string()] = ReadBytes(file).value_or("");
    return compiled;
}

} // namespace ptn
