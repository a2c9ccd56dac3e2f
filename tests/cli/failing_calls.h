#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

/// Calls of the system that fail. The work runs in a process of its own, which is stopped at each call that it makes of
/// files, whether it is made here or in a library.
namespace wb::test {

/// What stands for an error: the write takes half of what it is given.
inline constexpr int halfWritten = 0;

/// How a call may fail.
struct FileCall {
    long number; ///< that of the system
    const char* name;
    std::vector<int> errors;
};

/// The calls that are made to fail. Those to the file descriptor of standard error are not among them: nothing could be
/// told of them.
std::span<const FileCall> fileCalls();

/// A call that fails.
struct Fault {
    std::size_t number = 0; ///< of the calls, counted from 1 on
    int error = 0;
};

/// What a run of the work left.
struct TracedRun {
    bool traced = false; ///< whether this machine lets calls be made to fail; all else is empty where it does not
    int status = -1;     ///< negative: the number of the signal that ended it
    std::string output;
    std::string errors;
    std::vector<const FileCall*> calls; ///< those that it made, in order, those of fileCalls() alone
    bool ofFolder = false;              ///< the call that failed was one on an open folder
};

/// Runs the work, whose result is the exit status, with one of its calls failing; number 0: with none.
TracedRun runWithFault(const std::function<int()>& work, const Fault& fault);

} // namespace wb::test
