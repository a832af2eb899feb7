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

/// Reads the header of a pattern of the project. Of a file that ends within its header nothing but zeros is
/// taken.
/// @param name  pattern name; null counts as empty
/// @return 1, or 0 when it can not be read
int ReadHedr(const char* name, PTRNHEDR* out);

} // namespace tessary
