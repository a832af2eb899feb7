// How a panel is brought to the size of its display, profile key "SCALE" of section "TESSARY".
#pragma once

#include <optional>
#include <string>
#include <utility>

namespace tessary
{

enum class Scaling {
    Natural, ///< a pixel of the panel is one of the display
    Steps,   ///< enlarged by the largest whole number that fits: each pixel becomes a square
    Fit,     ///< enlarged or reduced to the largest size of the same proportions
};

/// The words of the key; without it, and for any other word, the size is the natural one.
constexpr std::pair<const char*, Scaling> SCALING_WORDS[] = {{"steps", Scaling::Steps},
                                                             {"fit", Scaling::Fit}};

/// What a value of the key means; nothing for a word that it does not know.
inline std::optional<Scaling> ScalingOf(const std::string& word)
{
    for (const auto& [known, scaling] : SCALING_WORDS)
        if (word == known)
            return scaling;
    return std::nullopt;
}

} // namespace tessary
