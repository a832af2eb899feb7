#include "tests/ptn/Sources.h"

#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstdlib>
#include <filesystem>
#include <sys/wait.h>

namespace fs = std::filesystem;

Sources::Sources() : before_(fs::current_path().string())
{
    fs::create_directories(root() + "/src/screens");
    fs::create_directories(root() + "/src/bitmaps");
    fs::current_path(root());
}

Sources::~Sources()
{
    std::error_code ignored;
    fs::current_path(before_, ignored);
}

Sources& Sources::write(const std::string& name, const std::string& text)
{
    writeFile(root() + "/src/" + name, text);
    return *this;
}

Sources& Sources::base(const std::string& reserved)
{
    // A mark of 32 x 32 pixels with one in its corner.
    std::string dot = std::string(31, '.');
    for (int row = 1; row < 32; ++row)
        dot += "\\n" + std::string(32, '.');
    return write("project.yaml",
                 "codes: { " + reserved +
                     "A: 5, B: 3 }\n"
                     "colors: { black: '#000000', white: '#FFFFFF', hot: { no: 50, rgb: '#FF8000' } }\n"
                     "fonts:\n"
                     "  small: '-*-fixed-medium-r-normal--14-*'\n"
                     "  normal: '-*-fixed-medium-r-normal--16-*'\n"
                     "marks: { dot: { no: 100, art: \"X" +
                     dot +
                     "\" } }\n"
                     "styles: { shape: { fill: white } }\n");
}

Sources& Sources::checkedBase()
{
    return base("CLOCK: 7, SYSTEM: 92, ");
}

PtnResult Sources::build() const
{
    return run("build src out/ProjPath");
}

PtnResult Sources::run(const std::string& arguments) const
{
    const std::string out = root() + "/stdout";
    const std::string err = root() + "/stderr";
    const std::string command = Program::buildFolder() + "/ptn " + arguments + " >" + out + " 2>" + err;
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(out), readFile(err)};
}

std::string Sources::built(const std::string& name) const
{
    return readFile(output() + "/" + name);
}
