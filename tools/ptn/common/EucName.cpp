#include "tools/ptn/common/EucName.h"

#include "base/EucText.h"
#include "tools/ptn/common/Names.h"

#include <cstdio>
#include <vector>

namespace ptn
{

namespace
{

// Bytes of the UTF-8 character that begins at `at`; broken sequences count byte by byte.
std::size_t CharacterLength(const std::string& text, std::size_t at)
{
    const unsigned char first = static_cast<unsigned char>(text[at]);
    const std::size_t length = first >= 0xF0 ? 4 : first >= 0xE0 ? 3 : first >= 0xC0 ? 2 : 1;
    for (std::size_t i = 1; i < length; ++i)
        if (at + i >= text.size() || (static_cast<unsigned char>(text[at + i]) & 0xC0) != 0x80)
            return 1;
    return length;
}

// The code point, or -1 for a byte that is not UTF-8.
long CodePoint(const std::string& character)
{
    const unsigned char first = static_cast<unsigned char>(character[0]);
    if (character.size() == 1)
        return first < 0x80 ? first : -1;
    long code = first & (0xFF >> (character.size() + 1));
    for (std::size_t i = 1; i < character.size(); ++i)
        code = code << 6 | (static_cast<unsigned char>(character[i]) & 0x3F);
    return code;
}

// How a message shows a character that can not be used.
std::string Shown(const std::string& character)
{
    const long code = CodePoint(character);
    char number[32];
    if (code < 0) {
        std::snprintf(number, sizeof number, "character for the byte %02X",
                      static_cast<unsigned char>(character[0]));
        return number;
    }
    std::snprintf(number, sizeof number, "U+%04lX", code);
    const bool visible = code > ' ' && (code < 0x7F || code > 0xA0);
    return visible ? Quoted(character) + " (" + number + ")" : number;
}

// Whether the text survives the way to EUC-JP and back; a yen sign, for one, would return as a backslash.
bool Survives(const std::string& utf8)
{
    bool ok = false;
    const std::string euc = Utf8ToEuc(utf8, &ok);
    return ok && EucToUtf8(euc) == utf8;
}

bool IsControl(const std::string& character)
{
    const long code = CodePoint(character);
    return (code >= 0 && code < ' ') || (code >= 0x7F && code < 0xA0);
}

// The characters that can not stand in a text, as messages show them.
std::vector<std::string> Refused(const std::string& utf8)
{
    const bool allSurvive = Survives(utf8);
    std::vector<std::string> refused;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::string character = utf8.substr(at, CharacterLength(utf8, at));
        at += character.size();
        if (IsControl(character) || (!allSurvive && !Survives(character)))
            refused.push_back(Shown(character));
    }
    return refused;
}

} // namespace

std::optional<std::string> ToEuc(const std::string& utf8, std::size_t limit, const Subject& what,
                                 const Place& place, Diagnostics& diagnostics)
{
    const std::string euc = Utf8ToEuc(utf8);
    const std::vector<std::string> refused = Refused(utf8);
    if (!refused.empty()) {
        std::string list;
        for (const std::string& character : refused)
            list += (list.empty() ? "" : ", ") + character;
        diagnostics.error(place, what, ": EUC-JP has no {}. Use another character.", list);
        return std::nullopt;
    }
    if (euc.size() > limit) {
        diagnostics.error(place, what, " has {} bytes in EUC-JP. Shorten it to {}.", euc.size(), limit);
        return std::nullopt;
    }
    return euc;
}

std::optional<std::string> ToEucFileName(const std::string& utf8, std::size_t limit, const Subject& what,
                                         const Place& place, Diagnostics& diagnostics)
{
    if (utf8.empty() || utf8[0] == '.' || utf8.find('/') != std::string::npos) {
        diagnostics.error(place, what,
                          " '{}' can not be a file name. Write a name without '/' and without '.' in front.",
                          utf8);
        return std::nullopt;
    }
    return ToEuc(utf8, limit, what, place, diagnostics);
}

} // namespace ptn
