// A folder that goes when its object goes.
#pragma once

#include <filesystem>
#include <string>

namespace ptn
{

class TemporaryFolder
{
  public:
    /// Makes a folder with a name of its own that begins with `prefix`.
    /// @param parent  an existing folder; without it that for temporary files
    /// Throws std::filesystem::filesystem_error when it can not be made.
    explicit TemporaryFolder(const std::string& prefix, const std::filesystem::path& parent = "");
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

} // namespace ptn
