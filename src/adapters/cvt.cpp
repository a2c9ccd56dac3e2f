#include "adapters/cvt.h"

#include <libxcvt/libxcvt.h>

#include <cmath>
#include <cstdlib>
#include <memory>
#include <system_error>

#include "fields/words.h"
#include "platform/linux/shared_library.h"

namespace wb::adapters {

namespace {

using fields::ModelineError;

/// VESA CVT Standard 1.1, section 3.1: the width of a character cell.
constexpr int widthStep = 8;
constexpr int mostPixels = 16384;
constexpr double leastHertz = 10;
constexpr double mostHertz = 500;
/// Section 4.2: reduced blanking is for 60 Hz; the tools of X.Org take its multiples too.
constexpr double reducedStepHertz = 60;

using Generate = decltype(libxcvt_gen_mode_info);

Generate& generator() {
    try {
        static const platform::linux_system::SharedLibrary library("libxcvt.so.0");
        static Generate* const generate = library.function<Generate>("libxcvt_gen_mode_info");
        return *generate;
    } catch (const std::system_error& error) {
        throw ModelineError(std::string("CVT timings cannot be computed: ") + error.what());
    }
}

struct Release {
    void operator()(void* pointer) const { std::free(pointer); }
};

void requireSize(const CvtMode& mode) {
    if (mode.width < widthStep || mode.width > mostPixels || mode.height < 1 || mode.height > mostPixels) {
        throw ModelineError("CVT timings are computed for sizes from 8x1 to 16384x16384");
    }
    if (const int more = mode.width % widthStep; more != 0) {
        throw ModelineError("CVT widths are multiples of 8; " + std::to_string(mode.width) + " is between " +
                            std::to_string(mode.width - more) + " and " +
                            std::to_string(mode.width - more + widthStep));
    }
}

void requireRate(const CvtMode& mode) {
    // Written so that what is no number is refused too.
    if (!(mode.refreshHertz >= leastHertz && mode.refreshHertz <= mostHertz)) {
        throw ModelineError("CVT timings are computed for refresh rates from 10 to 500 Hz");
    }
    if (mode.reducedBlanking && std::fmod(mode.refreshHertz, reducedStepHertz) != 0) {
        throw ModelineError("CVT timings with reduced blanking have a refresh rate of 60 Hz or a multiple of it");
    }
}

std::string nameOf(const CvtMode& mode) {
    std::string name = std::to_string(mode.width) + 'x' + std::to_string(mode.height);
    name += mode.reducedBlanking ? "R" : '_' + fields::decimalText(mode.refreshHertz, 2);
    return name;
}

} // namespace

std::string_view missingCvtLibrary() {
    return {};
}

fields::Modeline cvtModeline(const CvtMode& mode) {
    requireSize(mode);
    requireRate(mode);
    const std::unique_ptr<libxcvt_mode_info, Release> timing(
        generator()(mode.width, mode.height, static_cast<float>(mode.refreshHertz), mode.reducedBlanking, false));
    if (timing == nullptr || timing->dot_clock == 0) {
        throw ModelineError("there is no CVT timing for " + nameOf(mode));
    }
    return {.name = nameOf(mode),
            .clockKilohertz = static_cast<std::int64_t>(timing->dot_clock),
            .horizontal = {.active = static_cast<int>(timing->hdisplay),
                           .syncStart = timing->hsync_start,
                           .syncEnd = timing->hsync_end,
                           .total = timing->htotal,
                           .positiveSync = (timing->mode_flags & LIBXCVT_MODE_FLAG_HSYNC_POSITIVE) != 0},
            .vertical = {.active = static_cast<int>(timing->vdisplay),
                         .syncStart = timing->vsync_start,
                         .syncEnd = timing->vsync_end,
                         .total = timing->vtotal,
                         .positiveSync = (timing->mode_flags & LIBXCVT_MODE_FLAG_VSYNC_POSITIVE) != 0}};
}

} // namespace wb::adapters
