#include "base/EucText.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/system/ServerFonts.h"

#include <optional>

namespace ptn
{

namespace
{

// The font that every X server has with its usual fonts, in the sizes that it is made in.
bool IsUsual(const std::string& name)
{
    const std::string begin = "-*-fixed-medium-r-normal--";
    const std::size_t end = name.find('-', begin.size());
    if (name.compare(0, begin.size(), begin) != 0 || end == std::string::npos ||
        name.find_first_not_of("-*", end) != std::string::npos)
        return false;
    const std::string size = name.substr(begin.size(), end - begin.size());
    return size == "14" || size == "16" || size == "24";
}

} // namespace

void CheckFonts(const ProjectSource& project, const Place& whole, Diagnostics& diagnostics)
{
    const Resources& resources = project.resources;
    std::optional<ServerFonts> server; // asked only when there is something to ask
    for (const auto& [number, name] : resources.fonts().names())
        for (const std::string& font : resources.fontNames(number)) {
            if (font.empty() || IsUsual(font))
                continue;
            if (!server)
                server.emplace();
            if (server->mayHave(font))
                continue;
            const Place& place = resources.fontPlace(number);
            diagnostics.warning(
                place.file.empty() ? whole : place,
                fmt::format("font {}: the X server has none that is called '{}'. Correct its name; "
                            "'xlsfonts' lists those that there are.",
                            Quoted(name), EucToUtf8(font)));
        }
}

} // namespace ptn
