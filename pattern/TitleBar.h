// Texts of the title bar's clock.
#pragma once

/// Weekday names, indexed by the clock cell's weekday, 0 = Sunday.
extern const char* const Week1[7]; ///< English
extern const char* const Week2[7]; ///< Japanese
