// A profile that is written: a file, then what is written into it and deleted from it.
#include "config/Profile.h"
#include "fuzz/Target.h"

#include <algorithm>
#include <cstring>

namespace
{

constexpr int MOST_STEPS = 30;
constexpr std::size_t LONGEST_VALUE = 99; // that is read again

bool IsName(const std::string& name)
{
    return !name.empty() && name.size() < 60 &&
           std::all_of(name.begin(), name.end(),
                       [](unsigned char letter) { return letter > ' ' && letter < 0x7F; }) &&
           name.find_first_of("[]=;") == std::string::npos;
}

/// Whether it is read as it was written: nothing that ends a value, a field or a line.
bool IsValue(const std::string& value)
{
    return value.size() <= LONGEST_VALUE && value.find_first_of(",;\n\r \t") == std::string::npos;
}

void Run(const std::string& bytes)
{
    fuzz::Input input(bytes);
    const std::string before = input.text();
    fuzz::Project::own().write("x.ini", before);
    // A last line without its end takes in what is written behind it.
    const bool ended = before.empty() || before.back() == '\n';
    for (int step = 0; step < MOST_STEPS && !input.empty(); ++step) {
        const int kind = input.byte() % 4;
        const std::string section = input.text();
        const std::string key = input.text();
        if (kind == 0) {
            ProfileDelete("x.ini", section.c_str(), key.c_str());
        } else if (kind == 1) {
            int number = input.number();
            WORD word = static_cast<WORD>(input.number());
            ProfileWrite("x.ini", section.c_str(), key.c_str(), number, "ih", &number, &word);
        } else {
            const std::string value = input.text();
            ProfileWriteAsc("x.ini", section.c_str(), key.c_str(), value.c_str());
            if (step == 0 && ended && IsName(section) && IsName(key) && IsValue(value))
                fuzz::promise(ProfileReadAsc("x.ini", section.c_str(), key.c_str()) == value,
                              "a value that was written is read");
        }
    }
}

const fuzz::Target TARGET("profile-write", Run);

} // namespace
