#pragma once

#include <array>
#include <string>

#include "report/detailed_timing_layout.h"

namespace wb::report {

/// What the report of a detailed timing tells, in words.
struct TimingTexts {
    std::array<std::string, timingFieldCount> fields; ///< "Active Time: 1920 pixels"
    std::string width, height, scan;                  ///< of the title, such as "1920", "1080", "i"
    std::string refresh, stereo, sync;
    std::string horizontalRate, verticalRate;
};

/// The lines of the report, each with its line end.
std::string timingReport(const TimingTexts& texts);

} // namespace wb::report
