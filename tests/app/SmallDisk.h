// A disk of its own for everything that a test writes: one that can be full, or only be read. Root alone may
// make one; without it the tests are skipped.
#pragma once

#include "tests/support/Variable.h"

#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

class SmallDisk
{
  protected:
    SmallDisk()
    {
        char name[] = "/tmp/tessary-disk-XXXXXX";
        folder_ = mkdtemp(name);
        mounted_ = mount("tmpfs", folder_.c_str(), "tmpfs", 0, "size=1m,mode=0755") == 0;
        temporary_.emplace("TMPDIR", folder_.c_str());
    }
    ~SmallDisk()
    {
        if (mounted_)
            umount2(folder_.c_str(), MNT_DETACH);
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    /// To be called when what is to lie on the disk has been made. @return false where there is none
    bool leave()
    {
        temporary_.reset();
        return mounted_;
    }

    /// To the last byte.
    void fill() const
    {
        const int file = open(filler().c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
        const std::string bytes(4096, 'f');
        while (write(file, bytes.data(), bytes.size()) > 0)
            ;
        close(file);
    }
    void makeRoom() const { unlink(filler().c_str()); }

    void setReadOnly(bool only) const
    {
        ASSERT_EQ(mount("tmpfs", folder_.c_str(), "tmpfs", MS_REMOUNT | (only ? MS_RDONLY : 0), "size=1m"),
                  0);
    }

  private:
    std::string filler() const { return folder_ + "/filler"; }

    std::string folder_;
    bool mounted_ = false;
    std::optional<Variable> temporary_;
};
