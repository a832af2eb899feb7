// Loading a pattern file, and the records of a loaded pattern.
#include "base/EucText.h"
#include "comndata/PtrnCode.h"
#include "config/FileCntl.h"
#include "config/Settings.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "pattern/Layers.h"
#include "pattern/PatternRecords.h"
#include "pattern/PtrnData.h"
#include "pattern/PtrnHedr.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <sys/stat.h>
#include <vector>

using namespace tessary;

namespace
{

/// Longest file that counts as a pattern. Room for a hundred thousand items, and a bound to the memory
/// that a damaged file can ask for.
constexpr int LONGEST_FILE = 16 * 1024 * 1024;

/// The open file, and what was found wrong with it. What its header claims is believed only as far as
/// the file goes.
class PatternFile
{
  public:
    explicit PatternFile(const std::string& name) : name_(name), size_(FileSize(ProjPath, name.c_str())) {}

    /// @return false when there is nothing to load
    bool readHeader(HEDRFILE* header)
    {
        return hasGoodSize() && reader_.Open(ProjPath, name_.c_str(), nullptr, 0) == 1 && measure() &&
               reader_.ReadBlock(header, sizeof *header, 0, nullptr, 0) == 1;
    }

    /// The items, as far as they are there.
    std::vector<PatternRecord> readItems(const HEDRFILE& header)
    {
        const int rest = std::max(size_ - static_cast<int>(sizeof header), 0);
        std::string bytes(static_cast<std::size_t>(rest), '\0');
        if (rest)
            reader_.ReadBlock(bytes.data(), rest, 0, nullptr, 0);
        PatternRecords records = TakePatternRecords(header, bytes);
        compare("Item Count", header.DataCount, static_cast<int>(records.items.size()));
        compare("Text Size", header.TextSize, records.textSize);
        missingTexts_ = records.missingTexts;
        return std::move(records.items);
    }

    /// Copies a text into its field, which keeps whole characters only; `Size` is the field's array.
    template <std::size_t Size> void copy(char (&field)[Size], const std::string& text)
    {
        const std::size_t kept = EucCut(text.c_str(), Size - 2);
        std::memcpy(field, text.data(), kept);
        field[kept] = '\0';
        cutTexts_ += kept < text.size();
    }

    int* cutTexts() { return &cutTexts_; }

    /// One line for all texts of a kind, however many there are.
    void logTexts() const
    {
        if (cutTexts_)
            LogText("PTRNDATA", __FILE__, __LINE__, "Text Length Error [%s / %d]", name_.c_str(), cutTexts_);
        if (missingTexts_)
            LogText("PTRNDATA", __FILE__, __LINE__, "Text End Error [%s / %d]", name_.c_str(), missingTexts_);
    }

  private:
    bool hasGoodSize() const
    {
        if (size_ >= 0 && size_ <= LONGEST_FILE)
            return true;
        LogText("PTRNDATA", __FILE__, __LINE__, "File Size Error [%s / %d]", name_.c_str(), size_);
        return false;
    }

    /// The size of what was opened: another program may have replaced the file, or be writing it.
    bool measure()
    {
        struct stat status = {};
        const bool regular = fstat(fileno(reader_.fp), &status) == 0 && S_ISREG(status.st_mode);
        size_ = regular && status.st_size <= LONGEST_FILE ? static_cast<int>(status.st_size) : -1;
        return hasGoodSize();
    }

    void compare(const char* what, int claimed, int found) const
    {
        if (found != claimed)
            LogText("PTRNDATA", __FILE__, __LINE__, "%s Error [%s / %d / %d]", what, name_.c_str(), claimed,
                    found);
    }

    std::string name_;
    int size_;
    CFileRead reader_;
    int cutTexts_ = 0;
    int missingTexts_ = 0;
};

PTRNDATA MakeItem(PatternFile& file, const PatternRecord& source, int recd)
{
    const PTRNFILE& record = source.record;
    PTRNDATA item{};
    item.Type = record.Type;
    item.ID_Type = record.ID_Type;
    item.ID_No = record.ID_No;
    std::memcpy(item.Parm, record.Parm, sizeof item.Parm);
    item.Recd = recd;
    item.Rect = SetRect(item.Parm[PARM_X1], item.Parm[PARM_Y1], item.Parm[PARM_X2], item.Parm[PARM_Y2]);
    item.wData = STATE_NEVER;
    file.copy(item.Text, InLanguage(source.texts[0], source.texts[1], source.texts[2]));
    file.copy(item.ID_Name, source.name);
    file.copy(item.ID_Code, source.code);
    // The whole code: cut to its field it could be another one.
    item.DataNo = ConvertDtno(source.code.c_str(), item.ID_No);
    return item;
}

} // namespace

CPtrnData::CPtrnData(const char* name)
    : PtrnCalnSec(-1), ScrollPtrn1(-1), ScrollPtrn2(-1), ScrollPtrn3(-1), FlikerFlag(0), FlikerTimr(0),
      RepeatFlag(0)
{
    LoadPtrnData(name);
}

CPtrnData::~CPtrnData()
{
    delete[] PtrnData;
}

int CPtrnData::LoadPtrnData(const char* name)
{
    delete[] PtrnData;
    PtrnData = nullptr;
    PtrnCont = 0;
    PtrnHedr = {};
    DrawOrder.clear();
    Shown.reset();
    Blanked = false;

    const std::string fileName = std::string(name ? name : "") + ".ptn";
    if (FileExist(ProjPath, fileName.c_str()) == 0)
        return 0;

    PatternFile file(fileName);
    HEDRFILE header;
    if (!file.readHeader(&header))
        return 0;
    PtrnHedr = ConvertHedr(header, file.cutTexts());

    const std::vector<PatternRecord> items = file.readItems(header);
    PtrnCont = static_cast<int>(items.size());
    if (PtrnCont)
        PtrnData = new PTRNDATA[items.size()];
    for (int i = 0; i < PtrnCont; ++i)
        PtrnData[i] = MakeItem(file, items[static_cast<std::size_t>(i)], i);
    file.logTexts();

    BuildDrawOrder();
    return 1;
}

int CPtrnData::ReadPtrnData(int dataNo, int type, PTRNDATA* item)
{
    for (int i = 0; i < PtrnCont; ++i)
        if (PtrnData[i].Type == type && PtrnData[i].DataNo == dataNo) {
            *item = PtrnData[i];
            return 1;
        }
    return 0;
}

void CPtrnData::WritePtrnData(const PTRNDATA* item)
{
    if (item->Recd < 0 || item->Recd >= PtrnCont)
        return;
    PTRNDATA& target = PtrnData[item->Recd];
    const bool moved = target.Type != item->Type || target.Parm[PARM_PASS] != item->Parm[PARM_PASS];
    // A caller may hand back the very record it found in the array.
    std::memmove(&target, item, sizeof target);
    if (moved)
        BuildDrawOrder();
}
