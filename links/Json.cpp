#include "links/Json.h"

#include <cstddef>

namespace tessary
{

bool JsonDepthWithin(std::string_view text, int most)
{
    int depth = 0;
    bool quoted = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char letter = text[at];
        if (quoted) {
            if (letter == '\\')
                ++at;
            else if (letter == '"')
                quoted = false;
        } else if (letter == '"') {
            quoted = true;
        } else if (letter == '[' || letter == '{') {
            if (++depth > most)
                return false;
        } else if (letter == ']' || letter == '}') {
            --depth;
        }
    }
    return true;
}

} // namespace tessary
