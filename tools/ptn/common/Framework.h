// The tool speaks the framework's language: what is tessary::Name there is Name here.
#pragma once

namespace tessary
{
}

namespace ptn
{

using namespace tessary;

} // namespace ptn
