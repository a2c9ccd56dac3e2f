#include "cli/ordered_jobs.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <functional>
#include <optional>
#include <stdexcept>
#include <vector>

namespace wb::cli {
namespace {

template <class Result>
using Jobs = OrderedJobs<std::size_t, Result>;

/// 0, 1, 2 and so on, so many of them.
std::function<std::optional<std::size_t>()> numbers(std::size_t count) {
    return [i = std::size_t{0}, count]() mutable { return i < count ? std::optional(i++) : std::nullopt; };
}

TEST(OrderedJobs, HandsResultsOverInOrder) {
    for (const std::size_t jobs : {0, 1, 2, 7, 1000}) {
        std::vector<std::size_t> results;
        Jobs<std::size_t>::run(
            numbers(50), jobs,
            [](std::size_t i) {
                // The first ones take longest, so that they end last.
                std::this_thread::sleep_for(std::chrono::microseconds((50 - i) * 20));
                return i * i;
            },
            [&](std::size_t, std::size_t result) { results.push_back(result); });
        ASSERT_EQ(results.size(), 50U) << jobs;
        for (std::size_t i = 0; i < results.size(); ++i) {
            EXPECT_EQ(results[i], i * i) << jobs;
        }
    }
}

TEST(OrderedJobs, RunsEachPieceOnce) {
    std::atomic<int> calls = 0;
    Jobs<int>::run(
        numbers(100), 4, [&](std::size_t) { return ++calls; }, [](std::size_t, int) {});
    EXPECT_EQ(calls, 100);
    Jobs<int>::run(
        numbers(0), 4, [&](std::size_t) { return ++calls; }, [](std::size_t, int) {});
    EXPECT_EQ(calls, 100);
}

TEST(OrderedJobs, WorksAtTheSameTime) {
    std::atomic<int> arrived = 0;
    Jobs<int>::run(
        numbers(2), 2,
        [&](std::size_t) {
            ++arrived;
            while (arrived < 2) { // only another thread can end this
                std::this_thread::yield();
            }
            return 0;
        },
        [](std::size_t, int) {});
    EXPECT_EQ(arrived, 2);
}

TEST(OrderedJobs, ThrowsWhatTheWorkThrewWhenItsTurnComes) {
    for (const std::size_t jobs : {1, 3}) {
        std::vector<std::size_t> results;
        EXPECT_THROW(Jobs<std::size_t>::run(
                         numbers(10), jobs,
                         [](std::size_t i) {
                             if (i == 4) {
                                 throw std::runtime_error("four");
                             }
                             return i;
                         },
                         [&](std::size_t, std::size_t result) { results.push_back(result); }),
                     std::runtime_error);
        EXPECT_EQ(results, (std::vector<std::size_t>{0, 1, 2, 3})) << jobs;
    }
}

TEST(OrderedJobs, RunsAheadOfTheTakerByAFewPiecesOnly) {
    std::atomic<int> begun = 0;
    int mostAhead = 0;
    int taken = 0;
    Jobs<int>::run(
        numbers(500), 2, [&](std::size_t) { return ++begun; },
        [&](std::size_t, int) {
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
    EXPECT_THROW(Jobs<int>::run(
                     numbers(1000000), 2, [&](std::size_t) { return ++calls; },
                     [](std::size_t, int) { throw std::runtime_error("full"); }),
                 std::runtime_error);
    EXPECT_LT(calls, 1000000);
}

TEST(OrderedJobs, HandsEachItemOverWithItsResult) {
    Jobs<std::size_t>::run(
        numbers(100), 3, [](const std::size_t& i) { return i + 7; },
        [](std::size_t item, std::size_t result) { EXPECT_EQ(result, item + 7); });
}

TEST(OrderedJobs, ThrowsWhatTheSourceThrewWhenItsTurnComes) {
    for (const std::size_t jobs : {1, 3}) {
        std::vector<std::size_t> items;
        const auto next = [source = numbers(10)]() mutable {
            const std::optional<std::size_t> item = source();
            return item == 6U ? throw std::runtime_error("six") : item;
        };
        EXPECT_THROW(
            Jobs<int>::run(
                next, jobs, [](std::size_t) { return 0; }, [&](std::size_t item, int) { items.push_back(item); }),
            std::runtime_error);
        EXPECT_EQ(items, (std::vector<std::size_t>{0, 1, 2, 3, 4, 5})) << jobs;
    }
}

/// The second item only comes when the first one is done with.
TEST(OrderedJobs, ASourceThatWaitsKeepsBackNoResult) {
    std::atomic<bool> firstIsDone = false;
    const auto next = [&, source = numbers(2)]() mutable {
        const std::optional<std::size_t> item = source();
        while (item == 1U && !firstIsDone) {
            std::this_thread::yield();
        }
        return item;
    };
    Jobs<int>::run(
        next, 2, [](std::size_t) { return 0; }, [&](std::size_t, int) { firstIsDone = true; });
    EXPECT_TRUE(firstIsDone);
}

/// A result that knows how many of its kind there are.
class Counted {
public:
    Counted() { count(); }
    Counted(const Counted&) { count(); }
    Counted(Counted&&) noexcept { count(); }
    Counted& operator=(const Counted&) = default;
    Counted& operator=(Counted&&) = default;
    ~Counted() { --live; }

    static inline std::atomic<int> live = 0;
    static inline std::atomic<int> most = 0;

private:
    static void count() {
        const int now = ++live;
        int seen = most;
        while (seen < now && !most.compare_exchange_weak(seen, now)) {
        }
    }
};

TEST(OrderedJobs, KeepsAWindowOfResultsWhateverTheirNumber) {
    for (const std::size_t jobs : {1, 2, 4}) {
        Counted::most = 0;
        Jobs<Counted>::run(
            numbers(5000), jobs, [](std::size_t) { return Counted(); }, [](std::size_t, const Counted&) {});
        EXPECT_EQ(Counted::live, 0);
        // Four pieces a thread may wait; each thread moves one into its place and the taker one out of it, by way of
        // up to three objects.
        EXPECT_LE(Counted::most, 4 * jobs + 3 * (jobs + 1));
    }
}

} // namespace
} // namespace wb::cli
