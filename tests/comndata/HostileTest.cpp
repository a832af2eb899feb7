// Project files and arguments that no project and no screen should have. What counts is that nothing is
// read or written outside its buffer, nothing overflows and nothing hangs; the sanitizers watch.
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "tests/comndata/CommonData.h"

#include <cstring>
#include <limits>

using namespace tessary;

namespace
{

using Random = std::mt19937;

int pick(Random& random, std::initializer_list<int> values)
{
    return *(values.begin() + random() % values.size());
}

/// Mostly near the store, sometimes anywhere.
int anyNumber(Random& random)
{
    if (random() % 4 == 0)
        return static_cast<int>(random());
    return static_cast<int>(random() % 400) - 50;
}

std::string anyCodeRow(Random& random)
{
    static const int ENDS[] = {std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), -1, 0};
    const int count = random() % 8 ? static_cast<int>(random() % 30) : ENDS[random() % 4];
    const int first = random() % 3 ? anyNumber(random) : ENDS[random() % 4];
    return randomBytes(random, 22) + int32(count) + int32(first) + int32(static_cast<int>(random()));
}

/// A line of a profile made of what its reader looks at.
std::string anyTableLine(Random& random, const char* key)
{
    std::string line = key + std::to_string(random() % 520) + "=";
    const std::size_t fields = random() % 9;
    for (std::size_t i = 0; i < fields; i++) {
        const std::string parts[] = {
            "A",
            "12",
            "99999999999999999999",
            "-5",
            "FFFF",
            "",
            randomBytes(random, random() % 300),
            "長い文字列の値が続く",
        };
        line += parts[random() % std::size(parts)] + ",";
    }
    return line + "\n";
}

void useEverything(Random& random)
{
    char name[SIZE_DTNONAME];
    char message[SIZE_MESGTEXT + 2];
    float min;
    float max;
    for (int round = 0; round < 300; round++) {
        const int no = anyNumber(random);
        const int count = anyNumber(random);
        const std::string text = randomBytes(random, random() % 600);
        float value;
        const std::string bytes = randomBytes(random, sizeof value);
        std::memcpy(&value, bytes.data(), sizeof value);
        const char* file = pick(random, {0, 1}) ? "hostile.cpp" : nullptr;

        Set_wData(no, static_cast<WORD>(random()), file, 1);
        Set_fData(no, value, file, 1);
        Set_sData(no, text.c_str(), file, 1);
        Get_iData(no, file, 1);
        EXPECT_LT(std::strlen(Get_sData(no, file, 1)), static_cast<std::size_t>(SIZE_SDATA));
        OR_wData(no, static_cast<WORD>(random()), file, 1);
        Clear_AllData(no, file, 1);
        Clear_AllData(no, count, WORD{1}, value, text.c_str(), file, 1);
        Clear_sData(no, count, text.c_str(), file, 1);
        Set_Color(no, count, file, 1);
        Set_Disable(no, count, count, file, 1);
        ConvertDtno(no, name);
        EXPECT_LT(std::strlen(name), sizeof name);
        ConvertDtno(text.c_str(), count);
        ConvertPtrn(text.c_str());
        Get_MesgData(no, message, file, 1);
        DispErrorMesg(no);
        ChckLimtData(no, value, file, 1);
        Get_LimtData(no, &min, &max, file, 1);
    }
}

class HostileProject : public CommonData
{
  protected:
    // Every line would be written at once otherwise.
    void SetUp() override { project.set("LOG", "LOGSIZE", "10000"); }
};

} // namespace

TEST_F(HostileProject, with_random_bytes_for_every_file_is_survived)
{
    Random random(1);
    for (int round = 0; round < 10; round++) {
        for (const char* file : {"PtrnCode", "PtrnFlag", "MesgData.prf", "LimtData.prf"})
            project.write(file, randomBytes(random, random() % 3000));
        project.start();
        useEverything(random);
    }
}

TEST_F(HostileProject, with_random_rows_is_survived)
{
    Random random(2);
    for (int round = 0; round < 20; round++) {
        std::string rows;
        const std::size_t count = random() % 20;
        for (std::size_t i = 0; i < count; i++)
            rows += anyCodeRow(random);
        project.write("PtrnCode", rows).write("PtrnFlag", std::string(random() % 500, '\x01'));
        project.start();
        EXPECT_LE(PtrnDataNo, CONT_COMNDATA);
        EXPECT_LE(PtrnRecd, static_cast<int>(count));
        useEverything(random);
    }
}

TEST_F(HostileProject, with_random_table_lines_is_survived_before_and_after_the_code_table)
{
    Random random(3);
    project.code("A", 100).code("長い文字列の値が続く", 20);
    project.write("PtrnFlag", std::string(121, '\x01'));
    for (int round = 0; round < 5; round++) {
        std::string messages = "[MESGDATA]\n";
        std::string limits = "[LIMTDATA]\n";
        for (int i = 0; i < 100; i++) {
            messages += anyTableLine(random, "MESG");
            limits += anyTableLine(random, "LIMT");
        }
        project.write("MesgData.prf", messages).write("LimtData.prf", limits);
        project.start();
        LoadMesgData();
        LoadLimtData();
        useEverything(random);
        for (const MESGDATA* row : MesgData)
            if (row) {
                EXPECT_LE(std::strlen(row->ID_Code), 20U);
                EXPECT_LE(std::strlen(row->MesgText), 100U);
            }
    }
}
