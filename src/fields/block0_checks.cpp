#include <algorithm>
#include <array>
#include <cmath>

#include "fields/block0_parts.h"
#include "fields/descriptors.h"
#include "fields/detailed_timing.h"

namespace wb::fields {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int millimetresPerCentimetre = 10;
/// Centimetres may be rounded or cut.
constexpr int centimetreError = 10;
constexpr std::size_t sizeBytes = 21;

struct Size {
    int width = 0; ///< mm
    int height = 0;
};

bool isTold(const Size& size) {
    return size.width > 0 && size.height > 0;
}

Size basicSize(const Scope& base) {
    const Size size = {base.byte(sizeBytes) * millimetresPerCentimetre,
                       base.byte(sizeBytes + 1) * millimetresPerCentimetre};
    return isTold(size) ? size : Size();
}

bool areClose(const Size& a, const Size& b) {
    return std::abs(a.width - b.width) <= centimetreError && std::abs(a.height - b.height) <= centimetreError;
}

/// Pairs of numbers that timings have in place of a size: the aspect ratio of the picture.
constexpr std::array<Size, 5> ratios = {{{4, 3}, {16, 9}, {16, 10}, {160, 90}, {160, 100}}};

/// A size as small as that is believed where the basic parameters tell it too.
bool tellsRatio(const Scope& base, const DetailedTiming& timing) {
    const bool isRatio = std::any_of(ratios.begin(), ratios.end(), [&](const Size& ratio) {
        return ratio.width == timing.widthMillimetres && ratio.height == timing.heightMillimetres;
    });
    return isRatio && !areClose(basicSize(base), {timing.widthMillimetres, timing.heightMillimetres});
}

/// The size in the timing, nothing where there is an aspect ratio in its place.
Size sizeOf(const Scope& base, const DetailedTiming& timing) {
    return tellsRatio(base, timing) ? Size() : Size{timing.widthMillimetres, timing.heightMillimetres};
}

bool isLarger(const Size& a, const Size& b) {
    return a.width > b.width + centimetreError || a.height > b.height + centimetreError;
}

std::optional<DetailedTiming> timingIn(const Scope& base, std::size_t slot) {
    if (!isTimingSlot(base.reading().image, slot)) {
        return {};
    }
    return detailedTimingOf(slotScope(base, slot));
}

/// The first timing tells millimetres, where the basic parameters tell centimetres: it counts where both agree or where
/// it alone tells a size.
void summarizeSize(const Scope& base) {
    const Size basic = basicSize(base);
    const std::optional<DetailedTiming> first = timingIn(base, 0);
    const Size exact = first ? sizeOf(base, *first) : Size();
    const Size size = isTold(exact) && (!isTold(basic) || areClose(basic, exact)) ? exact : basic;
    if (!isTold(size)) {
        return;
    }
    Summary& summary = base.summary();
    summary.widthMillimetres = size.width;
    summary.heightMillimetres = size.height;
    summary.diagonalInches = std::round(std::hypot(size.width, size.height) / millimetresPerInch * 10) / 10;
}

std::string sizeText(const Size& size) {
    return std::to_string(size.width) + " x " + std::to_string(size.height) + " mm";
}

/// The preferred timing fills the screen; others may show less than all of it.
void checkSize(const Scope& base, std::size_t slot, const DetailedTiming& timing) {
    if (tellsRatio(base, timing)) {
        slotScope(base, slot)
            .tell(Severity::Note, "timing.size_is_ratio", 12, "h_image_size",
                  "The size of the picture, " + sizeText({timing.widthMillimetres, timing.heightMillimetres}) +
                      ", is its aspect ratio, which software takes for a tiny screen; enter millimetres, or 0 for a "
                      "size that is not known.");
    }
    const Size screen = basicSize(base);
    const Size picture = sizeOf(base, timing);
    if (!isTold(screen) || !isTold(picture)) {
        return;
    }
    if (slot == 0 ? !areClose(screen, picture) : isLarger(picture, screen)) {
        slotScope(base, slot)
            .tell(Severity::Warning, "timing.size_disagrees", 12, "h_image_size",
                  "The timing tells a picture of " + sizeText(picture) + " and the block a screen of " +
                      sizeText(screen) + ", so that software computes two resolutions; correct the wrong one.");
    }
}

/// Of the rates the limits tell whole numbers.
bool isWithin(double rate, int low, int high) {
    return rate > low - 1 && rate < high + 1;
}

void checkLimits(const Scope& base, std::size_t slot, const DetailedTiming& timing) {
    const std::optional<RangeLimits>& range = base.summary().range;
    const std::optional<double> lineRate = horizontalKilohertz(timing);
    const std::optional<double> rate = verticalHertz(timing);
    if (!range || !lineRate || !rate) {
        return;
    }
    std::string outside;
    if (!isWithin(*rate, range->minVerticalHertz, range->maxVerticalHertz)) {
        outside = "a vertical rate of " + decimalText(*rate, 2) + " Hz";
    } else if (!isWithin(*lineRate, range->minHorizontalKilohertz, range->maxHorizontalKilohertz)) {
        outside = "a horizontal rate of " + decimalText(*lineRate, 2) + " kHz";
    } else if (const double clock = static_cast<double>(timing.clockKilohertz) / 1000;
               range->maxClockMegahertz && clock > *range->maxClockMegahertz) {
        outside = "a pixel clock of " + decimalText(clock, 2) + " MHz";
    } else {
        return;
    }
    slotScope(base, slot)
        .tell(Severity::Warning, "timing.outside_limits", 0, "pixel_clock",
              "The timing has " + outside +
                  ", which is outside the range limits, so that software may refuse it; correct the limits or the "
                  "timing.");
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
    constexpr unsigned continuousBit = 1;
    const Image& image = base.reading().image;
    const bool isContinuous = (base.byte(24) & continuousBit) != 0;
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
    summarizeSize(base);
    for (std::size_t i = 0; i < slotCount; ++i) {
        if (const std::optional<DetailedTiming> timing = timingIn(base, i)) {
            checkSize(base, i, *timing);
            checkLimits(base, i, *timing);
        }
    }
    checkPreferredTiming(base, revision);
    checkMissing(base, revision);
    checkSerial(base);
}

} // namespace wb::fields
