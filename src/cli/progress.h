#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>

namespace wb::cli {

/// Tells on standard error how far a batch is, where that is a terminal and the work takes longer than a second.
class Progress {
public:
    /// No total: that many are to be found first.
    explicit Progress(std::optional<std::size_t> total);
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;
    /// Takes the line away.
    ~Progress();

    /// One more is done.
    void step();
    /// Takes the line away, so that something else can be told; the next step shows it again.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    void show(Clock::time_point now);

    bool shown_ = false;
    bool wanted_;
    std::optional<std::size_t> total_;
    std::size_t done_ = 0;
    Clock::time_point start_ = Clock::now();
    Clock::time_point last_ = start_;
};

/// "120 of 7767 files, 350 a second, 22 s left"; without a total "120 files found, 350 a second".
std::string progressText(std::size_t done, std::optional<std::size_t> total, double seconds);

} // namespace wb::cli
