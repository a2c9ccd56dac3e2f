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
    std::string width, height; ///< of the title, such as "1920" and "1080", with a scan such as "i"
    std::string_view scan, refresh, stereo;
    std::string sync;
    TimingFieldText horizontalRate, verticalRate;
};

/// Puts the lines of the report, each with its line end, into `report`.
void putTimingReport(std::string& report, const TimingTexts& texts);

} // namespace wb::report
