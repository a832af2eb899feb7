// A profile that is read, key by key and as a whole.
#include "config/Profile.h"
#include "config/ProfileText.h"
#include "fuzz/Target.h"

#include <cstring>

namespace
{

constexpr int MOST_KEYS = 40;

void Read(const std::string& section, const std::string& key)
{
    char text1[100];
    char text2[100];
    int number1 = 0;
    int number2 = 0;
    WORD word = 0;
    std::memset(text1, 'x', sizeof text1);
    std::memset(text2, 'x', sizeof text2);
    ProfileRead("x.ini", section.c_str(), key.c_str(), "siihs", text1, &number1, &number2, &word, text2);
    fuzz::promise(std::memchr(text1, 0, sizeof text1) && std::memchr(text2, 0, sizeof text2),
                  "a text of a profile ends");
    ProfileReadInt("x.ini", section.c_str(), key.c_str(), 7);
    ProfileReadHex("x.ini", section.c_str(), key.c_str());
    ProfileReadAsc("x.ini", section.c_str(), key.c_str());
}

void Run(const std::string& bytes)
{
    fuzz::Project::own().write("x.ini", bytes);
    int keys = 0;
    for (const tessary::ProfileSection& section : tessary::ParseProfile(bytes)) {
        for (const tessary::ProfileKey& key : section.keys)
            if (++keys < MOST_KEYS)
                Read(section.name, key.name);
        tessary::ProfileValues(bytes, section.name);
    }
    Read("TESSARY", "DISPSIZE");
    Read("", "");
    fuzz::promise(fuzz::Project::own().read("x.ini") == bytes, "reading changes nothing");
}

const fuzz::Target TARGET("profile-read", Run);

} // namespace
