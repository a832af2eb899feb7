#include "tools/ptn/system/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>

namespace ptn
{

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder(const std::string& prefix, const fs::path& parent)
{
    std::string name = ((parent.empty() ? fs::temp_directory_path() : parent) / (prefix + "XXXXXX")).string();
    if (!mkdtemp(name.data()))
        throw fs::filesystem_error("can not be made", name, std::error_code(errno, std::generic_category()));
    path_ = name;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

} // namespace ptn
