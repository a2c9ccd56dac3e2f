#pragma once

#include "desktop/pictures/sketch.h"
#include "desktop/pictures/values.h"

namespace wb::desktop {

/// A timing as a frame.
struct Frame {
    int width; ///< px
    int height;
    QString words;
    std::optional<Pick> pick{};
    bool present = true; ///< the image names it
};

/// The frames with their lower left corners in one place, in proportion to each other, and a legend of them all.
/// Timings of one size have one frame, whose click is that of the first of them.
std::vector<Shape> drawFrames(const std::vector<Frame>& frames, const QSizeF& size, const QFontMetricsF& font);

} // namespace wb::desktop
