#include "cli/progress.h"

#include <cmath>
#include <cstdio>

#include "cli/output.h"

namespace wb::cli {

namespace {

using namespace std::chrono_literals;

constexpr auto quietTime = 1s;
constexpr auto pause = 200ms;
/// Back to the start of the line, and away with what stands in it (ECMA-48).
constexpr const char* clearLine = "\r\x1B[K";

} // namespace

Progress::Progress(std::optional<std::size_t> total) : wanted_(isTerminal(stderr)), total_(total) {}

Progress::~Progress() {
    clear();
}

void Progress::step() {
    ++done_;
    const Clock::time_point now = Clock::now();
    if (wanted_ && now - start_ > quietTime && (!shown_ || now - last_ > pause)) {
        show(now);
    }
}

void Progress::clear() {
    if (shown_) {
        std::fputs(clearLine, stderr);
        shown_ = false;
    }
}

void Progress::show(Clock::time_point now) {
    const double seconds = std::chrono::duration<double>(now - start_).count();
    std::fprintf(stderr, "%s%s", clearLine, progressText(done_, total_, seconds).c_str());
    last_ = now;
    shown_ = true;
}

std::string progressText(std::size_t done, std::optional<std::size_t> total, double seconds) {
    const double rate = static_cast<double>(done) / seconds;
    const std::string rateText = std::to_string(std::lround(rate)) + " a second";
    if (!total) {
        return std::to_string(done) + " files found, " + rateText;
    }
    const double left = static_cast<double>(*total - done) / rate;
    return std::to_string(done) + " of " + std::to_string(*total) + " files, " + rateText + ", " +
           std::to_string(std::lround(std::ceil(left))) + " s left";
}

} // namespace wb::cli
