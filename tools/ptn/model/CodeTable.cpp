#include "tools/ptn/model/CodeTable.h"

#include "base/Constants.h"
#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "tools/ptn/common/Bytes.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace ptn
{

namespace
{

/// The last cell that the store can have.
constexpr int LAST_CELL = CONT_COMNDATA - 1;

// The sum of "+1+2"; none when something else stands there.
std::optional<int> Offset(const std::string& text)
{
    long long sum = 0;
    for (std::size_t at = 0; at < text.size();) {
        const std::size_t end = std::min(text.find('+', at + 1), text.size());
        const std::optional<int> part = ParseInteger(text.substr(at + 1, end - at - 1));
        if (!part || *part < 0 || (sum += *part) > LAST_CELL)
            return std::nullopt;
        at = end;
    }
    return static_cast<int>(sum);
}

} // namespace

std::optional<CodeTable::Row> CodeTable::readRow(const Entry& entry, int next, Diagnostics& diagnostics) const
{
    const Subject what = "code " + Quoted(entry.name);
    Row row{entry.name, "", next, 0, entry.place, 0};
    if (entry.name.empty() || ParseInteger(entry.name) || entry.name.find('+') != std::string::npos) {
        diagnostics.error(entry.place, what + " could be taken for a cell. Write a name that is neither "
                                              "empty nor a number and has no '+'.");
        return std::nullopt;
    }
    const auto code = ToEuc(entry.name, SIZE_ID_CODE, what, entry.place, diagnostics);
    if (!code)
        return std::nullopt;
    row.code = *code;

    Source count = entry.value;
    if (entry.value.isMap()) {
        count = Source();
        for (const Entry& part : Entries(entry.value, what, diagnostics)) {
            if (part.name == "count") {
                count = part.value;
            } else if (part.name == "first") {
                const auto first = Integer(part.value, 1, LAST_CELL, what + ": 'first'", diagnostics);
                if (!first)
                    return std::nullopt;
                row.first = *first;
            } else if (part.name == "line") {
                row.line = Integer(part.value, std::numeric_limits<int>::min(),
                                   std::numeric_limits<int>::max(), what + ": 'line'", diagnostics)
                               .value_or(0);
            } else {
                ReportUnknown(part, what + ": unknown", {"first", "count", "line"},
                              "Write 'first' and 'count'.", diagnostics);
            }
        }
    }
    if (count.isEmpty()) {
        diagnostics.error(entry.place, what + " has no 'count'. Write how many cells it has.");
        return std::nullopt;
    }
    const auto cells = Integer(count, 1, LAST_CELL, what + ": 'count'", diagnostics);
    if (!cells)
        return std::nullopt;
    row.count = *cells;
    if (row.count > LAST_CELL + 1 - row.first) {
        diagnostics.error(entry.place, what, " ends beyond cell {}. Give it fewer cells or a lower 'first'.",
                          LAST_CELL);
        return std::nullopt;
    }
    return row;
}

void CodeTable::read(const Source& section, Diagnostics& diagnostics)
{
    const int errorsBefore = diagnostics.errors();
    int next = 1;
    for (const Entry& entry : Entries(section, "'codes'", diagnostics)) {
        const std::optional<Row> row = readRow(entry, next, diagnostics);
        if (!row)
            continue;
        next = row->first + row->count;
        rows_.push_back(*row);
    }
    // A row that is missing because of its own error would only seem to leave a gap.
    if (diagnostics.errors() == errorsBefore)
        checkCover(section.place(), diagnostics);
}

void CodeTable::checkCover(const Place& section, Diagnostics& diagnostics) const
{
    std::vector<const Row*> order;
    for (const Row& row : rows_)
        order.push_back(&row);
    std::stable_sort(order.begin(), order.end(),
                     [](const Row* a, const Row* b) { return a->first < b->first; });

    const Row* before = nullptr;
    int next = 1;
    for (const Row* row : order) {
        const Subject what = "code " + Quoted(row->name) + " begins with cell " + std::to_string(row->first);
        if (row->first < next)
            diagnostics.error(row->place, what, ", which belongs to '{}'. Give it another 'first'.",
                              before->name);
        else if (row->first > next)
            diagnostics.error(row->place, what,
                              ", but the cells from {} to {} belong to no code. Add a code for them.", next,
                              row->first - 1);
        next = std::max(next, row->first + row->count);
        before = row;
    }
    if (order.empty() && section.line > 0)
        diagnostics.error(section, "'codes' is empty. Write one 'name: count' per line, or leave it out.");
}

std::optional<CodeTable::Cell> CodeTable::find(const Source& source, const Subject& attribute,
                                               Diagnostics& diagnostics) const
{
    return find(source.text(), attribute, source.place(), diagnostics);
}

std::optional<CodeTable::Cell> CodeTable::find(const std::string& text, const Subject& attribute,
                                               const Place& place, Diagnostics& diagnostics) const
{
    const auto complain = [&](const std::string& what) {
        diagnostics.error(place, attribute + ": " + what);
        return std::nullopt;
    };

    if (const std::optional<int> number = ParseInteger(text)) {
        for (const Row& row : rows_)
            if (row.covers(*number))
                return Cell{row.code, *number - row.first, row.count};
        return complain(fmt::format("no code covers cell {}. Use a cell of 'codes' or extend it.", text));
    }

    const std::string name = text.substr(0, text.find('+'));
    const std::optional<int> offset = Offset(text.substr(name.size()));
    if (name.empty() || !offset || *offset < 0)
        return complain("write a code with the number of its cell, such as SPEED+0, or a cell number.");
    for (const Row& row : rows_) {
        if (row.name != name)
            continue;
        if (*offset < row.count)
            return Cell{row.code, *offset, row.count};
        return complain(
            fmt::format("code '{}' has {} cells, so there is no +{}. Write at most +{} or extend the code.",
                        name, row.count, *offset, row.count - 1LL));
    }
    std::vector<std::string> names;
    for (const Row& row : rows_)
        names.push_back(row.name);
    return complain(
        fmt::format("no code '{}'.{} Add it to 'codes' or use another.", name, Suggestion(name, names)));
}

std::string CodeTable::bytes() const
{
    std::string bytes;
    for (const Row& row : rows_) {
        PTRNCODE record{};
        CopyText(record.ID_Code, row.code.c_str());
        record.DataCount = row.count;
        record.DataNo = row.first;
        record.DispNo = row.line;
        AppendRecord(bytes, record);
    }
    return bytes;
}

void CodeTable::load(const std::string& bytes, const Place& place, Diagnostics& diagnostics)
{
    if (bytes.size() % sizeof(PTRNCODE))
        diagnostics.warning(place, fmt::format("its last {} bytes are no whole record and are left out.",
                                               bytes.size() % sizeof(PTRNCODE)));
    for (std::size_t at = 0; at + sizeof(PTRNCODE) <= bytes.size(); at += sizeof(PTRNCODE)) {
        PTRNCODE record;
        std::memcpy(&record, bytes.data() + at, sizeof record);
        Row row;
        row.code.assign(record.ID_Code, BoundedLength(record.ID_Code, sizeof record.ID_Code));
        row.name = EucToUtf8(row.code);
        row.first = record.DataNo;
        row.count = record.DataCount;
        row.line = record.DispNo;
        row.place = place;
        rows_.push_back(row);
    }
}

const CodeTable::Row* CodeTable::row(const std::string& code) const
{
    const auto found =
        std::find_if(rows_.begin(), rows_.end(), [&](const Row& row) { return row.code == code; });
    return found == rows_.end() ? nullptr : &*found;
}

int CodeTable::cells() const
{
    long long cells = 1;
    for (const Row& row : rows_)
        cells += std::max(row.count, 0);
    return static_cast<int>(std::min<long long>(cells, CONT_COMNDATA));
}

std::string CodeTable::nameOf(int cell) const
{
    for (const Row& row : rows_)
        if (row.covers(cell))
            return row.name + "+" + std::to_string(cell - row.first);
    return "";
}

std::string CodeTable::yaml() const
{
    if (rows_.empty())
        return "";
    std::string text = "codes:\n";
    long long next = 1;
    for (const Row& row : rows_) {
        std::vector<std::string> parts;
        if (row.first != next)
            parts.push_back("first: " + std::to_string(row.first));
        parts.push_back("count: " + std::to_string(row.count));
        if (row.line)
            parts.push_back("line: " + std::to_string(row.line));
        const bool plain = parts.size() == 1;
        text += "  " + YamlScalar(row.name) + ": " + (plain ? std::to_string(row.count) : YamlMap(parts)) +
                " # from cell " + std::to_string(row.first) + "\n";
        next = row.end();
    }
    return text;
}

} // namespace ptn
