#include <cmath>

#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

constexpr double centimetresPerInch = 2.54;

QString centimetres(double length) {
    return shortNumber(length, 1) + " cm";
}

QString diagonalText(double width, double height) {
    const double diagonal = std::hypot(width, height);
    return QString("%1 cm (%2 in)")
        .arg(QString::number(diagonal, 'f', 1), QString::number(diagonal / centimetresPerInch, 'f', 1));
}

/// A length to compare with, a tenth to a half of the width.
double rulerFor(double width) {
    for (const double length : {100.0, 50.0, 20.0, 10.0, 5.0, 2.0}) {
        if (length <= width / 2) {
            return length;
        }
    }
    return 1;
}

void drawRuler(Sketch& sketch, const QPointF& left, double length, double scale) {
    const double tick = sketch.lineHeight() / 4;
    const QPointF right = left + QPointF(length * scale, 0);
    const QPointF up(0, -tick);
    sketch.path(QPolygonF({left + up, left, right, right + up}), Ink::Faint).name = "ruler";
    sketch.words((left + right) / 2 + up, Qt::AlignHCenter | Qt::AlignBottom, centimetres(length), Ink::Faint);
}

Picture drawSize(double width, double height, const Canvas& canvas) {
    Sketch sketch(canvas.size, canvas.font);
    const QString high = centimetres(height);
    const double em = sketch.lineHeight();
    sketch.leave(1, 1, sketch.width(high) + em / 2, em * 1.2);
    const QRectF place = fitted(sketch.room(), width / height);
    sketch.area(QPolygonF(place), Ink::Screen, Ink::Text).name = "screen";
    sketch.path(QPolygonF({place.bottomLeft(), place.topRight()}), Ink::Faint).name = "diagonal";
    drawRuler(sketch, place.bottomLeft() + QPointF(em / 2, -em / 2), rulerFor(width), place.width() / width);
    sketch.words(place.center(), Qt::AlignCenter, diagonalText(width, height)).name = "diagonal words";
    Shape& wide = sketch.words({place.center().x(), place.bottom() + em * 0.1}, Qt::AlignHCenter | Qt::AlignTop,
                               centimetres(width));
    wide.name = "width";
    wide.pick = Pick{"Basic", 0};
    Shape& tall = sketch.words({place.right() + em / 2, place.center().y()}, Qt::AlignLeft | Qt::AlignVCenter, high);
    tall.name = "height";
    tall.pick = Pick{"Basic", 1};
    return {.name = "Screen",
            .description =
                QString("%1 wide, %2 high, diagonal %3.").arg(centimetres(width), high, diagonalText(width, height)),
            .shapes = sketch.take()};
}

/// A shape without a size.
Picture drawShape(double ratio, const Canvas& canvas) {
    Sketch sketch(canvas.size, canvas.font);
    sketch.leave(1, 1, 1, 1);
    const QRectF place = fitted(sketch.room(), ratio);
    const QString words = shortNumber(ratio, 2) + " : 1";
    sketch.area(QPolygonF(place), Ink::Screen, Ink::Text).name = "screen";
    sketch.words(place.center(), Qt::AlignCenter, words).name = "ratio";
    return {.name = "Screen",
            .description = "Width to height " + words + ", of a size that is not told.",
            .shapes = sketch.take()};
}

} // namespace

Picture drawScreen(const Values& values, const Canvas& canvas) {
    const double width = values.numberOr0("width");
    const double height = values.numberOr0("height");
    if (width > 0 && height > 0) {
        return drawSize(width, height, canvas);
    }
    if (const auto ratio = values.number("aspect_ratio")) {
        return drawShape(*ratio, canvas);
    }
    const auto portrait = values.number("portrait_ratio");
    return portrait ? drawShape(1 / *portrait, canvas) : Picture();
}

} // namespace wb::desktop
