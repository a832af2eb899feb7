#include "comndata/Cells.h"

#include "base/EucText.h"

#include <memory>
#include <vector>

using namespace tessary;

COMNDATA* ComnData;
std::int32_t PtrnDataNo;
CellDigits tessary::cellDigits;

namespace
{

// What ComnData points at. The texts that the cells own stand beside them, by data number: a cell whose
// `sData` is not its own text shares the text of a message row, which is not to be freed with the cell.
// Before the first text is written there are no own ones.
std::vector<COMNDATA> cells;
// All digits of the cells' numbers, by data number; `fData` is the float of it. A program may supply other
// cells than those made here.
std::vector<double> numbers;
std::vector<std::unique_ptr<char[]>> ownTexts;

// A text may fill the reading buffer and need one byte more; a longer one is cut when it is written.
constexpr std::size_t MAX_TEXT = SIZE_SDATA;

std::unique_ptr<char[]>& OwnText(int no)
{
    const auto place = static_cast<std::size_t>(no);
    if (place >= ownTexts.size())
        ownTexts.resize(static_cast<std::size_t>(PtrnDataNo));
    return ownTexts[place];
}

} // namespace

void tessary::CreateCells(int count)
{
    cells = std::vector<COMNDATA>(static_cast<std::size_t>(count));
    numbers = std::vector<double>(static_cast<std::size_t>(count));
    cellDigits = {numbers.data(), numbers.size(), 0};
    ownTexts = std::vector<std::unique_ptr<char[]>>();
    ComnData = count ? cells.data() : nullptr;
    PtrnDataNo = count;
}

void tessary::StoreNumber(int no, double value)
{
    const auto place = static_cast<std::size_t>(no);
    if (place >= numbers.size()) {
        numbers.resize(static_cast<std::size_t>(PtrnDataNo));
        cellDigits.numbers = numbers.data();
        cellDigits.count = numbers.size();
    }
    cellDigits.finer -= IsFiner(numbers[place]) ? 1 : 0;
    cellDigits.finer += IsFiner(value) ? 1 : 0;
    numbers[place] = value;
    ComnData[no].fData = static_cast<float>(value);
}

void tessary::StoreText(int no, const char* text)
{
    // The copy is made before the old text goes, which may be the one that is given.
    std::unique_ptr<char[]> copy;
    if (text && *text) {
        const std::size_t length = EucCut(text, MAX_TEXT);
        copy = std::make_unique<char[]>(length + 1);
        CopyText(copy.get(), length + 1, text);
    }
    std::unique_ptr<char[]>& own = OwnText(no);
    own = std::move(copy);
    ComnData[no].sData = own.get();
}

void tessary::ShareText(int no, char* text)
{
    if (!HasCell(no))
        return;
    OwnText(no).reset();
    ComnData[no].sData = text;
}

void tessary::ReleaseText(int no, const char* text)
{
    if (HasCell(no) && ComnData[no].sData == text)
        ComnData[no].sData = nullptr;
}
