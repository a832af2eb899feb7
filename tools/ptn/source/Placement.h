// Where an item lies: its corners, given by rectangle, by position and size, or by what it shows.
#pragma once

#include "tools/ptn/model/ItemFacts.h"
#include "tools/ptn/yaml/Source.h"

#include <optional>
#include <string>
#include <vector>

namespace ptn
{

class Placement
{
  public:
    /// Takes up "rect: [x1, y1, x2, y2]", "at: [x, y]" or "size: [width, height]". A later one replaces an
    /// earlier one of the same name; "rect" has the last word.
    void read(const Entry& entry, const Subject& label, Diagnostics& diagnostics);

    /// Writes the corners, when the item's other parameters and its texts are known. Without a size, texts,
    /// fields, radio buttons, check boxes and marks are as large as what they show.
    /// @return false, with an error reported, when the place is missing or can not be drawn
    bool finish(PatternItem& item, const ItemClass& schema, const Resources& resources, const Subject& label,
                Diagnostics& diagnostics);

    /// Whether corners that are moved that far are still coordinates.
    static bool reaches(const std::int32_t* parm, long long dx, long long dy);

  private:
    std::optional<std::vector<int>> rect_;
    std::optional<std::vector<int>> at_;
    std::optional<std::vector<int>> size_;
    bool broken_ = false; ///< something was given that could not be read
};

} // namespace ptn
