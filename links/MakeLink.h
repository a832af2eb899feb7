// The kinds of connections.
#pragma once

#include "links/Link.h"

#include <memory>

namespace tessary
{

/// A connection of its kind, which begins at once.
/// @param who  see Link
std::unique_ptr<Link> MakeLink(const LinkConnection& connection, Looks& looks, Looks::Who who);

} // namespace tessary
