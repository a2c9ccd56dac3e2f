#include "desktop/windows/frame_size.h"

#include <QStyle>
#include <algorithm>
#include <cmath>

namespace wb::desktop {

QSize FrameSize::toPixels(float width, float height) const {
    const auto pixels = [](float twips, int whole) {
        constexpr double largest = QWIDGETSIZE_MAX;
        return static_cast<int>(std::lround(std::clamp(double{twips} * whole / defaultTwips, 0.0, largest)));
    };
    return {pixels(width, whole_.width()), pixels(height, whole_.height())};
}

QMargins likelyDecoration(const QWidget& window) {
    const int border = window.style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth, nullptr, &window);
    const int title = window.style()->pixelMetric(QStyle::PM_TitleBarHeight, nullptr, &window);
    return {border, title, border, border};
}

QRect movedInside(const QRect& rectangle, const QRect& room) {
    QRect result(rectangle.topLeft(), rectangle.size().boundedTo(room.size()));
    result.moveLeft(std::clamp(result.left(), room.left(), room.right() + 1 - result.width()));
    result.moveTop(std::clamp(result.top(), room.top(), room.bottom() + 1 - result.height()));
    return result;
}

} // namespace wb::desktop
