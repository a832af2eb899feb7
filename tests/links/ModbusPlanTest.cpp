// Which registers are asked for together: checked against what every plan has to fulfil.
#include "links/ModbusPlan.h"

#include <gtest/gtest.h>
#include <map>
#include <random>

using namespace tessary;

namespace
{

std::vector<PlannedCell> randomCells(std::mt19937& random, int count)
{
    std::vector<PlannedCell> cells;
    for (int i = 0; i < count; ++i) {
        const auto area = static_cast<RegisterArea>(random() % 4);
        const bool bit = area == AREA_COIL || area == AREA_DISCRETE;
        const int widths[] = {1, 2, 4, 8};
        cells.push_back({static_cast<std::size_t>(i), area, static_cast<int>(random() % 3000),
                         bit ? 1 : widths[random() % 4], random() % 2 ? 100 : 1000});
    }
    return cells;
}

void expectSound(const ModbusRequest& request)
{
    const bool bits = request.area == AREA_COIL || request.area == AREA_DISCRETE;
    EXPECT_LE(request.count, bits ? REQUEST_BITS_MAX : REQUEST_REGISTERS_MAX);
    EXPECT_FALSE(request.cells.empty());
    for (const PlannedCell& cell : request.cells) {
        EXPECT_EQ(cell.area, request.area);
        EXPECT_EQ(cell.period, request.period);
        EXPECT_GE(cell.address, request.address);
        EXPECT_LE(cell.address + cell.count, request.address + request.count);
    }
}

PlannedCell holding(std::size_t cell, int address, int count = 1)
{
    return {cell, AREA_HOLDING, address, count, 1000};
}

} // namespace

TEST(Plan, has_every_cell_once_within_the_limits_of_the_protocol)
{
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round) {
        const int gap = static_cast<int>(random() % 30);
        const std::vector<PlannedCell> cells = randomCells(random, 300);
        std::map<std::size_t, int> seen;
        for (const ModbusRequest& request : PlanRequests(cells, gap)) {
            expectSound(request);
            int end = request.address;
            for (const PlannedCell& cell : request.cells) {
                EXPECT_LE(cell.address, end + gap) << "a gap too wide";
                end = std::max(end, cell.address + cell.count);
                ++seen[cell.cell];
            }
        }
        EXPECT_EQ(seen.size(), cells.size());
        for (const auto& [cell, times] : seen)
            EXPECT_EQ(times, 1) << cell;
    }
}

TEST(Plan, spans_gaps_but_not_wider_ones)
{
    EXPECT_EQ(PlanRequests({holding(0, 0), holding(1, 9)}, 8).size(), 1U);
    EXPECT_EQ(PlanRequests({holding(0, 0), holding(1, 10)}, 8).size(), 2U);
    EXPECT_EQ(PlanRequests({holding(0, 0, 4), holding(1, 2, 2), holding(2, 4)}, 0).size(), 1U);
}

TEST(Plan, is_split_until_single_cells_are_left)
{
    std::mt19937 random(2);
    std::vector<ModbusRequest> open = PlanRequests(randomCells(random, 300), 20);
    std::size_t single = 0;
    while (!open.empty()) {
        const ModbusRequest request = open.back();
        open.pop_back();
        expectSound(request);
        if (request.cells.size() == 1) {
            EXPECT_EQ(request.count, request.cells[0].count);
            ++single;
            continue;
        }
        const auto halves = SplitRequest(request);
        ASSERT_EQ(halves.size(), 2U);
        open.insert(open.end(), halves.begin(), halves.end());
    }
    EXPECT_EQ(single, 300U);
}
