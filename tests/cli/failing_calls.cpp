#include "cli/failing_calls.h"

#include <fcntl.h>
#include <sys/ptrace.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include "support/temporary_folder.h"

namespace wb::test {

namespace {

/// That there is no such file is an answer and no failure.
const std::vector<int> lookUp = {EACCES, EIO, ENOMEM};

const std::vector<FileCall> calls = {
    {SYS_openat, "openat", {EACCES, EMFILE, ENFILE, ENOSPC, EDQUOT, EROFS, EIO, EINTR, ENOENT}},
    {SYS_read, "read", {EIO, EINTR, ESTALE}},
    {SYS_pread64, "pread", {EIO, EINTR}},
    {SYS_write, "write", {ENOSPC, EIO, EDQUOT, EINTR, EFBIG, halfWritten}},
    {SYS_close, "close", {EIO, EINTR, ENOSPC, EDQUOT}},
    {SYS_lseek, "lseek", {EIO}},
    {SYS_fsync, "fsync", {EIO, ENOSPC, EDQUOT, EINVAL}},
#ifdef SYS_rename
    {SYS_rename, "rename", {EACCES, EXDEV, EROFS, ENOSPC, EDQUOT, EIO}},
    {SYS_link, "link", {EPERM, EMLINK, EROFS, ENOSPC, EDQUOT, EIO, EEXIST}},
    {SYS_unlink, "unlink", {EACCES, EROFS, EIO}},
    {SYS_rmdir, "rmdir", {EACCES, EROFS, EIO}},
    {SYS_mkdir, "mkdir", {EACCES, EROFS, ENOSPC, EDQUOT, EIO}},
    {SYS_readlink, "readlink", lookUp},
    {SYS_stat, "stat", lookUp},
    {SYS_lstat, "lstat", lookUp},
#endif
    {SYS_newfstatat, "newfstatat", lookUp},
    {SYS_statx, "statx", lookUp},
    {SYS_fstat, "fstat", {EIO, ENOMEM}},
    {SYS_fchmod, "fchmod", {EPERM, EROFS, EIO}},
    {SYS_fchown, "fchown", {EPERM, EROFS, EIO, EDQUOT}},
    {SYS_getxattr, "getxattr", {EACCES, EIO, ENOTSUP}},
    {SYS_fsetxattr, "fsetxattr", {EPERM, ENOSPC, EDQUOT, EIO}},
    {SYS_fremovexattr, "fremovexattr", {EPERM, EIO}},
    {SYS_getdents64, "getdents64", {EIO, EACCES}},
};

/// The side of the process that works.
[[noreturn]] void workTraced(const std::function<int()>& work, const std::string& output, const std::string& errors) {
    const int mode = S_IRUSR | S_IWUSR;
    dup2(open(output.c_str(), O_WRONLY | O_CREAT | O_TRUNC, mode), STDOUT_FILENO);
    dup2(open(errors.c_str(), O_WRONLY | O_CREAT | O_TRUNC, mode), STDERR_FILENO);
    constexpr int cannot = 125;
    if (ptrace(PTRACE_TRACEME, 0, nullptr, nullptr) != 0) {
        _exit(cannot);
    }
    raise(SIGSTOP); // from here on the calls count
    _exit(work());
}

#ifdef __x86_64__

/// The side that watches.
class Tracer {
public:
    Tracer(pid_t process, const Fault& fault, TracedRun& run) : process_(process), fault_(fault), run_(run) {}

    void follow() {
        int status = 0;
        waitpid(process_, &status, 0);
        run_.traced = WIFSTOPPED(status);
        if (run_.traced) {
            ptrace(PTRACE_SETOPTIONS, process_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        }
        int signal = 0;
        bool entering = true;
        while (WIFSTOPPED(status)) {
            ptrace(PTRACE_SYSCALL, process_, nullptr, signal);
            waitpid(process_, &status, 0);
            signal = 0;
            if (!WIFSTOPPED(status)) {
                break;
            }
            if (WSTOPSIG(status) != (SIGTRAP | 0x80)) {
                signal = WSTOPSIG(status);
                continue;
            }
            entering ? enter() : leave();
            entering = !entering;
        }
        run_.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

private:
    void enter() {
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, process_, nullptr, &registers);
        const auto number = static_cast<long>(registers.orig_rax);
        const auto known =
            std::find_if(calls.begin(), calls.end(), [&](const FileCall& call) { return call.number == number; });
        const bool onDescriptor = number == SYS_write || number == SYS_fsync;
        if (known == calls.end() || (onDescriptor && registers.rdi == STDERR_FILENO)) {
            return;
        }
        run_.calls.push_back(&*known);
        if (run_.calls.size() != fault_.number) {
            return;
        }
        run_.ofFolder = onDescriptor && isFolder(registers.rdi);
        if (number == SYS_write && fault_.error == halfWritten) {
            registers.rdx /= 2;
        } else if (number == SYS_close) { // which gives the descriptor back all the same
            failing_ = true;
        } else {
            registers.orig_rax = static_cast<decltype(registers.orig_rax)>(-1);
            failing_ = true;
        }
        ptrace(PTRACE_SETREGS, process_, nullptr, &registers);
    }

    void leave() {
        if (!failing_) {
            return;
        }
        user_regs_struct registers{};
        ptrace(PTRACE_GETREGS, process_, nullptr, &registers);
        registers.rax = static_cast<decltype(registers.rax)>(-fault_.error);
        ptrace(PTRACE_SETREGS, process_, nullptr, &registers);
        failing_ = false;
    }

    bool isFolder(unsigned long long descriptor) const {
        struct stat status {};
        const std::string link = "/proc/" + std::to_string(process_) + "/fd/" + std::to_string(descriptor);
        return stat(link.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
    }

    pid_t process_;
    const Fault& fault_;
    TracedRun& run_;
    bool failing_ = false; ///< the call that it is in
};

#endif

} // namespace

std::span<const FileCall> fileCalls() {
    return calls;
}

TracedRun runWithFault(const std::function<int()>& work, const Fault& fault) {
    TracedRun run;
#ifdef __x86_64__
    const TemporaryFolder streams;
    const std::string output = streams.write("output", "");
    const std::string errors = streams.write("errors", "");
    std::fflush(nullptr);
    const pid_t process = fork();
    if (process == 0) {
        workTraced(work, output, errors);
    }
    Tracer(process, fault, run).follow();
    run.output = TemporaryFolder::read(output);
    run.errors = TemporaryFolder::read(errors);
#endif
    return run;
}

} // namespace wb::test
