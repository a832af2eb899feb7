#include "links/MakeLink.h"

#include "links/Modbus.h"
#include "links/Mqtt.h"
#include "links/Remote.h"
#include "links/Simulate.h"
#include "links/Socket.h"

namespace tessary
{

namespace
{

template <class Kind>
std::shared_ptr<Worker> MakeWorker(const LinkConnection& connection, const std::vector<LinkCell>& cells,
                                   std::shared_ptr<Exchange> exchange)
{
    return std::make_shared<Kind>(connection, cells, std::move(exchange));
}

} // namespace

std::unique_ptr<Link> MakeLink(const LinkConnection& connection, Looks& looks, Looks::Who who)
{
    switch (connection.kind) {
    case LINK_MODBUS:
        return std::make_unique<Remote>(connection, looks, who, MakeWorker<Modbus>);
    case LINK_MQTT:
        return std::make_unique<Remote>(connection, looks, who, MakeWorker<Mqtt>);
    case LINK_SOCKET:
        return std::make_unique<Socket>(connection, looks, who);
    default:
        return std::make_unique<Simulate>(connection, looks, who);
    }
}

} // namespace tessary
