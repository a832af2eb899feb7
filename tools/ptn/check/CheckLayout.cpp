#include "base/EucText.h"
#include "pattern/ItemParm.h"
#include "pattern/ItemTable.h"
#include "tools/ptn/check/Check.h"
#include "tools/ptn/check/PlacedItems.h"

#include <algorithm>
#include <map>

namespace ptn
{

namespace
{

bool Contains(const RECT& outer, const RECT& inner)
{
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

class Layout
{
  public:
    Layout(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
        : pattern_(pattern), diagnostics_(diagnostics), placed_(pattern, project.resources)
    {
    }

    void checkPlaces();
    void checkFrames();
    void checkChoices();
    void checkHidden();

  private:
    template <typename... Values>
    void say(std::size_t index, fmt::format_string<Values...> text, Values&&... values)
    {
        const PatternItem& item = pattern_.items[index];
        diagnostics_.error(item.place, ItemName(item, index) + ": ", text, std::forward<Values>(values)...);
    }

    const Pattern& pattern_;
    Diagnostics& diagnostics_;
    PlacedItems placed_;
    const std::vector<std::unique_ptr<ItemFacts>>& facts_ = placed_.facts;
    const std::vector<RECT>& rects_ = placed_.rects;
};

void Layout::checkPlaces()
{
    const std::int32_t* window = pattern_.header.Parm1;
    const int title = window[HEDR_TITLE_HEIGHT];
    const std::string size =
        std::to_string(window[HEDR_WIDTH]) + " x " + std::to_string(window[HEDR_HEIGHT]) + " pixels";
    for (std::size_t i = 0; i < rects_.size(); ++i) {
        const RECT& rect = rects_[i];
        const bool outside = rect.right <= 0 || rect.bottom <= 0 || rect.left >= window[HEDR_WIDTH] ||
                             rect.top >= window[HEDR_HEIGHT];
        const bool beyond = rect.left < 0 || rect.top < 0 || rect.right > window[HEDR_WIDTH] ||
                            rect.bottom > window[HEDR_HEIGHT];
        if (outside || beyond)
            say(i, "{}{}, to {},{}. Move it, or enlarge the window.",
                outside ? "lies outside the pattern of " : "reaches beyond the pattern of ", size, rect.right,
                rect.bottom);
        else if (title > 0 && rect.top < title)
            say(i, "lies in the title bar, which is {} high. Move it down.", title);
    }
}

// Texts, fields and choices in the smallest box that they begin in, and captions in their buttons.
void Layout::checkFrames()
{
    for (std::size_t i = 0; i < rects_.size(); ++i) {
        const RECT& rect = rects_[i];
        const int caption = facts_[i]->captionWidth();
        if (caption > rect.width)
            say(i, "its caption needs {} pixels and has {}. Shorten it or widen the button.", caption,
                rect.width);
        if (!facts_[i]->isText())
            continue;
        const RECT* frame = nullptr;
        for (std::size_t j = 0; j < rects_.size(); ++j) {
            const RECT& box = rects_[j];
            const bool begins =
                rect.left > box.left && rect.left < box.right && rect.top > box.top && rect.top < box.bottom;
            if (facts_[j]->isFrame() && begins &&
                (!frame || 1LL * box.width * box.height < 1LL * frame->width * frame->height))
                frame = &box;
        }
        if (frame && (rect.right > frame->right || rect.bottom > frame->bottom))
            say(i,
                "reaches {},{}, beyond its frame, which ends at {},{}. Make it narrower, or the frame "
                "larger.",
                rect.right, rect.bottom, frame->right, frame->bottom);
    }
}

void Layout::checkChoices()
{
    std::map<std::tuple<int, std::string, int, int>, std::size_t> known;
    for (std::size_t i = 0; i < pattern_.items.size(); ++i) {
        const PatternItem& item = pattern_.items[i];
        const ItemClass* type = facts_[i]->type();
        if (!type || type->choiceParm < 0 || item.code.empty())
            continue;
        const int value = item.record.Parm[type->choiceParm];
        const auto added = known.emplace(std::make_tuple(type->type, item.code, item.record.ID_No, value), i);
        if (!added.second)
            say(i, "has the value {}, as the {} has, so both are on together. Give it another 'value'.",
                value, ItemName(pattern_.items[added.first->second], added.first->second).text());
    }
}

void Layout::checkHidden()
{
    for (std::size_t i = 0; i < rects_.size(); ++i) {
        const PatternItem& below = pattern_.items[i];
        const bool empty = rects_[i].width <= 0 && rects_[i].height <= 0;
        if (empty || !facts_[i]->type())
            continue;
        for (std::size_t j = 0; j < rects_.size(); ++j) {
            const PatternItem& above = pattern_.items[j];
            // An item with a cell of its own may be hidden while the program runs.
            const bool stays =
                above.code.empty() || (above.code == below.code && above.record.ID_No == below.record.ID_No);
            if (i == j || !stays || !facts_[j]->isOpaque() || placed_.isDrawnBefore(j, i) ||
                !Contains(rects_[j], rects_[i]))
                continue;
            say(i,
                "is hidden below the {}, which is drawn later. Move one of them, or draw it in the front "
                "pass.",
                ItemName(above, j).text());
            break;
        }
    }
}

} // namespace

void CheckLayout(const Pattern& pattern, const ProjectSource& project, Diagnostics& diagnostics)
{
    if (pattern.items.size() > MOST_COMPARED_ITEMS) {
        diagnostics.warning(
            pattern.place,
            fmt::format("the screen has {} items; more than {} are not compared with each other. "
                        "Use fewer.",
                        pattern.items.size(), MOST_COMPARED_ITEMS));
        return;
    }
    Layout layout(pattern, project, diagnostics);
    layout.checkPlaces();
    layout.checkFrames();
    layout.checkChoices();
    layout.checkHidden();
}

} // namespace ptn
