// A file that is written anew as a whole: whatever happens meanwhile, its name stands for the old bytes or
// for the new ones, and never for some of both.
#pragma once

#include <string>

namespace tessary
{

/// The new file grows beside the old one, in the same folder, and takes its place at the end.
class Replacement
{
  public:
    /// Drops what was not committed.
    ~Replacement();
    Replacement() = default;
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    /// Makes the new file with the bytes, the mode and, where that is permitted, the owner of the old one;
    /// empty when there is no old one.
    /// @param path  of the old file; a symbolic link stays and what it points to is replaced
    /// @return false with a reason in errno: no regular file, or the folder takes no new file
    bool begin(const std::string& path);

    /// Where to write until commit() is called.
    const std::string& path() const { return temporary_; }

    /// Brings the bytes to the disk and then puts the new file in place of the old one.
    /// @return false with a reason in errno; the old file is as it was then
    bool commit();

  private:
    bool make(const std::string& path);

    std::string target_;
    std::string temporary_; ///< empty: none
    int lock_ = -1;         ///< the new file, open as long as it is being written
};

} // namespace tessary
