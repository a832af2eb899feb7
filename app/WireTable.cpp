#include "app/WireTable.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <cstring>

using namespace tessary;

HAISENHEDR HaisenHedr;
std::vector<HAISENDATA> HaisenData;
std::vector<std::int32_t> HaisenIndx;

namespace
{

constexpr char FILE_NAME[] = "Haisenhyo";
bool tableIsKnown = true; // else the file holds another one, which could not be read

/// Where a column's text lies in its record. The length is a number and has none.
struct Field {
    std::size_t offset;
    std::size_t size;
};

#define FIELD(name)                                                                                          \
    Field                                                                                                    \
    {                                                                                                        \
        offsetof(HAISENDATA, name), sizeof HAISENDATA::name                                                  \
    }
constexpr Field FIELDS[] = {
    FIELD(senban), FIELD(senkei), FIELD(sensyu), FIELD(kyoku),  FIELD(kairo),  FIELD(haisen),
    FIELD(zahyo1), FIELD(tansi1), FIELD(size1),  FIELD(syori1), FIELD(zahyo2), FIELD(tansi2),
    FIELD(size2),  FIELD(syori2), {0, 0},        FIELD(sheet),
};
#undef FIELD
static_assert(sizeof FIELDS / sizeof FIELDS[0] == CONT_WIRECOLUMN);

/// Whole records that the file has room for.
int RecordsInFile()
{
    constexpr int header = sizeof(HAISENHEDR);
    constexpr int record = sizeof(HAISENDATA);
    return std::max(FileSize(ProjPath, FILE_NAME) - header, 0) / record;
}

/// Reads at most `count` records; ends at the first one that can not be read.
void ReadRecords(CFileRead& reader, int count)
{
    HAISENDATA wire;
    for (int i = 0; i < count; i++) {
        if (reader.ReadBlock(&wire, sizeof wire, 0, nullptr, 0) != 1)
            return;
        HaisenData.push_back(wire);
    }
}

} // namespace

void LoadHaisenhyo()
{
    FreeHaisenhyo();
    CFileRead reader(ProjPath, FILE_NAME, nullptr, 0);
    reader.ReadBlock(&HaisenHedr, sizeof HaisenHedr, 0, nullptr, 0);
    tableIsKnown = !IsUnreadable(ProjPath, FILE_NAME);

    const std::int32_t claimed = HaisenHedr.datacount;
    ReadRecords(reader, std::min({claimed, RecordsInFile(), CONT_HAISENDATA}));
    HaisenHedr.datacount = static_cast<std::int32_t>(HaisenData.size());
    if (claimed != HaisenHedr.datacount) {
        char text[100];
        std::snprintf(text, sizeof text, "%s: %d records announced, %d read", FILE_NAME, claimed,
                      HaisenHedr.datacount);
        LogfileWrite("HAISENHYO", text, __FILE__, __LINE__);
    }

    for (std::int32_t i = 0; i < HaisenHedr.datacount; i++)
        HaisenIndx.push_back(i);
}

bool SaveHaisenhyo()
{
    if (!tableIsKnown)
        return false;
    CFileWrite there(ProjPath, FILE_NAME, nullptr, 0); // a table that is missing is not made
    if (!there.fp)
        return false;
    const auto header = reinterpret_cast<const char*>(&HaisenHedr);
    const auto wires = reinterpret_cast<const char*>(HaisenData.data());
    std::string bytes(header, sizeof HaisenHedr);
    bytes.append(wires, HaisenData.size() * sizeof(HAISENDATA));
    return FileWrite(ProjPath, FILE_NAME, bytes.data(), static_cast<int>(bytes.size()), 0, nullptr, 0) == 1;
}

void FreeHaisenhyo()
{
    HaisenData = std::vector<HAISENDATA>();
    HaisenIndx = std::vector<std::int32_t>();
}

HAISENDATA* WireAt(int position)
{
    if (position < 0 || static_cast<std::size_t>(position) >= HaisenIndx.size())
        return nullptr;
    return &HaisenData[static_cast<std::size_t>(HaisenIndx[static_cast<std::size_t>(position)])];
}

std::string WireText(const HAISENDATA& wire, int column)
{
    if (column == WIRE_LENGTH) {
        char text[12];
        std::snprintf(text, sizeof text, "%10d", wire.length);
        return text;
    }
    const Field& field = FIELDS[column];
    const char* text = reinterpret_cast<const char*>(&wire) + field.offset;
    return std::string(text, BoundedLength(text, field.size));
}

void SetWireText(HAISENDATA& wire, int column, const char* text)
{
    SetFieldText(reinterpret_cast<char*>(&wire) + FIELDS[column].offset, FIELDS[column].size, text);
}

void SetFieldText(char* field, std::size_t size, const char* text)
{
    if (std::string(field, BoundedLength(field, size)) == text)
        return;
    const std::size_t length = EucCut(text, size - 1);
    std::memset(field, 0, size);
    std::memcpy(field, text, length);
}

void SortHaisenhyo(int column, int descending)
{
    std::vector<std::string> keys;
    keys.reserve(HaisenData.size());
    for (const HAISENDATA& wire : HaisenData)
        keys.push_back(WireText(wire, column));

    // Texts compare by unsigned bytes. A stable sort gives the order that inserting record after record
    // gives.
    std::stable_sort(HaisenIndx.begin(), HaisenIndx.end(), [&](std::int32_t left, std::int32_t right) {
        const std::string& first = keys[static_cast<std::size_t>(left)];
        const std::string& second = keys[static_cast<std::size_t>(right)];
        return descending ? second < first : first < second;
    });
}
