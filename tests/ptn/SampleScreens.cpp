#include "tests/ptn/SampleScreens.h"

#include "pattern/ItemParm.h"
#include "tests/support/Program.h"
#include "tests/support/Project.h"

#include <cstring>
#include <filesystem>

using namespace tessary;

namespace fs = std::filesystem;

namespace
{

SampleScreen Parse(const std::string& bytes)
{
    SampleScreen screen{};
    std::memcpy(&screen.header, bytes.data(), sizeof screen.header);
    std::size_t at = sizeof screen.header;
    for (int i = 0; i < screen.header.DataCount; ++i, at += sizeof(PTRNFILE)) {
        SampleItem item{};
        std::memcpy(&item.record, bytes.data() + at, sizeof item.record);
        screen.items.push_back(item);
    }
    EXPECT_EQ(at + static_cast<std::size_t>(screen.header.TextSize), bytes.size());
    for (SampleItem& item : screen.items) {
        for (int i = 0; i < 5; ++i) {
            item.texts.emplace_back(bytes.c_str() + at);
            at += item.texts.back().size() + 1;
        }
    }
    EXPECT_EQ(at, bytes.size());
    return screen;
}

} // namespace

std::string SampleItem::data() const
{
    return texts[4].empty() ? "" : texts[4] + "+" + std::to_string(record.ID_No);
}

RECT SampleItem::corners() const
{
    return SetRect(parm(PARM_X1), parm(PARM_Y1), parm(PARM_X2), parm(PARM_Y2));
}

void Sample::SetUp()
{
    const PtnResult result = sources.run("build " + Program::sourceFolder() + "/project out/ProjPath");
    ASSERT_EQ(result.status, 0) << result.err;
    ASSERT_EQ(result.err, "");
    for (const auto& entry : fs::directory_iterator(sources.output()))
        if (entry.path().extension() == ".ptn")
            screens[entry.path().stem().string()] = Parse(readFile(entry.path().string()));
}
