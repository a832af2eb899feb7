#include "config/ProfileText.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/common/Names.h"

#include <algorithm>
#include <limits>

namespace ptn
{

namespace
{

/// A key that the framework reads.
struct KnownKey {
    const char* section;
    const char* name;
    bool numbered;     ///< a number follows the name
    std::size_t count; ///< of its fields
    bool whole;        ///< these are whole numbers, from 0 on; otherwise texts
    int maximum;
};

constexpr int ANY = std::numeric_limits<int>::max();

const KnownKey KEYS[] = {
    {"TESSARY", "PROJECT", false, 1, false, 0},    {"TESSARY", "EDITION", false, 1, true, ANY},
    {"TESSARY", "SCALE", false, 1, false, 0},      {"TESSARY", "DISPSIZE", false, 2, true, 32767},
    {"TESSARY", "WAITTIMER", false, 1, true, ANY}, {"TESSARY", "SHUTDOWN", false, 1, true, ANY},
    {"PTRN", "PTRNSTART", false, 1, false, 0},     {"PTRN", "PTRNSTOP", false, 1, false, 0},
    {"LOG", "LOGFILE", false, 1, false, 0},        {"LOG", "LOGTIMR", false, 1, true, ANY},
    {"LOG", "LOGSIZE", false, 1, true, ANY},       {"LOG", "LOGSAVE", false, 1, true, ANY},
    {"FONT", "LANGUAGE", false, 1, true, 2},       {"FONT", "FONTNAME", true, 1, false, 0},
    {"COLOR", "CURSOR_FG", false, 3, true, 65535}, {"COLOR", "CURSOR_BG", false, 3, true, 65535},
    {"COLOR", "XPM_COLR", true, 3, false, 0},
};

bool IsCalled(const KnownKey& known, const std::string& name)
{
    if (!known.numbered)
        return name == known.name;
    const std::string begin = known.name;
    return name.size() > begin.size() && name.compare(0, begin.size(), begin) == 0 &&
           name.find_first_not_of("0123456789", begin.size()) == std::string::npos;
}

const KnownKey* Find(const std::string& name)
{
    for (const KnownKey& known : KEYS)
        if (IsCalled(known, name))
            return &known;
    return nullptr;
}

bool IsSection(const std::string& name)
{
    return std::any_of(std::begin(KEYS), std::end(KEYS),
                       [&](const KnownKey& known) { return name == known.section; });
}

std::vector<std::string> Names(const char* KnownKey::*name)
{
    std::vector<std::string> names;
    for (const KnownKey& known : KEYS)
        names.emplace_back(known.*name);
    return names;
}

bool IsNumber(const std::string& field, int maximum)
{
    const std::optional<int> number = ParseInteger(field);
    return number && *number >= 0 && *number <= maximum;
}

void CheckValue(const ProfileSource::Key& key, const KnownKey& known, Diagnostics& diagnostics)
{
    const std::vector<std::string> fields = ProfileFields(key.value);
    const bool kind =
        !known.whole || std::all_of(fields.begin(), fields.end(),
                                    [&](const std::string& field) { return IsNumber(field, known.maximum); });
    if (kind && fields.size() == known.count)
        return;
    const std::string range = known.maximum == ANY ? "from 0 on" : fmt::format("from 0 to {}", known.maximum);
    diagnostics.error(key.place, "profile key " + Quoted(key.name), " can not be '{}'. Write {}{}{}.",
                      key.value,
                      known.count == 1 ? std::string("one ") : fmt::format("a list of {} ", known.count),
                      known.whole ? "whole number" : "text",
                      (known.count == 1 ? "" : "s") + (known.whole ? " " + range : std::string()));
}

// An application may have sections of its own, but none that is almost one of the framework's.
void CheckName(const ProfileSource::Key& key, Diagnostics& diagnostics)
{
    const Subject what = "profile key " + Quoted(key.name);
    if (const KnownKey* known = Find(key.name)) {
        diagnostics.warning(key.place,
                            what + fmt::format(" stands in section '{}', where nothing reads it. Put it "
                                               "into '{}'.",
                                               key.section, known->section));
        return;
    }
    const std::string meant = Suggestion(key.name, Names(&KnownKey::name));
    const std::string section = Suggestion(key.section, Names(&KnownKey::section));
    if (IsSection(key.section))
        diagnostics.warning(key.place,
                            what + fmt::format(" of section '{}' is none that is read.{} Correct it, or "
                                               "put it into a section of the application.",
                                               key.section, meant));
    else if (!meant.empty() || !section.empty())
        diagnostics.warning(key.place,
                            what + fmt::format(" of section '{}' is none that is read.{} Correct it.",
                                               key.section, meant.empty() ? section : meant));
}

// What is scaled has a size.
void CheckScale(const ProjectSource& project, Diagnostics& diagnostics)
{
    Place place;
    if (project.profile.scaled(&place) && !DisplaySize(project))
        diagnostics.error(place,
                          "the panel is scaled to its display, but the profile does not tell its own size. "
                          "Set 'DISPSIZE: [WIDTH, HEIGHT]' in its section 'TESSARY'.");
}

} // namespace

void CheckProfile(const ProjectSource& project, Diagnostics& diagnostics)
{
    for (const ProfileSource::Key& key : project.profile.keys()) {
        const KnownKey* known = Find(key.name);
        if (known && key.section == known->section)
            CheckValue(key, *known, diagnostics);
        else
            CheckName(key, diagnostics);
    }
    CheckScale(project, diagnostics);
}

std::optional<SIZE> DisplaySize(const ProjectSource& project)
{
    const std::vector<std::string> fields = ProfileFields(project.profile.value("TESSARY", "DISPSIZE"));
    if (fields.size() != 2)
        return std::nullopt;
    const SIZE size = {ParseInteger(fields[0]).value_or(0), ParseInteger(fields[1]).value_or(0)};
    return size.cx > 0 && size.cy > 0 ? std::optional(size) : std::nullopt;
}

} // namespace ptn
