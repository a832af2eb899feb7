#include "links/MakeLink.h"

#include "links/Simulate.h"

namespace tessary
{

std::unique_ptr<Link> MakeLink(const LinkConnection& connection, Looks& looks, Looks::Who who)
{
    return std::make_unique<Simulate>(connection, looks, who);
}

} // namespace tessary
