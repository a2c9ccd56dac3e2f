#include "platform/linux/event_wait.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <vector>

namespace wb::platform::linux_system {
namespace {

using std::chrono::milliseconds;
using Result = EventWait::Result;

class EventWaitTest : public testing::Test {
protected:
    EventWaitTest() { EXPECT_EQ(pipe(events.data()), 0); }
    ~EventWaitTest() override {
        for (const int end : events) {
            close(end);
        }
    }
    void happen() { EXPECT_EQ(write(events[1], "x", 1), 1); }

    std::array<int, 2> events{};
    EventWait wait;
};

TEST_F(EventWaitTest, IsReadyOnceThereIsSomethingToRead) {
    EXPECT_EQ(wait.wait(events[0], milliseconds(0)), Result::Quiet);
    happen();
    EXPECT_EQ(wait.wait(events[0], milliseconds(0)), Result::Ready);
    EXPECT_EQ(wait.wait(events[0], std::nullopt), Result::Ready);
}

TEST_F(EventWaitTest, IsNotQuietBeforeTheTimeIsOver) {
    for (const milliseconds patience : {milliseconds(1), milliseconds(2), milliseconds(20)}) {
        for (int i = 0; i < 5; ++i) {
            const auto begin = std::chrono::steady_clock::now();
            EXPECT_EQ(wait.wait(events[0], patience), Result::Quiet);
            EXPECT_GE(std::chrono::steady_clock::now() - begin, patience);
        }
    }
}

TEST_F(EventWaitTest, ASignalStopsItOnceAndEndsNothing) {
    for (const int signal : {SIGINT, SIGTERM}) {
        happen(); // a signal goes first
        raise(signal);
        EXPECT_EQ(wait.wait(events[0], std::nullopt), Result::Stop) << signal;
        EXPECT_EQ(wait.wait(events[0], std::nullopt), Result::Ready) << signal;
    }
}

/// As under nohup.
TEST(EventWaitWithIgnoredSignals, LeavesThemIgnored) {
    for (const int signal : {SIGINT, SIGTERM}) {
        auto* const before = std::signal(signal, SIG_IGN);
        std::array<int, 2> events{};
        ASSERT_EQ(pipe(events.data()), 0);
        {
            const EventWait wait;
            raise(signal);
            EXPECT_EQ(wait.wait(events[0], milliseconds(0)), Result::Quiet) << signal;
        }
        std::signal(signal, before);
        close(events[0]);
        close(events[1]);
    }
}

/// Leaves bits on the stack where the next call has its variables.
void soilStack() {
    std::array<volatile unsigned char, 4096> bytes{};
    for (volatile unsigned char& byte : bytes) {
        byte = 0xFF;
    }
}

/// The signals that do not reach this thread.
std::vector<int> blockedSignals() {
    sigset_t blocked;
    pthread_sigmask(SIG_BLOCK, nullptr, &blocked);
    std::vector<int> signals;
    for (int signal = 1; signal < NSIG; ++signal) {
        if (sigismember(&blocked, signal) == 1) {
            signals.push_back(signal);
        }
    }
    return signals;
}

TEST(EventWaitSignals, AreTheTwoThatEndAProgramAlone) {
    const std::vector<int> before = blockedSignals();
    std::vector<int> expected = before;
    expected.insert(expected.end(), {SIGINT, SIGTERM});
    std::sort(expected.begin(), expected.end());
    {
        soilStack();
        const EventWait wait;
        EXPECT_EQ(blockedSignals(), expected);
    }
    EXPECT_EQ(blockedSignals(), before);
}

TEST_F(EventWaitTest, TellsThatNobodyReadsStandardOutputAnyMore) {
    std::array<int, 2> output{};
    ASSERT_EQ(pipe(output.data()), 0);
    const int before = dup(STDOUT_FILENO);
    dup2(output[1], STDOUT_FILENO);
    const Result open = wait.wait(events[0], milliseconds(0));
    close(output[0]);
    const Result closed = wait.wait(events[0], std::nullopt);
    dup2(before, STDOUT_FILENO);
    close(before);
    close(output[1]);
    EXPECT_EQ(open, Result::Quiet);
    EXPECT_EQ(closed, Result::OutputClosed);
}

TEST_F(EventWaitTest, WhatIsNoStreamIsReadyForTheReaderToFail) {
    EXPECT_EQ(wait.wait(1 << 20, std::nullopt), Result::Ready);
}

} // namespace
} // namespace wb::platform::linux_system
