#include "fields/cvt_code.h"

#include <array>

namespace wb::fields {

namespace {

// VESA E-EDID Standard, Release A, section 3.10.3.8.

constexpr auto aspectChoices = std::to_array<Choice>({{0, "4:3"}, {1, "16:9"}, {2, "16:10"}, {3, "15:9"}});
constexpr auto aspects = std::to_array<std::array<int, 2>>({{4, 3}, {16, 9}, {16, 10}, {15, 9}});
constexpr auto rateChoices = std::to_array<Choice>({{0, "50 Hz"}, {1, "60 Hz"}, {2, "75 Hz"}, {3, "85 Hz"}});

constexpr Row linesRow = {
    .name = "lines", .label = "Active lines", .parts = {{1, 7, 4}, {0}}, .unit = "px", .scale = 2, .bias = 2};
constexpr Row aspectRow = {.name = "aspect_ratio",
                           .label = "Aspect ratio",
                           .parts = {{1, 3, 2}},
                           .kind = Kind::Choice,
                           .choices = aspectChoices};
constexpr std::array<Row, 3> codeRows = {{
    reservedAt(1, 1, 0, "reserved_1"),
    reservedAt(2, 7, 7, "reserved_2"),
    {.name = "preferred_rate",
     .label = "Preferred vertical rate",
     .parts = {{2, 6, 5}},
     .kind = Kind::Choice,
     .choices = rateChoices},
}};
constexpr Row unusedCodeRow = {
    .name = "unused", .label = "Unused code", .parts = {{0}}, .kind = Kind::Bytes, .length = cvtCodeSize};

struct Rate {
    std::string_view name;
    std::string_view label;
    int hertz;
};

/// From bit 4 of the last byte of a code down.
constexpr std::array<Rate, 5> rates = {{{"rate_50", "50 Hz supported", 50},
                                        {"rate_60", "60 Hz supported", 60},
                                        {"rate_75", "75 Hz supported", 75},
                                        {"rate_85", "85 Hz supported", 85},
                                        {"rate_60_rb", "60 Hz with reduced blanking supported", 60}}};

void readRates(const Scope& code, int width, int height) {
    for (std::size_t i = 0; i < rates.size(); ++i) {
        const auto bit = static_cast<std::uint8_t>(4 - i);
        const Parts parts = {{2, bit, bit}};
        code.add({.name = rates[i].name, .label = rates[i].label, .parts = parts, .kind = Kind::Flag});
        if (code.raw(parts) != 0) {
            Mode mode{.source = ModeSource::Standard, .width = width, .height = height};
            mode.interlaced = false;
            mode.refreshMilliHertz = std::int64_t{rates[i].hertz} * 1000;
            code.summary().modes.push_back(mode);
        }
    }
}

/// The preferred rate counts from 0 for 50 Hz; of 60 Hz either form will do.
void checkPreferredRate(const Scope& code) {
    constexpr auto bits = std::to_array<unsigned>({0x10, 0x09, 0x04, 0x02});
    if ((code.byte(2) & bits[code.raw(codeRows[2].parts)]) == 0) {
        code.tell(Severity::Warning, "cvt.preferred_rate_unsupported", 2, "preferred_rate",
                  "The preferred vertical rate is not among those that are supported, so that software takes a rate "
                  "that the monitor disclaims or passes over the code; set the bit of the rate too.");
    }
}

} // namespace

void readCvtCode(const Scope& scope) {
    if (allZero(scope.bytes(0, cvtCodeSize))) {
        scope.add(unusedCodeRow);
        return;
    }
    const int height = static_cast<int>(scope.raw(linesRow.parts) + 1) * 2;
    const auto [across, down] = aspects[scope.raw(aspectRow.parts)];
    // The width is a multiple of 8 pixels (VESA CVT Standard, the granularity of a character cell).
    const int width = height * across / down / 8 * 8;
    scope.add(linesRow);
    Field& aspect = scope.add(aspectRow);
    aspect.text += ", " + std::to_string(width) + " pixels a line";
    scope.add(codeRows);
    readRates(scope, width, height);
    checkPreferredRate(scope);
}

} // namespace wb::fields
