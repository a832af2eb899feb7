#include "tools/ptn/common/Files.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <fstream>

namespace ptn
{

namespace fs = std::filesystem;

std::optional<std::string> ReadBytes(const fs::path& file)
{
    std::error_code missing;
    if (!fs::is_regular_file(file, missing))
        return std::nullopt;
    std::ifstream in(file, std::ios::binary);
    if (!in)
        return std::nullopt;
    // What a file system says of a file's size may be wrong, or change.
    std::string bytes;
    std::vector<char> part(std::size_t{1024} * 1024);
    while (in && bytes.size() <= LARGEST_INPUT) {
        in.read(part.data(), static_cast<std::streamsize>(part.size()));
        bytes.append(part.data(), static_cast<std::size_t>(in.gcount()));
    }
    return bytes.size() > LARGEST_INPUT || in.bad() ? std::nullopt : std::optional(std::move(bytes));
}

std::string WhyUnread(const fs::path& file)
{
    std::error_code missing;
    if (fs::is_regular_file(file, missing) && fs::file_size(file, missing) > LARGEST_INPUT && !missing)
        return "is larger than " + std::to_string(LARGEST_INPUT / 1024 / 1024) +
               " MB, which no source or picture needs. Make it smaller.";
    if (fs::exists(file, missing) && !fs::is_regular_file(file, missing))
        return "is no plain file. Put one there.";
    return "can not be read. Check that the file is there and readable.";
}

std::vector<std::string> YamlFiles(const fs::path& folder)
{
    std::vector<std::string> files;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing))
        if (entry.path().extension() == ".yaml" && entry.path().filename().string()[0] != '.' &&
            !entry.is_directory())
            files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    return files;
}

namespace
{

bool IsAlmostYaml(const fs::path& file)
{
    std::string ending = file.extension().string();
    std::transform(ending.begin(), ending.end(), ending.begin(),
                   [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return ending == ".yml" || (ending == ".yaml" && file.extension() != ".yaml");
}

} // namespace

void CheckReadable(const fs::path& folder, Diagnostics& diagnostics)
{
    std::error_code problem;
    const fs::directory_iterator readable(folder, problem);
    if (problem && problem != std::errc::no_such_file_or_directory)
        diagnostics.error({folder.string(), 0}, "this folder can not be read: " + problem.message() +
                                                    ". Check that it is a folder, and its rights.");
}

void CheckYamlNames(const fs::path& folder, Diagnostics& diagnostics)
{
    std::vector<std::string> files;
    std::error_code missing;
    for (const auto& entry : fs::directory_iterator(folder, missing))
        if (IsAlmostYaml(entry.path()) && entry.path().filename().string()[0] != '.')
            files.push_back(entry.path().string());
    std::sort(files.begin(), files.end());
    for (const std::string& file : files)
        diagnostics.warning({file, 0}, "this file is not read: sources end in '.yaml'. Rename it, or move it "
                                       "elsewhere.");
}

void WriteBytes(const fs::path& file, const std::string& bytes)
{
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    out.close();
    if (!out)
        throw fs::filesystem_error("can not be written", file,
                                   std::error_code(errno, std::generic_category()));
}

void ReportUnwritten(const fs::filesystem_error& problem, Diagnostics& diagnostics)
{
    diagnostics.error({problem.path1().string(), 0},
                      problem.code().message() + ". Check the folder's rights and space.");
}

} // namespace ptn
