// Which of many items on top of each other is hit: the one that the rules choose among those that the point
// hits by the test of their type.
#include "draw/Resource.h"
#include "tests/pattern/LoadedPattern.h"
#include "tests/pattern/RandomItems.h"

using namespace tessary;

namespace
{

constexpr int WIDTH = 160;
constexpr int HEIGHT = 120;

class HitItems : public LoadedPattern
{
  protected:
    HitItems()
    {
        FontSize[0] = {8, 16};
        FontSize[1] = {12, 24};
    }
    ~HitItems() override
    {
        FontSize[0] = {0, 0};
        FontSize[1] = {0, 0};
    }

    static Pattern randomPattern(Random& random)
    {
        Pattern pattern("p");
        for (int i = 0; i < 40; ++i) {
            const int type = random.between(0, CONT_PTRN + 1);
            if (type == 0 || type > CONT_PTRN)
                pattern.item(type, 0, 0, WIDTH, HEIGHT); // of no type
            else
                addAnyItem(pattern, type, random, WIDTH, HEIGHT);
            pattern.parm(PARM_PASS, random.oneIn(9) ? random.between(-1, 3) : random.below(2));
            if (random.oneIn(3))
                pattern.action(random.between(1, 16));
            if (random.oneIn(3))
                pattern.code("A", random.below(20));
            if (random.oneIn(9))
                pattern.code("unknown");
        }
        return pattern;
    }

    /// The topmost type first, within a type the first in the file; the upper pass first.
    int expected(POINT point)
    {
        const std::vector<int> order(std::rbegin(TypeTabl), std::rend(TypeTabl));
        for (const int pass : {1, 0})
            for (const int type : order)
                for (int i = 0; i < data().PtrnCont; ++i) {
                    PTRNDATA& candidate = item(i);
                    const bool reacts = candidate.ID_Type != 0 || candidate.DataNo != 0;
                    const bool reachable = (candidate.wData & (STATE_HIDDEN | STATE_FROZEN)) == 0;
                    if (candidate.Type == type && candidate.Parm[PARM_PASS] == pass && reacts && reachable &&
                        data().TestPtrnData(point, &candidate) == 1)
                        return i;
                }
        return -1;
    }
};

} // namespace

TEST_F(HitItems, are_chosen_by_pass_type_and_place_in_the_file)
{
    for (const unsigned seed : seeds(15)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        load(randomPattern(random));
        for (int i = 0; i < data().PtrnCont; ++i)
            item(i).wData = static_cast<WORD>(random.bits() & random.bits() & random.bits());
        int hits = 0;
        for (int round = 0; round < 400; ++round) {
            const POINT point{random.between(-40, WIDTH + 40), random.between(-40, HEIGHT + 40)};
            const int hit = data().TestPtrnData(point);
            ASSERT_EQ(hit, expected(point)) << point.x << "," << point.y;
            hits += hit >= 0;
        }
        EXPECT_GT(hits, 10) << "too few items are met to tell anything";
    }
}
