// "ptn help links".
#pragma once

#include <iosfwd>

namespace ptn
{

/// Every key of the section "links": what it means and may be, and its default.
void PrintLinks(std::ostream& out);

} // namespace ptn
