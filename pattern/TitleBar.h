// What the title bar says and what it is asked.
#pragma once

namespace tessary
{

/// What CPtrnData::TestTitle is asked about.
enum TitleQuestion {
    TITLE_ANY = 0,   ///< the title bar as a whole
    TITLE_LEFT = 1,  ///< the left button
    TITLE_RIGHT = 2, ///< the right button
};

/// What CPtrnData::TestTitle answers.
enum TitleHit {
    TITLE_NOTHING = 0,
    TITLE_LOGO = 1,     ///< for TITLE_ANY: the title bar
    TITLE_HARDCOPY = 2, ///< the hard-copy button
    TITLE_DRAG = 3,     ///< where the window can be dragged
};

/// Half-width characters of a clock of a format, HEDR_CLOCK; 0 for a format that shows none.
int ClockLength(int format);

} // namespace tessary

/// Weekday names, indexed by the clock cell's weekday, 0 = Sunday.
extern const char* const Week1[7]; ///< English
extern const char* const Week2[7]; ///< Japanese
