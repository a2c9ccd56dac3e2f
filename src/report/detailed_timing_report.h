#pragma once

#include <array>
#include <string>
#include <string_view>

#include "report/detailed_timing_layout.h"

namespace wb::report {

/// "Active Time: 1920 pixels", in its parts; all empty where the number could not be read.
struct TimingFieldText {
    std::string_view words;
    std::string number;
    std::string_view unit;
};

/// What the report of a detailed timing tells, in words.
struct TimingTexts {
    std::array<TimingFieldText, timingFieldCount> fields;
    std::string width, height, scan; ///< of the title, such as "1920", "1080", "i"
    std::string refresh, stereo, sync;
    std::string horizontalRate, verticalRate;
};

/// Puts the lines of the report, each with its line end, into `report`.
void putTimingReport(std::string& report, const TimingTexts& texts);

} // namespace wb::report
