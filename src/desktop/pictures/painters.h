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
/// A detailed timing as the beam runs: sync, blanking, border and active area, one pixel as wide as a line is high; of
/// an interlaced one a line of a field is twice as high. "base.detailed[1]." or "cta[1].detailed[1].".
Picture drawTiming(const Values& values, const Canvas& canvas);
/// The established timings of one byte as frames in proportion to each other; those that the image does not name are
/// faint. "base.established.".
Picture drawEstablished1(const Values& values, const Canvas& canvas);
Picture drawEstablished2(const Values& values, const Canvas& canvas);
Picture drawEstablished3(const Values& values, const Canvas& canvas);
/// Standard timings as frames. "base." or "base.descriptor[1].".
Picture drawStandard(const Values& values, const Canvas& canvas);
Picture drawMoreStandard(const Values& values, const Canvas& canvas);
/// Range limits as bars, with the timings of the image as marks. "base.descriptor[1].".
Picture drawRange(const Values& values, const Canvas& canvas);
/// The screen with its diagonal, or its shape where no more is told. "base.basic.".
Picture drawScreen(const Values& values, const Canvas& canvas);
/// What the screen makes of the signal by its gamma. "base.basic.".
Picture drawGamma(const Values& values, const Canvas& canvas);
/// The speakers in a room, seen from above. "cta[1].speakers.".
Picture drawSpeakers(const Values& values, const Canvas& canvas);

} // namespace wb::desktop
