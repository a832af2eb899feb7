#include "base/EucText.h"

#include <cstring>
#include <iconv.h>

namespace tessary
{

std::size_t BoundedLength(const char* text, std::size_t size)
{
    return text ? strnlen(text, size) : 0;
}

bool CopyText(char* target, std::size_t size, const char* text)
{
    const std::size_t length = BoundedLength(text, size);
    const std::size_t kept = length < size ? length : size - 1;
    if (kept)
        std::memmove(target, text, kept);
    target[kept] = '\0';
    return kept == length;
}

bool AppendText(char* target, std::size_t size, const char* text)
{
    const std::size_t used = strnlen(target, size - 1);
    return CopyText(target + used, size - used, text);
}

std::size_t EucCharacter(const char* text)
{
    if (!*text)
        return 0;
    return IsEucHalf(static_cast<unsigned char>(text[0])) && IsEucHalf(static_cast<unsigned char>(text[1]))
               ? 2
               : 1;
}

std::size_t EucCut(const char* text, std::size_t limit)
{
    std::size_t kept = 0;
    while (text[kept]) {
        const std::size_t next = kept + EucCharacter(text + kept);
        if (next > limit)
            break;
        kept = next;
    }
    return kept;
}

namespace
{

std::string Convert(const char* from, const char* to, const std::string& text, bool* ok)
{
    if (ok)
        *ok = true;
    const iconv_t converter = iconv_open(to, from);
    if (converter == reinterpret_cast<iconv_t>(-1)) {
        if (ok)
            *ok = false;
        return text;
    }

    std::string result;
    char* in = const_cast<char*>(text.data());
    std::size_t inLeft = text.size();
    while (inLeft) {
        char buffer[256];
        char* out = buffer;
        std::size_t outLeft = sizeof buffer;
        const bool stopped = iconv(converter, &in, &inLeft, &out, &outLeft) == static_cast<std::size_t>(-1);
        result.append(buffer, out);
        const bool outputFull = outLeft < 8 && inLeft;
        if (stopped && !outputFull) {
            // Not convertible: one mark for the whole character, whose UTF-8 followers are skipped with it.
            result += '?';
            if (ok)
                *ok = false;
            do {
                ++in;
                --inLeft;
            } while (inLeft && std::strcmp(from, "UTF-8") == 0 && (*in & 0xC0) == 0x80);
        }
    }
    iconv_close(converter);
    return result;
}

} // namespace

std::string EucToUtf8(const std::string& text)
{
    return Convert("EUC-JP", "UTF-8", text, nullptr);
}

std::string Utf8ToEuc(const std::string& text, bool* ok)
{
    return Convert("UTF-8", "EUC-JP", text, ok);
}

} // namespace tessary
