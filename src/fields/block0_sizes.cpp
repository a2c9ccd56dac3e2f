#include <algorithm>
#include <array>
#include <cmath>

#include "fields/block0_parts.h"

namespace wb::fields {

namespace {

constexpr double millimetresPerInch = 25.4;
constexpr int millimetresPerCentimetre = 10;
/// Centimetres may be rounded or cut.
constexpr int centimetreError = 10;
constexpr std::size_t sizeBytes = 21;

struct Size {
    int width; ///< mm
    int height;
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
constexpr auto ratios = std::to_array<Size>({{4, 3}, {16, 9}, {16, 10}, {160, 90}, {160, 100}});

/// A size as small as that is believed where the basic parameters tell it too.
bool tellsRatio(const Scope& base, const DetailedTiming& timing) {
    const bool isRatio = std::any_of(ratios.begin(), ratios.end(), [&](const Size& ratio) {
        return ratio.width == timing.widthMillimetres && ratio.height == timing.heightMillimetres;
    });
    const Size basic = basicSize(base);
    return isRatio && !(isTold(basic) && areClose(basic, {timing.widthMillimetres, timing.heightMillimetres}));
}

/// The size in the timing, nothing where there is an aspect ratio in its place.
Size sizeOf(const Scope& base, const DetailedTiming& timing) {
    return tellsRatio(base, timing) ? Size() : Size{timing.widthMillimetres, timing.heightMillimetres};
}

bool isLarger(const Size& a, const Size& b) {
    return a.width > b.width + centimetreError || a.height > b.height + centimetreError;
}

/// The first timing tells millimetres, where the basic parameters tell centimetres: it counts where both agree or where
/// it alone tells a size.
void summarizeSize(const Scope& base) {
    const Size basic = basicSize(base);
    const std::optional<DetailedTiming> first = timingInSlot(base, 0);
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

} // namespace

void checkSizes(const Scope& base) {
    summarizeSize(base);
    for (std::size_t i = 0; i < slotCount; ++i) {
        if (const std::optional<DetailedTiming> timing = timingInSlot(base, i)) {
            checkSize(base, i, *timing);
        }
    }
}

} // namespace wb::fields
