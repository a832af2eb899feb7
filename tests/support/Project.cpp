#include "tests/support/Project.h"

#include "base/EucText.h"
#include "comndata/ComnData.h"
#include "config/Settings.h"
#include "log/Logfile.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <unistd.h>

using namespace tessary;

namespace fs = std::filesystem;

std::string readFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const std::string& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary | std::ios::trunc)
        .write(bytes.data(), static_cast<long>(bytes.size()));
}

std::string int32(std::int32_t value)
{
    std::string bytes;
    for (int shift = 0; shift < 32; shift += 8)
        bytes += static_cast<char>(static_cast<std::uint32_t>(value) >> shift);
    return bytes;
}

std::string field(const std::string& text, std::size_t size)
{
    std::string bytes = text.substr(0, size);
    bytes.resize(size, '\0');
    return bytes;
}

Project::Project(const fs::path& parent) : folder_("tessary-", parent), before_(fs::current_path().string())
{
    fs::create_directories(folder());
    fs::create_directories(logFolder());
    fs::current_path(root());
    set("TESSARY", "PROJECT", folder());
    set("LOG", "LOGFILE", logFolder());
    set("LOG", "LOGSIZE", "1");
    CopyText(ProfName, profile().c_str());
    CopyText(ProjPath, folder().c_str());
    Language = 0;
}

fs::path Project::inMemory()
{
    const fs::path folder = "/dev/shm";
    return access(folder.c_str(), W_OK) == 0 ? folder : fs::path();
}

Project::~Project()
{
    if (started_) {
        ComnDataExit();
        LogfileExit();
    }
    ProfName[0] = '\0';
    ProjPath[0] = '\0';
    Language = 0;
    std::error_code ignored;
    fs::current_path(before_, ignored);
}

Project& Project::set(const std::string& section, const std::string& key, const std::string& value)
{
    unset(section, key);
    auto place =
        std::find_if(keys_.begin(), keys_.end(), [&](auto& entry) { return entry.first == section; });
    if (place == keys_.end())
        place = keys_.insert(keys_.end(), {section, {}});
    place->second.emplace_back(key, value);
    writeProfile();
    return *this;
}

Project& Project::unset(const std::string& section, const std::string& key)
{
    for (auto& [name, entries] : keys_)
        if (name == section)
            entries.erase(std::remove_if(entries.begin(), entries.end(),
                                         [&](auto& entry) { return entry.first == key; }),
                          entries.end());
    writeProfile();
    return *this;
}

void Project::writeProfile() const
{
    std::string text;
    for (const auto& [section, entries] : keys_) {
        text += "[" + section + "]\n";
        for (const auto& [key, value] : entries)
            text += key + "=" + value + "\n";
    }
    writeFile(profile(), text);
}

Project& Project::code(const std::string& name, int count, int first)
{
    if (first < 0)
        first = next_;
    next_ = first + count;
    codes_ += field(name, 22) + int32(count) + int32(first) + int32(0);
    return write("PtrnCode", codes_);
}

Project& Project::flag(int no, int value)
{
    if (flags_.size() <= static_cast<std::size_t>(std::max(no, next_ - 1)))
        flags_.resize(static_cast<std::size_t>(std::max(no, next_ - 1)) + 1, '\0');
    flags_[static_cast<std::size_t>(no)] = static_cast<char>(value);
    return write("PtrnFlag", flags_);
}

Project& Project::write(const std::string& name, const std::string& bytes)
{
    writeFile(folder() + "/" + name, bytes);
    return *this;
}

std::string Project::read(const std::string& name) const
{
    return readFile(folder() + "/" + name);
}

bool Project::exists(const std::string& name) const
{
    return fs::exists(folder() + "/" + name);
}

void Project::start()
{
    LogfileInit();
    ComnDataInit();
    started_ = true;
}

std::vector<LogLine> Project::log()
{
    LogfileSave();
    std::vector<std::string> files;
    for (const auto& entry : fs::directory_iterator(logFolder()))
        files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());

    // A line is "hh:mm:ss", two blanks, 45 characters of origin and category, two blanks, the message.
    std::vector<LogLine> lines;
    for (const auto& file : files) {
        std::istringstream text(readFile(file));
        for (std::string row; std::getline(text, row);) {
            row.resize(std::max<std::size_t>(row.size(), 57), ' ');
            const auto trimmed = [&](std::size_t from, std::size_t count) {
                std::string part = row.substr(from, count);
                part.erase(part.find_last_not_of(' ') + 1);
                return part;
            };
            LogLine line;
            line.time = row.substr(0, 8);
            line.file = trimmed(10, 16);
            line.line = std::atoi(row.substr(27, 5).c_str());
            line.mesg1 = trimmed(35, 20);
            line.mesg2 = row.substr(57);
            lines.push_back(line);
        }
    }
    return lines;
}

std::vector<std::string> Project::messages()
{
    std::vector<std::string> texts;
    for (const auto& line : log())
        texts.push_back(line.mesg2);
    return texts;
}

void Project::clearLog()
{
    LogfileSave();
    for (const auto& entry : fs::directory_iterator(logFolder()))
        fs::remove(entry.path());
}
