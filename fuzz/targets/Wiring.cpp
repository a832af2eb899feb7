// The wiring table of the sample.
#include "app/WireTable.h"
#include "fuzz/Sections.h"
#include "fuzz/Target.h"

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.write("ProjPath/Haisenhyo", bytes);
    LoadHaisenhyo();
    if (!HaisenData.empty()) {
        SaveHaisenhyo();
        const std::string after = project.read("ProjPath/Haisenhyo");
        const std::size_t whole = sizeof HaisenHedr + HaisenData.size() * sizeof(HAISENDATA);
        fuzz::promise(after.size() == bytes.size() &&
                          after.compare(sizeof HaisenHedr, std::string::npos, bytes, sizeof HaisenHedr) == 0,
                      "records that nobody changed are saved as they were read");
        fuzz::promise(whole <= bytes.size(), "there are no more records than the file has");
    }
    for (int column = 0; column < CONT_WIRECOLUMN; ++column) {
        SortHaisenhyo(column, column % 2);
        for (const int position : {-1, 0, 1, static_cast<int>(HaisenData.size())})
            if (HAISENDATA* wire = WireAt(position)) {
                const std::string text = WireText(*wire, column);
                if (column != WIRE_LENGTH)
                    SetWireText(*wire, column, (text + "\xA4\xA2").c_str());
            }
    }
    FreeHaisenhyo();
    fuzz::LoadSection("wiring", bytes);
}

const fuzz::Target TARGET("wiring", Run);

} // namespace
