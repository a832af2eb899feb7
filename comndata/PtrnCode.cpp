#include "comndata/CodeTable.h"

#include "base/BuiltIn.h"
#include "base/EucText.h"
#include "comndata/Cells.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "log/LogText.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <limits>
#include <string>
#include <unordered_map>
#include <vector>

using namespace tessary;

PTRNCODE* PtrnCode;
std::int32_t PtrnRecd;
BYTE* PtrnFlag;
PTRNNAME* PtrnName;
std::int32_t PtrnCount;

namespace
{

// What the public pointers point at.
std::vector<PTRNCODE> rows;
std::vector<BYTE> flags;
std::vector<PTRNNAME> names;

/// Position of a data number within the row's block. Counted in 64 bits, because `DataNo` may be any number.
std::int64_t OffsetIn(const PTRNCODE& row, int no)
{
    return std::int64_t{no} - row.DataNo;
}

/// The first row, in file order, that fits; null when none does.
template <typename Fits> const PTRNCODE* FirstRow(Fits fits)
{
    const PTRNCODE* const end = PtrnCode + PtrnRecd;
    const PTRNCODE* const row = std::find_if<const PTRNCODE*>(PtrnCode, end, fits);
    return row != end ? row : nullptr;
}

std::string CodeOf(const PTRNCODE& row)
{
    return {row.ID_Code, BoundedLength(row.ID_Code, sizeof row.ID_Code)};
}

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
    LogText("COMNMEM", __FILE__, __LINE__, "PtrnCode: table ends before row %zu [%.*s], count %d: %s", number,
            static_cast<int>(sizeof row.ID_Code), row.ID_Code, row.DataCount, reason);
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
        LogText("COMNMEM", __FILE__, __LINE__, "PtrnCode: %d rows, only %d are read", count, CONT_PTRNCODE);
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
    FileRead(ProjPath, "PtrnFlag", PtrnFlag, PtrnDataNo, 0, nullptr, 0);
    FileWrite(ProjPath, "PtrnFlag", PtrnFlag, PtrnDataNo, 0, nullptr, 0);
}

void LoadNames()
{
    constexpr int longestName = 256;
    const int count = std::min(FileCount(ProjPath, "*.ptn"), std::numeric_limits<int>::max() / longestName);
    if (count < 1)
        return;

    std::vector<char> text(static_cast<std::size_t>(count) * longestName);
    std::vector<char*> list(static_cast<std::size_t>(count));
    PtrnCount = FolderRead(ProjPath, "*.ptn", text.data(), list.data(), count * longestName, count, 0);
    names.resize(static_cast<std::size_t>(PtrnCount));
    for (std::size_t i = 0; i < names.size(); i++) {
        char base[SIZE_PATH + 1];
        SplitPath(list[i], nullptr, base, nullptr);
        base[EucCut(base, sizeof names[i].name - 1)] = '\0';
        CopyText(names[i].name, base);
    }
    PtrnName = names.empty() ? nullptr : names.data();
}

} // namespace

int LoadCodeData()
{
    ExitCodeData();
    const int size = FileSize(ProjPath, "PtrnCode");
    if (size > 0) {
        CreateCells(LoadRows(size));
        LoadFlags();
    }
    LoadNames();
    return 1;
}

void tessary::ExitCodeData()
{
    CreateCells(0);
    rows = std::vector<PTRNCODE>();
    flags = std::vector<BYTE>();
    names = std::vector<PTRNNAME>();
    codeIndex.clear();
    PtrnCode = nullptr;
    PtrnRecd = 0;
    PtrnFlag = nullptr;
    PtrnName = nullptr;
    PtrnCount = 0;
}

const PTRNCODE* tessary::FindCode(int no)
{
    return FirstRow([no](const PTRNCODE& row) {
        const std::int64_t offset = OffsetIn(row, no);
        return offset >= 0 && offset < row.DataCount;
    });
}

int ConvertDtno(int no, char* name)
{
    name[0] = '\0';
    if (!HasCell(no) || !PtrnFlag || !(PtrnFlag[no] & 1))
        return 0;
    const PTRNCODE* row = FindCode(no);
    if (!row)
        return 0;
    std::snprintf(name, SIZE_DTNONAME, "%.*s+%d", static_cast<int>(sizeof row->ID_Code), row->ID_Code,
                  static_cast<int>(OffsetIn(*row, no)));
    return 1;
}

int ConvertDtno(const char* code, int offset)
{
    if (!code || !*code)
        return 0;
    const PTRNCODE* row = codeIndex.find(code);
    if (!row || offset >= row->DataCount)
        return -1;
    const std::int64_t no = std::int64_t{row->DataNo} + offset;
    const bool isInt = no >= std::numeric_limits<int>::min() && no <= std::numeric_limits<int>::max();
    return isInt ? static_cast<int>(no) : -1;
}

int ConvertPtrn(const char* pattern)
{
    if (!pattern)
        return -1;
    for (std::int32_t i = 0; i < PtrnCount; i++)
        if (std::strcmp(PtrnName[i].name, pattern) == 0)
            return i;
    if (std::strcmp(pattern, tessary::VERSION_PATTERN) == 0)
        return PtrnCount;
    if (std::strcmp(pattern, tessary::MAINTENANCE_PATTERN) == 0)
        return PtrnCount + 1;
    return -1;
}
