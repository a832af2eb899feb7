#include "tools/ptn/system/ServerFonts.h"

#include "tools/ptn/system/PrivateServer.h"

#include <cstdlib>
#include <X11/Xlib.h>

namespace ptn
{

namespace
{

/// A server with fewer fonts has only those that are built in: it can not tell what a panel has.
constexpr int FEWEST_FONTS = 100;

int FontsLike(Display* display, const std::string& pattern, int most)
{
    int count = 0;
    char** names = XListFonts(display, pattern.c_str(), most, &count);
    if (names)
        XFreeFontNames(names);
    return count;
}

} // namespace

struct ServerFonts::Server {
    explicit Server(const char* name) : display(XOpenDisplay(name)) {}
    ~Server()
    {
        if (display)
            XCloseDisplay(display);
    }
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    Display* const display;
};

ServerFonts::ServerFonts()
{
    const char* named = std::getenv("DISPLAY");
    auto server = std::make_unique<Server>(named && *named ? named : PrivateDisplay().c_str());
    if (server->display && FontsLike(server->display, "*", FEWEST_FONTS) >= FEWEST_FONTS)
        server_ = std::move(server);
}

ServerFonts::~ServerFonts() = default;

bool ServerFonts::mayHave(const std::string& pattern) const
{
    return !server_ || FontsLike(server_->display, pattern, 1) > 0;
}

} // namespace ptn
