// Items and cell contents for property tests: every parameter lies in the range that the schema of the items
// gives it.
#pragma once

#include "tests/pattern/Random.h"
#include "tests/support/PatternBuilder.h"

#include <limits>
#include <string>

/// Which changes of a cell are fully painted over by the items bound to it, so that nothing of their older
/// pictures can be seen afterwards. Colour selection and flicker bit may always change.
struct CellRules {
    bool hide = true;
    bool disable = true;
    bool value = true;
    bool text = true;
    float lowest = -std::numeric_limits<float>::infinity();
    float highest = std::numeric_limits<float>::infinity();

    /// Only what the items of both allow.
    void restrict(const CellRules& other);
    /// Numbers without measure (NaN, infinities) are allowed too.
    bool anyNumber() const;
};

/// Mixed EUC-JP text of up to `bytes` bytes.
std::string randomText(Random& random, int bytes);

/// Number within the rules.
float randomNumber(Random& random, const CellRules& rules);

/// Adds an item of any parameters whose corners lie up to 30 pixels outside a drawable of that size.
void addAnyItem(Pattern& pattern, int type, Random& random, int width, int height);

/// The numbers of the codes "A" (20 cells) and "B", which the items of addAnyItems show.
constexpr int RANDOM_CELLS = 25;

/// Adds items of any type, pass and cell: also without a code, and with one that is not known.
void addAnyItems(Pattern& pattern, int count, Random& random, int width, int height);

/// Adds an item that draws nothing outside the box of 120 x 80 pixels at (x, y).
/// @return the changes that leave nothing of an older picture
CellRules addPlainItem(Pattern& pattern, int type, Random& random, int x, int y);

/// Makes what random items draw with: colours, both fonts, marks of random bits, and the bitmap files that
/// they name.
void useRandomArtwork(Project& project, unsigned seed);
