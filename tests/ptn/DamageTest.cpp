// "ptn check", "ptn dump" and "ptn render" of damaged projects: they say what is wrong, and end by
// themselves.
#include "tests/ptn/Sources.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <algorithm>
#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

namespace fs = std::filesystem;

namespace
{

using testing::AnyOf;
using testing::HasSubstr;
using testing::Not;

class Damage : public testing::Test
{
  protected:
    Damage()
    {
        const PtnResult built = sources.run("build " + Program::sourceFolder() + "/project whole/ProjPath");
        EXPECT_EQ(built.status, 0) << built.err;
        for (const auto& entry : fs::recursive_directory_iterator("whole"))
            if (entry.is_regular_file() && entry.path().filename().string()[0] != '.')
                files.push_back(entry.path().lexically_relative("whole").string());
        std::sort(files.begin(), files.end());
    }

    int number(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random); }
    char byte() { return static_cast<char>(number(0, 255)); }
    std::size_t place(const std::string& bytes)
    {
        return static_cast<std::size_t>(number(0, static_cast<int>(bytes.size()) - 1));
    }

    // Cut off, lengthened, sprinkled, with one number replaced, or empty.
    std::string damaged(std::string bytes)
    {
        if (bytes.size() < 4)
            return "";
        switch (number(0, 4)) {
        case 0:
            return bytes.substr(0, place(bytes));
        case 1:
            for (int i = number(1, 300); i > 0; --i)
                bytes += byte();
            return bytes;
        case 2:
            for (int i = number(1, 60); i > 0; --i)
                bytes[place(bytes)] = byte();
            return bytes;
        case 3:
            return bytes.replace(place(bytes), 4,
                                 int32(std::vector<int>{-1, 1 << 30, 100, 1 << 31}[number(0, 3)]));
        default:
            return "";
        }
    }

    void expectEnds(const std::string& arguments)
    {
        const PtnResult result = sources.run(arguments);
        EXPECT_THAT(result.status, AnyOf(0, 1)) << arguments;
        for (const char* sign : {"runtime error", "Sanitizer", "\nptn: "})
            EXPECT_THAT("\n" + result.err, Not(HasSubstr(sign))) << arguments;
        if (result.status == 1) {
            EXPECT_NE(result.err, "") << arguments;
        }
    }

    Sources sources;
    std::vector<std::string> files;
    std::mt19937 random{20251121};
};

TEST_F(Damage, of_any_file_ends_no_command_before_its_time)
{
    for (int round = 0; round < 8; ++round) {
        fs::remove_all("out");
        fs::copy("whole", "out", fs::copy_options::recursive);
        std::string what;
        for (int i = number(1, 3); i > 0; --i) {
            const std::string& file =
                files[static_cast<std::size_t>(number(0, static_cast<int>(files.size()) - 1))];
            writeFile("out/" + file, damaged(readFile("out/" + file)));
            what += " " + file;
        }
        SCOPED_TRACE("round " + std::to_string(round) + ":" + what);
        expectEnds("check out/ProjPath");
        expectEnds("dump out/ProjPath -o dumped");
        expectEnds("render out/ProjPath --all -o shots");
        fs::remove_all("dumped");
        if (HasFailure())
            break;
    }
}

TEST_F(Damage, of_numbers_in_the_code_table_ends_no_command_before_its_time)
{
    writeFile("state", "cells: { A: 1 }\n");
    for (const int number : {1 << 31, 0x7FFFFFFF}) {
        writeFile("whole/ProjPath/PtrnCode", field("A", 22) + int32(number) + int32(number) + int32(0));
        expectEnds("check whole/ProjPath");
        expectEnds("dump whole/ProjPath -o dumped");
        expectEnds("render whole/ProjPath --state state");
        fs::remove_all("dumped");
    }
}

} // namespace
