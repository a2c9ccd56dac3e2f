#include <algorithm>
#include <array>
#include <cmath>

#include "fields/block0_parts.h"
#include "fields/descriptors.h"

namespace wb::fields {

namespace {

/// A rate or clock of a timing, and the limits that it should lie in.
struct Limited {
    std::string_view name;
    std::string_view unit;
    double value;
    double low;
    double high;
};

/// The limits of rates are whole numbers, so that less than one may be missing. Those in the wrong order leave nothing
/// inside, and have a finding of their own.
bool isOutside(const Limited& limited) {
    return limited.low <= limited.high && (limited.value <= limited.low - 1 || limited.value >= limited.high + 1);
}

/// CVT tells the highest clock in quarters of a megahertz.
std::string limitText(double limit) {
    return decimalText(limit, limit == std::floor(limit) ? 0 : 2);
}

void tellOutside(const Scope& timing, const Limited& limited) {
    timing.tell(Severity::Warning, "timing.outside_limits", 0, "pixel_clock",
                "The timing has a " + std::string(limited.name) + " of " +
                    withUnit(decimalText(limited.value, 2), limited.unit) + " and the range limits allow " +
                    decimalText(limited.low, 0) + " to " + withUnit(limitText(limited.high), limited.unit) +
                    ", so that software may refuse it; correct the limits or the timing.");
}

void checkLimits(const Scope& scope, const DetailedTiming& timing, const RangeLimits& range) {
    const std::optional<double> lineRate = horizontalKilohertz(timing);
    const std::optional<double> rate = verticalHertz(timing);
    if (!lineRate || !rate) {
        return;
    }
    const std::array<Limited, 2> rates = {{
        {"vertical rate", "Hz", *rate, static_cast<double>(range.minVerticalHertz),
         static_cast<double>(range.maxVerticalHertz)},
        {"horizontal rate", "kHz", *lineRate, static_cast<double>(range.minHorizontalKilohertz),
         static_cast<double>(range.maxHorizontalKilohertz)},
    }};
    if (const auto* outside = std::find_if(rates.begin(), rates.end(), isOutside); outside != rates.end()) {
        tellOutside(scope, *outside);
        return;
    }
    const double clock = static_cast<double>(timing.clockKilohertz) / 1000;
    if (range.maxClockMegahertz && clock > *range.maxClockMegahertz) {
        tellOutside(scope, {"pixel clock", "MHz", clock, 0, *range.maxClockMegahertz});
    }
}

bool hasDescriptor(const Image& image, std::uint8_t tag) {
    for (std::size_t i = 0; i < slotCount; ++i) {
        if (descriptorTag(image, i) == tag) {
            return true;
        }
    }
    return false;
}

void checkPreferredTiming(const Scope& base, int revision) {
    if (revision >= 3 && !isTimingSlot(base.reading().image, 0)) {
        base.tell(Severity::Warning, "base.no_preferred_timing", slotStart(0), "",
                  "The first of the four slots must hold the preferred timing and holds a descriptor, so that software "
                  "chooses a mode by itself; put the timing of the native format there.",
                  "E-EDID 1.4, 3.10.1");
    }
}

/// 1.3 wants name and range limits of all, 1.4 the limits of those with continuous frequencies.
void checkMissing(const Scope& base, int revision) {
    const Image& image = base.reading().image;
    const bool isContinuous = hasFeature(image, Feature::ContinuousFrequency);
    if (revision == 3 && !hasDescriptor(image, nameTag)) {
        base.tell(Severity::Warning, "base.no_name", slotStart(1), "",
                  "There is no descriptor with the name of the product, which 1.3 demands, so that software shows a "
                  "number in its place; enter one (tag FCh).",
                  "E-EDID 1.3, 3.10.3");
    }
    if ((revision == 3 || (revision == 4 && isContinuous)) && !hasDescriptor(image, rangeLimitsTag)) {
        base.tell(
            Severity::Warning, "base.no_range_limits", slotStart(1), "",
            revision == 3
                ? "There is no descriptor with range limits, which 1.3 demands, so that software does not know "
                  "which timings are safe; enter one (tag FDh)."
                : "There is no descriptor with range limits, which continuous frequencies demand, so that software "
                  "does not know which timings it may make; enter one (tag FDh) or clear bit 0 of byte 24.",
            revision == 3 ? "E-EDID 1.3, 3.10.3" : "E-EDID 1.4, 3.10.3.3");
    }
}

void checkSerial(const Scope& base) {
    if (!base.summary().serialNumber && !base.summary().serialText) {
        base.tell(Severity::Note, "vendor.no_serial", 12, "vendor.serial_number",
                  "There is no serial number, neither as a number nor as a text, so that two of these monitors cannot "
                  "be told apart; give each its own.",
                  "E-EDID 1.4, 3.4.3");
    }
}

} // namespace

void checkBlock0(const Scope& base, int revision) {
    for (std::size_t i = 0; i < slotCount; ++i) {
        const std::optional<DetailedTiming> timing = timingInSlot(base, i);
        if (timing && base.summary().range) {
            checkLimits(slotScope(base, i), *timing, *base.summary().range);
        }
    }
    checkPreferredTiming(base, revision);
    checkMissing(base, revision);
    checkSerial(base);
}

} // namespace wb::fields
