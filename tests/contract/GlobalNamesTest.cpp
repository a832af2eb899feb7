// Which names tessary.h puts into the global namespace, and which macros it defines. What is listed in
// global-names.txt is there for good: applications use it. Anything else of ours belongs into a namespace.
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <memory>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace
{

using Names = std::set<std::string>;

/// Output of a command; the test fails when the command does.
std::string outputOf(const std::string& command)
{
    const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command.c_str(), "r"), [](FILE* file) {
        const int status = pclose(file);
        EXPECT_EQ(status, 0) << "of a command; the packages of test.sh may be missing";
        return status;
    });
    std::string output;
    char part[65536];
    while (const std::size_t size = std::fread(part, 1, sizeof part, pipe.get()))
        output.append(part, size);
    return output;
}

/// What clang makes of a source text. It knows UTF-8 alone as the character set of the program, which changes
/// no name.
class Compiled : public testing::Test
{
  public:
    Compiled() : source_(testing::TempDir() + "tessary-names-" + std::to_string(getpid()) + ".cpp") {}
    ~Compiled() override { std::filesystem::remove(source_); }

    std::string clang(const std::string& options, const std::string& source) const
    {
        writeFile(source_, source);
        return outputOf("clang++ -std=c++17 -w " TESSARY_TOOLKIT_FLAGS " -I" + Program::sourceFolder() + " " +
                        options + " -x c++ " + source_);
    }

    /// The toolkit headers and headers of the language that ours include.
    std::string outsideIncludes() const
    {
        std::istringstream dependencies(clang("-MM", "#include \"tessary.h\"\n"));
        Names includes;
        for (std::string file; dependencies >> file;) {
            if (std::filesystem::path(file).extension() != ".h")
                continue;
            std::ifstream header(file);
            for (std::string line; std::getline(header, line);)
                if (line.rfind("#include <", 0) == 0)
                    includes.insert(line);
        }
        std::string text;
        for (const std::string& include : includes)
            text += include + "\n";
        return text;
    }

    Names globalNames(const std::string& source) const
    {
        return namesOf(clang("-fsyntax-only -fno-color-diagnostics -Xclang -ast-dump", source));
    }

    Names macros(const std::string& source) const
    {
        std::istringstream lines(clang("-dM -E", source));
        Names names;
        for (std::string define, name, rest; lines >> define >> name && std::getline(lines, rest);)
            names.insert(name.substr(0, name.find('(')));
        return names;
    }

  private:
    /// The name in a line of the dump: what stands behind kind, addresses and places, and is no flag; empty
    /// for what has no name.
    static std::string nameOf(const std::string& kind, const std::string& line)
    {
        if (kind == "UsingDirectiveDecl")
            return "using namespace";
        std::string plain; // without the places in angle brackets, and without the type
        int depth = 0;
        for (const char letter : line.substr(0, line.find('\''))) {
            if (letter == '<')
                ++depth;
            else if (letter == '>' && depth > 0)
                --depth;
            else if (depth == 0)
                plain += letter;
        }
        static const Names FLAGS = {"implicit", "used",   "referenced", "class",  "struct",
                                    "union",    "inline", "definition", "parent", "prev"};
        const auto begins = [](const std::string& word, const char* text) {
            return word.rfind(text, 0) == 0;
        };
        std::istringstream words(plain);
        std::string word;
        words >> word; // kind
        while (words >> word)
            if (FLAGS.count(word) == 0 && !begins(word, "0x") && !begins(word, "/") &&
                !begins(word, "line:") && !begins(word, "col:"))
                return word.substr(word.rfind(':') + 1); // of a using-declaration, the last of its names
        return "";
    }

    /// The tree is drawn with two characters per level. Names of enumerators, and of what is declared with
    /// the linkage of C, are names of the scope around.
    static Names namesOf(const std::string& dump)
    {
        Names names;
        std::vector<bool> open{true}; // by level: names of the next level are global
        std::istringstream lines(dump);
        for (std::string line; std::getline(lines, line);) {
            const std::size_t start = line.find_first_not_of("|`- ");
            const std::size_t level = start == std::string::npos ? 0 : start / 2;
            if (level == 0 || level > open.size())
                continue;
            open.resize(level + 1);
            open[level] = false;
            const std::string text = line.substr(start);
            const std::string kind = text.substr(0, text.find(' '));
            if (!open[level - 1] || kind.size() < 4 || kind.substr(kind.size() - 4) != "Decl")
                continue;
            const bool scoped = text.find(" class ") != std::string::npos;
            open[level] = kind == "LinkageSpecDecl" || (kind == "EnumDecl" && !scoped);
            if (kind == "LinkageSpecDecl" || kind == "StaticAssertDecl" || kind == "UsingShadowDecl")
                continue;
            const std::string name = nameOf(kind, text);
            if (!name.empty())
                names.insert(name);
        }
        return names;
    }

    std::string source_;
};

Names without(const Names& all, const Names& known)
{
    Names rest;
    std::set_difference(all.begin(), all.end(), known.begin(), known.end(), std::inserter(rest, rest.end()));
    return rest;
}

using GlobalNames = Compiled;

TEST_F(GlobalNames, of_tessary_h_are_those_that_applications_rely_on)
{
    Names kept;
    std::ifstream list(Program::sourceFolder() + "/tests/contract/global-names.txt");
    for (std::string line; std::getline(list, line);)
        if (!line.empty() && line[0] != '#')
            kept.insert(line);

    const Names declared = without(globalNames("#include \"tessary.h\"\n"), globalNames(outsideIncludes()));
    EXPECT_EQ(without(declared, kept), Names{}) << "belong into namespace tessary";
    EXPECT_EQ(without(kept, declared), Names{}) << "are missing";
}

TEST_F(GlobalNames, of_tessary_h_are_no_macros)
{
    EXPECT_EQ(without(macros("#include \"tessary.h\"\n"), macros(outsideIncludes())), Names{});
}

TEST_F(GlobalNames, are_found_in_every_kind_of_declaration)
{
    const Names found = globalNames(R"(
        int function(int parameter, const char* text = "'");
        int* operator+(struct ByUse, int);
        extern "C" { int ofC(int); struct StructOfC { int member; }; }
        extern "C" int ofCToo;
        int variable = 1, array[3], (*pointer)(int argument);
        constexpr int constant = 2;
        inline const int inlined = 3;
        struct Record { int member; struct Inner {}; enum Kind { MEMBER }; void method(int); };
        class Class { static int number; };
        union Union { int one; float other; };
        struct { int member; } unnamed;
        enum Enum { ENUMERATOR, ENUMERATOR2 = 5 };
        enum { NAMELESS };
        enum class Scoped { INSIDE };
        typedef int Typedef;
        using Alias = int;
        template <class T> struct Template { T member; };
        template <class T> T templateFunction(T argument) { int local = 0; return argument; }
        template <class T> constexpr T templateVariable = T(1);
        namespace space { int hidden; enum { HIDDEN_TOO }; void alsoHidden(); }
        using space::hidden;
    )");
    EXPECT_THAT(without(found, globalNames("")),
                testing::UnorderedElementsAre(
                    "function", "operator+", "ByUse", "ofC", "StructOfC", "ofCToo", "variable", "array",
                    "pointer", "constant", "inlined", "Record", "Class", "Union", "unnamed", "Enum",
                    "ENUMERATOR", "ENUMERATOR2", "NAMELESS", "Scoped", "Typedef", "Alias", "Template",
                    "templateFunction", "templateVariable", "space", "hidden"));
    EXPECT_THAT(without(globalNames("namespace space {} using namespace space;"), globalNames("")),
                testing::UnorderedElementsAre("space", "using namespace"));
}

} // namespace
