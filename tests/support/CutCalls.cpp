#include "tests/support/CutCalls.h"

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <iterator>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/uio.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#if defined(__x86_64__)

namespace
{

enum class On {
    Descriptor, ///< the first argument
    Path,       ///< the first argument
    PathInside, ///< the second argument, behind a folder
};

struct Call {
    long number;
    const char* name;
    On on;
};

constexpr Call CALLS[] = {
    {SYS_open, "open", On::Path},
    {SYS_openat, "open", On::PathInside},
    {SYS_creat, "open", On::Path},
    {SYS_write, "write", On::Descriptor},
    {SYS_writev, "write", On::Descriptor},
    {SYS_pwrite64, "pwrite", On::Descriptor},
    {SYS_sendfile, "sendfile", On::Descriptor},
    {SYS_copy_file_range, "copy", On::Descriptor},
    {SYS_fsync, "fsync", On::Descriptor},
    {SYS_fdatasync, "fsync", On::Descriptor},
    {SYS_ftruncate, "ftruncate", On::Descriptor},
    {SYS_fchmod, "fchmod", On::Descriptor},
    {SYS_fchown, "fchown", On::Descriptor},
    {SYS_flock, "flock", On::Descriptor},
    {SYS_close, "close", On::Descriptor},
    {SYS_rename, "rename", On::Path},
    {SYS_renameat, "rename", On::PathInside},
    {SYS_renameat2, "rename", On::PathInside},
    {SYS_unlink, "unlink", On::Path},
    {SYS_unlinkat, "unlink", On::PathInside},
    {SYS_mkdir, "mkdir", On::Path},
    {SYS_mkdirat, "mkdir", On::PathInside},
    {SYS_rmdir, "rmdir", On::Path},
    {SYS_link, "link", On::Path},
    {SYS_symlink, "symlink", On::Path},
};

const Call* Find(const user_regs_struct& registers)
{
    const auto number = static_cast<long>(registers.orig_rax);
    const auto* const found = std::find_if(std::begin(CALLS), std::end(CALLS),
                                           [&](const Call& call) { return call.number == number; });
    return found == std::end(CALLS) ? nullptr : found;
}

std::string TextAt(pid_t process, unsigned long long address)
{
    char text[4096] = "";
    const iovec here = {text, sizeof text - 1};
    const iovec there = {reinterpret_cast<void*>(address), sizeof text - 1};
    return process_vm_readv(process, &here, 1, &there, 1, 0) > 0 ? text : "";
}

/// What the call is about; relative where the process says so.
std::string Subject(pid_t process, const Call& call, const user_regs_struct& registers)
{
    if (call.on == On::Path)
        return TextAt(process, registers.rdi);
    if (call.on == On::PathInside)
        return TextAt(process, registers.rsi);
    std::error_code closed;
    return std::filesystem::read_symlink(
               "/proc/" + std::to_string(process) + "/fd/" + std::to_string(registers.rdi), closed)
        .string();
}

bool Concerns(const std::string& subject, const std::string& folder)
{
    return folder.empty() || subject.compare(0, folder.size(), folder) == 0 ||
           (!subject.empty() && subject[0] != '/' && subject.find(':') == std::string::npos);
}

/// Lets the process go on to its next call, or its return. @return whether it lives
bool GoOn(pid_t process, int& status)
{
    int signal = 0;
    for (;;) {
        if (ptrace(PTRACE_SYSCALL, process, nullptr, signal) != 0 || waitpid(process, &status, 0) != process)
            return false;
        if (!WIFSTOPPED(status))
            return false;
        if (WSTOPSIG(status) == (SIGTRAP | 0x80))
            return true;
        signal = WSTOPSIG(status) == SIGTRAP ? 0 : WSTOPSIG(status); // 0: it has become another program
    }
}

/// The call is not made, and its result is the error.
void Fail(pid_t process, user_regs_struct registers, int error, int& status)
{
    registers.orig_rax = static_cast<unsigned long long>(-1);
    ptrace(PTRACE_SETREGS, process, nullptr, &registers);
    if (!GoOn(process, status))
        return;
    ptrace(PTRACE_GETREGS, process, nullptr, &registers);
    registers.rax = static_cast<unsigned long long>(-static_cast<long long>(error));
    ptrace(PTRACE_SETREGS, process, nullptr, &registers);
}

void Kill(pid_t process, int& status)
{
    kill(process, SIGKILL);
    waitpid(process, &status, 0);
}

} // namespace

CutResult CutCall(int number, Cut cut, const std::function<int()>& work, const std::string& folder)
{
    const pid_t process = fork();
    if (process == 0) {
        ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
        raise(SIGSTOP);
        _exit(work());
    }
    CutResult result{false, 0, ""};
    waitpid(process, &result.status, 0);
    ptrace(PTRACE_SETOPTIONS, process, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
    int count = 0;
    while (GoOn(process, result.status)) {
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, process, nullptr, &registers);
        const Call* const call = Find(registers);
        const std::string subject = call ? Subject(process, *call, registers) : "";
        if (call && Concerns(subject, folder) && ++count == number) {
            result.reached = true;
            result.call = call->name + (" " + subject);
            if (cut == Cut::Die) {
                Kill(process, result.status);
                return result;
            }
            Fail(process, registers, cut == Cut::NoRoom ? ENOSPC : EIO, result.status);
        } else if (!GoOn(process, result.status)) {
            break;
        }
    }
    return result;
}

bool CanCutCalls()
{
    return CutCall(1, Cut::Die,
                   [] {
                       close(-1);
                       return 0;
                   })
        .reached;
}

#else

CutResult CutCall(int, Cut, const std::function<int()>&, const std::string&)
{
    return {false, 0, ""};
}

bool CanCutCalls()
{
    return false;
}

#endif
