#include "desktop/drawing/twips.h"

#include <QWidget>
#include <algorithm>
#include <cmath>

namespace wb::desktop {

namespace {

constexpr double twipsPerInch = 1440;

double twipsPerPixel(const QWidget& widget) {
    return twipsPerInch / widget.logicalDpiX();
}

} // namespace

int toPixels(const QWidget& widget, double twips) {
    constexpr double largest = QWIDGETSIZE_MAX;
    return static_cast<int>(std::lround(std::clamp(twips / twipsPerPixel(widget), -largest, largest)));
}

float toTwips(const QWidget& widget, int pixels) {
    return static_cast<float>(pixels * twipsPerPixel(widget));
}

QRect pixelsOf(const QWidget& widget, const Bounds& twips) {
    return {toPixels(widget, twips.left), toPixels(widget, twips.top), toPixels(widget, twips.width),
            toPixels(widget, twips.height)};
}

} // namespace wb::desktop
