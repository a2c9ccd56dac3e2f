#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "fields/summary.h"

namespace wb::fields {

/// A video format of CTA-861 as it goes over the wire: where pixels are sent more than once, each counts.
struct VideoFormat {
    int width = 0;  ///< px
    int height = 0; ///< lines of a whole picture
    bool interlaced = false;
    std::string_view aspect{}; ///< of the picture, such as "16:9"
    std::int64_t clockKilohertz = 0;
    int horizontalTotal = 0;
    int verticalTotal = 0; ///< lines of a whole picture
};

/// The format of a video identification code, 1 to 127 and 193 to 219; null for those that are reserved. Of two
/// rates that share a code, such as 60 and 59.94 Hz, it is the one with the rounder pixel clock.
const VideoFormat* videoFormatOf(unsigned code);

/// The video identification code in a short video descriptor: 129 to 192 are the codes 1 to 64 as native ones
/// (CTA-861-H, 7.5.1).
constexpr unsigned videoCodeOf(unsigned descriptor) {
    return descriptor > 128 && descriptor < 193 ? descriptor - 128 : descriptor;
}

/// "1920x1080i 60 Hz 16:9".
std::string formatText(const VideoFormat& format);

Mode modeOf(const VideoFormat& format, bool native);

} // namespace wb::fields
