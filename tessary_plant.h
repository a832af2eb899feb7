// The links of a project: cells that live in the plant. The program calls LinksInit from UserInit, LinksTimr
// from UserTimr and LinksExit from UserExit; everything else stands in the section "links" of the sources.
// Link with libtessary_plant.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace tessary
{

/// Reads the links and begins to connect. To be called when the cells are there: from UserInit or later. What
/// was begun before is ended first.
/// @param file  the compiled links; null for "PtrnLink" of the project directory. "@DIR@" in them is the
/// folder
///              above the one that the file lies in
/// @return 1, also when there is no such file, since a project may have no links; 0 when it can not be used:
///         the log says why
int LinksInit(const char* file);

/// Moves values between the cells and the links. To be called once in every tick; it never waits.
void LinksTimr();

/// Ends all connections, within a second.
void LinksExit();

/// As the status cell shows it.
enum class LinkState { Connecting = 0, Connected = 1, Lost = 2 };

/// One connection.
struct LinkStatus {
    std::string name;                        ///< UTF-8
    LinkState state = LinkState::Connecting; ///< how it is
    std::string problem;       ///< what is wrong, in EUC-JP and the language of the panel; or empty
    std::uint64_t updates = 0; ///< values that have come in
    std::uint64_t written = 0; ///< values that the plant has taken
    std::uint64_t failed = 0;  ///< values that could not be written
};

/// All connections, in the order of the file. On the thread of the tick.
std::vector<LinkStatus> LinksStatus();

} // namespace tessary
