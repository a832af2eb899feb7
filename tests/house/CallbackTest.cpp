// What is given to the toolkit to call lets no exception out: it goes through Guarded (log/Guard.h).
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <regex>

namespace fs = std::filesystem;

namespace
{

/// Calls that take a function, with what stands in their brackets, which is not guarded.
std::vector<std::string> unguarded(const std::string& source)
{
    static const std::regex CALL(
        R"((G_CALLBACK|GTK_SIGNAL_FUNC|g_timeout_add|g_idle_add|gtk_timeout_add)"
        R"(|g_unix_signal_add|gdk_window_add_filter|g_io_add_watch)\(([^;]*?)\)[,;)])");
    std::vector<std::string> found;
    for (std::sregex_iterator at(source.begin(), source.end(), CALL), end; at != end; ++at) {
        const std::string arguments = (*at)[2];
        const bool guarded = arguments.find("Guarded<") != std::string::npos;
        const bool kept = arguments == "button.clicked"; // from a table of guarded ones
        if (!guarded && !kept)
            found.push_back((*at)[0]);
    }
    return found;
}

} // namespace

TEST(Callbacks, are_found_where_they_are_not_guarded)
{
    EXPECT_EQ(unguarded("    g_idle_add(Ask, nullptr);\n").size(), 1u);
    EXPECT_EQ(unguarded("g_signal_connect(box, \"x\", G_CALLBACK(Guarded<Stay>::call), 0);\n").size(), 0u);
    EXPECT_EQ(unguarded("g_signal_connect(box, \"x\", G_CALLBACK(Stay), 0);\n").size(), 1u);
    EXPECT_EQ(unguarded("g_timeout_add(1,\n    Guarded<Quit, TRUE>::call, nullptr);\n").size(), 0u);
}

TEST(Callbacks, of_the_framework_are_guarded)
{
    int sources = 0;
    for (const char* folder : {"base", "config", "log", "comndata", "draw", "pattern", "window", "dialogs",
                               "shell", "program", "links", "app"})
        for (const auto& entry : fs::recursive_directory_iterator(Program::sourceFolder() + "/" + folder)) {
            if (entry.path().extension() != ".cpp")
                continue;
            ++sources;
            EXPECT_THAT(unguarded(readFile(entry.path())), testing::IsEmpty()) << entry.path();
        }
    EXPECT_GT(sources, 100);
}
