// Which registers are asked for together.
#pragma once

#include "links/Link.h"

#include <cstddef>
#include <vector>

namespace tessary
{

/// Most bits and registers that one request may ask for.
constexpr int REQUEST_BITS_MAX = 2000;
constexpr int REQUEST_REGISTERS_MAX = 125;

/// Registers, or bits, that one cell needs.
struct PlannedCell {
    std::size_t cell; ///< its index
    RegisterArea area;
    int address;
    int count;
    int period; ///< ms
};

/// One request, and the cells that its answer is for.
struct ModbusRequest {
    RegisterArea area = AREA_HOLDING;
    int period = 0;
    int address = 0;
    int count = 0;
    std::vector<PlannedCell> cells; ///< by address
};

/// What the cells of a connection need.
std::vector<PlannedCell> PlannedCells(const LinkConnection& connection, const std::vector<LinkCell>& cells);

/// As few requests as the gap allows.
/// @param gap  unused registers or bits between two cells that a request may span
std::vector<ModbusRequest> PlanRequests(std::vector<PlannedCell> cells, int gap);

/// Both halves of a request for more than one cell.
std::vector<ModbusRequest> SplitRequest(const ModbusRequest& request);

} // namespace tessary
