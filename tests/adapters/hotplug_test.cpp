#include "adapters/hotplug.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <unistd.h>

#include <array>

namespace wb::adapters {
namespace {

using namespace std::chrono_literals;

TEST(Hotplug, IsQuietWhereNothingHappens) {
    ASSERT_TRUE(canWatchMonitors());
    const auto begin = std::chrono::steady_clock::now();
    EXPECT_EQ(watchMonitors()->next(30ms), HotplugEvent::Quiet);
    EXPECT_GE(std::chrono::steady_clock::now() - begin, 30ms);
}

TEST(Hotplug, SignalsAskItToStopOnce) {
    for (const int signal : {SIGINT, SIGTERM}) {
        const auto source = watchMonitors();
        raise(signal);
        EXPECT_EQ(source->next(std::nullopt), HotplugEvent::Stop);
        EXPECT_EQ(source->next(0ms), HotplugEvent::Quiet);
    }
}

TEST(Hotplug, TellsThatNobodyReadsStandardOutput) {
    std::array<int, 2> ends{};
    ASSERT_EQ(pipe(ends.data()), 0);
    const int before = dup(STDOUT_FILENO);
    dup2(ends[1], STDOUT_FILENO);
    close(ends[1]);
    const auto source = watchMonitors();
    const HotplugEvent whileRead = source->next(0ms);
    close(ends[0]);
    const HotplugEvent closed = source->next(std::nullopt);
    dup2(before, STDOUT_FILENO);
    close(before);
    EXPECT_EQ(whileRead, HotplugEvent::Quiet);
    EXPECT_EQ(closed, HotplugEvent::OutputClosed);
}

} // namespace
} // namespace wb::adapters
