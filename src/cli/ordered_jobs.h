#pragma once

#include <algorithm>
#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <mutex>
#include <new>
#include <optional>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include "cli/cleanup.h"

namespace wb::cli {

/// Runs `work` on each item that `next` gives, until it gives none, on up to `jobs` threads, as many as the system
/// allows, and hands the items with their results to `done` in the order in which they came, on the calling thread.
/// What `next` and `work` throw is thrown here when its turn comes; after an exception no further work begins. `next`
/// runs on one thread at a time. Work runs ahead of `done` by a few pieces a thread at most, and no more than these are
/// kept.
template <class Item, class Result>
class OrderedJobs {
public:
    using Next = std::function<std::optional<Item>()>;
    using Work = std::function<Result(const Item&)>;
    using Done = std::function<void(const Item&, Result)>;

    static void run(const Next& next, std::size_t jobs, const Work& work, const Done& done) {
        OrderedJobs batch(next, std::min(jobs, mostThreads), work);
        const std::vector<std::jthread> threads = batch.startThreads();
        if (threads.empty()) {
            while (const std::optional<Item> item = next()) {
                done(*item, work(*item));
            }
            return;
        }
        try {
            while (std::optional<Slot> slot = batch.take()) {
                done(*slot->item, std::move(*slot->result));
            }
        } catch (...) {
            batch.stop();
            throw;
        }
    }

private:
    static constexpr std::size_t mostThreads = 256;
    static constexpr std::size_t aheadPerThread = 4;

    /// A piece of work on its way.
    struct Slot {
        std::optional<Item> item;
        std::optional<Result> result;
        std::exception_ptr error;

        bool isDone() const { return result || error; }
    };

    OrderedJobs(const Next& next, std::size_t threads, const Work& work)
        : next_(next), work_(work), slots_(threads * aheadPerThread), threads_(threads) {}

    /// None where one is all that was asked for.
    std::vector<std::jthread> startThreads() {
        std::vector<std::jthread> threads;
        threads.reserve(threads_);
        const SignalsStayHere signals;
        try {
            while (threads_ > 1 && threads.size() < threads_) {
                threads.emplace_back([this] { workOn(); });
            }
        } catch (const std::system_error&) { // the system gives no more; those that run will do
        } catch (const std::bad_alloc&) {    // the same
        }
        return threads;
    }

    void workOn() {
        while (const std::optional<std::size_t> index = begin()) {
            Slot& slot = slots_[*index % slots_.size()]; // of this thread alone until it is done
            std::optional<Result> result;
            std::exception_ptr error;
            try {
                result.emplace(work_(*slot.item));
            } catch (...) {
                error = std::current_exception();
            }
            finish(slot, std::move(result), error);
        }
    }

    /// The number of the next piece, whose item is in its slot; nothing where there is no more.
    std::optional<std::size_t> begin() {
        const std::lock_guard sourceLock(sourceMutex_); // a source that has to wait keeps back no result
        {
            std::unique_lock lock(mutex_);
            changed_.wait(lock, [&] { return ended_ || begun_ < taken_ + slots_.size(); });
            if (ended_) {
                return std::nullopt;
            }
        }
        std::optional<Item> item;
        std::exception_ptr error;
        try {
            item = next_();
        } catch (...) {
            error = std::current_exception();
        }
        const std::lock_guard lock(mutex_);
        if (!item) {
            if (error && !ended_) {
                slots_[begun_++ % slots_.size()].error = error;
            }
            ended_ = true;
            changed_.notify_all();
            return std::nullopt;
        }
        slots_[begun_ % slots_.size()].item = std::move(item);
        return begun_++;
    }

    void finish(Slot& slot, std::optional<Result> result, const std::exception_ptr& error) {
        const std::lock_guard lock(mutex_);
        slot.result = std::move(result);
        slot.error = error;
        changed_.notify_all();
    }

    /// The next piece that is done, in order; nothing after the last.
    std::optional<Slot> take() {
        std::unique_lock lock(mutex_);
        Slot& slot = slots_[taken_ % slots_.size()];
        changed_.wait(lock, [&] { return slot.isDone() || (ended_ && taken_ == begun_); });
        if (!slot.isDone()) {
            return std::nullopt;
        }
        Slot result = std::exchange(slot, Slot());
        ++taken_;
        changed_.notify_all();
        if (result.error) {
            std::rethrow_exception(result.error);
        }
        return result;
    }

    void stop() {
        const std::lock_guard lock(mutex_);
        ended_ = true;
        changed_.notify_all();
    }

    const Next& next_;
    const Work& work_;
    std::vector<Slot> slots_; ///< in turn, as many as may be on their way
    std::size_t threads_;     ///< how many are asked for
    std::size_t begun_ = 0;
    std::size_t taken_ = 0;
    bool ended_ = false; ///< no further piece begins
    std::mutex mutex_;
    std::mutex sourceMutex_; ///< locked before mutex_
    std::condition_variable changed_;
};

} // namespace wb::cli
