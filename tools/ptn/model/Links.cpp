#include "tools/ptn/model/Links.h"

#include "links/Fields.h"
#include "links/ModelFile.h"
#include "links/Values.h"
#include "tools/ptn/common/Csv.h"
#include "tools/ptn/common/Files.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/model/LinkChecks.h"
#include "tools/ptn/model/LinkFields.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>

namespace ptn
{

using namespace tessary;
namespace fs = std::filesystem;

namespace
{

const char* const REPLAY = "replay"; ///< a file of steps; the build reads it

/// Reads the connections of one section.
class LinkReader
{
  public:
    LinkReader(const CodeTable& codes, const fs::path& folder, Diagnostics& diagnostics)
        : codes_(codes), folder_(folder), diagnostics_(diagnostics), writers_(codes)
    {
    }

    void read(const Entry& entry, LinkModel& to);

  private:
    bool readKind(const Entry& entry, const std::vector<Entry>& parts, LinkConnection& connection);
    void readPoint(const Source& source, LinkConnection& connection);
    void readReplay(const Entry& entry, const Subject& what, LinkPoint& point);
    void setDefaults(int kind, const std::set<std::string>& given, LinkPoint& point) const;

    const CodeTable& codes_;
    const fs::path& folder_;
    Diagnostics& diagnostics_;
    CellWriters writers_;
    int cells_ = 0;
};

template <class T>
const Field<T>* FindField(const std::vector<Field<T>>& fields, int kind, const std::string& name)
{
    for (const Field<T>& field : fields)
        if (field.of(kind) && name == field.name)
            return &field;
    return nullptr;
}

std::string FileName(const Place& place)
{
    return fs::path(place.file).filename().string();
}

bool LinkReader::readKind(const Entry& entry, const std::vector<Entry>& parts, LinkConnection& connection)
{
    std::vector<std::string> kinds;
    for (const Entry& part : parts)
        for (int kind = 0; kind < LINK_KINDS; ++kind)
            if (part.name == LINK_KIND_NAMES[kind]) {
                kinds.push_back(part.name);
                connection.kind = kind;
                connection.address = part.value.text();
            }
    if (kinds.size() == 1)
        return true;
    diagnostics_.error(entry.place, LinkName(connection),
                       " has {}. Write one of 'modbus', 'mqtt', 'simulate' and 'socket'.",
                       kinds.empty() ? "no kind" : "more than one kind");
    return false;
}

void LinkReader::read(const Entry& entry, LinkModel& to)
{
    LinkConnection connection;
    connection.name = entry.name;
    connection.file = FileName(entry.place);
    connection.line = entry.place.line;
    const Subject what = LinkName(connection);
    const std::vector<Entry> parts = Entries(entry.value, what, diagnostics_);
    if (!readKind(entry, parts, connection))
        return;
    if (connection.kind == LINK_MQTT)
        connection.timeout = 5000;

    std::vector<std::string> names = FieldNames(connection.kind, ConnectionFields());
    names.emplace_back("points");
    Source points;
    for (const Entry& part : parts) {
        if (part.name == LINK_KIND_NAMES[connection.kind])
            continue;
        if (part.name == "points" && connection.kind != LINK_SOCKET)
            points = part.value;
        else if (const auto* field = FindField(ConnectionFields(), connection.kind, part.name))
            ReadField(*field, part.value, what + ": " + Quoted(part.name), codes_, connection, diagnostics_);
        else
            ReportUnknown(part, what + ": unknown", names, "'ptn help links' lists them.", diagnostics_);
    }
    CheckConnection(connection, entry.place, diagnostics_);
    if (connection.status.given())
        for (const int part : {PART_VALUE, PART_TEXT})
            writers_.add(connection.status, 1, part, what + ": 'status'", entry.place, diagnostics_);
    if (!points.isEmpty() && !points.isList())
        diagnostics_.error(points.place(), what + ": 'points' must be a list of { data: CELL, ... }.");
    for (const Source& point : points.members())
        readPoint(point, connection);
    to.push_back(std::move(connection));
}

void LinkReader::readPoint(const Source& source, LinkConnection& connection)
{
    LinkPoint point;
    point.line = source.place().line;
    Subject what = LinkName(connection) + ", point " + std::to_string(connection.points.size() + 1);
    const std::vector<Entry> parts = Entries(source, what, diagnostics_);
    const auto data =
        std::find_if(parts.begin(), parts.end(), [](const Entry& part) { return part.name == "data"; });
    if (data == parts.end()) {
        diagnostics_.error(source.place(), what + " has no 'data'. Write its cell.");
        return;
    }
    const int errors = diagnostics_.errors();
    what = LinkName(connection) + ", " + data->value.text();
    std::set<std::string> given;
    for (const Entry& part : parts) {
        given.insert(part.name);
        if (part.name == REPLAY && connection.kind == LINK_SIMULATE)
            readReplay(part, what + ": " + Quoted(part.name), point);
        else if (const auto* field = FindField(PointFields(), connection.kind, part.name))
            ReadField(*field, part.value, what + ": " + Quoted(part.name), codes_, point, diagnostics_);
        else
            ReportUnknown(part, what + ": unknown", FieldNames(connection.kind, PointFields()),
                          "'ptn help links' lists them.", diagnostics_);
    }
    if (diagnostics_.errors() > errors)
        return; // what follows from that is no mistake of its own
    setDefaults(connection.kind, given, point);
    CheckPoint(connection, point, given, source.place(), diagnostics_);
    writers_.add(point.data, point.count, point.part, what, source.place(), diagnostics_);
    cells_ += point.count;
    if (cells_ > LINK_CELLS_MAX && cells_ - point.count <= LINK_CELLS_MAX)
        diagnostics_.error(source.place(), what, ": the links have more than {} cells.", LINK_CELLS_MAX);
    connection.points.push_back(std::move(point));
}

void LinkReader::setDefaults(int kind, const std::set<std::string>& given, LinkPoint& point) const
{
    const auto without = [&](const char* field) { return given.count(field) == 0; };
    if (kind == LINK_MODBUS && without("type")) {
        if (point.coil >= 0 || point.discrete >= 0)
            point.type = TYPE_BIT;
        else if (point.bits[0] >= 0)
            point.type = TYPE_UINT16;
    }
    if (kind == LINK_MODBUS && point.type == TYPE_TEXT && without("part"))
        point.part = PART_TEXT;
    if (kind == LINK_SIMULATE && !point.steps.empty() && without("wave"))
        point.wave = WAVE_STEPS;
}

void LinkReader::readReplay(const Entry& entry, const Subject& what, LinkPoint& point)
{
    const fs::path file = folder_ / entry.value.text();
    const auto text = entry.value.text().empty() ? std::nullopt : ReadBytes(file);
    if (!text) {
        diagnostics_.error(
            entry.place, what,
            ": '{}' can not be read. Name a file with a value, or seconds and a value, in each "
            "line.",
            file.string());
        return;
    }
    for (const CsvRow& row : ParseCsv(*text)) {
        const Place place{file.string(), row.line};
        std::vector<double> numbers;
        for (const std::string& field : row.fields)
            if (const auto number = ParseNumber(field))
                numbers.push_back(*number);
        if (numbers.size() != row.fields.size() || numbers.empty() || numbers.size() > 2) {
            if (row.line > 1) // the first line may name the columns
                diagnostics_.error(place, "no value. Write a number, or seconds and a number.");
            continue;
        }
        if (numbers.size() == 2)
            point.times.push_back(numbers[0]);
        point.steps.push_back(numbers.back());
    }
    if (point.steps.empty())
        diagnostics_.error(entry.place, what, ": '{}' has no values.", file.string());
}

} // namespace

void LinkTable::read(const Source& section, const CodeTable& codes, const fs::path& folder,
                     Diagnostics& diagnostics)
{
    LinkReader reader(codes, folder, diagnostics);
    for (const Entry& entry : Entries(section, "'links'", diagnostics))
        reader.read(entry, links_);
    if (links_.size() > static_cast<std::size_t>(LINK_CONNECTIONS_MAX))
        diagnostics.error(section.place(), fmt::format("'links' has {} connections. A panel has {} at most.",
                                                       links_.size(), LINK_CONNECTIONS_MAX));
    // Whatever has not been looked at: a panel without any links is worse than a build that fails.
    LinkModel taken;
    std::string problem;
    if (!diagnostics.failed() && !ReadLinks(bytes(), taken, problem))
        diagnostics.error(section.place(),
                          "'links': a panel would refuse them: " + problem + ". Correct that.");
}

std::string LinkTable::bytes() const
{
    return LinkBytes(links_);
}

void LinkTable::load(const std::string& bytes, const Place& place, Diagnostics& diagnostics)
{
    std::string problem;
    if (!bytes.empty() && !ReadLinks(bytes, links_, problem))
        diagnostics.error(place, "no links that can be read: " + problem + ". Get an undamaged copy.");
}

bool LinkTable::same(const std::string& one, const std::string& other)
{
    const auto withoutPlaces = [](const std::string& bytes) {
        LinkModel links;
        std::string problem;
        ReadLinks(bytes, links, problem);
        for (LinkConnection& connection : links) {
            connection.file.clear();
            connection.line = 0;
            for (LinkPoint& point : connection.points)
                point.line = 0;
        }
        return LinkBytes(links);
    };
    return one == other || withoutPlaces(one) == withoutPlaces(other);
}

std::string LinkTable::yaml() const
{
    std::string text;
    for (const LinkConnection& connection : links_) {
        text += "  " + YamlScalar(connection.name) + ":\n    " + LINK_KIND_NAMES[connection.kind] + ":" +
                (connection.address.empty() ? "" : " " + YamlScalar(connection.address)) + "\n";
        for (const std::string& part : FieldTexts(connection, connection.kind, ConnectionFields()))
            text += "    " + part + "\n";
        if (!connection.points.empty())
            text += "    points:\n";
        for (const LinkPoint& point : connection.points)
            text += "      - " + YamlMap(FieldTexts(point, connection.kind, PointFields())) + "\n";
    }
    return text.empty() ? "" : "links:\n" + text;
}

} // namespace ptn
