// A log in a temporary project, and the hands on its clock.
#pragma once

#include "log/Clock.h"
#include "log/Logfile.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

inline void setClock(int year, int month, int day, int hour = 12, int minute = 0, int second = 1)
{
    LocalTime = {};
    LocalTime.tm_year = year;
    LocalTime.tm_mon = month;
    LocalTime.tm_mday = day;
    LocalTime.tm_hour = hour;
    LocalTime.tm_min = minute;
    LocalTime.tm_sec = second;
}

class Log : public testing::Test
{
  protected:
    /// The log stands open on 8 January 2026, a second after noon.
    void SetUp() override { open(); }

    void open()
    {
        LogfileInit();
        setClock(2026, 1, 8);
        LogfileTimr();
    }

    void TearDown() override { LogfileExit(); }

    std::string path(const std::string& name) { return project.logFolder() + "/" + name; }
    std::string text(const std::string& name = "20260108.log") { return readFile(path(name)); }
    long lines(const std::string& name = "20260108.log")
    {
        const std::string whole = text(name);
        return std::count(whole.begin(), whole.end(), '\n');
    }
    std::vector<std::string> files()
    {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(project.logFolder()))
            names.push_back(entry.path().filename().string());
        return names;
    }

    Project project;
};
