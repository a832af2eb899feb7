// A pattern file: loading, and all that an operator's pointer and keys do with its items.
#include "tools/ptn/model/Pattern.h"
#include "fuzz/Target.h"
#include "pattern/PatternRecords.h"
#include "pattern/PtrnData.h"

#include <cstring>
#include <gdk/gdkkeysyms.h>

namespace
{

constexpr int MOST_ITEMS = 200; // each is looked for among all the others

void Press(CPtrnData& data, PTRNDATA item)
{
    for (const POINT point : {POINT{item.Rect.left, item.Rect.top}, POINT{item.Rect.right, item.Rect.bottom},
                              POINT{item.Rect.left / 2 + item.Rect.right / 2, item.Rect.top / 2 + 3}}) {
        data.TestPtrnData(point);
        data.TestPtrnData(point, &item);
        PTRNDATA pressed = item;
        data.LButtonDown(point, &pressed);
        for (int tick = 0; tick < REPEATTIMER1 + REPEATTIMER2 + 1; ++tick)
            data.ReptPtrnData(&pressed);
        data.MouseMove({point.x ^ 1, point.y ^ 1});
        data.LButtonUp();
    }
    data.WheelToScroll(0, &item);
    data.WheelToSpin(1, &item);
    ConvertNumrData(&item);
}

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("ProjPath/p.ptn", bytes);
    fuzz::Project::own().load();
    CPtrnData data("p");
    for (int i = 0; i < data.PtrnCont && i < MOST_ITEMS; ++i) {
        fuzz::promise(data.PtrnData[i].Recd == i, "an item knows its place");
        Press(data, data.PtrnData[i]);
    }
    PTRNDATA item{};
    for (const int key : {GDK_Up, GDK_Page_Down, GDK_Left, GDK_F3})
        data.SetScrollKey(key, &item);

    if (bytes.size() >= sizeof(HEDRFILE)) {
        HEDRFILE header;
        std::memcpy(&header, bytes.data(), sizeof header);
        const std::string rest = bytes.substr(sizeof header);
        const tessary::PatternRecords records = tessary::TakePatternRecords(header, rest);
        const std::string again = tessary::PatternFileBytes(header, records.items);
        const bool whole =
            records.left == 0 && records.missingTexts == 0 && records.textsUsed == records.textSize &&
            static_cast<int>(records.items.size()) == header.DataCount && records.textSize == header.TextSize;
        fuzz::promise(!whole || again == bytes, "a whole file is put together as it was");
    }
    ptn::Diagnostics diagnostics;
    if (const auto pattern = ptn::ParsePattern("p", bytes, {"p", 0}, diagnostics))
        fuzz::promise(ptn::PatternBytes(*pattern).size() == bytes.size(), "a pattern keeps its length");
}

const fuzz::Target TARGET("pattern", Run);

} // namespace
