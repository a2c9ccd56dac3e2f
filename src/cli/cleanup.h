#pragma once

#include <csignal>
#include <string>

namespace wb::cli {

/// Lets a signal that ends the program (interrupt, termination, hang-up) remove the temporary files of all CleanupMarks
/// first. Signals that the caller had ignored stay ignored.
void removeTemporariesOnSignals();

/// Threads that begin while it lives leave those signals to the thread that begins them. Where that one alone creates
/// files, no signal comes between a mark and its file.
class SignalsStayHere {
public:
    SignalsStayHere();
    SignalsStayHere(const SignalsStayHere&) = delete;
    SignalsStayHere& operator=(const SignalsStayHere&) = delete;
    ~SignalsStayHere();

#ifdef __unix__
private:
    sigset_t before_{};
#endif
};

/// Marks a file, or a folder that holds nothing but marked files, as temporary while it lives. The mark is to be there
/// before the file is. Marks beyond 64 at a time, and names beyond 4,095 bytes, have no effect.
class CleanupMark {
public:
    enum class Kind { File, Folder };

    CleanupMark(Kind kind, const std::string& path);
    CleanupMark(const CleanupMark&) = delete;
    CleanupMark& operator=(const CleanupMark&) = delete;
    ~CleanupMark();

private:
    int slot_ = -1;
};

} // namespace wb::cli
