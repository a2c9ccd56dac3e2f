#pragma once

#include <QMargins>
#include <QRect>
#include <QWidget>

#include "core/screens/frm_main.h"

namespace wb::desktop {

/// The frame's size in twips and pixels. Without stored settings the program asks for `defaultTwips` each way, which
/// stands for the size in which the whole of the largest screen shows; other sizes are in proportion to it, so that a
/// stored one follows the font and the resolution.
class FrameSize {
public:
    static constexpr float defaultTwips = 6500;

    FrameSize() = default;
    /// With the size in pixels that the default stands for.
    explicit FrameSize(QSize whole) : whole_(whole.expandedTo(QSize(1, 1))) {}

    QSize toPixels(float width, float height) const;
    float widthInTwips(int pixels) const { return inTwips(pixels, whole_.width()); }
    float heightInTwips(int pixels) const { return inTwips(pixels, whole_.height()); }

private:
    static float inTwips(int pixels, int whole) { return static_cast<float>(double{defaultTwips} * pixels / whole); }

    QSize whole_{1, 1};
};

/// What a window manager is likely to put around a window of that style.
QMargins likelyDecoration(const QWidget& window);

/// The rectangle moved, and made smaller where need be, until it lies inside the other one.
QRect movedInside(const QRect& rectangle, const QRect& room);

} // namespace wb::desktop
