#include "tools/ptn/source/StateFile.h"

#include "base/Constants.h"
#include "base/Limits.h"
#include "log/Clock.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"

#include <cstdio>
#include <cstdlib>

namespace ptn
{

namespace
{

constexpr std::size_t LONGEST_TEXT = tessary::TEXT_BUFFER - 1;

std::array<int, 7> ReadClock(const Source& source, const std::array<int, 7>& before, Diagnostics& diagnostics)
{
    int year = 0;
    int month = 0;
    int day = 0;
    int hour = 0;
    int minute = 0;
    int second = 0;
    const int count =
        std::sscanf(source.text().c_str(), "%d-%d-%d %d:%d:%d", &year, &month, &day, &hour, &minute, &second);
    if (count < 5 || year < 2000 || year > 2099 || month < 1 || month > 12 || day < 1 ||
        day > Get_DayCount(year, month) || hour < 0 || hour > 23 || minute < 0 || minute > 59 || second < 0 ||
        second > 59) {
        diagnostics.error(source.place(), "'clock' must be a time such as 2025-03-02 09:05:07.");
        return before;
    }
    return {year, month, day, (Get_Week(year, month, day) + 6) % 7, hour, minute, second};
}

void SetValue(CellState& state, const Source& source, const Subject& what, Diagnostics& diagnostics)
{
    const std::string text = source.text();
    char* end = nullptr;
    const float value = std::strtof(text.c_str(), &end);
    if (!text.empty() && !*end)
        state.value = value;
    state.text = ToEuc(text, LONGEST_TEXT, what, source.place(), diagnostics).value_or("");
}

void ReadCell(const std::string& name, const Source& source, CellState& state, Diagnostics& diagnostics)
{
    const Subject what = "cell " + Quoted(name);
    if (!source.isMap()) {
        SetValue(state, source, what, diagnostics);
        return;
    }
    const auto bit = [&](const Entry& part, int mask) {
        if (Boolean(part.value, what + ": " + Quoted(part.name), diagnostics).value_or(false))
            state.word |= static_cast<unsigned short>(mask);
    };
    for (const Entry& part : Entries(source, what, diagnostics)) {
        if (part.name == "value")
            SetValue(state, part.value, what, diagnostics);
        else if (part.name == "text")
            state.text = ToEuc(part.value.text(), LONGEST_TEXT, what, part.place, diagnostics).value_or("");
        else if (part.name == "color")
            state.word |= static_cast<unsigned short>(
                Integer(part.value, 0, STATE_COLOR, what + ": 'color'", diagnostics).value_or(0));
        else if (part.name == "blink")
            bit(part, STATE_FLICKER);
        else if (part.name == "disabled")
            bit(part, STATE_DISABLE);
        else if (part.name == "hidden")
            bit(part, STATE_HIDDEN);
        else
            ReportUnknown(part, what + ": unknown", {"value", "text", "color", "blink", "disabled", "hidden"},
                          "Write value, text, color, blink, disabled or hidden.", diagnostics);
    }
}

// One cell, or a list for it and those behind it.
void ReadCells(const Entry& entry, const CodeTable& codes, ScreenState& state, Diagnostics& diagnostics)
{
    const auto cell = codes.find(entry.name, "'cells'", entry.place, diagnostics);
    if (!cell)
        return;
    const std::vector<Source> values =
        entry.value.isList() ? entry.value.members() : std::vector<Source>{entry.value};
    if (values.size() > static_cast<std::size_t>(cell->count - cell->offset)) {
        diagnostics.error(entry.place,
                          fmt::format("cell '{}': {} values go beyond its code. Write at most {}.",
                                      entry.name, values.size(), cell->count - cell->offset));
        return;
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        CellState one;
        one.cell =
            static_cast<int>(0LL + codes.row(cell->code)->first + cell->offset + static_cast<long long>(i));
        ReadCell(entry.name, values[i], one, diagnostics);
        state.cells.push_back(one);
    }
}

} // namespace

ScreenState ReadState(const std::string& file, const CodeTable& codes, Diagnostics& diagnostics)
{
    ScreenState state;
    state.clock = {2025, 1, 1, 3, 9, 0, 0};
    if (file.empty())
        return state;
    const auto source = ReadYaml(file, diagnostics);
    if (!source)
        return state;
    for (const Entry& part : Entries(*source, "the file", diagnostics)) {
        if (part.name == "clock") {
            state.clock = ReadClock(part.value, state.clock, diagnostics);
        } else if (part.name == "cells") {
            for (const Entry& entry : Entries(part.value, "'cells'", diagnostics))
                ReadCells(entry, codes, state, diagnostics);
        } else {
            ReportUnknown(part, "unknown", {"clock", "cells"}, "A state has 'clock' and 'cells'.",
                          diagnostics);
        }
    }
    return state;
}

} // namespace ptn
