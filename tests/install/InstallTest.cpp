// What "cmake --install" leaves: programs are built against it, wherever it is put.
#include "tests/support/Program.h"
#include "tests/support/Project.h"
#include "tests/support/XDriver.h"
#include "tools/ptn/system/TemporaryFolder.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

namespace
{

/// The installed tree, which has been moved since, and a new project beside it. Installed once for all cases.
class Install : public testing::Test
{
  protected:
    static void SetUpTestSuite()
    {
        folder_ = std::make_unique<ptn::TemporaryFolder>("tessary-install-");
        before_ = fs::current_path();
        fs::current_path(folder_->path());
        expectRuns("cmake --install " + Program::buildFolder() + " --prefix " + root() + "/first");
        fs::rename("first", "moved");
        expectRuns("moved/bin/ptn new --program plant");
        setenv("PKG_CONFIG_PATH", fileCalled("tessary.pc").parent_path().c_str(), 1);
    }

    static void TearDownTestSuite()
    {
        unsetenv("PKG_CONFIG_PATH");
        fs::current_path(before_);
        folder_.reset();
    }

    static std::string root() { return folder_->path().string(); }

    /// Runs a command of the shell in the folder and returns what it prints, which is also told when it
    /// fails.
    static std::string expectRuns(const std::string& command)
    {
        const int status = std::system(("{ " + command + "; } >output 2>&1").c_str());
        std::string output = readFile("output");
        EXPECT_EQ(status, 0) << command << "\n" << output;
        return output;
    }

    static std::vector<fs::path> files(const std::string& folder)
    {
        std::vector<fs::path> found;
        for (const auto& entry : fs::recursive_directory_iterator(folder))
            if (entry.is_regular_file())
                found.push_back(entry.path());
        return found;
    }

    static fs::path fileCalled(const std::string& name)
    {
        for (const fs::path& file : files("moved"))
            if (file.filename() == name)
                return fs::absolute(file);
        ADD_FAILURE() << name << " is not installed";
        return "";
    }

    /// For cmake: where the packages are, and what libraries with sanitizers are to be linked with.
    static std::string options()
    {
        return " -G Ninja -DCMAKE_PREFIX_PATH=" + root() +
               "/moved -DCMAKE_EXE_LINKER_FLAGS=" TESSARY_LINK_FLAGS + " -DCMAKE_EXPORT_COMPILE_COMMANDS=ON";
    }

    /// How a source is compiled in a folder that cmake has made; empty when it is not.
    static std::string compileCommand(const std::string& folder, const std::string& source)
    {
        std::istringstream lines(readFile(folder + "/compile_commands.json"));
        for (std::string line; std::getline(lines, line);)
            if (line.find("\"command\":") != std::string::npos &&
                line.find(source + "\"") != std::string::npos)
                return line;
        return "";
    }

    /// What bash offers for the last word of a line, with blanks between.
    static std::string completed(const std::string& line)
    {
        writeFile("completed.sh", "source moved/share/bash-completion/completions/ptn\n"
                                  "read -ra COMP_WORDS <<<\"$1\"\n"
                                  "[[ $1 != *' ' ]] || COMP_WORDS+=('')\n"
                                  "COMP_CWORD=$((${#COMP_WORDS[@]} - 1))\n"
                                  "_ptn \"${COMP_WORDS[0]}\" \"${COMP_WORDS[-1]}\" x\n"
                                  "echo -n \"${COMPREPLY[*]}\"\n");
        return expectRuns("bash completed.sh '" + line + "'");
    }

  private:
    static std::unique_ptr<ptn::TemporaryFolder> folder_;
    static fs::path before_;
};

std::unique_ptr<ptn::TemporaryFolder> Install::folder_;
fs::path Install::before_;

} // namespace

TEST_F(Install, has_what_a_new_project_finds_and_its_program_runs)
{
    expectRuns("cmake -S plant -B build" + options());
    EXPECT_THAT(expectRuns("cmake --build build"), Not(HasSubstr("warning")));
    const std::string command = compileCommand("build", "/Registry.cpp");
    EXPECT_THAT(command, HasSubstr("-fexec-charset=EUC-JP"));
    EXPECT_THAT(command, Not(HasSubstr(" -fsanitize")));
    EXPECT_THAT(command, Not(HasSubstr(" -W")));

    XDriver driver;
    fs::current_path("build");
    Program plant(root() + "/build/plant", "./plant");
    fs::current_path(root());
    driver.waitFor([&] { return plant.status() || !driver.windows().empty(); },
                   "the program to show a window");
    EXPECT_EQ(plant.status(), std::nullopt) << plant.output();
    const std::vector<ScreenWindow> windows = driver.windows();
    ASSERT_THAT(windows, SizeIs(1));
    EXPECT_EQ(windows[0].width, 640);
    EXPECT_EQ(windows[0].height, 480);
}

TEST_F(Install, has_a_program_for_projects_without_code)
{
    expectRuns("moved/bin/ptn build plant shown/ProjPath");
    XDriver driver;
    Program panel(root() + "/moved/bin/tessary-panel", "tessary-panel", {"shown"});
    driver.waitFor([&] { return panel.status() || !driver.windows().empty(); },
                   "the program to show a window");
    EXPECT_EQ(panel.status(), std::nullopt) << panel.output();
    EXPECT_THAT(driver.windows(), SizeIs(1));
}

TEST_F(Install, has_what_pkg_config_finds)
{
    expectRuns("moved/bin/ptn build plant by-hand/ProjPath");
    EXPECT_THAT(expectRuns("g++ -Wall -Wextra -Iby-hand plant/program/Registry.cpp "
                           "$(pkg-config --cflags --libs tessary tessary-plant) " TESSARY_LINK_FLAGS
                           " -o plant-by-pkg-config"),
                IsEmpty());
    EXPECT_TRUE(fs::exists("plant-by-pkg-config"));
}

TEST_F(Install, has_the_links_to_a_plant)
{
    writeFile("linked.cpp", "#include <tessary/tessary.h>\n"
                            "#include <tessary/tessary_plant.h>\n"
                            "CPtrnDisp* GetPtrnWnd(const char*) { return new CPtrnDisp; }\n"
                            "int UserInit() { return tessary::LinksInit(nullptr); }\n"
                            "void UserTimr() { tessary::LinksTimr(); }\n"
                            "void UserExit() { tessary::LinksExit(); }\n");
    EXPECT_THAT(
        expectRuns(
            "g++ -Wall -Wextra linked.cpp $(pkg-config --cflags --libs tessary-plant) " TESSARY_LINK_FLAGS
            " -o linked-by-pkg-config"),
        IsEmpty());
    fs::create_directory("linked");
    writeFile("linked/CMakeLists.txt",
              "cmake_minimum_required(VERSION 3.16)\nproject(linked CXX)\n"
              "find_package(Tessary REQUIRED)\nadd_executable(linked ../linked.cpp)\n"
              "target_link_libraries(linked PRIVATE Tessary::main Tessary::plant)\n");
    expectRuns("cmake -S linked -B linked-build" + options());
    EXPECT_THAT(expectRuns("cmake --build linked-build"), Not(HasSubstr("warning")));
}

TEST_F(Install, has_headers_of_which_each_can_be_included)
{
    const std::string folder = "moved/include/";
    std::string source;
    for (const fs::path& header : files(folder))
        source += "#include <" + header.lexically_relative(folder).string() + ">\n";
    EXPECT_THAT(source, HasSubstr("#include <tessary/tessary.h>\n"));
    writeFile("headers.cpp", source);
    EXPECT_THAT(expectRuns("g++ -fsyntax-only -Wall -Wextra headers.cpp $(pkg-config --cflags tessary)"),
                IsEmpty());
}

TEST_F(Install, puts_no_name_but_its_own_among_the_headers)
{
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator("moved/include"))
        names.push_back(entry.path().filename().string());
    EXPECT_THAT(names, testing::ElementsAre("tessary"));
}

TEST_F(Install, holds_no_place_and_no_flags_of_its_build)
{
    int texts = 0;
    for (const fs::path& file : files("moved")) {
        if (file.extension() == ".a" || file.parent_path() == "moved/bin")
            continue;
        ++texts;
        const std::string text = readFile(file.string());
        for (const std::string& own : {Program::sourceFolder(), Program::buildFolder(), root()})
            EXPECT_THAT(text, Not(HasSubstr(own))) << file;
        for (const char* flag : {"-fsanitize", "--coverage", "-Werror", "-Wall"})
            EXPECT_THAT(text, Not(HasSubstr(flag))) << file;
    }
    EXPECT_GT(texts, 50);
}

TEST_F(Install, has_one_version)
{
    EXPECT_EQ(expectRuns("moved/bin/ptn --version"), TESSARY_VERSION "\n");
    EXPECT_EQ(expectRuns("moved/bin/tessary-panel --version"),
              "tessary-panel (Tessary) " TESSARY_VERSION "\n");
    EXPECT_EQ(expectRuns("pkg-config --modversion tessary"), TESSARY_VERSION "\n");
    EXPECT_THAT(readFile(fileCalled("TessaryConfigVersion.cmake").string()),
                HasSubstr("set(PACKAGE_VERSION \"" TESSARY_VERSION "\")"));
    const std::string changes = readFile(Program::sourceFolder() + "/CHANGELOG.md");
    const std::string newest = changes.substr(std::min(changes.find("\n## ["), changes.size()));
    EXPECT_THAT(newest, testing::StartsWith("\n## [" TESSARY_VERSION "]"));
    EXPECT_THAT(readFile("plant/CMakeLists.txt"),
                HasSubstr("find_package(Tessary " TESSARY_VERSION " REQUIRED)"));
    EXPECT_THAT(readFile(Program::sourceFolder() + "/project/screens/version.yaml"),
                HasSubstr("Tessary " TESSARY_VERSION "]"));
}

TEST_F(Install, completes_what_is_typed_for_the_tool)
{
    EXPECT_EQ(completed("moved/bin/ptn re"), "render");
    EXPECT_EQ(completed("moved/bin/ptn help edi"), "editions");
    EXPECT_EQ(completed("moved/bin/ptn help attributes bar"), "bar-graph");
    EXPECT_EQ(completed("moved/bin/ptn render --out"), "--output");
    EXPECT_EQ(completed("moved/bin/ptn --ver"), "--version");
    EXPECT_EQ(completed("moved/bin/ptn check pl"), ""); // bash itself knows of files
    const std::string help = expectRuns("moved/bin/ptn --help");
    std::istringstream commands(completed("moved/bin/ptn "));
    int count = 0;
    for (std::string command; commands >> command; ++count)
        EXPECT_THAT(help, HasSubstr("\n  " + command + " "));
    const std::string listed = help.substr(help.find("Subcommands:\n") + 13);
    EXPECT_EQ(count, std::count(listed.begin(), listed.end(), '\n') - 1);
}

// It is only configured: to build the framework here would take minutes.
TEST_F(Install, is_not_needed_by_a_project_that_holds_the_sources)
{
    fs::create_directories("holder");
    writeFile("holder/CMakeLists.txt", "cmake_minimum_required(VERSION 3.25)\nproject(holder CXX)\n"
                                       "add_subdirectory(" +
                                           Program::sourceFolder() +
                                           " tessary)\n"
                                           "add_executable(plant ../plant/program/Registry.cpp)\n"
                                           "target_link_libraries(plant PRIVATE Tessary::main)\n"
                                           "add_custom_target(screens COMMAND Tessary::ptn --version)\n");
    expectRuns("cmake -S holder -B holder-build" + options());
    const std::string ours = compileCommand("holder-build", "/shell/Startup.cpp");
    EXPECT_THAT(ours, HasSubstr("-Wall"));
    EXPECT_THAT(ours, Not(HasSubstr("-Werror")));
    const std::string theirs = compileCommand("holder-build", "/plant/program/Registry.cpp");
    EXPECT_THAT(theirs, HasSubstr("-fexec-charset=EUC-JP"));
    EXPECT_THAT(theirs, Not(HasSubstr(" -W")));
    EXPECT_THAT(theirs, Not(HasSubstr("-I" + Program::sourceFolder() + " ")));
    for (const char* part : {"/app/Registry.cpp", "/tests/support/Main.cpp"})
        EXPECT_EQ(compileCommand("holder-build", part), "");
}
