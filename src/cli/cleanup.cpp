#include "cli/cleanup.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <csignal>
#include <mutex>

#ifdef __unix__
#include <unistd.h>
#endif

namespace wb::cli {

namespace {

/// A handler of signals may neither allocate nor lock: it reads these as they stand.
struct Slot {
    enum State : int { Free, File, Folder };

    std::atomic<int> state{Free};
    std::array<char, 4096> path{};
};

static_assert(std::atomic<int>::is_always_lock_free);

std::array<Slot, 64> slots;
std::mutex slotsMutex;

#ifdef __unix__

constexpr std::array<int, 3> endingSignals = {SIGINT, SIGTERM, SIGHUP};

extern "C" void removeAndEnd(int signal) {
    for (Slot& slot : slots) {
        if (slot.state == Slot::File) {
            unlink(slot.path.data());
        }
    }
    for (Slot& slot : slots) {
        if (slot.state == Slot::Folder) {
            rmdir(slot.path.data());
        }
    }
    std::signal(signal, SIG_DFL);
    raise(signal);
}

#endif

} // namespace

void removeTemporariesOnSignals() {
#ifdef __unix__
    for (const int signal : endingSignals) {
        struct sigaction action {};
        sigaction(signal, nullptr, &action);
        if (action.sa_handler == SIG_DFL) {
            action.sa_handler = &removeAndEnd;
            sigaction(signal, &action, nullptr);
        }
    }
#endif
}

#ifdef __unix__

SignalsStayHere::SignalsStayHere() {
    sigset_t ending{};
    sigemptyset(&ending);
    for (const int signal : endingSignals) {
        sigaddset(&ending, signal);
    }
    pthread_sigmask(SIG_BLOCK, &ending, &before_);
}

SignalsStayHere::~SignalsStayHere() {
    pthread_sigmask(SIG_SETMASK, &before_, nullptr);
}

#else

SignalsStayHere::SignalsStayHere() = default;

SignalsStayHere::~SignalsStayHere() = default;

#endif

CleanupMark::CleanupMark(Kind kind, const std::string& path) {
    const std::lock_guard lock(slotsMutex);
    const auto slot = std::find_if(slots.begin(), slots.end(), [](const Slot& one) { return one.state == Slot::Free; });
    if (slot == slots.end() || path.size() >= slot->path.size()) {
        return;
    }
    slot->path.fill('\0');
    std::copy(path.begin(), path.end(), slot->path.begin());
    slot->state = kind == Kind::File ? Slot::File : Slot::Folder;
    slot_ = static_cast<int>(slot - slots.begin());
}

CleanupMark::~CleanupMark() {
    if (slot_ >= 0) {
        slots[static_cast<std::size_t>(slot_)].state = Slot::Free;
    }
}

} // namespace wb::cli
