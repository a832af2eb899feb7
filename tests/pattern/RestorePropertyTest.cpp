// Whatever has happened to the cells of a pattern, its window looks as one that has just been opened: with
// items of all types on top of each other, with and without backgrounds, hidden, disabled and blinking.
#include "tests/pattern/LoadedPattern.h"
#include "tests/pattern/RandomItems.h"
#include "tests/support/Canvas.h"
#include "tests/support/UseEdition.h"

using namespace tessary;

namespace
{

constexpr int WIDTH = 160;
constexpr int HEIGHT = 120;
constexpr int CLOCK_CELLS = 7; ///< the first of them

class AnyRestored : public LoadedPattern
{
  protected:
    AnyRestored() : canvas(WIDTH, HEIGHT) { useRandomArtwork(project, 3); }

    static Pattern randomPattern(Random& random, int count)
    {
        Pattern pattern("p");
        pattern.size(WIDTH, HEIGHT).header(HEDR_TITLE_HEIGHT, random.below(30));
        pattern.header(HEDR_BODY_SHADED, random.below(2)).header(HEDR_BAND_HEIGHT, random.below(20));
        pattern.header(HEDR_KIND, random.below(2)).header(HEDR_FRAME_WIDTH, random.below(4));
        pattern.header(HEDR_HARDCOPY, random.below(2)).header(HEDR_CLOCK, random.below(7));
        if (random.oneIn(4))
            pattern.bitmap("four.ppm");
        pattern.title(randomText(random, 12));
        addAnyItems(pattern, count, random, WIDTH, HEIGHT);
        return pattern;
    }

    static void change(Random& random)
    {
        // Cell 0 is that of the items without a code, which no tick updates; the clock only goes on as a
        // whole.
        const int no = random.between(CLOCK_CELLS + 1, RANDOM_CELLS);
        switch (random.below(3)) {
        case 0:
            setState(no, static_cast<int>(random.bits() & random.bits() & 0xFFFF & ~STATE_FROZEN));
            break;
        case 1:
            set(no, randomNumber(random, {}));
            break;
        default:
            setText(no, randomText(random, 40).c_str());
        }
    }

    static void display(CPtrnData& pattern, Canvas& on)
    {
        on.clear();
        pattern.DispTitle(on.draw());
        pattern.DispPtrnData(on.draw());
    }

    /// Displays any pattern, its cells in any state.
    void open(Random& random)
    {
        load(randomPattern(random, 30));
        for (int changes = 0; changes < 50; ++changes)
            change(random);
        display(data(), canvas);
    }

    void tick()
    {
        data().DispCalender(canvas.draw());
        data().FlikPtrnData(canvas.draw());
        data().UpdtPtrnData(canvas.draw());
    }

    /// A window of the same pattern that was opened at this moment and blinks in step.
    static Picture openedNow(int ticks)
    {
        Canvas other(WIDTH, HEIGHT);
        CPtrnData opened("p");
        for (int i = 0; i < ticks; ++i)
            opened.FlikPtrnData(other.draw());
        display(opened, other);
        return other.picture();
    }

    Canvas canvas;
};

} // namespace

TEST_F(AnyRestored, looks_after_every_tick_as_if_it_had_just_been_opened)
{
    const UseEdition edition;
    for (const unsigned seed : seeds(12)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        open(random);
        for (int ticks = 1; ticks <= 40; ++ticks) {
            for (int changes = random.below(6); changes > 0; --changes)
                change(random);
            set(CLOCK_CELLS, static_cast<float>(random.below(60)));
            tick();
            ASSERT_TRUE(same(canvas.picture(), openedNow(ticks))) << "tick " << ticks;
        }
    }
}

TEST_F(AnyRestored, area_is_drawn_anew_and_nothing_else)
{
    const UseEdition edition;
    for (const unsigned seed : seeds(12)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        open(random);
        const Picture whole = canvas.picture();
        for (int round = 0; round < 20; ++round) {
            const RECT area = SetRect(random.between(-20, WIDTH + 20), random.between(-20, HEIGHT + 20),
                                      random.between(-20, WIDTH + 20), random.between(-20, HEIGHT + 20));
            canvas.clear();
            data().RestoreArea(canvas.draw(), area);
            Picture expected = canvas.blank();
            for (int y = std::max(0, area.top); y < std::min(HEIGHT, area.bottom); ++y)
                for (int x = std::max(0, area.left); x < std::min(WIDTH, area.right); ++x)
                    expected.set(x, y, whole.at(x, y));
            ASSERT_TRUE(same(canvas.picture(), expected)) << "round " << round;
        }
    }
}
