#include "links/ModbusPlan.h"

#include "links/Values.h"

#include <algorithm>
#include <tuple>

namespace tessary
{

namespace
{

constexpr int USUAL_PERIOD = 1000; ///< ms

bool IsBit(RegisterArea area)
{
    return area == AREA_COIL || area == AREA_DISCRETE;
}

ModbusRequest RequestFor(const PlannedCell& cell)
{
    return {cell.area, cell.period, cell.address, cell.count, {cell}};
}

/// Has a request ask for a cell behind its others too. @return false when it is too far away
bool Extend(ModbusRequest& request, const PlannedCell& cell, int gap)
{
    const int end = request.address + request.count;
    const int newEnd = std::max(end, cell.address + cell.count);
    const int most = IsBit(request.area) ? REQUEST_BITS_MAX : REQUEST_REGISTERS_MAX;
    if (cell.area != request.area || cell.period != request.period || cell.address > end + gap ||
        newEnd - request.address > most)
        return false;
    request.count = newEnd - request.address;
    request.cells.push_back(cell);
    return true;
}

} // namespace

std::vector<PlannedCell> PlannedCells(const LinkConnection& connection, const std::vector<LinkCell>& cells)
{
    std::vector<PlannedCell> planned;
    const int usual = connection.period ? connection.period : USUAL_PERIOD;
    for (std::size_t i = 0; i < cells.size(); ++i) {
        const LinkPoint& point = connection.points[cells[i].point];
        const int each = IsBit(point.area()) ? 1 : RegistersOf(point);
        planned.push_back({i, point.area(), point.address() + cells[i].element * each, each,
                           point.period ? point.period : usual});
    }
    return planned;
}

std::vector<ModbusRequest> PlanRequests(std::vector<PlannedCell> cells, int gap)
{
    std::sort(cells.begin(), cells.end(), [](const PlannedCell& a, const PlannedCell& b) {
        return std::tie(a.area, a.period, a.address, a.cell) < std::tie(b.area, b.period, b.address, b.cell);
    });
    std::vector<ModbusRequest> requests;
    for (const PlannedCell& cell : cells)
        if (requests.empty() || !Extend(requests.back(), cell, gap))
            requests.push_back(RequestFor(cell));
    return requests;
}

std::vector<ModbusRequest> SplitRequest(const ModbusRequest& request)
{
    const std::size_t half = request.cells.size() / 2;
    std::vector<ModbusRequest> halves;
    for (std::size_t i = 0; i < request.cells.size(); ++i) {
        if (i == 0 || i == half)
            halves.push_back(RequestFor(request.cells[i]));
        else
            Extend(halves.back(), request.cells[i], request.count);
    }
    return halves;
}

} // namespace tessary
