#include "tests/links/LinkedPlant.h"

#include "base/Constants.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <sys/resource.h>
#include <thread>

namespace fs = std::filesystem;
using Clock = std::chrono::steady_clock;

namespace
{

double since(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

/// How often this thread has given up the processor to wait for something.
long Sleeps()
{
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

} // namespace

LinkedPlant::LinkedPlant()
{
    project.code("SYS", 99).code("A", 200).start();
}

LinkedPlant::~LinkedPlant()
{
    tessary::LinksExit();
}

void LinkedPlant::link(const std::string& yaml)
{
    fs::create_directories(project.root() + "/src/screens");
    writeFile(project.root() + "/src/project.yaml", "codes: { SYS: 99, A: 200 }\nlinks:\n" + yaml);
    const std::string output = run(Program::buildFolder() + "/ptn build src made/ProjPath");
    const std::string compiled = readFile(project.root() + "/made/ProjPath/PtrnLink");
    ASSERT_FALSE(compiled.empty()) << output;
    project.write("PtrnLink", compiled);
    ASSERT_EQ(tessary::LinksInit(nullptr), 1);
}

bool LinkedPlant::waitFor(const std::function<bool()>& condition, const std::string& what)
{
    const Clock::time_point begin = Clock::now();
    while (since(begin) < 20) {
        tickFor(0.01);
        if (condition())
            return true;
    }
    ADD_FAILURE() << "waited in vain for " << what;
    return false;
}

void LinkedPlant::tickFor(double seconds)
{
    const Clock::time_point begin = Clock::now();
    do {
        const long before = Sleeps();
        tessary::LinksTimr();
        waits += Sleeps() - before;
        ++ticks;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    } while (since(begin) < seconds);
}

std::unique_ptr<Program> LinkedPlant::server(const std::string& script,
                                             const std::vector<std::string>& arguments)
{
    std::vector<std::string> all = {"-u", Program::sourceFolder() + "/tests/links/servers/" + script};
    all.insert(all.end(), arguments.begin(), arguments.end());
    auto program = std::make_unique<Program>("/usr/bin/python3", "python3", all);
    waitFor([&] { return program->output().find("ready\n") != std::string::npos || program->status(); },
            script + " to listen");
    EXPECT_EQ(program->status(), std::nullopt) << program->output();
    return program;
}

std::string LinkedPlant::run(const std::string& command)
{
    std::string output;
    FILE* const pipe = popen(("{ " + command + "\n} 2>&1").c_str(), "r");
    char buffer[4096];
    while (const std::size_t size = std::fread(buffer, 1, sizeof buffer, pipe))
        output.append(buffer, size);
    pclose(pipe);
    return output;
}

std::string LinkedPlant::errorLine()
{
    return Get_sData(DTNO_SYSEROR, nullptr, 0);
}

tessary::LinkState LinkedPlant::state(std::size_t link)
{
    return tessary::LinksStatus().at(link).state;
}

bool LinkedPlant::waitState(tessary::LinkState wanted)
{
    return waitFor([&] { return state() == wanted; },
                   "the state " + std::to_string(static_cast<int>(wanted)));
}

long LinkedPlant::logged(const std::string& text)
{
    const auto messages = project.messages();
    return std::count_if(messages.begin(), messages.end(),
                         [&](const std::string& one) { return one.find(text) != std::string::npos; });
}
