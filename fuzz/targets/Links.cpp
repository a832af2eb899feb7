// The links of a project: the compiled file.
#include "fuzz/Sections.h"
#include "fuzz/Target.h"
#include "links/ModelFile.h"

namespace
{

void Run(const std::string& bytes)
{
    tessary::LinkModel links;
    std::string error;
    if (tessary::ReadLinks(bytes, links, error)) {
        const std::string written = tessary::LinkBytes(links);
        tessary::LinkModel again;
        fuzz::promise(tessary::ReadLinks(written, again, error),
                      "links that were read can be written and read");
        fuzz::promise(tessary::LinkBytes(again) == written, "links stay the same");
    } else {
        fuzz::promise(links.empty() && !error.empty(), "links with a mistake are refused, with a reason");
    }
    fuzz::LoadSection("links", bytes);
}

const fuzz::Target TARGET("links", Run);

} // namespace
