// Records as the files of the running system hold them: packed, little-endian.
#pragma once

#include <string>
#include <type_traits>

namespace ptn
{

/// Appends a packed record as it lies in memory.
template <typename Record> void AppendRecord(std::string& bytes, const Record& record)
{
    static_assert(std::is_trivially_copyable_v<Record>);
    bytes.append(reinterpret_cast<const char*>(&record), sizeof record);
}

} // namespace ptn
