// Scroll bars and spin buttons of random sizes, ranges and values.
#include "draw/Resource.h"
#include "pattern/items/ScrollBar.h"
#include "tests/pattern/LoadedPattern.h"
#include "tests/pattern/Random.h"
#include "tests/support/Canvas.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>
#include <X11/keysym.h>

using namespace tessary;

namespace
{

/// Both ends belong to it.
struct Span {
    int first;
    int last;
    bool holds(int position) const { return first <= position && position <= last; }
};

bool operator==(const Span& one, const Span& other)
{
    return one.first == other.first && one.last == other.last;
}

std::ostream& operator<<(std::ostream& out, const Span& span)
{
    return out << span.first << ".." << span.last;
}

/// A bar with room for all its parts, and where these lie by the rules: along it, and across it.
struct SoundBar {
    bool vertical;
    bool pages;
    bool arrows;
    int frame; ///< as a parameter; 0 counts as 1 pixel
    int left;
    int top;
    int length;
    int breadth;
    int visible;
    int total;
    int value;

    explicit SoundBar(Random& random)
        : vertical(random.oneIn(2)), pages(random.oneIn(2)), arrows(random.oneIn(2)), frame(random.below(5)),
          left(random.between(-50, 50)), top(random.between(-50, 50)), length(0),
          breadth(random.between(14, 40)), visible(0), total(random.pick({1, 2, 10, 100, 1000, 1000000})),
          value(0)
    {
        visible = random.below(total);
        value = random.between(0, range());
        const int buttons = (pages ? 2 : 0) + (arrows ? 2 : 0);
        length = 2 * inset() + buttons * button() + random.between(0, random.pick({5, 50, 300}));
    }

    int range() const { return total - visible; }
    int inset() const { return frame ? frame : 1; }
    int button() const { return breadth - 2 * inset(); }

    Span across() const { return {inset(), breadth - inset()}; }
    Span page1() const { return {inset(), inset() + (pages ? button() : 0)}; }
    Span arrow1() const { return {page1().last, page1().last + (arrows ? button() : 0)}; }
    Span page2() const { return mirror(page1()); }
    Span arrow2() const { return mirror(arrow1()); }
    Span trough() const { return {arrow1().last, arrow2().first}; }
    Span thumb() const { return thumbAt(value); }
    Span thumbAt(std::int64_t shown) const
    {
        const int begin = trough().first + static_cast<int>(room() * shown / range());
        return {begin, begin + thumbLength()};
    }
    int thumbLength() const
    {
        const std::int64_t extent = trough().last - trough().first;
        return static_cast<int>(extent * visible / total);
    }
    /// How far the thumb can move.
    std::int64_t room() const { return trough().last - trough().first - thumbLength(); }

    /// Part at a place of the bar.
    int part(int along, int beside) const
    {
        constexpr int margin = 2;
        const Span middle{across().first + margin, across().last - margin};
        if (across().holds(beside)) {
            if (pages && page1().holds(along))
                return SCROLL_PAGE1;
            if (pages && page2().holds(along))
                return SCROLL_PAGE2;
            if (arrows && arrow1().holds(along))
                return SCROLL_ARROW1;
            if (arrows && arrow2().holds(along))
                return SCROLL_ARROW2;
        }
        if (middle.holds(beside) && thumb().holds(along))
            return SCROLL_THUMB;
        // Before the thumb the trough is as wide as arrow button to thumb, behind it as thumb to arrow
        // button.
        if (Span{across().first, middle.last}.holds(beside) &&
            Span{trough().first, thumb().first}.holds(along))
            return SCROLL_TROUGH1;
        if (Span{middle.first, across().last}.holds(beside) && Span{thumb().last, trough().last}.holds(along))
            return SCROLL_TROUGH2;
        return SCROLL_NONE;
    }

    POINT point(int along, int beside) const
    {
        return vertical ? POINT{left + beside, top + along} : POINT{left + along, top + beside};
    }

  private:
    Span mirror(const Span& span) const { return {length - span.last, length - span.first}; }
};

std::ostream& operator<<(std::ostream& out, const SoundBar& bar)
{
    return out << (bar.vertical ? "vertical " : "horizontal ") << bar.length << " x " << bar.breadth
               << " frame " << bar.frame << (bar.pages ? " pages" : "") << (bar.arrows ? " arrows" : "")
               << " " << bar.visible << " of " << bar.total << " at " << bar.value;
}

class ScrollBars : public LoadedPattern
{
  protected:
    ScrollBars() { load(Pattern("p").item(PTRN_SBAR, 0, 0, 1, 1).code("A")); }

    /// Gives the loaded item the bar's parameters, and its cell the value.
    void use(const SoundBar& bar)
    {
        const POINT end = bar.point(bar.length, bar.breadth);
        place(bar.left, bar.top, end.x, end.y);
        item().Parm[SBAR_VERTICAL] = bar.vertical;
        item().Parm[SBAR_PAGES] = bar.pages;
        item().Parm[SBAR_ARROWS] = bar.arrows;
        item().Parm[SBAR_WIDTH] = bar.frame;
        item().Parm[SBAR_VISIBLE] = bar.visible;
        item().Parm[SBAR_TOTAL] = bar.total;
        set(1, static_cast<float>(bar.value));
    }

    void place(int x1, int y1, int x2, int y2)
    {
        const int corners[] = {x1, y1, x2, y2};
        std::memcpy(item().Parm, corners, sizeof corners);
        item().Rect = SetRect(x1, y1, x2, y2);
    }

    /// A laid-out part in the bar's own places.
    static Span along(const SoundBar& bar, const RECT& part)
    {
        return bar.vertical ? Span{part.top - bar.top, part.bottom - bar.top}
                            : Span{part.left - bar.left, part.right - bar.left};
    }
    static Span across(const SoundBar& bar, const RECT& part)
    {
        return bar.vertical ? Span{part.left - bar.left, part.right - bar.left}
                            : Span{part.top - bar.top, part.bottom - bar.top};
    }

    int drag(const SoundBar& bar, int position)
    {
        return data().SetScrollPos(bar.point(position, bar.breadth / 2), &item());
    }
};

} // namespace

TEST_F(ScrollBars, are_tiled_by_their_parts)
{
    for (const unsigned seed : seeds(300)) {
        Random random(seed);
        const SoundBar bar(random);
        SCOPED_TRACE(testing::Message() << seedText(seed) << ": " << bar);
        use(bar);
        data().SetScrollBar(&item());

        const Span thumb = along(bar, data().SCrect5);
        const Span trough = along(bar, data().SCrect6);
        std::vector<RECT> parts{data().SCrect6};
        if (bar.arrows)
            parts = {data().SCrect3, data().SCrect6, data().SCrect4};
        if (bar.pages) {
            parts.insert(parts.begin(), data().SCrect1);
            parts.push_back(data().SCrect2);
        }
        int end = bar.inset();
        for (const RECT& part : parts) {
            EXPECT_EQ(along(bar, part).first, end);
            EXPECT_EQ(across(bar, part), bar.across());
            end = along(bar, part).last;
        }
        EXPECT_EQ(end, bar.length - bar.inset());
        const RECT buttons[] = {data().SCrect1, data().SCrect2, data().SCrect3, data().SCrect4};
        for (int i = 0; i < 4; ++i) {
            const Span button = along(bar, buttons[i]);
            EXPECT_EQ(button.last - button.first, (i < 2 ? bar.pages : bar.arrows) ? bar.button() : 0);
        }

        EXPECT_LE(trough.first, thumb.first);
        EXPECT_LE(thumb.first, thumb.last);
        EXPECT_LE(thumb.last, trough.last);
        EXPECT_EQ(thumb, bar.thumb());
        set(1, 0.0F);
        data().SetScrollBar(&item());
        EXPECT_EQ(along(bar, data().SCrect5).first, trough.first);
        set(1, static_cast<float>(bar.range()));
        data().SetScrollBar(&item());
        EXPECT_EQ(along(bar, data().SCrect5).last, trough.last);
        if (HasFailure())
            return;
    }
}

TEST_F(ScrollBars, tell_at_every_point_the_part_that_is_there)
{
    for (const unsigned seed : seeds(60)) {
        Random random(seed);
        const SoundBar bar(random);
        SCOPED_TRACE(testing::Message() << seedText(seed) << ": " << bar);
        use(bar);
        for (int along = -2; along <= bar.length + 2; ++along)
            for (int beside = -2; beside <= bar.breadth + 2; ++beside)
                ASSERT_EQ(data().TestScrollBar(bar.point(along, beside), &item()), bar.part(along, beside))
                    << along << " along, " << beside << " beside";
    }
}

TEST_F(ScrollBars, move_their_thumb_forward_with_the_value)
{
    for (const unsigned seed : seeds(100)) {
        Random random(seed);
        const SoundBar bar(random);
        SCOPED_TRACE(testing::Message() << seedText(seed) << ": " << bar);
        use(bar);
        int before = bar.trough().first;
        for (int value = 0; value <= bar.range(); value += std::max(1, bar.range() / 50)) {
            set(1, static_cast<float>(value));
            data().SetScrollBar(&item());
            const int thumb = along(bar, data().SCrect5).first;
            ASSERT_GE(thumb, before) << value;
            before = thumb;
        }
    }
}

TEST_F(ScrollBars, take_from_a_drag_the_value_whose_thumb_is_under_the_pointer)
{
    for (const unsigned seed : seeds(300)) {
        Random random(seed);
        const SoundBar bar(random);
        SCOPED_TRACE(testing::Message() << seedText(seed) << ": " << bar);
        // A thumb of which a point can be grabbed that belongs to no button.
        const std::int64_t room = bar.room();
        if (bar.thumbLength() < 2 || room == 0)
            continue;
        use(bar);
        const int grabbed = random.between(1, bar.thumbLength() - 1);
        const int pointer = bar.thumb().first + grabbed;
        ASSERT_EQ(data().TestScrollBar(bar.point(pointer, bar.breadth / 2), &item()), SCROLL_THUMB);

        // A thumb that is let go where it was grabbed moves back to the value that belongs to its pixel.
        drag(bar, pointer);
        EXPECT_LE(value(1), static_cast<float>(bar.value));
        const std::int64_t perPixel = (bar.range() + room - 1) / room;
        EXPECT_GE(value(1), static_cast<float>(bar.value - perPixel));

        float before = 0.0F;
        for (std::int64_t moved = -10; moved <= room + 10; moved += std::max<std::int64_t>(1, room / 40)) {
            drag(bar, bar.trough().first + grabbed + static_cast<int>(moved));
            ASSERT_GE(value(1), before) << "a drag forward never moves back";
            before = value(1);
            ASSERT_TRUE(moved > 0 || before == 0.0F);
            const std::int64_t wanted = std::clamp<std::int64_t>(moved, 0, room);
            const int shown = bar.thumbAt(static_cast<std::int64_t>(before)).first - bar.trough().first;
            const std::int64_t pixels = std::max<std::int64_t>(1, (room + bar.range() - 1) / bar.range());
            ASSERT_LE(shown, wanted) << "the thumb follows the pointer";
            ASSERT_GE(shown, wanted - pixels) << "to the next position before it";
        }
        drag(bar, bar.trough().last + grabbed);
        EXPECT_EQ(value(1), static_cast<float>(bar.range()));
        EXPECT_EQ(drag(bar, bar.trough().last + grabbed + 1000), 0) << "nothing changes beyond the end";
        if (HasFailure())
            return;
    }
}

TEST_F(ScrollBars, step_while_they_are_held_as_often_as_the_ticks_tell)
{
    for (const unsigned seed : seeds(200)) {
        Random random(seed);
        const SoundBar bar(random);
        use(bar);
        for (const int step : {SBAR_LINE_STEP, SBAR_PAGE_STEP, SBAR_TROUGH_STEP})
            item().Parm[step] = random.between(0, std::max(1, bar.range() / 4));
        const int along = random.between(0, bar.length);
        const int part = bar.part(along, bar.breadth / 2);
        const int ticks = random.between(0, 40);
        SCOPED_TRACE(testing::Message()
                     << seedText(seed) << ": " << bar << ", part " << part << ", " << ticks << " ticks");

        const int steps[] = {0, SBAR_PAGE_STEP,   SBAR_PAGE_STEP,  SBAR_LINE_STEP, SBAR_LINE_STEP,
                             0, SBAR_TROUGH_STEP, SBAR_TROUGH_STEP};
        const int signs[] = {0, -1, 1, -1, 1, 0, -1, 1};
        const std::int64_t step = steps[part] ? signs[part] * item().Parm[steps[part]] : 0;
        const auto after = [&](std::int64_t count) {
            return static_cast<float>(std::clamp<std::int64_t>(bar.value + step * count, 0, bar.range()));
        };
        data().LButtonUp();
        PTRNDATA pressed = item();
        const int result = data().LButtonDown(bar.point(along, bar.breadth / 2), &pressed);
        ASSERT_EQ(result, part == SCROLL_THUMB ? 3 : value(1) != static_cast<float>(bar.value));
        ASSERT_EQ(value(1), after(1));
        ASSERT_EQ(data().RepeatFlag, result == 1 ? REPEAT_WAITING : REPEAT_IDLE);

        int changes = 0;
        PTRNDATA held{};
        for (int tick = 0; tick < ticks; ++tick)
            changes += data().ReptPtrnData(&held);
        // Five ticks of waiting, then a step at the end of every second tick.
        const int repeated = result == 1 && ticks > 5 ? (ticks - 5) / 2 : 0;
        ASSERT_EQ(value(1), after(1 + repeated));
        const std::int64_t toEnd = step < 0 ? bar.value : bar.range() - bar.value;
        const std::int64_t untilEnd = step ? (toEnd + std::abs(step) - 1) / std::abs(step) : 0;
        ASSERT_EQ(changes, result == 1 ? std::min<std::int64_t>(repeated, untilEnd - 1) : 0);
    }
}

TEST_F(ScrollBars, survive_parameters_without_sense)
{
    usePalette();
    Canvas canvas(60, 40);
    constexpr int ends[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), 0, 1, -1, 100};
    for (const unsigned seed : seeds(1000)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        const auto any = [&] {
            return random.oneIn(2) ? random.pick(ends)
                                   : static_cast<int>(random.bits()) >> random.between(0, 31);
        };
        place(any(), any(), any(), any());
        for (const int parm : {SBAR_ARROWS, SBAR_PAGES, SBAR_VERTICAL, SBAR_VISIBLE, SBAR_TOTAL,
                               SBAR_LINE_STEP, SBAR_PAGE_STEP, SBAR_TROUGH_STEP, SBAR_ROLE1, SBAR_KEYS})
            item().Parm[parm] = any();
        item().Parm[SBAR_WIDTH] = random.below(99); // more than that the drawing refuses
        const unsigned bits = random.bits();
        float number = 0.0F;
        std::memcpy(&number, &bits, sizeof number);
        set(1, number);

        data().DispPtrnData(canvas.draw());
        item().Parm[SBAR_WIDTH] = any();
        for (int round = 0; round < 5; ++round) {
            const POINT point{any(), any()};
            const int part = data().TestScrollBar(point, &item());
            ASSERT_TRUE(part >= SCROLL_NONE && part <= SCROLL_TROUGH2) << part;
            PTRNDATA bar = item();
            data().LButtonDown(point, &bar);
            data().MouseMove(POINT{any(), any()});
            for (int tick = 0; tick < 9; ++tick)
                data().ReptPtrnData(&bar);
            data().SetScrollPos(POINT{any(), any()}, &item());
            data().WheelToScroll(any(), &item());
            data().SetScrollKey(random.between(XK_Left, XK_Page_Down), &bar);
        }
    }
}

TEST_F(ScrollBars, hold_any_value_to_their_range_whatever_is_done)
{
    for (const unsigned seed : seeds(300)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        const SoundBar bar(random);
        use(bar);
        for (int round = 0; round < 20; ++round) {
            const POINT point = bar.point(random.between(0, bar.length), random.between(0, bar.breadth));
            PTRNDATA pressed = item();
            if (random.oneIn(5))
                set(1, static_cast<float>(random.between(-bar.total, 2 * bar.total)));
            const float before = value(1);
            const int changed = random.oneIn(2) ? data().LButtonDown(point, &pressed)
                                                : data().WheelToScroll(random.below(2), &pressed);
            if (changed == 1) {
                ASSERT_NE(value(1), before);
                ASSERT_GE(value(1), 0.0F);
                ASSERT_LE(value(1), static_cast<float>(bar.range()));
            } else {
                ASSERT_EQ(value(1), before);
            }
        }
    }
}

TEST_F(ScrollBars, have_beside_them_spin_buttons_of_two_halves)
{
    for (const unsigned seed : seeds(100)) {
        SCOPED_TRACE(seedText(seed));
        Random random(seed);
        PTRNDATA spin{};
        spin.Rect = SetRect(random.between(-40, 40), random.between(-40, 40), random.between(-40, 40),
                            random.between(-40, 40));
        const int top = spin.Rect.top;
        const int middle = top + (spin.Rect.bottom - top) / 2;
        for (int y = -42; y <= 42; ++y)
            for (const int x : {spin.Rect.left - 1, spin.Rect.left, spin.Rect.right, spin.Rect.right + 1}) {
                const bool inside =
                    x >= spin.Rect.left && x <= spin.Rect.right && y >= top && y <= spin.Rect.bottom;
                const int half = !inside ? 0 : y <= middle ? 1 : 2;
                ASSERT_EQ(data().TestSpinButn(POINT{x, y}, &spin), half) << x << "," << y;
            }
    }
}
