// The state words of cells while what they show is not to be believed. They look lost then, and as they were
// afterwards; what changes meanwhile is kept for afterwards.
#pragma once

#include "base/Types.h"
#include "links/Model.h"

#include <cstddef>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tessary
{

class Looks
{
  public:
    /// Somebody by whom a cell can be lost: a connection, or its refused points.
    using Who = std::size_t;

    /// Sets bits of a cell's word.
    void set(int cell, WORD mask, WORD bits);

    /// Has the items of a cell look lost. Where several have lost it, it looks as the first one says.
    void lose(int cell, const LostLook& look, Who who);
    /// Ends that; nothing when it was not lost so.
    void regain(int cell, Who who);
    /// Brings all cells back.
    void regainAll();

  private:
    struct Lost {
        WORD mask = 0;   ///< bits that are not the cell's own now
        WORD shown = 0;  ///< what they are
        WORD before = 0; ///< what they are afterwards
        std::vector<std::pair<Who, LostLook>> by;
    };

    static void show(int cell, Lost& lost);
    static void bringBack(int cell, const Lost& lost);

    std::unordered_map<int, Lost> lost_;
};

} // namespace tessary
