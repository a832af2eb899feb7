// The first text of a log line tells which module speaks. Lines about files carry "FILECNTL"
// (config/FileReport), start and stop carry none.
#pragma once

namespace tessary
{

constexpr char CATEGORY_SYSTEM[] = "SYSTEM";     ///< requests to the whole system, drawing resources
constexpr char CATEGORY_WINDOW[] = "PTRNDISP";   ///< windows and the display state of items
constexpr char CATEGORY_DRAW[] = "DRAWCNTL";     ///< drawing
constexpr char CATEGORY_CELLS[] = "COMNMEM";     ///< common data
constexpr char CATEGORY_MESSAGES[] = "MESGDATA"; ///< message table
constexpr char CATEGORY_LIMITS[] = "LIMTDATA";   ///< limit table
constexpr char CATEGORY_LINKS[] = "LINKS";       ///< connections to the plant

} // namespace tessary
