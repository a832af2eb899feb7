// A tick redraws only what has changed. For items that paint over all they have painted before, whatever
// their cells do, the picture is at any time the one that a new window would show.
//
// Which items and changes these are is written down in RandomItems.cpp, next to each type; what the others
// leave of their older pictures, and why, in DisplayHistoryTest.cpp.
#include "tests/pattern/LoadedPattern.h"
#include "tests/pattern/RandomItems.h"
#include "tests/support/Canvas.h"

#include <map>

using namespace tessary;

namespace
{

constexpr int COLUMNS = 5;
constexpr int ROWS = 4;
constexpr int BOX_WIDTH = 120;
constexpr int BOX_HEIGHT = 80;
constexpr int CELL_COUNT = 25; ///< the numbers of the codes "A" and "B"

class PlainItems : public LoadedPattern
{
  protected:
    PlainItems()
        : canvas(COLUMNS * BOX_WIDTH, ROWS * BOX_HEIGHT), fresh(COLUMNS * BOX_WIDTH, ROWS * BOX_HEIGHT)
    {
        useRandomArtwork(project, 1);
    }

    /// Every type that plain rules are known for at least once, none on top of another; some share a cell,
    /// some are bound to nothing.
    Pattern randomPattern(Random& random)
    {
        Pattern pattern("p");
        for (int box = 0; box < COLUMNS * ROWS; ++box) {
            const int type = box < PTRN_SPIN ? box + 1 : random.between(1, PTRN_SPIN);
            const CellRules changes =
                addPlainItem(pattern, type, random, box % COLUMNS * BOX_WIDTH, box / COLUMNS * BOX_HEIGHT);
            pattern.parm(PARM_PASS, random.oneIn(9) ? 2 : random.below(2));
            if (random.oneIn(12)) {
                if (random.oneIn(2))
                    pattern.code("unknown");
                continue;
            }
            const int cell = random.oneIn(5) ? random.between(1, CELL_COUNT) : box + 1;
            pattern.code(cell <= 20 ? "A" : "B", cell <= 20 ? cell - 1 : cell - 21);
            rules[cell].restrict(changes);
        }
        return pattern;
    }

    void fill(int cell, Random& random)
    {
        changeState(cell, random);
        set(cell, randomNumber(random, rules[cell]));
        setText(cell, randomText(random, 20).c_str());
    }

    void changeState(int cell, Random& random)
    {
        constexpr int meaningless = 0x07FC | STATE_NEVER;
        int word = static_cast<int>(random.bits()) & (STATE_COLOR | STATE_FLICKER);
        if (random.oneIn(4))
            word |= static_cast<int>(random.bits()) & meaningless;
        if (rules[cell].disable && random.oneIn(3))
            word |= STATE_DISABLE;
        if (rules[cell].hide && random.oneIn(3))
            word |= STATE_HIDDEN;
        setState(cell, word);
    }

    void change(Random& random)
    {
        const int cell = random.between(1, CELL_COUNT);
        switch (random.below(4)) {
        case 0:
        case 1:
            changeState(cell, random);
            break;
        case 2:
            if (rules[cell].value)
                set(cell, randomNumber(random, rules[cell]));
            break;
        default:
            if (rules[cell].text)
                setText(cell, randomText(random, 20).c_str());
        }
    }

    void paint(Canvas& target, CPtrnData& pattern, int ground)
    {
        target->ClearScreen(ground);
        pattern.DispPtrnData(target.draw());
    }

    Canvas canvas;
    Canvas fresh;
    std::map<int, CellRules> rules;
};

} // namespace

TEST_F(PlainItems, look_after_any_updates_as_if_they_had_just_been_displayed)
{
    for (const unsigned seed : seeds(12)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        rules.clear();
        load(randomPattern(random));
        for (int cell = 1; cell <= CELL_COUNT; ++cell)
            fill(cell, random);
        const int ground = random.below(CONT_COLR);
        paint(canvas, data(), ground);

        for (int round = 0; round < 10; ++round) {
            for (int tick = random.between(1, 10); tick > 0; --tick) {
                for (int changes = random.below(16); changes > 0; --changes)
                    change(random);
                data().UpdtPtrnData(canvas.draw());
                if (random.oneIn(20)) // the window was exposed with a new back buffer
                    paint(canvas, data(), ground);
            }
            CPtrnData opened("p");
            paint(fresh, opened, ground);
            ASSERT_TRUE(same(canvas.picture(), fresh.picture())) << "round " << round;
        }
    }
}
