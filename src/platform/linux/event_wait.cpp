#include "platform/linux/event_wait.h"

#include <poll.h>
#include <sys/signalfd.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>

namespace wb::platform::linux_system {

namespace {

bool isIgnored(int signal) {
    struct sigaction action {};
    return sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

} // namespace

EventWait::EventWait() {
    sigset_t stopping;
    sigemptyset(&stopping);
    for (const int signal : {SIGINT, SIGTERM}) {
        if (!isIgnored(signal)) { // one that is blocked would come all the same
            sigaddset(&stopping, signal);
        }
    }
    signals_ = signalfd(-1, &stopping, SFD_CLOEXEC | SFD_NONBLOCK);
    if (signals_ < 0) {
        throw std::system_error(errno, std::generic_category(), "signals");
    }
    pthread_sigmask(SIG_BLOCK, &stopping, &before_);
}

EventWait::~EventWait() {
    close(signals_);
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

EventWait::Result EventWait::wait(int stream, std::optional<std::chrono::milliseconds> patience) const {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + patience.value_or(std::chrono::milliseconds(0));
    for (;;) {
        // No event is asked of standard output: its end is told all the same.
        std::array<pollfd, 3> streams = {pollfd{signals_, POLLIN, 0}, pollfd{stream, POLLIN, 0},
                                         pollfd{STDOUT_FILENO, 0, 0}};
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - Clock::now()).count();
        const int timeout = !patience ? -1 : left > 0 ? static_cast<int>(left) : 0;
        const int ready = poll(streams.data(), streams.size(), timeout);
        if (ready < 0 && errno != EINTR) {
            throw std::system_error(errno, std::generic_category(), "events");
        }
        if (ready == 0) {
            return Result::Quiet;
        }
        if (ready > 0) {
            if (streams[0].revents != 0) {
                takeSignal();
                return Result::Stop;
            }
            return streams[2].revents != 0 ? Result::OutputClosed : Result::Ready;
        }
    }
}

/// Takes one signal out, so that it does not come a second time when the object goes.
void EventWait::takeSignal() const {
    signalfd_siginfo taken{};
    while (read(signals_, &taken, sizeof taken) < 0 && errno == EINTR) {
    }
}

} // namespace wb::platform::linux_system
