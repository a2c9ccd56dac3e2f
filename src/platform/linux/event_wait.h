#pragma once

#include <csignal>

#include <chrono>
#include <optional>

namespace wb::platform::linux_system {

/// Waits for a stream of events, and meanwhile for what ends a program. While the object lives, SIGINT and SIGTERM end
/// nothing by themselves; one that is ignored stays so.
class EventWait {
public:
    enum class Result { Ready, Quiet, Stop, OutputClosed };

    /// A failure is a std::system_error.
    EventWait();
    EventWait(const EventWait&) = delete;
    EventWait& operator=(const EventWait&) = delete;
    ~EventWait();

    /// Until there is something to read in the stream, the time is over, a signal came, or nobody reads standard output
    /// any more. A failure is a std::system_error.
    Result wait(int stream, std::optional<std::chrono::milliseconds> patience) const;

private:
    void takeSignal() const;

    sigset_t before_{};
    int signals_ = -1;
};

} // namespace wb::platform::linux_system
