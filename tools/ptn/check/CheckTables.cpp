#include "base/Constants.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"

#include <algorithm>

namespace ptn
{

namespace
{

constexpr int CLOCK_CELLS = 7;

bool BeginsWith(const std::string& name, const std::string& begin)
{
    return name.compare(0, begin.size(), begin) == 0;
}

// Whether the name tells that the framework's cells are meant.
bool IsFrameworks(const CodeTable::Row& row)
{
    if (row.name == "CLOCK")
        return row.first == DTNO_SYSCALN && row.count == CLOCK_CELLS;
    if (row.name == "ERROR")
        return row.first == DTNO_SYSEROR && row.count == 1;
    return row.first > DTNO_SYSCALN && row.end() <= DTNO_SYSTEM &&
           (BeginsWith(row.name, "SPARE") || BeginsWith(row.name, "SYSTEM") || BeginsWith(row.name, "MENTE"));
}

// The framework writes into its cells whatever a project calls them.
void CheckReserved(const CodeTable& codes, Diagnostics& diagnostics)
{
    for (const CodeTable::Row& row : codes.rows()) {
        if (row.first >= DTNO_SYSTEM || IsFrameworks(row))
            continue;
        const std::string cells = row.count == 1
                                      ? fmt::format("has cell {}", row.first)
                                      : fmt::format("has the cells {} to {}", row.first, row.end() - 1);
        diagnostics.error(
            row.place, "code " + Quoted(row.name),
            " {}. The framework keeps those below {}: 1 to 7 for the date and time, which are to be "
            "called CLOCK, 11 for the error line, ERROR, and others as SYSTEM, MENTE or SPARE. Begin "
            "this one at {} or later.",
            cells, DTNO_SYSTEM, DTNO_SYSTEM);
    }
}

void CheckMessages(const MessageTable& messages, Diagnostics& diagnostics)
{
    for (const auto& [number, row] : messages.rows())
        for (const std::string& text : row.texts)
            if (const auto character = NotInFonts(text))
                diagnostics.error(row.place, "message " + Quoted(messages.names().nameOf(number)),
                                  " has '{}', which the fonts of a panel lack. {}", *character,
                                  Remedy({*character}));
}

void CheckLimits(const LimitTable& limits, Diagnostics& diagnostics)
{
    for (const auto& [number, row] : limits.rows())
        if (row.limits.minimum > row.limits.maximum)
            diagnostics.error(
                row.place,
                fmt::format("limit {} has a 'minimum' above its 'maximum', so every entry is refused. "
                            "Exchange them.",
                            number));
}

} // namespace

void CheckTables(const ProjectSource& project, Diagnostics& diagnostics)
{
    CheckReserved(project.codes, diagnostics);
    CheckMessages(project.messages, diagnostics);
    CheckLimits(project.limits, diagnostics);
}

} // namespace ptn
