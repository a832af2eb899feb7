#include "tools/ptn/common/Files.h"

#include <algorithm>
#include <cerrno>
#include <fstream>
#include <iterator>

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
    return std::string(std::istreambuf_iterator<char>(in), {});
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
