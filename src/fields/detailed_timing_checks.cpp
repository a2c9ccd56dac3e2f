#include "fields/detailed_timing.h"

namespace wb::fields {

namespace {

/// What is checked of a direction, be it along a line or down the picture.
struct Direction {
    std::string_view name;
    std::string_view unit;
    int blank;
    int frontPorch;
    int sync;
    std::size_t syncByte;
    std::string_view syncRow;
    std::string_view beyondCode;
};

void checkSync(const Scope& scope, const Direction& direction) {
    if (direction.sync == 0) {
        scope.tell(Severity::Warning, "timing.no_sync", direction.syncByte, direction.syncRow,
                   "The " + std::string(direction.name) +
                       " sync pulse has no width, so that the monitor cannot tell where the picture begins; enter the "
                       "true width.");
    }
    if (const int end = direction.frontPorch + direction.sync; end > direction.blank) {
        scope.tell(Severity::Error, direction.beyondCode, direction.syncByte, direction.syncRow,
                   "The " + std::string(direction.name) + " front porch and sync take " + std::to_string(end) + " of " +
                       std::to_string(direction.blank) + " blanking " + std::string(direction.unit) +
                       ", so that the sync pulse would reach into the picture; lengthen the blanking.");
    }
}

/// Rates that no monitor has; what makes them is a wrong clock or a wrong total.
void checkRate(const Scope& scope, const DetailedTiming& timing) {
    constexpr double lowest = 10;
    constexpr double highest = 1000;
    const std::optional<double> rate = verticalHertz(timing);
    if (rate && (*rate < lowest || *rate > highest)) {
        scope.tell(Severity::Warning, "timing.rate", 0, "pixel_clock",
                   "The timing has a vertical rate of " + decimalText(*rate, 2) +
                       " Hz, which no monitor shows; correct its pixel clock or its lengths.");
    }
}

} // namespace

void checkDetailedTiming(const Scope& scope, const DetailedTiming& timing) {
    if (timing.hActive == 0 || timing.vActive == 0) {
        const bool isHorizontal = timing.hActive == 0;
        scope.tell(
            Severity::Error, "timing.nothing_active", isHorizontal ? 2 : 5, isHorizontal ? "h_active" : "v_active",
            "The timing has no active pixels, so that no picture can be made of it; enter the real size or blank "
            "the descriptor.");
        return;
    }
    checkSync(scope, {"horizontal", "pixels", timing.hBlank, timing.hFrontPorch, timing.hSync, 8, "h_sync_width",
                      "timing.h_sync_beyond_blanking"});
    checkSync(scope, {"vertical", "lines", timing.vBlank, timing.vFrontPorch, timing.vSync, 10, "v_sync_width",
                      "timing.v_sync_beyond_blanking"});
    checkRate(scope, timing);
}

} // namespace wb::fields
