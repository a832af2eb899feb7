// The wiring table, "Haisenhyo", in the project's sources: a header and one line of a CSV file per wire.
#include "app/WireTable.h"
#include "tools/ptn/common/Bytes.h"
#include "tools/ptn/common/Csv.h"
#include "tools/ptn/common/EucName.h"
#include "tools/ptn/common/Names.h"
#include "tools/ptn/source/Sections.h"
#include "tools/ptn/yaml/YamlText.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace ptn
{

namespace
{

/// The CSV file of a dump.
constexpr const char* TABLE_NAME = "wires.csv";

/// A text field of a record.
struct TextField {
    const char* name; ///< in the sources
    std::size_t offset;
    std::size_t size;
};

constexpr TextField HEADER_FIELDS[] = {
    {"system", offsetof(HAISENHEDR, systemno), sizeof HAISENHEDR::systemno},
    {"delivery", offsetof(HAISENHEDR, nousaki), sizeof HAISENHEDR::nousaki},
    {"work", offsetof(HAISENHEDR, sakuban), sizeof HAISENHEDR::sakuban},
    {"board", offsetof(HAISENHEDR, banno), sizeof HAISENHEDR::banno},
    {"comment", offsetof(HAISENHEDR, comment), sizeof HAISENHEDR::comment},
};

constexpr TextField WIRE_FIELDS[] = {
    {"wire", offsetof(HAISENDATA, senban), sizeof HAISENDATA::senban},
    {"gauge", offsetof(HAISENDATA, senkei), sizeof HAISENDATA::senkei},
    {"kind", offsetof(HAISENDATA, sensyu), sizeof HAISENDATA::sensyu},
    {"pole", offsetof(HAISENDATA, kyoku), sizeof HAISENDATA::kyoku},
    {"circuit", offsetof(HAISENDATA, kairo), sizeof HAISENDATA::kairo},
    {"wiring", offsetof(HAISENDATA, haisen), sizeof HAISENDATA::haisen},
    {"position1", offsetof(HAISENDATA, zahyo1), sizeof HAISENDATA::zahyo1},
    {"terminal1", offsetof(HAISENDATA, tansi1), sizeof HAISENDATA::tansi1},
    {"size1", offsetof(HAISENDATA, size1), sizeof HAISENDATA::size1},
    {"treatment1", offsetof(HAISENDATA, syori1), sizeof HAISENDATA::syori1},
    {"position2", offsetof(HAISENDATA, zahyo2), sizeof HAISENDATA::zahyo2},
    {"terminal2", offsetof(HAISENDATA, tansi2), sizeof HAISENDATA::tansi2},
    {"size2", offsetof(HAISENDATA, size2), sizeof HAISENDATA::size2},
    {"treatment2", offsetof(HAISENDATA, syori2), sizeof HAISENDATA::syori2},
    {"sheet", offsetof(HAISENDATA, sheet), sizeof HAISENDATA::sheet},
};

/// The two numbers of a wire.
struct NumberField {
    const char* name;
    std::int32_t HAISENDATA::*member;
};
constexpr NumberField NUMBER_FIELDS[] = {{"line", &HAISENDATA::gyoban}, {"length", &HAISENDATA::length}};

const TextField* FindText(const std::string& name)
{
    for (const TextField& field : WIRE_FIELDS)
        if (name == field.name)
            return &field;
    return nullptr;
}

const NumberField* FindNumber(const std::string& name)
{
    for (const NumberField& field : NUMBER_FIELDS)
        if (name == field.name)
            return &field;
    return nullptr;
}

std::vector<std::string> ColumnNames()
{
    std::vector<std::string> names;
    for (const NumberField& field : NUMBER_FIELDS)
        names.push_back(field.name);
    for (const TextField& field : WIRE_FIELDS)
        names.push_back(field.name);
    return names;
}

// One byte of each field is its terminator.
template <typename Record>
void SetText(Record& record, const TextField& field, const std::string& utf8, const Subject& what,
             const Place& place, Diagnostics& diagnostics)
{
    if (const auto text = ToEuc(utf8, field.size - 1, what, place, diagnostics))
        std::memcpy(reinterpret_cast<char*>(&record) + field.offset, text->data(), text->size());
}

template <typename Record> std::string GetText(const Record& record, const TextField& field)
{
    const char* text = reinterpret_cast<const char*>(&record) + field.offset;
    return EucToUtf8(std::string(text, BoundedLength(text, field.size)));
}

void SetColumn(HAISENDATA& wire, const std::string& name, const std::string& value, const Place& place,
               Diagnostics& diagnostics)
{
    const Subject what = "column " + Quoted(name);
    if (const TextField* text = FindText(name)) {
        SetText(wire, *text, value, what, place, diagnostics);
    } else if (const NumberField* number = FindNumber(name); number && !value.empty()) {
        if (const auto parsed = ParseInteger(value))
            wire.*number->member = *parsed;
        else
            diagnostics.error(place, what, " can not be '{}'. Write a whole number.", value);
    }
}

// The section "wiring": the header's texts "system", "delivery", "work", "board" and "comment", and "table",
// a CSV file whose first line names the columns.
class Wiring : public OwnSection
{
  public:
    void read(const Source& section, const std::filesystem::path& folder, Diagnostics& diagnostics) override;
    std::optional<std::string> bytes() const override { return bytes_; }
    bool load(const std::string& bytes, const Place& place, Diagnostics& diagnostics) override;
    void emit(FileMap& sources) const override;

  private:
    void readTable(const std::filesystem::path& file, const Place& place, Diagnostics& diagnostics);
    std::string yaml() const;
    std::string csv() const;

    std::optional<std::string> bytes_;
};

void Wiring::read(const Source& section, const std::filesystem::path& folder, Diagnostics& diagnostics)
{
    if (section.isEmpty())
        return;
    HAISENHEDR header{};
    std::vector<std::string> names = {"table"};
    for (const TextField& field : HEADER_FIELDS)
        names.push_back(field.name);
    Entry table;
    for (const Entry& entry : Entries(section, "'wiring'", diagnostics)) {
        const auto field = std::find_if(std::begin(HEADER_FIELDS), std::end(HEADER_FIELDS),
                                        [&](const TextField& one) { return entry.name == one.name; });
        if (field != std::end(HEADER_FIELDS)) {
            const Subject what = "'wiring': " + Quoted(entry.name);
            if (const auto text = Text(entry.value, what, diagnostics))
                SetText(header, *field, *text, what, entry.place, diagnostics);
        } else if (entry.name == "table") {
            table = entry;
        } else {
            ReportUnknown(entry, "'wiring': unknown", names,
                          "Write system, delivery, work, board, comment and table.", diagnostics);
        }
    }
    AppendRecord(bytes_.emplace(), header);
    if (const auto name = Text(table.value, "'wiring': 'table'", diagnostics); name && !name->empty())
        readTable(folder / *name, table.place, diagnostics);
    const std::int32_t count =
        static_cast<std::int32_t>((bytes_->size() - sizeof(HAISENHEDR)) / sizeof(HAISENDATA));
    std::memcpy(bytes_->data() + offsetof(HAISENHEDR, datacount), &count, sizeof count);
}

void Wiring::readTable(const std::filesystem::path& file, const Place& place, Diagnostics& diagnostics)
{
    const std::optional<std::string> text = ReadBytes(file);
    if (!text) {
        diagnostics.error(
            place, fmt::format("'wiring': '{}' can not be read. Put the CSV file there or correct 'table'.",
                               file.string()));
        return;
    }
    const std::vector<CsvRow> rows = ParseCsv(*text);
    const std::size_t wires = rows.empty() ? 0 : rows.size() - 1;
    if (wires > static_cast<std::size_t>(CONT_HAISENDATA)) {
        diagnostics.error(
            {file.string(), 0},
            fmt::format("has {} wires; the program reads {}. Split the table.", wires, CONT_HAISENDATA));
        return;
    }
    std::vector<std::string> columns;
    for (const CsvRow& row : rows) {
        const Place line{file.string(), row.line};
        if (columns.empty()) {
            columns = row.fields;
            for (const std::string& column : columns)
                if (!FindText(column) && !FindNumber(column))
                    diagnostics.error(line, fmt::format("no column '{}'.{} The first line names the columns.",
                                                        column, Suggestion(column, ColumnNames())));
            continue;
        }
        if (row.fields.size() > columns.size()) {
            diagnostics.error(
                line, fmt::format("has {} fields for {} columns. Quote fields that have commas in them.",
                                  row.fields.size(), columns.size()));
            continue;
        }
        HAISENDATA wire{};
        for (std::size_t i = 0; i < row.fields.size(); ++i)
            SetColumn(wire, columns[i], row.fields[i], line, diagnostics);
        AppendRecord(*bytes_, wire);
    }
}

bool Wiring::load(const std::string& bytes, const Place& place, Diagnostics& diagnostics)
{
    HAISENHEDR header;
    if (bytes.size() < sizeof header) {
        diagnostics.error(place,
                          "not a whole wiring table: it ends within its header. Get an undamaged copy.");
        return false;
    }
    std::memcpy(&header, bytes.data(), sizeof header);
    if (header.datacount < 0 ||
        bytes.size() != sizeof header + static_cast<std::size_t>(header.datacount) * sizeof(HAISENDATA)) {
        diagnostics.error(place, "not a whole wiring table: it has not as many wires as it says. Get an "
                                 "undamaged copy.");
        return false;
    }
    bytes_ = bytes;
    return true;
}

void Wiring::emit(FileMap& sources) const
{
    if (!bytes_)
        return;
    sources["tables.yaml"] += yaml();
    sources[TABLE_NAME] = csv();
}

std::string Wiring::yaml() const
{
    HAISENHEDR header;
    std::memcpy(&header, bytes_->data(), sizeof header);
    std::string text = "wiring:\n";
    for (const TextField& field : HEADER_FIELDS)
        text += std::string("  ") + field.name + ": " + YamlScalar(GetText(header, field)) + "\n";
    return text + "  table: " + YamlScalar(TABLE_NAME) + "\n";
}

std::string Wiring::csv() const
{
    std::string text;
    for (const std::string& name : ColumnNames())
        text += (text.empty() ? "" : ",") + name;
    text += "\n";
    for (std::size_t at = sizeof(HAISENHEDR); at + sizeof(HAISENDATA) <= bytes_->size();
         at += sizeof(HAISENDATA)) {
        HAISENDATA wire;
        std::memcpy(&wire, bytes_->data() + at, sizeof wire);
        std::string line;
        for (const NumberField& field : NUMBER_FIELDS)
            line += (line.empty() ? "" : ",") + std::to_string(wire.*field.member);
        for (const TextField& field : WIRE_FIELDS)
            line += "," + CsvField(GetText(wire, field));
        text += line + "\n";
    }
    return text;
}

const SectionRegistration<Wiring> REGISTRATION("wiring", "Haisenhyo", ProjectFile::Seed);

} // namespace

} // namespace ptn
