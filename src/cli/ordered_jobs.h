#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>
#include <variant>
#include <vector>

namespace wb::cli {

/// Runs `work(0)` to `work(count - 1)` on up to `jobs` threads, as many as the system allows, and hands the results to
/// `done` in that order, on the calling thread. What `work` throws is thrown here when its turn comes; after an
/// exception no further work begins. Work runs ahead of `done` by a few pieces a thread at most.
template <class Result>
class OrderedJobs {
public:
    using Work = std::function<Result(std::size_t)>;
    using Done = std::function<void(Result)>;

    static void run(std::size_t count, std::size_t jobs, const Work& work, const Done& done) {
        OrderedJobs batch(count, std::min({jobs, count, mostThreads}), work);
        const std::vector<std::jthread> threads = batch.startThreads();
        if (threads.empty()) {
            for (std::size_t i = 0; i < count; ++i) {
                done(work(i));
            }
            return;
        }
        try {
            for (std::size_t i = 0; i < count; ++i) {
                done(batch.take(i));
            }
        } catch (...) {
            batch.stop();
            throw;
        }
    }

private:
    static constexpr std::size_t mostThreads = 256;
    static constexpr std::size_t aheadPerThread = 4;

    using Outcome = std::variant<std::monostate, Result, std::exception_ptr>;

    OrderedJobs(std::size_t count, std::size_t threads, const Work& work)
        : work_(work), outcomes_(count), threads_(threads) {}

    /// None where one is all that was asked for.
    std::vector<std::jthread> startThreads() {
        std::vector<std::jthread> threads;
        threads.reserve(threads_);
        try {
            while (threads_ > 1 && threads.size() < threads_) {
                threads.emplace_back([this] { workOn(); });
            }
        } catch (const std::system_error&) { // the system gives no more; those that run will do
        }
        return threads;
    }

    void workOn() {
        std::unique_lock lock(mutex_);
        for (;;) {
            changed_.wait(lock,
                          [&] { return next_ >= outcomes_.size() || next_ < taken_ + threads_ * aheadPerThread; });
            if (next_ >= outcomes_.size()) {
                return;
            }
            const std::size_t index = next_++;
            lock.unlock();
            Outcome outcome = outcomeOf(index);
            lock.lock();
            outcomes_[index] = std::move(outcome);
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
        taken_ = index + 1;
        changed_.notify_all();
        lock.unlock();
        if (const auto* error = std::get_if<std::exception_ptr>(&outcome)) {
            std::rethrow_exception(*error);
        }
        return std::get<Result>(std::move(outcome));
    }

    void stop() {
        const std::lock_guard lock(mutex_);
        next_ = outcomes_.size();
        changed_.notify_all();
    }

    const Work& work_;
    std::vector<Outcome> outcomes_;
    std::size_t threads_; ///< how many are asked for
    std::size_t next_ = 0;
    std::size_t taken_ = 0;
    std::mutex mutex_;
    std::condition_variable changed_;
};

} // namespace wb::cli
