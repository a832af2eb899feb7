// Tables of wrong sources, each with the only message about it.
#pragma once

#include "tests/ptn/Sources.h"

#include <gtest/gtest.h>
#include <ostream>

struct MessageCase {
    const char* name;
    const char* text;    ///< the file, or what the test puts into it
    const char* message; ///< without the file's name
};

inline void PrintTo(const MessageCase& one, std::ostream* out)
{
    *out << one.name;
}

inline std::string CaseName(const testing::TestParamInfo<MessageCase>& info)
{
    return info.param.name;
}

class Messages : public testing::TestWithParam<MessageCase>
{
  protected:
    /// Builds and expects exactly one message, about that file.
    void expectOnly(const std::string& file)
    {
        const PtnResult result = sources.build();
        EXPECT_EQ(result.status, 1);
        EXPECT_EQ(result.err, "src/" + file + GetParam().message + "\n1 error; out/ProjPath is unchanged.\n");
        EXPECT_EQ(result.out, "");
    }

    Sources sources;
};
