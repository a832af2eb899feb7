#include "tools/ptn/starter/NewProject.h"

#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/Identifier.h"

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

void Replace(std::string& text, const std::string& mark, const std::string& value)
{
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + value.size()))
        text.replace(at, mark.size(), value);
}

bool IsName(const std::string& name)
{
    static const char* const LETTERS = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    return !name.empty() && name.find_first_of(LETTERS) == 0 &&
           name.find_first_not_of(LETTERS + std::string("0123456789_-")) == std::string::npos;
}

void WriteFilled(const EmbeddedFile& file, const fs::path& place, const std::string& name)
{
    std::string text(file.bytes);
    Replace(text, "@NAME@", name);
    Replace(text, "@NAMESPACE@", Identifier(name));
    Replace(text, "@VERSION@", TESSARY_VERSION);
    fs::create_directories((place / file.name).parent_path());
    WriteBytes(place / file.name, text);
}

} // namespace

bool NewProject(const fs::path& folder, bool program, Diagnostics& diagnostics)
{
    const fs::path path = fs::absolute(folder).lexically_normal();
    const fs::path place = path.has_filename() ? path : path.parent_path();
    const std::string name = place.filename().string();
    if (!IsName(name) || name == "screens") {
        diagnostics.error({folder.string(), 0},
                          "a program can not be called so. Begin with a letter, and use "
                          "letters, digits, '_' and '-' only.");
        return false;
    }
    std::error_code missing;
    if (fs::exists(place, missing) && !fs::is_empty(place, missing)) {
        diagnostics.error({folder.string(), 0}, "this folder is not empty. Name a new one.");
        return false;
    }
    for (const auto& files : {StarterFiles(), program ? ProgramFiles() : PlainFiles()})
        for (const EmbeddedFile& file : files)
            WriteFilled(file, place, name);
    return true;
}

} // namespace ptn
