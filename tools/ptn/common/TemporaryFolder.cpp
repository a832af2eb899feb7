#include "tools/ptn/common/TemporaryFolder.h"

#include <cerrno>
#include <cstdlib>
#include <string>

namespace ptn
{

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::string name = (fs::temp_directory_path() / "ptn-XXXXXX").string();
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
