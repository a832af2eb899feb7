// A folder that goes when its object goes.
#pragma once

#include <filesystem>

namespace ptn
{

class TemporaryFolder
{
  public:
    /// Throws std::filesystem::filesystem_error when it can not be made.
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

} // namespace ptn
