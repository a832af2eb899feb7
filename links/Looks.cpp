#include "links/Looks.h"

#include "base/Constants.h"
#include "comndata/ComnData.h"

#include <algorithm>

namespace tessary
{

namespace
{

struct Bits {
    WORD mask = 0;
    WORD bits = 0;
};

Bits BitsOf(const LostLook& look)
{
    int mask = 0;
    int bits = 0;
    const auto add = [&](int value, int state) {
        if (value < 0)
            return;
        mask |= state;
        bits |= state == STATE_COLOR ? value & STATE_COLOR : value ? state : 0;
    };
    add(look.color, STATE_COLOR);
    add(look.blink, STATE_FLICKER);
    add(look.disabled, STATE_DISABLE);
    add(look.hidden, STATE_HIDDEN);
    return {static_cast<WORD>(mask), static_cast<WORD>(bits)};
}

void SetBits(int cell, int mask, int bits)
{
    const int before = Get_wData(cell, nullptr, 0);
    const int after = (before & ~mask) | (bits & mask);
    if (after != before)
        Set_wData(cell, static_cast<WORD>(after), __FILE__, __LINE__);
}

} // namespace

void Looks::set(int cell, WORD mask, WORD bits)
{
    const auto found = lost_.find(cell);
    if (found == lost_.end()) {
        SetBits(cell, mask, bits);
        return;
    }
    Lost& lost = found->second;
    lost.before = static_cast<WORD>((lost.before & ~mask) | (bits & mask & lost.mask));
    SetBits(cell, mask & ~lost.mask, bits);
}

void Looks::show(int cell, Lost& lost)
{
    const Bits look = BitsOf(lost.by.front().second);
    lost.mask = look.mask;
    lost.shown = look.bits;
    lost.before = static_cast<WORD>(Get_wData(cell, nullptr, 0) & look.mask);
    SetBits(cell, look.mask, look.bits);
}

void Looks::bringBack(int cell, const Lost& lost)
{
    // What the program has changed itself meanwhile stays.
    const int changed = (Get_wData(cell, nullptr, 0) ^ lost.shown) & lost.mask;
    SetBits(cell, lost.mask & ~changed, lost.before);
}

void Looks::lose(int cell, const LostLook& look, Who who)
{
    if (BitsOf(look).mask == 0)
        return;
    Lost& lost = lost_[cell];
    const bool known =
        std::any_of(lost.by.begin(), lost.by.end(), [who](const auto& one) { return one.first == who; });
    if (known)
        return;
    lost.by.emplace_back(who, look);
    if (lost.by.size() == 1)
        show(cell, lost);
}

void Looks::regain(int cell, Who who)
{
    const auto found = lost_.find(cell);
    if (found == lost_.end())
        return;
    auto& by = found->second.by;
    const auto one =
        std::find_if(by.begin(), by.end(), [who](const auto& each) { return each.first == who; });
    if (one == by.end())
        return;
    const bool shown = one == by.begin();
    by.erase(one);
    if (!shown)
        return;
    bringBack(cell, found->second);
    if (by.empty())
        lost_.erase(found);
    else
        show(cell, found->second);
}

void Looks::regainAll()
{
    for (const auto& [cell, lost] : lost_)
        bringBack(cell, lost);
    lost_.clear();
}

} // namespace tessary
