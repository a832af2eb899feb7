// The sample project shows everything that items can be: whatever a schema names is in use in some screen.
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tests/ptn/SampleScreens.h"

#include <functional>
#include <gmock/gmock.h>
#include <set>

using namespace tessary;

using testing::IsEmpty;

namespace
{

using Names = std::vector<std::string>;

/// One side of an alternative: what it is called, and which items are of it.
struct Variant {
    std::string name;
    std::function<bool(const SampleItem&)> is;
};
using Alternative = std::vector<Variant>;

class SampleVariants : public Sample
{
  protected:
    bool any(int type, const std::function<bool(const SampleItem&)>& is) const
    {
        for (const auto& screen : screens)
            for (const SampleItem& item : screen.second.items)
                if (item.type() == type && is(item))
                    return true;
        return false;
    }

    /// Names the combinations that no item of the type is of, each with one variant of every alternative.
    Names missing(int type, const std::vector<Alternative>& alternatives) const
    {
        std::vector<Variant> combined = {{FindItemClass(type)->name, [](const SampleItem&) { return true; }}};
        for (const Alternative& alternative : alternatives) {
            std::vector<Variant> longer;
            for (const Variant& start : combined)
                for (const Variant& next : alternative)
                    longer.push_back({start.name + ", " + next.name, [start, next](const SampleItem& item) {
                                          return start.is(item) && next.is(item);
                                      }});
            combined = longer;
        }
        Names names;
        for (const Variant& variant : combined)
            if (!any(type, variant.is))
                names.push_back(variant.name);
        return names;
    }
};

Variant is(const ParmSchema& parm, const std::string& name, int value)
{
    return {name, [index = parm.index, value](const SampleItem& item) { return item.parm(index) == value; }};
}

/// What a choice, flag or sum of bits can be; nothing for numbers and colours.
Alternative valuesOf(const ParmSchema& parm)
{
    Alternative values;
    if (parm.kind == ParmKind::Flag)
        values = {is(parm, std::string("no ") + parm.name, 0), is(parm, parm.name, 1)};
    if (parm.kind == ParmKind::Choice)
        for (const ParmChoice& choice : parm.choices)
            values.push_back(is(parm, std::string(parm.name) + " " + choice.name, choice.value));
    if (parm.kind == ParmKind::Bits) {
        values.push_back(is(parm, std::string("no ") + parm.name, 0));
        for (const ParmChoice& choice : parm.choices)
            values.push_back({std::string(parm.name) + " " + choice.name,
                              [index = parm.index, bit = choice.value](const SampleItem& item) {
                                  return (item.parm(index) & bit) != 0;
                              }});
    }
    return values;
}

Alternative values(int type, const char* name)
{
    return valuesOf(*FindItemClass(type)->parm(name));
}

/// Whether a number is 0 or not, for widths and limits with a meaning of their own for 0.
Alternative zeroOrNot(int type, const char* name)
{
    const ParmSchema& parm = *FindItemClass(type)->parm(name);
    return {is(parm, std::string(name) + " 0", 0),
            {std::string(name) + " not 0",
             [index = parm.index](const SampleItem& item) { return item.parm(index) != 0; }}};
}

/// The four variants of an item with data are not all alike.
Variant followsState(const ParmSchema& parm)
{
    return {std::string(parm.name) + " by state", [index = parm.index](const SampleItem& item) {
                std::set<int> found;
                for (int state = 0; state < 4; state++)
                    found.insert(item.parm(index + state));
                return found.size() > 1 && !item.data().empty();
            }};
}

Variant boundTo(const std::string& data)
{
    return {"bound to " + data, [data](const SampleItem& item) { return item.data() == data; }};
}

TEST_F(SampleVariants, every_type_is_in_use_with_each_of_its_choices_and_flags)
{
    for (const ItemClass& item : ItemClasses()) {
        EXPECT_THAT(missing(item.type, {}), IsEmpty());
        for (const ParmSchema& parm : item.parms)
            if (!parm.since) { // the sample is of edition 1
                EXPECT_THAT(missing(item.type, {valuesOf(parm)}), IsEmpty());
            }
    }
}

TEST_F(SampleVariants, lines_of_every_kind_grow_in_every_way)
{
    EXPECT_THAT(missing(PTRN_LINE, {values(PTRN_LINE, "dash"), values(PTRN_LINE, "grow")}), IsEmpty());
}

TEST_F(SampleVariants, bar_graphs_in_both_directions_have_needles_frames_and_limits_or_not)
{
    const Alternative direction = values(PTRN_BARG, "direction");
    EXPECT_THAT(missing(PTRN_BARG, {direction, zeroOrNot(PTRN_BARG, "needle")}), IsEmpty());
    EXPECT_THAT(missing(PTRN_BARG, {zeroOrNot(PTRN_BARG, "frame-width")}), IsEmpty());
    EXPECT_THAT(missing(PTRN_BARG, {zeroOrNot(PTRN_BARG, "maximum")}), IsEmpty()) << "0: the table's";
}

TEST_F(SampleVariants, scroll_bars_in_both_directions_have_page_and_arrow_buttons_or_not)
{
    EXPECT_THAT(missing(PTRN_SBAR, {values(PTRN_SBAR, "direction"), values(PTRN_SBAR, "arrows"),
                                    values(PTRN_SBAR, "pages")}),
                IsEmpty());
}

TEST_F(SampleVariants, spin_buttons_have_own_limits_or_the_table_s)
{
    EXPECT_THAT(missing(PTRN_SPIN, {zeroOrNot(PTRN_SPIN, "maximum")}), IsEmpty());
}

TEST_F(SampleVariants, numbers_are_shown_in_every_form)
{
    EXPECT_THAT(missing(PTRN_NUMR, {values(PTRN_NUMR, "hex"), values(PTRN_NUMR, "zero-fill")}), IsEmpty());
    EXPECT_THAT(missing(PTRN_NUMR, {zeroOrNot(PTRN_NUMR, "decimals")}), IsEmpty());
}

TEST_F(SampleVariants, marks_of_every_size_are_shown)
{
    constexpr int groups = CONT_MARK / 50;
    Alternative group;
    for (int number = 0; number < groups; number++)
        group.push_back(
            {"number " + std::to_string(50 * number) + " to " + std::to_string(50 * number + 49),
             [number](const SampleItem& item) { return item.parm(MARK_NUMBER4) / 50 == number; }});
    EXPECT_THAT(missing(PTRN_MARK, {group}), IsEmpty());
}

TEST_F(SampleVariants, looks_follow_the_state_of_a_cell)
{
    for (const ItemClass& item : ItemClasses())
        for (const char* name : {"color", "fill", "face", "bar", "mark"}) {
            const ParmSchema* parm = FindParm(item.parms, name);
            if (parm && parm->count == 4) {
                EXPECT_THAT(missing(item.type, {{followsState(*parm)}}), IsEmpty());
            }
        }
}

TEST_F(SampleVariants, check_boxes_colour_and_blink_items_while_the_panel_runs)
{
    EXPECT_THAT(missing(PTRN_FCHR, {{boundTo("COLOR_CHECK+1")}}), IsEmpty());
    EXPECT_THAT(missing(PTRN_MARK, {{boundTo("COLOR_CHECK+0")}}), IsEmpty());
    EXPECT_THAT(missing(PTRN_NUMR, {{boundTo("COUNTER2+0")}}), IsEmpty());
}

TEST_F(SampleVariants, a_check_box_locks_controls_which_look_locked)
{
    const std::map<int, std::pair<int, int>> captions = {
        {PTRN_BUTN, {BUTN_CAPTION, BUTN_CAPTION_LOCKED}},
        {PTRN_RDIO, {CHECK_COLOR, CHECK_COLOR_LOCKED}},
        {PTRN_CHCK, {CHECK_COLOR, CHECK_COLOR_LOCKED}},
    };
    for (const auto& caption : captions) {
        const auto parms = caption.second;
        const Variant looksLocked = {"looks locked", [parms](const SampleItem& item) {
                                         return item.parm(parms.first) != item.parm(parms.second);
                                     }};
        EXPECT_THAT(missing(caption.first, {{boundTo("COLOR_CHECK+1")}, {looksLocked}}), IsEmpty());
    }
}

} // namespace
