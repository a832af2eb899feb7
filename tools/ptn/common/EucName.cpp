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

// The characters that can not stand in a text.
std::vector<std::string> Refused(const std::string& utf8)
{
    const bool allSurvive = Survives(utf8);
    std::vector<std::string> refused;
    for (std::size_t at = 0; at < utf8.size();) {
        const std::string character = utf8.substr(at, CharacterLength(utf8, at));
        at += character.size();
        if (IsControl(character) || (!allSurvive && !Survives(character)))
            refused.push_back(character);
    }
    return refused;
}

// What keyboards and editors write for a character that EUC-JP has under another number.
struct Substitute {
    long code;
    const char* utf8;
};
const Substitute SUBSTITUTES[] = {
    {0xA0, "\x20"},           // no-break space
    {0xA5, "\xEF\xBF\xA5"},   // yen sign: full width
    {0xB5, "\xCE\xBC"},       // micro sign: mu
    {0xB7, "\xE3\x83\xBB"},   // middle dots: that of katakana
    {0x2022, "\xE3\x83\xBB"}, // bullet
    {0x2011, "\xE2\x80\x90"}, // hyphens and dashes
    {0x2013, "-"},
    {0x2014, "\xE2\x80\x95"},
    {0x203E, "\xEF\xBF\xA3"}, // overline
    {0x2225, "\xE2\x80\x96"}, // parallels
    {0x223C, "\xE3\x80\x9C"}, // tildes: wave dash
    {0xFF5E, "\xE3\x80\x9C"},
    {0xFF0D, "\xE2\x88\x92"}, // full-width hyphen: minus sign
    {0xFFE0, "\xC2\xA2"},     // full-width cent, pound and not signs
    {0xFFE1, "\xC2\xA3"},
    {0xFFE2, "\xC2\xAC"},
};

const char* SubstituteFor(const std::string& character)
{
    for (const Substitute& one : SUBSTITUTES)
        if (one.code == CodePoint(character))
            return one.utf8;
    return nullptr;
}

std::string List(const std::vector<std::string>& characters)
{
    std::string list;
    for (const std::string& character : characters)
        list += (list.empty() ? "" : ", ") + Shown(character);
    return list;
}

} // namespace

std::string Remedy(const std::vector<std::string>& characters)
{
    std::vector<std::string> others;
    for (const std::string& character : characters)
        if (const char* other = SubstituteFor(character))
            others.emplace_back(other);
    if (others.empty() || others.size() < characters.size())
        return "Use another character.";
    return "Use " + List(others) + ", which looks alike.";
}

std::optional<std::string> NotInFonts(const std::string& euc)
{
    constexpr char threeBytes = '\x8F';
    const std::size_t at = euc.find(threeBytes);
    return at == std::string::npos ? std::nullopt : std::optional(EucToUtf8(euc.substr(at, 3)));
}

std::optional<std::string> ToEuc(const std::string& utf8, std::size_t limit, const Subject& what,
                                 const Place& place, Diagnostics& diagnostics)
{
    const std::string euc = Utf8ToEuc(utf8);
    const std::vector<std::string> refused = Refused(utf8);
    if (!refused.empty()) {
        diagnostics.error(place, what, ": EUC-JP has no {}. {}", List(refused), Remedy(refused));
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
