// What a window draws of any pattern, with items on top of each other and cells in any state, follows from
// the rules for the single items: this test keeps its own copies of the items, decides by itself what is
// drawn in a tick, when and in which order, and draws it with the members of the fifteen types.
#include "tests/pattern/LoadedPattern.h"
#include "tests/pattern/RandomItems.h"
#include "tests/support/Canvas.h"

#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

using namespace tessary;

namespace
{

constexpr int WIDTH = 160;
constexpr int HEIGHT = 120;

/// What a cell holds, as this test has written it.
struct Cell {
    int word = 0;
    float number = 0.0F;
    std::string text;
};
using Cells = std::map<int, Cell>;

/// The number as it is stored, so that a number that is no number is one with itself.
std::uint32_t bitsOf(const PTRNDATA& item)
{
    std::uint32_t bits = 0;
    std::memcpy(&bits, &item.fData, sizeof bits);
    return bits;
}

class Replay
{
  public:
    explicit Replay(const Cells& cells) : canvas(WIDTH, HEIGHT), cells_(cells), hands_("p")
    {
        items.assign(hands_.PtrnData, hands_.PtrnData + hands_.PtrnCont);
    }

    void display()
    {
        eachInOrder([this](PTRNDATA& kept) {
            PTRNDATA item = kept;
            read(item);
            const bool stored = show(item, 0);
            if (stored || (kept.wData & STATE_NEVER) != 0)
                kept = item;
        });
    }

    void tick()
    {
        ++ticks_;
        // Blanked first; then shown for seven ticks, blanked for three.
        if (ticks_ % 10 == 3)
            flicker(1);
        if (ticks_ % 10 == 0)
            flicker(0);

        eachInOrder([this](PTRNDATA& kept) {
            const Cell& cell = cells_.at(val(kept.DataNo));
            if (std::string(kept.ID_Code).empty() ||
                (kept.wData == cell.word && kept.fData == cell.number && kept.sData == cell.text))
                return;
            PTRNDATA item = kept;
            read(item);
            if ((item.wData & STATE_FROZEN) == 0)
                show(item, 1);
            kept = item;
        });
    }

    std::vector<PTRNDATA> items;
    Canvas canvas;

  private:
    template <typename Function> void eachInOrder(Function function)
    {
        static constexpr int ORDER[] = {PTRN_GBOX, PTRN_RECT, PTRN_CRCL, PTRN_BARG, PTRN_LINE,
                                        PTRN_BMAP, PTRN_MARK, PTRN_SBAR, PTRN_SPIN, PTRN_BUTN,
                                        PTRN_RDIO, PTRN_CHCK, PTRN_FCHR, PTRN_CHAR, PTRN_NUMR};
        for (const int pass : {0, 1})
            for (const int type : ORDER)
                for (PTRNDATA& item : items)
                    if (item.Type == type && item.Parm[PARM_PASS] == pass)
                        function(item);
    }

    void read(PTRNDATA& item) const
    {
        const Cell& cell = cells_.at(val(item.DataNo));
        item.wData = static_cast<WORD>(cell.word);
        item.fData = cell.number;
        std::memcpy(item.sData, cell.text.c_str(), cell.text.size() + 1);
    }

    /// Draws or erases. True when drawing itself stores the item.
    bool show(PTRNDATA& item, int updt)
    {
        if (item.wData > 32767) {
            erase(item);
            return false;
        }
        CDraw* const draw = canvas.draw();
        PTRNDATA* const p = &item;
        switch (item.Type) {
            // clang-format off
        case PTRN_GBOX: hands_.DispPtrnData01(draw, p); break;
        case PTRN_LINE: hands_.DispPtrnData02(draw, p); break;
        case PTRN_RECT: hands_.DispPtrnData03(draw, p); break;
        case PTRN_CRCL: hands_.DispPtrnData04(draw, p); break;
        case PTRN_BARG: hands_.DispPtrnData05(draw, p); break;
        case PTRN_FCHR: hands_.DispPtrnData06(draw, p, updt); break;
        case PTRN_CHAR: hands_.DispPtrnData07(draw, p, updt); break;
        case PTRN_NUMR: hands_.DispPtrnData08(draw, p, updt); break;
        case PTRN_BUTN: hands_.DispPtrnData09(draw, p); break;
        case PTRN_RDIO: hands_.DispPtrnData10(draw, p, updt); break;
        case PTRN_CHCK: hands_.DispPtrnData11(draw, p, updt); break;
        case PTRN_BMAP: hands_.DispPtrnData12(draw, p); break;
        case PTRN_MARK: hands_.DispPtrnData13(draw, p, updt); break;
        case PTRN_SBAR: hands_.DispPtrnData14(draw, p, updt); break;
        case PTRN_SPIN: hands_.DispPtrnData15(draw, p); break;
        default: break;
            // clang-format on
        }
        return item.Type == PTRN_MARK && (item.wData & STATE_DISABLE) == 0;
    }

    void erase(PTRNDATA& item)
    {
        CDraw* const draw = canvas.draw();
        switch (item.Type) {
        case PTRN_LINE:
            hands_.ClerPtrnData02(draw, &item);
            break;
        case PTRN_RECT:
            hands_.ClerPtrnData03(draw, &item);
            break;
        case PTRN_CRCL:
            hands_.ClerPtrnData04(draw, &item);
            break;
        case PTRN_FCHR:
        case PTRN_CHAR:
        case PTRN_NUMR:
            hands_.ClerPtrnData06(draw, &item);
            break;
        case PTRN_RDIO:
        case PTRN_CHCK:
            hands_.ClerPtrnData10(draw, &item);
            break;
        default:
            hands_.ClerPtrnData01(draw, &item);
        }
    }

    void flicker(int phase)
    {
        for (const PTRNDATA& kept : items) {
            PTRNDATA item = kept;
            if (item.wData >= STATE_DISABLE || (item.Parm[13] == 0 && (item.wData & STATE_FLICKER) == 0))
                continue;
            if (item.Type == PTRN_FCHR || item.Type == PTRN_CHAR || item.Type == PTRN_NUMR)
                hands_.FlikPtrnData06(canvas.draw(), &item, phase);
            else if (item.Type == PTRN_MARK)
                hands_.FlikPtrnData13(canvas.draw(), &item, phase);
        }
    }

    const Cells& cells_;
    CPtrnData hands_; ///< draws single items
    int ticks_ = 0;
};

class AnyPattern : public LoadedPattern
{
  protected:
    AnyPattern() : canvas(WIDTH, HEIGHT) { useRandomArtwork(project, 2); }

    static Pattern randomPattern(Random& random, int count)
    {
        Pattern pattern("p");
        addAnyItems(pattern, count, random, WIDTH, HEIGHT);
        return pattern;
    }

    void change(Random& random)
    {
        // Cell 0 too, which unbound items show.
        const int no = random.below(RANDOM_CELLS + 1);
        Cell& cell = cells[no];
        switch (random.below(3)) {
        case 0:
            cell.word = static_cast<int>(random.bits() & random.bits() & 0xFFFF);
            setState(no, cell.word);
            break;
        case 1:
            cell.number = randomNumber(random, {});
            set(no, cell.number);
            break;
        default:
            cell.text = randomText(random, 40);
            setText(no, cell.text.c_str());
        }
    }

    /// The stored items are the same byte for byte, unless a byte of a number that is no number differs.
    void expectSameItems(const Replay& replay)
    {
        for (int i = 0; i < data().PtrnCont; ++i) {
            const PTRNDATA& kept = replay.items[static_cast<std::size_t>(i)];
            ASSERT_EQ(val(item(i).wData), val(kept.wData)) << i;
            ASSERT_EQ(bitsOf(item(i)), bitsOf(kept)) << i;
            ASSERT_STREQ(item(i).sData, kept.sData) << i;
            ASSERT_STREQ(item(i).Text, kept.Text) << i;
            ASSERT_EQ(val(item(i).Parm[MARK_LAST]), val(kept.Parm[MARK_LAST])) << i;
        }
    }

    Canvas canvas;
    Cells cells;
};

} // namespace

TEST_F(AnyPattern, is_drawn_in_every_tick_as_its_items_are_drawn_one_by_one)
{
    for (const unsigned seed : seeds(8)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        for (int no = 0; no <= RANDOM_CELLS; ++no)
            cells[no];
        cells[-1] = Cell{}; // an unknown code reads zeros
        load(randomPattern(random, 30));
        for (int changes = 0; changes < 50; ++changes)
            change(random);
        Replay replay(cells);
        canvas.clear();

        for (int tick = 1; tick <= 40; ++tick) {
            // Normally the first thing; a tick before it must do no harm.
            if (tick == 1 ? !random.oneIn(4) : random.oneIn(15)) {
                data().DispPtrnData(canvas.draw());
                replay.display();
            }
            for (int changes = random.below(6); changes > 0; --changes)
                change(random);
            data().FlikPtrnData(canvas.draw());
            data().UpdtPtrnData(canvas.draw());
            replay.tick();

            expectSameItems(replay);
            if (HasFatalFailure())
                return;
            ASSERT_TRUE(same(canvas.picture(), replay.canvas.picture())) << "tick " << tick;
        }
    }
}
