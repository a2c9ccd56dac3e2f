#include <algorithm>
#include <array>

#include "fields/block0_parts.h"
#include "fields/standard_timing.h"

namespace wb::fields {

namespace {

constexpr std::size_t timingCount = 8;

unsigned codeAt(const Scope& timings, std::size_t index) {
    return static_cast<unsigned>(timings.raw({{standardTimingSize * index}, {standardTimingSize * index + 1}}));
}

void checkDuplicate(const Scope& timings, std::size_t index) {
    const unsigned code = codeAt(timings, index);
    if (isUnusedStandardTiming(code) || code <= 0xFF) {
        return;
    }
    for (std::size_t before = 0; before < index; ++before) {
        if (codeAt(timings, before) == code) {
            timings.tell(Severity::Note, "standard.duplicate", standardTimingSize * index, "",
                         "Standard timing " + std::to_string(index + 1) + " is the same as number " +
                             std::to_string(before + 1) +
                             " and tells nothing new; enter 01 01, or the timing that was meant.");
            return;
        }
    }
}

} // namespace

void readStandardTimings(const Scope& base, int revision) {
    const Scope timings = base.inner(cells::standardTimings.first, "standard", "E-EDID 1.4, 3.9");
    for (std::size_t i = 0; i < timingCount; ++i) {
        readStandardTiming(timings.inner(standardTimingSize * i, numbered("", i + 1)), revision);
        checkDuplicate(timings, i);
    }
}

} // namespace wb::fields
