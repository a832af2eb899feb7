#include "tools/ptn/emit/Dump.h"

#include "base/EucText.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/compiled/Build.h"
#include "tools/ptn/compiled/Compiled.h"
#include "tools/ptn/emit/ScreenText.h"
#include "tools/ptn/source/Sections.h"
#include "tools/ptn/system/TemporaryFolder.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

std::set<std::string> Names(const std::vector<Pattern>& patterns)
{
    std::set<std::string> names;
    for (const Pattern& pattern : patterns)
        names.insert(pattern.name);
    return names;
}

// Files by path, relative to the folder of sources.
FileMap SourceFiles(Compiled& compiled)
{
    ProjectSource& project = compiled.project;
    std::string styles;
    const Defaults defaults = CommonStyles(compiled.patterns, project.vocabulary(), styles);
    if (!styles.empty()) {
        Diagnostics ignored;
        const auto sections = ParseYaml("", styles, ignored);
        for (const Entry& section : Entries(*sections, "", ignored))
            project.styles.read(section.value, ignored);
    }
    FileMap files;
    for (const auto& section : Sections())
        section->emit(project, files);
    files["styles.yaml"] = styles;
    for (auto file = files.begin(); file != files.end();)
        file = file->second.empty() ? files.erase(file) : std::next(file);
    const std::set<std::string> names = Names(compiled.patterns);
    for (const Pattern& pattern : compiled.patterns)
        files["screens/" + EucToUtf8(pattern.name) + ".yaml"] = ScreenText(pattern, project, defaults, names);
    for (const auto& bitmap : project.bitmaps)
        files["bitmaps/" + EucToUtf8(bitmap.first)] = bitmap.second;
    return files;
}

// Whether two files of that name mean the same.
bool IsAlike(const std::string& name, const std::optional<std::string>& one,
             const std::optional<std::string>& other)
{
    for (const auto& section : Sections())
        if (one && other && section->file() && name == section->file())
            return section->same(*one, *other);
    return one == other;
}

// Builds the sources aside and compares. @return how many files are alike
int CompareBuild(const fs::path& project, const fs::path& sources, Diagnostics& diagnostics)
{
    const TemporaryFolder temporary("ptn-");
    const fs::path built = temporary.path() / project.filename();
    Diagnostics found;
    Build(sources, built, "", found);
    if (found.failed()) {
        diagnostics.warning({sources.string(), 0}, "these sources need work before they build:");
        diagnostics.add(found);
        return 0;
    }
    int alike = 0;
    for (const auto& entry : fs::recursive_directory_iterator(project)) {
        const fs::path name = entry.path().lexically_relative(project);
        if (!entry.is_regular_file() || name.string()[0] == '.')
            continue;
        if (IsAlike(name.string(), ReadBytes(built / name), ReadBytes(entry.path())))
            ++alike;
        else
            diagnostics.warning({EucToUtf8(entry.path().string()), 0},
                                fs::exists(built / name)
                                    ? "the sources build this file differently. Compare the two."
                                    : "the sources do not build this file. Keep it if it is needed.");
    }
    return alike;
}

fs::path Folder(const fs::path& given)
{
    const fs::path path = fs::absolute(given).lexically_normal();
    return path.has_filename() ? path : path.parent_path();
}

} // namespace

std::optional<int> DumpProject(const fs::path& project, const fs::path& output, Diagnostics& diagnostics)
{
    if (!IsCompiled(project)) {
        diagnostics.error({project.string(), 0}, "this is no compiled project. Name one, or a *.ptn file.");
        return std::nullopt;
    }
    std::error_code missing;
    if (fs::exists(output, missing) && !fs::is_empty(output, missing)) {
        diagnostics.error({output.string(), 0}, "this folder is not empty. Name a new one for the sources.");
        return std::nullopt;
    }
    Compiled compiled = ReadCompiled(project, diagnostics);
    if (diagnostics.failed())
        return std::nullopt;
    for (const auto& file : SourceFiles(compiled)) {
        fs::create_directories((output / file.first).parent_path());
        WriteBytes(output / file.first, file.second);
    }
    return CompareBuild(Folder(project), output, diagnostics);
}

std::optional<std::string> DumpPattern(const fs::path& file, Diagnostics& diagnostics)
{
    const std::optional<std::string> bytes = ReadBytes(file);
    const Place place{EucToUtf8(file.string()), 0};
    if (!bytes) {
        diagnostics.error(place, "can not be read. Check that the file is there and readable.");
        return std::nullopt;
    }
    const auto pattern = ParsePattern(file.stem().string(), *bytes, place, diagnostics);
    if (!pattern)
        return std::nullopt;
    Diagnostics others; // of other files, which are not asked for
    const Compiled compiled = ReadCompiled(Folder(file).parent_path(), others);
    return ScreenText(*pattern, compiled.project, {}, Names(compiled.patterns));
}

} // namespace ptn
