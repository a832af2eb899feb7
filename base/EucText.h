// Bounded copies of C strings, EUC-JP character boundaries and conversion to and from UTF-8.
#pragma once

#include <cstddef>
#include <string>

namespace tessary
{

/// True for a byte that is half of a two-byte EUC-JP character (161..254).
constexpr bool IsEucHalf(unsigned char byte)
{
    return byte >= 161 && byte <= 254;
}

/// Length of a text that may fill its field without a terminator.
/// @param text  the field; null counts as empty
/// @param size  bytes of the field
std::size_t BoundedLength(const char* text, std::size_t size);

/// Copies at most `size` - 1 bytes of `text` into `target` and always terminates it.
/// @param target  receives the text; `size` bytes are owned by the caller, at least 1
/// @param text    the source; null counts as empty
/// @return true when the whole text fitted
bool CopyText(char* target, std::size_t size, const char* text);

/// Copies into an array of known size, always terminated.
template <std::size_t N> bool CopyText(char (&target)[N], const char* text)
{
    return CopyText(target, N, text);
}

/// Appends `text` to the terminated text in `target` without passing `size` bytes.
/// @return true when the whole text fitted
bool AppendText(char* target, std::size_t size, const char* text);

/// Bytes of the character that a text begins with: 2 for a two-byte character, else 1; 0 at its end.
std::size_t EucCharacter(const char* text);

/// Bytes that may be kept of an EUC-JP text so that at most `limit` remain and no two-byte
/// character is split. The text is walked from its start, so the answer is exact for mixed text.
std::size_t EucCut(const char* text, std::size_t limit);

/// Converts between character sets with iconv.
/// @return the converted text; bytes that can not be converted become "?"
std::string EucToUtf8(const std::string& text);

/// Converts UTF-8 to EUC-JP.
/// @param ok  when given, false after the call if a character has no EUC-JP form ("?" stands for it)
std::string Utf8ToEuc(const std::string& text, bool* ok = nullptr);

} // namespace tessary
