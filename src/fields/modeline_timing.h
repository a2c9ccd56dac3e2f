#pragma once

#include <array>
#include <cstdint>
#include <optional>

#include "core/base/image.h"
#include "fields/modeline.h"

/// Modelines and detailed timings (VESA E-EDID Standard, Release A, section 3.10.2), one from the other.
namespace wb::fields {

using TimingBytes = std::array<std::uint8_t, detailedBlockSize>;

/// Detailed timings count the pixel clock in steps of 10 kHz.
inline constexpr std::int64_t timingClockStep = 10;

/// The timing with digital separate syncs, the clock rounded to its step, and neither a size of the picture, borders
/// nor stereo, of which a modeline does not tell. What has no room in the 18 bytes is a ModelineError.
TimingBytes timingBytes(const Modeline& modeline);

/// The timing of the 18 bytes from number `byte` of the image on, which must be there, as a modeline without a name.
/// Nothing where they hold none, or one whose syncs are not digital separate ones, which a modeline cannot tell.
std::optional<Modeline> modelineAt(const Image& image, std::size_t byte);

} // namespace wb::fields
