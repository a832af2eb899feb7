#include "tools/ptn/source/Placement.h"

#include "pattern/ItemParm.h"

#include <algorithm>

namespace ptn
{

namespace
{

/// Coordinates are 16 bits wide on the display.
constexpr int MIN_COORDINATE = -32768;
constexpr int MAX_COORDINATE = 32767;

} // namespace

int Placement::longestText(const PatternItem& item)
{
    std::size_t longest = 0;
    for (const std::string& text : item.texts)
        longest = std::max(longest, text.size());
    return static_cast<int>(longest);
}

std::optional<SIZE> Placement::naturalSize(const PatternItem& item, const Resources& resources)
{
    const std::int32_t* parm = item.record.Parm;
    switch (item.record.Type) {
    case PTRN_FCHR:
    case PTRN_CHAR:
    case PTRN_NUMR: {
        const SIZE cell = resources.fontCell(parm[TEXT_FONT]);
        return SIZE{cell.cx * parm[FIELD_WIDTH], cell.cy};
    }
    case PTRN_RDIO:
    case PTRN_CHCK: {
        const SIZE cell = resources.fontCell(parm[CHECK_FONT]);
        return SIZE{3 * cell.cy / 2 + cell.cx * longestText(item), cell.cy};
    }
    case PTRN_MARK:
        return Resources::markSize(parm[MARK_NUMBER4]);
    default:
        return std::nullopt;
    }
}

// Others would draw outside of themselves or, worse, backwards.
bool Placement::fits(const PatternItem& item)
{
    const std::int32_t* parm = item.record.Parm;
    if (item.record.Type != PTRN_BARG)
        return true;
    const int inset = 2 * parm[BARG_FRAME_WIDTH];
    const int width = parm[PARM_X2] - parm[PARM_X1] - inset;
    const int height = parm[PARM_Y2] - parm[PARM_Y1] - inset;
    const int along = parm[BARG_HORIZONTAL] ? width : height;
    return width >= 0 && height >= 0 && along >= parm[BARG_NEEDLE_WIDTH];
}

void Placement::read(const Entry& entry, const std::string& label, Diagnostics& diagnostics)
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
    const auto inside = [](long long value) { return value >= MIN_COORDINATE && value <= MAX_COORDINATE; };
    return inside(parm[PARM_X1] + dx) && inside(parm[PARM_Y1] + dy) && inside(parm[PARM_X2] + dx) &&
           inside(parm[PARM_Y2] + dy);
}

bool Placement::finish(PatternItem& item, const ItemSchema& schema, const Resources& resources,
                       const std::string& label, Diagnostics& diagnostics)
{
    if (broken_)
        return false;
    std::int32_t* parm = item.record.Parm;
    if (item.record.Type == PTRN_FCHR && parm[FIELD_WIDTH] == 0)
        parm[FIELD_WIDTH] = longestText(item);

    if (!rect_ && !at_) {
        diagnostics.error(item.place, label + " has no place. Write 'rect', or 'at' and 'size'.");
        return false;
    }
    if (!rect_) {
        const std::optional<SIZE> natural = naturalSize(item, resources);
        if (!size_ && !natural) {
            diagnostics.error(item.place,
                              label + " has 'at' but no 'size'. A " + schema.name + " needs both.");
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
        if (value < MIN_COORDINATE || value > MAX_COORDINATE) {
            diagnostics.error(item.place, label + " reaches " + std::to_string(value) +
                                              ". Coordinates go from -32768 to 32767.");
            return false;
        }
    }
    std::copy(rect_->begin(), rect_->end(), parm + PARM_X1);
    if (parm[PARM_X1] > parm[PARM_X2] || parm[PARM_Y1] > parm[PARM_Y2]) {
        diagnostics.error(item.place,
                          label + " has its corners the wrong way round. Write the upper left one first" +
                              (item.record.Type == PTRN_LINE ? "; no line rises to the right." : "."));
        return false;
    }
    if (!fits(item)) {
        diagnostics.error(item.place, label + " is too small for its frame and needle. Make it larger.");
        return false;
    }
    return true;
}

} // namespace ptn
