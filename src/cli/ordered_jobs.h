#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

namespace wb::cli {

/// Runs `work(0)` to `work(count - 1)` on up to `jobs` threads and hands the results to `done` in that order, on the
/// calling thread. What `work` throws is thrown here when its turn comes; after an exception no further work begins.
template <class Result>
class OrderedJobs {
public:
    using Work = std::function<Result(std::size_t)>;
    using Done = std::function<void(Result)>;

    static void run(std::size_t count, std::size_t jobs, const Work& work, const Done& done) {
        if (jobs <= 1 || count <= 1) {
            for (std::size_t i = 0; i < count; ++i) {
                done(work(i));
            }
            return;
        }
        OrderedJobs batch(count, work);
        std::vector<std::jthread> threads;
        for (std::size_t i = 0; i < std::min({jobs, count, mostThreads}); ++i) {
            threads.emplace_back([&batch] { batch.workOn(); });
        }
        try {
            for (std::size_t i = 0; i < count; ++i) {
                done(batch.take(i));
            }
        } catch (...) {
            batch.next_ = count;
            throw;
        }
    }

private:
    static constexpr std::size_t mostThreads = 256;

    using Outcome = std::variant<std::monostate, Result, std::exception_ptr>;

    OrderedJobs(std::size_t count, const Work& work) : work_(work), outcomes_(count) {}

    void workOn() {
        for (std::size_t i = next_++; i < outcomes_.size(); i = next_++) {
            Outcome outcome = outcomeOf(i);
            const std::lock_guard lock(mutex_);
            outcomes_[i] = std::move(outcome);
            changed_.notify_all();
        }
    }

    Outcome outcomeOf(std::size_t index) const {
        try {
            return work_(index);
        } catch (...) {
            return std::current_exception();
        }
    }

    Result take(std::size_t index) {
        std::unique_lock lock(mutex_);
        changed_.wait(lock, [&] { return outcomes_[index].index() != 0; });
        Outcome outcome = std::exchange(outcomes_[index], Outcome());
        lock.unlock();
        if (const auto* error = std::get_if<std::exception_ptr>(&outcome)) {
            std::rethrow_exception(*error);
        }
        return std::get<Result>(std::move(outcome));
    }

    const Work& work_;
    std::vector<Outcome> outcomes_;
    std::atomic<std::size_t> next_ = 0;
    std::mutex mutex_;
    std::condition_variable changed_;
};

} // namespace wb::cli
