#include "tools/ptn/common/Identifier.h"

#include <glib.h>
#include <memory>

namespace ptn
{

namespace
{

// Keywords, macros of the standard headers, and names that the header or the program needs for itself.
const std::set<std::string>& Reserved()
{
    static const std::set<std::string> WORDS = {
        "EOF",
        "FALSE",
        "NULL",
        "TRUE",
        "alignas",
        "alignof",
        "and",
        "and_eq",
        "asm",
        "assert",
        "auto",
        "bitand",
        "bitor",
        "bool",
        "break",
        "case",
        "catch",
        "char",
        "char16_t",
        "char32_t",
        "char8_t",
        "class",
        "co_await",
        "co_return",
        "co_yield",
        "compl",
        "concept",
        "const",
        "const_cast",
        "consteval",
        "constexpr",
        "constinit",
        "continue",
        "count",
        "decltype",
        "default",
        "delete",
        "do",
        "double",
        "dynamic_cast",
        "else",
        "enum",
        "errno",
        "explicit",
        "export",
        "extern",
        "false",
        "float",
        "for",
        "friend",
        "goto",
        "if",
        "inline",
        "int",
        "linux",
        "long",
        "main",
        "mutable",
        "namespace",
        "new",
        "noexcept",
        "not",
        "not_eq",
        "nullptr",
        "operator",
        "or",
        "or_eq",
        "posix",
        "private",
        "protected",
        "public",
        "register",
        "reinterpret_cast",
        "requires",
        "return",
        "screen",
        "short",
        "signed",
        "sizeof",
        "static",
        "static_assert",
        "static_cast",
        "std",
        "stderr",
        "stdin",
        "stdout",
        "struct",
        "switch",
        "template",
        "tessary",
        "this",
        "thread_local",
        "throw",
        "true",
        "try",
        "typedef",
        "typeid",
        "typename",
        "union",
        "unix",
        "unsigned",
        "using",
        "virtual",
        "void",
        "volatile",
        "wchar_t",
        "while",
        "xor",
        "xor_eq",
    };
    return WORDS;
}

// The marks of half-width kana continue a name but can not begin one.
bool CanNotBegin(gunichar character)
{
    return g_unichar_isdigit(character) || character == 0xFF9E || character == 0xFF9F;
}

std::string Appended(std::string text, gunichar character)
{
    char bytes[6];
    text.append(bytes, static_cast<std::size_t>(g_unichar_to_utf8(character, bytes)));
    return text;
}

} // namespace

std::string Identifier(const std::string& utf8)
{
    // Composed, as compilers want it.
    const std::unique_ptr<char, void (*)(void*)> composed(
        g_utf8_normalize(utf8.data(), static_cast<gssize>(utf8.size()), G_NORMALIZE_NFC), g_free);
    std::string name;
    bool gap = false;
    for (const char* at = composed ? composed.get() : ""; *at; at = g_utf8_next_char(at)) {
        const gunichar character = g_utf8_get_char(at);
        if (!g_unichar_isalpha(character) && !g_unichar_isdigit(character)) {
            gap = !name.empty();
            continue;
        }
        if (name.empty() && CanNotBegin(character))
            name = "n";
        name = Appended(name + (gap ? "_" : ""), character);
        gap = false;
    }
    if (name.empty())
        return "unnamed";
    return Reserved().count(name) ? name + "_" : name;
}

std::string Identifiers::take(const std::string& utf8)
{
    const std::string plain = Identifier(utf8);
    std::string name = plain;
    for (int number = 2; !taken_.insert(name).second; ++number)
        name = plain + (plain.back() == '_' ? "" : "_") + std::to_string(number);
    return name;
}

bool IsIdentifierOf(const std::string& identifier, const std::string& utf8)
{
    const std::string plain = Identifier(utf8);
    if (identifier.compare(0, plain.size(), plain) != 0)
        return false;
    const std::string rest = identifier.substr(plain.size());
    const std::string number = rest.substr(rest.size() > 1 && rest[0] == '_' ? 1 : 0);
    return number.find_first_not_of("0123456789") == std::string::npos;
}

} // namespace ptn
