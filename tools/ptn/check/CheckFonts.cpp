#include "base/EucText.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/system/PrivateServer.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <X11/Xlib.h>

namespace ptn
{

namespace
{

/// A server with fewer fonts has only those that are built in: it can not tell what a panel has.
constexpr int FEWEST_FONTS = 100;

struct CloseServer {
    void operator()(Display* server) const { XCloseDisplay(server); }
};
using Server = std::unique_ptr<Display, CloseServer>;

int FontsLike(Display* server, const std::string& name, int most)
{
    int count = 0;
    char** names = XListFonts(server, name.c_str(), most, &count);
    if (names)
        XFreeFontNames(names);
    return count;
}

// That of the user or a private one, with the fonts of an X server as it is installed; null without one.
Server OpenServer()
{
    const char* named = std::getenv("DISPLAY");
    Server server(XOpenDisplay(named && *named ? named : PrivateDisplay().c_str()));
    const bool whole = server && FontsLike(server.get(), "*", FEWEST_FONTS) >= FEWEST_FONTS;
    return whole ? std::move(server) : nullptr;
}

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
    Server server;
    bool asked = false;
    for (const auto& [number, name] : resources.fonts().names())
        for (const std::string& font : resources.fontNames(number)) {
            if (font.empty() || IsUsual(font))
                continue;
            if (!asked)
                server = OpenServer();
            asked = true;
            if (!server || FontsLike(server.get(), font, 1) > 0)
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
