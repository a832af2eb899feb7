// Fixture: a project with a started store, and one pattern loaded from a file of it.
#pragma once

#include "comndata/ComnData.h"
#include "comndata/PtrnCode.h"
#include "pattern/PtrnData.h"
#include "tests/support/PatternBuilder.h"
#include "tests/support/Project.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

/// A copy of a packed member, which no reference may be bound to.
template <typename Value> Value val(Value value)
{
    return value;
}

class LoadedPattern : public testing::Test
{
  protected:
    /// The code "A" has the numbers 1 to 20, "B" 21 to 25.
    LoadedPattern()
    {
        project.code("A", 20).code("B", 5);
        project.start();
        project.clearLog();
    }

    /// Saves the pattern and loads it in place of the one before.
    CPtrnData& load(const Pattern& pattern)
    {
        pattern.save(project);
        data_ = std::make_unique<CPtrnData>(pattern.name().c_str());
        return *data_;
    }

    CPtrnData& data() { return *data_; }
    PTRNDATA& item(int recd = 0) { return data_->PtrnData[recd]; }

    static void set(int no, float value) { Set_fData(no, value, nullptr, 0); }
    static void setText(int no, const char* text) { Set_sData(no, text, nullptr, 0); }
    static void setState(int no, int word) { Set_wData(no, static_cast<WORD>(word), nullptr, 0); }
    static float value(int no) { return Get_fData(no, nullptr, 0); }

    Project project;

  private:
    std::unique_ptr<CPtrnData> data_;
};
