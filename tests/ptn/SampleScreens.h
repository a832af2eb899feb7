// The sample project of this source tree, compiled by the tool, with its screens taken apart.
#pragma once

#include "pattern/PtrnFile.h"
#include "tests/ptn/Sources.h"

#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

struct SampleItem {
    PTRNFILE record;
    std::vector<std::string> texts; ///< three languages, ID_Name, ID_Code

    int type() const { return record.Type; }
    int parm(int index) const { return record.Parm[index]; }
    /// "CODE+2"; empty when the item is bound to nothing.
    std::string data() const;
    RECT corners() const;
};

struct SampleScreen {
    HEDRFILE header;
    std::vector<SampleItem> items;
};

/// Fixture.
class Sample : public testing::Test
{
  protected:
    void SetUp() override;

    Sources sources;
    std::map<std::string, SampleScreen> screens; ///< by the patterns' names
};
