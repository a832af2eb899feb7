#include "fuzz/Sections.h"

#include "base/Constants.h"
#include "tools/ptn/source/Sections.h"

#include <cstring>

namespace fuzz
{

void LoadSection(const char* name, const std::string& bytes)
{
    ptn::UsedNumbers used;
    for (int no = 0; no < CONT_MARK; no += 9) {
        used.colors.insert(no);
        used.marks.insert(no);
    }
    for (const auto& section : ptn::Sections()) {
        if (std::strcmp(section->name(), name) != 0)
            continue;
        ptn::Diagnostics diagnostics;
        ptn::ProjectSource project;
        section->load(project, {bytes, used, {name, 0}, diagnostics});
        if (const auto again = section->bytes(project))
            section->same(*again, bytes);
        ptn::FileMap sources;
        section->emit(project, sources);
        for (const auto& [file, text] : sources) {
            ptn::Diagnostics found;
            ptn::ProjectSource copy;
            if (const auto source = ptn::ParseYaml(file, text, found))
                for (const ptn::Entry& entry : ptn::Entries(*source, "the file", found))
                    if (entry.name == name)
                        section->read(copy, {entry, ".", found});
        }
    }
}

} // namespace fuzz
