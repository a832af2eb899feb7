#include "comndata/CodeTable.h"

#include "base/EucText.h"
#include "comndata/Cells.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "log/Category.h"
#include "log/LogText.h"

#include <algorithm>
#include <unordered_map>
#include <vector>

using namespace tessary;

PTRNCODE* PtrnCode;
std::int32_t PtrnRecd;
BYTE* PtrnFlag;

namespace
{

// What the public pointers point at.
std::vector<PTRNCODE> rows;
std::vector<BYTE> flags;

unsigned generation; // of the table that is loaded; 0 none
unsigned loads;      // only ever grows
constexpr char FLAG_FILE[] = "PtrnFlag";
bool flagsAreKnown = false; // else the file holds others, which could not be read

/// Finds the first row with a code. A search through the rows for each item would make a large pattern over a
/// large table take minutes to open.
class CodeIndex
{
  public:
    const PTRNCODE* find(const char* code)
    {
        if (table_ != PtrnCode || count_ != PtrnRecd)
            build();
        const auto place = rows_.find(code);
        return place == rows_.end() ? nullptr : PtrnCode + place->second;
    }

    void clear() { *this = CodeIndex(); }

  private:
    void build()
    {
        rows_.clear();
        for (std::int32_t i = 0; i < PtrnRecd; i++)
            rows_.emplace(CodeOf(PtrnCode[i]), i);
        table_ = PtrnCode;
        count_ = PtrnRecd;
    }

    std::unordered_map<std::string, std::int32_t> rows_;
    const PTRNCODE* table_ = nullptr; ///< the table that the index was made for
    std::int32_t count_ = 0;
};
CodeIndex codeIndex;

void LogCut(const PTRNCODE& row, std::size_t number, const char* reason)
{
    LogText(CATEGORY_CELLS, __FILE__, __LINE__, "PtrnCode: table ends before row %zu [%.*s], count %d: %s",
            number, static_cast<int>(sizeof row.ID_Code), row.ID_Code, row.DataCount, reason);
}

/// Takes the rows that can be used, which are those before the first one that can not.
/// @return number of cells that they need
int CutRows()
{
    std::int64_t cells = 1; // the cell of items without a code
    std::size_t kept = 0;
    for (; kept < rows.size(); kept++) {
        const PTRNCODE& row = rows[kept];
        if (row.DataCount < 0) {
            LogCut(row, kept, "negative");
            break;
        }
        if (cells + row.DataCount > CONT_COMNDATA) {
            LogCut(row, kept, "too many cells");
            break;
        }
        cells += row.DataCount;
    }
    rows.resize(kept);
    rows.shrink_to_fit();
    return static_cast<int>(cells);
}

/// @param size  bytes of the file; what does not fill a row is not read
/// @return number of cells that the rows need
int LoadRows(int size)
{
    int count = size / static_cast<int>(sizeof(PTRNCODE));
    if (count > CONT_PTRNCODE) {
        LogText(CATEGORY_CELLS, __FILE__, __LINE__, "PtrnCode: %d rows, only %d are read", count,
                CONT_PTRNCODE);
        count = CONT_PTRNCODE;
    }
    if (count == 0)
        return 1;

    rows.resize(static_cast<std::size_t>(count));
    FileRead(ProjPath, "PtrnCode", rows.data(), count * static_cast<int>(sizeof(PTRNCODE)), 0, nullptr, 0);
    const int cells = CutRows();
    PtrnRecd = static_cast<std::int32_t>(rows.size());
    PtrnCode = rows.empty() ? nullptr : rows.data();
    return cells;
}

/// The file is written back at once, so that it has a byte for every data number from the first start on.
/// A file that is longer than the store keeps its tail.
void LoadFlags()
{
    flags.resize(static_cast<std::size_t>(PtrnDataNo));
    PtrnFlag = flags.data();
    const bool read = FileRead(ProjPath, FLAG_FILE, PtrnFlag, PtrnDataNo, 0, nullptr, 0) == 1;
    flagsAreKnown = read || !IsUnreadable(ProjPath, FLAG_FILE);
    SaveFlags();
}

} // namespace

bool tessary::SaveFlags()
{
    return flagsAreKnown && FileWrite(ProjPath, FLAG_FILE, PtrnFlag, PtrnDataNo, 0, nullptr, 0) == 1;
}

void tessary::LoadCodeTable()
{
    ExitCodeTable();
    const int size = FileSize(ProjPath, "PtrnCode");
    if (size > 0) {
        CreateCells(LoadRows(size));
        LoadFlags();
        generation = ++loads;
    }
}

void tessary::ExitCodeTable()
{
    CreateCells(0);
    rows = std::vector<PTRNCODE>();
    flags = std::vector<BYTE>();
    codeIndex.clear();
    PtrnCode = nullptr;
    PtrnRecd = 0;
    PtrnFlag = nullptr;
    generation = 0;
}

unsigned tessary::CodeTableGeneration()
{
    return generation;
}

std::string tessary::CodeOf(const PTRNCODE& row)
{
    return {row.ID_Code, BoundedLength(row.ID_Code, sizeof row.ID_Code)};
}

std::int64_t tessary::OffsetIn(const PTRNCODE& row, int no)
{
    return std::int64_t{no} - row.DataNo;
}

const PTRNCODE* tessary::FindCode(int no)
{
    const PTRNCODE* const end = PtrnCode + PtrnRecd;
    const PTRNCODE* const row = std::find_if<const PTRNCODE*>(PtrnCode, end, [no](const PTRNCODE& each) {
        const std::int64_t offset = OffsetIn(each, no);
        return offset >= 0 && offset < each.DataCount;
    });
    return row != end ? row : nullptr;
}

const PTRNCODE* tessary::FindCode(const char* code)
{
    return codeIndex.find(code);
}
