#include "desktop/pictures/frames.h"

#include <algorithm>

namespace wb::desktop {

namespace {

bool areSame(const Frame& a, const Frame& b) {
    return a.width == b.width && a.height == b.height;
}

/// One frame for each size, the largest first; present where one of its timings is.
std::vector<Frame> sizesOf(const std::vector<Frame>& frames) {
    std::vector<Frame> sizes;
    for (const Frame& frame : frames) {
        const auto same =
            std::find_if(sizes.begin(), sizes.end(), [&](const Frame& other) { return areSame(frame, other); });
        if (same == sizes.end()) {
            sizes.push_back(frame);
        } else if (frame.present && !same->present) {
            *same = frame;
        }
    }
    std::stable_sort(sizes.begin(), sizes.end(),
                     [](const Frame& a, const Frame& b) { return a.width * a.height > b.width * b.height; });
    return sizes;
}

Ink inkOf(std::size_t place) {
    return static_cast<Ink>(static_cast<int>(Ink::First) + static_cast<int>(place) % toldApart);
}

std::string nameOf(const Frame& frame) {
    return std::to_string(frame.width) + 'x' + std::to_string(frame.height);
}

LegendLine legendOf(const Frame& frame, const std::vector<Frame>& sizes) {
    const auto same = std::find_if(sizes.begin(), sizes.end(), [&](const Frame& size) { return areSame(frame, size); });
    return {.words = frame.words,
            .swatch = frame.present ? Swatch::Line : Swatch::Dashes,
            .ink = frame.present ? inkOf(static_cast<std::size_t>(same - sizes.begin())) : Ink::Faint,
            .name = nameOf(frame) + " words",
            .pick = frame.pick,
            .faint = !frame.present};
}

} // namespace

std::vector<Shape> drawFrames(const std::vector<Frame>& frames, const QSizeF& size, const QFontMetricsF& font) {
    const std::vector<Frame> sizes = sizesOf(frames);
    Sketch sketch(size, font);
    std::vector<LegendLine> legend;
    legend.reserve(frames.size());
    for (const Frame& frame : frames) {
        legend.push_back(legendOf(frame, sizes));
    }
    sketch.addLegend(legend);
    int width = 1;
    int height = 1;
    for (const Frame& frame : sizes) {
        width = std::max(width, frame.width);
        height = std::max(height, frame.height);
    }
    sketch.leave(1, 1, 1, 1); // for half the width of the lines
    const QRectF place = fitted(sketch.room(), static_cast<double>(width) / height);
    const double scale = place.width() / width;
    for (std::size_t i = 0; i < sizes.size(); ++i) {
        const Frame& frame = sizes[i];
        const QPointF corner = place.bottomLeft() + QPointF(frame.width, -frame.height) * scale;
        QPolygonF corners(QRectF(place.bottomLeft(), corner).normalized());
        Shape& shape = sketch.path(corners, frame.present ? inkOf(i) : Ink::Faint);
        shape.dashed = !frame.present;
        shape.name = nameOf(frame);
        shape.pick = frame.pick;
    }
    return sketch.take();
}

} // namespace wb::desktop
