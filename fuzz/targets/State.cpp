// A state of cells, for pictures of screens.
#include "fuzz/Target.h"
#include "tools/ptn/source/StateFile.h"

namespace
{

ptn::CodeTable Codes()
{
    ptn::CodeTable codes;
    ptn::Diagnostics diagnostics;
    codes.read(*ptn::ParseYaml("codes", "{ CLOCK: 7, SYSTEM: 92, A: 5, B: 3 }", diagnostics), diagnostics);
    return codes;
}

void Run(const std::string& bytes)
{
    static const ptn::CodeTable CODES = Codes();
    fuzz::Project::own().write("x.state", bytes);
    ptn::Diagnostics diagnostics;
    const ptn::ScreenState state = ptn::ReadState("x.state", CODES, diagnostics);
    for (const ptn::CellState& cell : state.cells)
        fuzz::promise(cell.cell >= 0 && cell.cell < CODES.cells() && cell.text.size() < 256,
                      "a state is that of cells");
    fuzz::promise(state.clock[1] >= 1 && state.clock[1] <= 12 && state.clock[3] >= 0 && state.clock[3] <= 6,
                  "a clock is a time");
}

const fuzz::Target TARGET("state", Run);

} // namespace
