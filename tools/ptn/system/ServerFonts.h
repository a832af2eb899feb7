// The fonts of an X server.
#pragma once

#include <memory>
#include <string>

namespace ptn
{

/// Those of $DISPLAY, else of a private server.
class ServerFonts
{
  public:
    ServerFonts();
    ~ServerFonts();
    ServerFonts(const ServerFonts&) = delete;
    ServerFonts& operator=(const ServerFonts&) = delete;

    /// Whether the server has a font that fits the pattern, such as "-*-fixed-*"; true too when it can not be
    /// told, because there is no server or because it has only the few fonts that are built in.
    bool mayHave(const std::string& pattern) const;

  private:
    struct Server;
    std::unique_ptr<Server> server_; ///< null when nothing can be told
};

} // namespace ptn
