// Fixture: the links of a project, from their sources to the cells, against real servers.
#pragma once

#include "comndata/ComnData.h"
#include "tessary_plant.h"
#include "tests/links/FreePort.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <functional>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

/// 99 cells of the system, then 200 of the code A: A+0 is cell 100.
class LinkedPlant : public testing::Test
{
  protected:
    LinkedPlant();
    ~LinkedPlant() override;

    /// Compiles the section `links` (its lines behind "links:"), and begins.
    void link(const std::string& yaml);
    /// Ticks until the condition holds; after twenty seconds the test fails.
    bool waitFor(const std::function<bool()>& condition, const std::string& what);
    /// Ticks for some time, as often as a panel does or more.
    void tickFor(double seconds);

    /// Starts a server of tests/links/servers and waits until it is ready.
    std::unique_ptr<Program> server(const std::string& script, const std::vector<std::string>& arguments);
    /// Runs a command and returns what it prints.
    static std::string run(const std::string& command);

    static double number(int offset) { return Get_dData(100 + offset, nullptr, 0); }
    static std::string text(int offset) { return Get_sData(100 + offset, nullptr, 0); }
    static int word(int offset) { return Get_wData(100 + offset, nullptr, 0); }
    static void set(int offset, double value) { Set_dData(100 + offset, value, nullptr, 0); }
    static std::string errorLine();
    tessary::LinkState state(std::size_t link = 0);
    bool waitState(tessary::LinkState wanted);
    /// Expects that ticks have not waited since then. A log line, which goes to the disk at once here, may.
    void expectNoWaits() const { EXPECT_LT(waits, 3 + ticks / 20); }
    /// Log lines that contain a text.
    long logged(const std::string& text);

    Project project;
    int ticks = 0;
    long waits = 0; ///< how often the kernel had to put LinksTimr to sleep
};
