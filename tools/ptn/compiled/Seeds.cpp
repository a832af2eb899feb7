#include "tools/ptn/compiled/Seeds.h"

#include <cstdint>
#include <ctime>
#include <sstream>

namespace ptn
{

namespace fs = std::filesystem;

namespace
{

// FNV-1a: it only has to tell whether a file has changed.
std::string CheckSum(const std::string& bytes)
{
    std::uint64_t sum = 0xCBF29CE484222325;
    for (const char byte : bytes)
        sum = (sum ^ static_cast<unsigned char>(byte)) * 0x100000001B3;
    return std::to_string(sum);
}

/// A check sum and a name per line.
std::map<std::string, std::string> SumsOf(const std::string& list)
{
    std::map<std::string, std::string> sums;
    std::istringstream lines(list);
    std::string sum;
    std::string name;
    while (lines >> sum && std::getline(lines.ignore(), name))
        sums[name] = sum;
    return sums;
}

std::string Now()
{
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    char text[32] = "";
    if (localtime_r(&now, &local))
        std::strftime(text, sizeof text, "%Y%m%d-%H%M%S", &local);
    return text;
}

/// Which no file has yet.
std::string CopyName(const fs::path& folder, const std::string& name)
{
    const std::string dated = name + "." + Now();
    std::string free = dated;
    for (int more = 2; fs::exists(fs::symlink_status(folder / free)); ++more)
        free = dated + "-" + std::to_string(more);
    return free;
}

} // namespace

SeedPlan PlanSeeds(const fs::path& folder, const FileMap& seeds, const std::string& list, Reseed reseed)
{
    SeedPlan plan;
    auto sums = SumsOf(list);
    for (const auto& [name, bytes] : seeds) {
        const auto there = ReadBytes(folder / name);
        const bool unreadable = !there && fs::exists(fs::symlink_status(folder / name));
        std::string& before = sums[name];
        std::string sum = CheckSum(bytes);
        const bool changed = unreadable || (there && CheckSum(*there) != before); // since it was written
        if (there == bytes || (there && changed && sum == before && reseed == Reseed::Never)) {
            // as the source has it, or the panel's and the source still the same
        } else if (unreadable || (changed && reseed == Reseed::Never)) {
            plan.kept.push_back(name);
            sum = before; // so that the next build tells it again
        } else {
            plan.files[name] = bytes;
            if (changed)
                plan.copies[CopyName(folder, name)] = *there;
        }
        if (!sum.empty())
            plan.list += sum + " " + name + "\n";
    }
    return plan;
}

} // namespace ptn
