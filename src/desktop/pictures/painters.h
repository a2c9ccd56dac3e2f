#pragma once

#include <QFontMetricsF>
#include <QSizeF>

#include "desktop/pictures/shape.h"
#include "desktop/pictures/values.h"

/// The pictures beside the panels. Each makes its shapes from fields and from the room that it gets, and nothing else;
/// one whose fields tell nothing has no shapes.
namespace wb::desktop {

struct Canvas {
    QSizeF size; ///< px
    QFontMetricsF font;
};

/// Primaries and white points in the CIE 1931 diagram, with the triangle of sRGB for comparison. "base.".
Picture drawChromaticity(const Values& values, const Canvas& canvas);

} // namespace wb::desktop
