#include "tools/ptn/compiled/CellsHeader.h"

#include "base/EucText.h"
#include "tools/ptn/common/Identifier.h"

namespace ptn
{

const char* const CELLS_HEADER_MARK = "// Made by \"ptn build\"";

namespace
{

// A text between quotes.
std::string Literal(const std::string& utf8)
{
    std::string literal = "\"";
    for (const char byte : utf8) {
        if (byte == '"' || byte == '\\')
            literal += '\\';
        literal += byte;
    }
    return literal + "\"";
}

std::string Number(const std::string& name, int value)
{
    return fmt::format("inline constexpr int {} = {};\n", name, value);
}

std::string Scope(const std::string& what, const std::string& name, const std::string& text)
{
    return text.empty()
               ? ""
               : fmt::format("\n// {}\nnamespace {}\n{{\n{}}} // namespace {}\n", what, name, text, name);
}

} // namespace

std::string CellsHeader(const ProjectSource& project, const std::vector<Pattern>& patterns)
{
    Identifiers codes;
    std::string cells;
    std::string counts;
    for (const CodeTable::Row& row : project.codes.rows()) {
        const std::string name = codes.take(row.name);
        cells += Number(name, row.first);
        counts += Number(name, row.count);
    }
    Identifiers screens;
    std::string names;
    for (const Pattern& pattern : patterns) {
        const std::string name = EucToUtf8(pattern.name);
        names += fmt::format("inline constexpr char {}[] = {};\n", screens.take(name), Literal(name));
    }
    const std::string scope = Identifier(project.program);
    return fmt::format("{} of the project: its cells and screens. The next build replaces this file.\n"
                       "#pragma once\n\nnamespace {}\n{{\n",
                       CELLS_HEADER_MARK, scope) +
           (cells.empty() ? "" : "\n// The first cell of each code.\n" + cells) +
           Scope("How many cells a code has.", "count", counts) +
           Scope("What the screens are called.", "screen", names) +
           fmt::format("\n}} // namespace {}\n", scope);
}

} // namespace ptn
