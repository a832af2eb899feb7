#include "links/Link.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "config/Settings.h"
#include "links/CellPart.h"
#include "log/Category.h"
#include "log/LogText.h"

namespace tessary
{

Link::Link(const LinkConnection& connection, Looks& looks, Looks::Who who)
    : connection_(connection), looks_(looks), who_(who), refused_(connection.points.size()),
      statusCell_(CellNumber(connection.status))
{
    for (std::size_t i = 0; i < connection_.points.size(); ++i) {
        const LinkPoint& point = connection_.points[i];
        for (int element = 0; element < point.count; ++element) {
            const CellName name{point.data.code, point.data.offset + element};
            const int cell = CellNumber(name);
            if (cell >= 0) {
                cells_.push_back({i, element, cell});
                continue;
            }
            LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: no cell %s (%s)", connection_.name.c_str(),
                    CellText(point.data, element).c_str(), placeOf(point).c_str());
            break;
        }
    }
    if (connection_.kind == LINK_MODBUS || connection_.kind == LINK_MQTT) {
        problem_ = CauseText(Cause::Connecting, Language);
        showStatus();
    }
}

std::string Link::placeOf(const LinkPoint& point) const
{
    return connection_.file + ":" + std::to_string(point.line);
}

void Link::setState(LinkState state, Cause cause, const std::string& detail)
{
    problem_ = CauseText(cause, Language);
    if (state != state_) {
        state_ = state;
        const char* const name = connection_.name.c_str();
        if (state == LinkState::Connected)
            LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: connected", name);
        else
            LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: lost: %s%s%s", name, CauseText(cause, 1),
                    detail.empty() ? "" : ", ", detail.c_str());
        for (const LinkCell& cell : cells_)
            look(cell, state == LinkState::Lost, who_);
    }
    showStatus();
}

void Link::setRefused(std::size_t point, bool refused, Cause cause)
{
    if (refused_[point] == refused)
        return;
    refused_[point] = refused;
    const LinkPoint& what = connection_.points[point];
    const std::string place = placeOf(what);
    if (refused)
        LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: %s: %s (%s)", connection_.name.c_str(),
                CellText(what.data, 0).c_str(), CauseText(cause, 1), place.c_str());
    else
        LogText(CATEGORY_LINKS, __FILE__, __LINE__, "%s: %s: there again (%s)", connection_.name.c_str(),
                CellText(what.data, 0).c_str(), place.c_str());
    for (const LinkCell& cell : cells_)
        if (cell.point == point)
            look(cell, refused, who_ + 1);
}

void Link::look(const LinkCell& cell, bool lost, Looks::Who who)
{
    if (lost)
        looks_.lose(cell.cell, connection_.lost, who);
    else
        looks_.regain(cell.cell, who);
}

void Link::showStatus()
{
    if (statusCell_ < 0)
        return;
    Set_iData(statusCell_, static_cast<int>(state_), nullptr, 0);
    Set_sData(statusCell_, problem_.c_str(), nullptr, 0);
}

LinkStatus Link::status() const
{
    LinkStatus status = counts_;
    status.name = connection_.name;
    status.state = state_;
    status.problem = problem_;
    return status;
}

} // namespace tessary
