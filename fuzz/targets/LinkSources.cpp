// The section "links" of the sources, with the tables of registers that it may name.
#include "fuzz/Target.h"
#include "links/ModelFile.h"
#include "tools/ptn/model/Links.h"

namespace
{

void Run(const std::string& bytes)
{
    const fuzz::Project& project = fuzz::Project::own();
    project.clear("links");
    for (const auto& [name, text] : fuzz::Files(bytes))
        project.write("links/" + name, text);
    ptn::Diagnostics diagnostics;
    const auto source = ptn::ReadYaml("links/links.yaml", diagnostics);
    if (!source)
        return;
    ptn::CodeTable codes;
    codes.read(*ptn::ParseYaml("codes", "{ CLOCK: 7, SYSTEM: 92, A: 50, B: 3 }", diagnostics), diagnostics);
    ptn::LinkTable links;
    links.read(*source, codes, "links", diagnostics);
    if (diagnostics.failed() || links.empty())
        return;
    tessary::LinkModel model;
    std::string error;
    fuzz::promise(tessary::ReadLinks(links.bytes(), model, error), "the panel takes what the tool makes");
    fuzz::promise(!links.yaml().empty(), "links become sources again");
}

const fuzz::Target TARGET("link-sources", Run);

} // namespace
