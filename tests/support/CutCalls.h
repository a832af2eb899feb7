// A process whose system calls are counted, and one of which fails or is never made.
#pragma once

#include <functional>
#include <string>

/// What happens at the call that was chosen.
enum class Cut {
    Die,    ///< the process is killed before it
    NoRoom, ///< it fails with ENOSPC
    Broken, ///< it fails with EIO
};

struct CutResult {
    bool reached;     ///< the process has come to that call
    int status;       ///< as waitpid() tells
    std::string call; ///< and what it was about
};

/// Runs `work` in a process of its own and cuts the call of that number, from 1 on, of those that change
/// files: open, write, pwrite, sendfile, fsync, ftruncate, rename, fchmod, fchown, flock, close, unlink,
/// mkdir.
/// @param work    its result is the status of the process
/// @param folder  when given, only calls count that are about what lies in it, or about a relative name
CutResult CutCall(int number, Cut cut, const std::function<int()>& work, const std::string& folder = "");

/// Whether this machine lets a process watch another one's calls, and the calls' registers are known here.
bool CanCutCalls();
