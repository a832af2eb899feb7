// A temporary project whose drawing resources are loaded and given back.
#pragma once

#include "base/EucText.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "draw/ToolkitPtr.h"
#include "tests/support/Project.h"
#include "tests/support/Toolkit.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

class Resources : public testing::Test
{
  protected:
    Resources()
    {
        useToolkit();
        project.start();
        project.clearLog();
    }
    ~Resources() override { tessary::DrawCntlExit(); }

    /// The colour file: black, except for the records given.
    void colors(std::initializer_list<std::pair<int, COLRDATA>> records)
    {
        std::string bytes(1200, '\0');
        for (const auto& [no, colr] : records)
            bytes.replace(static_cast<std::size_t>(no) * 12, 12,
                          int32(colr.red) + int32(colr.green) + int32(colr.blue));
        project.write("PtrnColr", bytes);
    }

    /// Messages under "SYSTEM": what the resources themselves have to say.
    std::vector<std::string> reports()
    {
        std::vector<std::string> texts;
        for (const LogLine& line : project.log())
            if (line.mesg1 == "SYSTEM")
                texts.push_back(line.mesg2);
        return texts;
    }

    Project project;
};

/// What a component of the display's scale contributes to a pixel of the test server (8 bits each).
inline guint32 pixel24(int red, int green, int blue)
{
    return static_cast<guint32>(red >> 8 << 16 | green >> 8 << 8 | blue >> 8);
}

/// Lines as texts, to compare whole pictures.
inline std::vector<std::string> texts(char* const* lines, int first, int count)
{
    return {lines + first, lines + first + count};
}
