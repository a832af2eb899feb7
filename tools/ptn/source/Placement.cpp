#include "tools/ptn/source/Placement.h"

#include "pattern/ItemParm.h"
#include "tools/ptn/common/Names.h"

#include <algorithm>

namespace ptn
{

void Placement::read(const Entry& entry, const Subject& label, Diagnostics& diagnostics)
{
    const bool rect = entry.name == "rect";
    const auto numbers = Integers(entry.value, rect ? 4 : 2, label + ": " + Quoted(entry.name), diagnostics);
    if (!numbers)
        broken_ = true;
    else
        (rect ? rect_ : entry.name == "at" ? at_ : size_) = numbers;
}

bool Placement::reaches(const std::int32_t* parm, long long dx, long long dy)
{
    const auto inside = [](long long value) { return value >= COORDINATE_MIN && value <= COORDINATE_MAX; };
    return inside(parm[PARM_X1] + dx) && inside(parm[PARM_Y1] + dy) && inside(parm[PARM_X2] + dx) &&
           inside(parm[PARM_Y2] + dy);
}

bool Placement::finish(PatternItem& item, const ItemClass& schema, const Resources& resources,
                       const Subject& label, Diagnostics& diagnostics)
{
    if (broken_)
        return false;
    std::int32_t* parm = item.record.Parm;
    const ItemFacts facts(item, resources);
    if (schema.measuredParm >= 0 && parm[schema.measuredParm] == 0)
        parm[schema.measuredParm] = facts.longestText();

    if (!rect_ && !at_) {
        diagnostics.error(item.place, label + " has no place. Write 'rect', or 'at' and 'size'.");
        return false;
    }
    if (!rect_) {
        const std::optional<SIZE> natural = facts.naturalSize();
        if (!size_ && !natural) {
            diagnostics.error(item.place, label, " has 'at' but no 'size'. A {} needs both.", schema.name);
            return false;
        }
        const int width = size_ ? (*size_)[0] : natural->cx;
        const int height = size_ ? (*size_)[1] : natural->cy;
        const auto sum = [](int a, int b) {
            return static_cast<int>(std::clamp(0LL + a + b, -0x7FFFFFFFLL, 0x7FFFFFFFLL));
        };
        rect_ = {{(*at_)[0], (*at_)[1], sum((*at_)[0], width), sum((*at_)[1], height)}};
    }
    for (const int value : *rect_) {
        if (value < COORDINATE_MIN || value > COORDINATE_MAX) {
            diagnostics.error(item.place, label, " reaches {}. Coordinates go from -32768 to 32767.", value);
            return false;
        }
    }
    std::copy(rect_->begin(), rect_->end(), parm + PARM_X1);
    if (parm[PARM_X1] > parm[PARM_X2] || parm[PARM_Y1] > parm[PARM_Y2]) {
        diagnostics.error(item.place, label,
                          " has its corners the wrong way round. Write the upper left one first{}",
                          schema.cornerHelp);
        return false;
    }
    if (!facts.fits()) {
        diagnostics.error(item.place, label + " is too small for its frame and needle. Make it larger.");
        return false;
    }
    return true;
}

} // namespace ptn
