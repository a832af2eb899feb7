#include "comndata/KeptCells.h"

#include "comndata/Cells.h"
#include "comndata/CodeTable.h"
#include "comndata/PtrnCode.h"

namespace tessary
{

KeptCells::KeptCells()
{
    for (std::int32_t row = 0; row < PtrnRecd; ++row) {
        const PTRNCODE& code = PtrnCode[row];
        for (int offset = 0; offset < code.DataCount; ++offset) {
            // The cell that the name means: of two rows with one code it is the first one's.
            const int no = ConvertDtno(CodeOf(code).c_str(), offset);
            if (!HasCell(no))
                continue;
            const COMNDATA& cell = ComnData[no];
            if (cell.wData || StoredNumber(no) != 0 || cell.sData)
                cells_.push_back(
                    {CodeOf(code), offset, cell.wData, StoredNumber(no), cell.sData ? cell.sData : ""});
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
