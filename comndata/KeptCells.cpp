#include "comndata/KeptCells.h"

#include "comndata/Cells.h"
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"

#include <utility>

namespace tessary
{

namespace
{

bool IsEmpty(int no)
{
    return ComnData[no].wData == 0 && StoredNumber(no) == 0 && !ComnData[no].sData;
}

std::string TextOf(int no)
{
    return ComnData[no].sData ? ComnData[no].sData : "";
}

} // namespace

KeptCells::KeptCells()
{
    for (std::int32_t row = 0; row < PtrnRecd; ++row) {
        const PTRNCODE& code = PtrnCode[row];
        for (int offset = 0; offset < code.DataCount; ++offset) {
            const std::int64_t place = std::int64_t{code.DataNo} + offset;
            const int no = static_cast<int>(place);
            if (place != no || !HasCell(no) || IsEmpty(no))
                continue;
            // Of two rows with one code the name means the first one's cells.
            std::string name = CodeOf(code);
            if (ConvertDtno(name.c_str(), offset) == no)
                cells_.push_back({std::move(name), offset, ComnData[no].wData, StoredNumber(no), TextOf(no)});
        }
    }
}

void KeptCells::giveBack() const
{
    for (const Cell& cell : cells_) {
        const int no = ConvertDtno(cell.code.c_str(), cell.offset);
        if (!HasCell(no))
            continue;
        ComnData[no].wData = cell.word;
        StoreNumber(no, cell.number);
        StoreText(no, cell.text.c_str());
    }
}

} // namespace tessary
