#include "cli/ordered_jobs.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <numeric>
#include <set>
#include <stdexcept>

namespace wb::cli {
namespace {

TEST(OrderedJobs, HandsResultsOverInOrder) {
    for (const std::size_t jobs : {0, 1, 2, 7, 1000}) {
        std::vector<std::size_t> results;
        OrderedJobs<std::size_t>::run(
            50, jobs,
            [](std::size_t i) {
                // The first ones take longest, so that they end last.
                std::this_thread::sleep_for(std::chrono::microseconds((50 - i) * 20));
                return i * i;
            },
            [&](std::size_t result) { results.push_back(result); });
        ASSERT_EQ(results.size(), 50U) << jobs;
        for (std::size_t i = 0; i < results.size(); ++i) {
            EXPECT_EQ(results[i], i * i) << jobs;
        }
    }
}

TEST(OrderedJobs, RunsEachPieceOnce) {
    std::atomic<int> calls = 0;
    OrderedJobs<int>::run(
        100, 4, [&](std::size_t) { return ++calls; }, [](int) {});
    EXPECT_EQ(calls, 100);
    OrderedJobs<int>::run(
        0, 4, [&](std::size_t) { return ++calls; }, [](int) {});
    EXPECT_EQ(calls, 100);
}

TEST(OrderedJobs, WorksAtTheSameTime) {
    std::atomic<int> arrived = 0;
    OrderedJobs<int>::run(
        2, 2,
        [&](std::size_t) {
            ++arrived;
            while (arrived < 2) { // only another thread can end this
                std::this_thread::yield();
            }
            return 0;
        },
        [](int) {});
    EXPECT_EQ(arrived, 2);
}

TEST(OrderedJobs, ThrowsWhatTheWorkThrewWhenItsTurnComes) {
    for (const std::size_t jobs : {1, 3}) {
        std::vector<std::size_t> results;
        EXPECT_THROW(OrderedJobs<std::size_t>::run(
                         10, jobs,
                         [](std::size_t i) {
                             if (i == 4) {
                                 throw std::runtime_error("four");
                             }
                             return i;
                         },
                         [&](std::size_t result) { results.push_back(result); }),
                     std::runtime_error);
        EXPECT_EQ(results, (std::vector<std::size_t>{0, 1, 2, 3})) << jobs;
    }
}

TEST(OrderedJobs, RunsAheadOfTheTakerByAFewPiecesOnly) {
    std::atomic<int> begun = 0;
    int mostAhead = 0;
    int taken = 0;
    OrderedJobs<int>::run(
        500, 2, [&](std::size_t) { return ++begun; },
        [&](int) {
            if (taken % 100 == 0) { // time enough for the threads to run away
                std::this_thread::sleep_for(std::chrono::milliseconds(20));
            }
            mostAhead = std::max(mostAhead, begun - ++taken);
        });
    EXPECT_EQ(taken, 500);
    EXPECT_LE(mostAhead, 8) << "four pieces a thread";
}

TEST(OrderedJobs, BeginsNoFurtherWorkAfterAnExceptionOfTheTaker) {
    std::atomic<int> calls = 0;
    EXPECT_THROW(OrderedJobs<int>::run(
                     1000000, 2, [&](std::size_t) { return ++calls; }, [](int) { throw std::runtime_error("full"); }),
                 std::runtime_error);
    EXPECT_LT(calls, 1000000);
}

} // namespace
} // namespace wb::cli
