// A pattern's header without its items.
#pragma once

#include "config/Settings.h"
#include "pattern/PtrnData.h"
#include "pattern/PtrnFile.h"

namespace tessary
{

/// Which of three texts is shown in the current language.
template <typename Text> const Text& InLanguage(const Text& first, const Text& second, const Text& third)
{
    return Language == 0 ? first : Language == 1 ? second : third;
}

/// The header as held in memory, with the title in the current language. Every text is terminated, also
/// where a field of the record is full.
/// @param cut  when given, grows by one for each text that had to be cut
PTRNHEDR ConvertHedr(const HEDRFILE& record, int* cut = nullptr);

} // namespace tessary
