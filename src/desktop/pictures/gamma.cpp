#include <cmath>

#include "desktop/pictures/painters.h"
#include "desktop/pictures/sketch.h"

namespace wb::desktop {

namespace {

/// Light over signal, both from 0 to 1.
QPolygonF curve(const QRectF& place, double gamma) {
    constexpr int steps = 64;
    QPolygonF points;
    for (int i = 0; i <= steps; ++i) {
        const double signal = static_cast<double>(i) / steps;
        points.append(place.bottomLeft() + QPointF(signal * place.width(), -std::pow(signal, gamma) * place.height()));
    }
    return points;
}

void drawAxes(Sketch& sketch, const QRectF& place) {
    constexpr int steps = 4;
    for (int i = 0; i <= steps; ++i) {
        const double share = static_cast<double>(i) / steps;
        const Ink ink = i == 0 ? Ink::Faint : Ink::Grid;
        const QPointF right(share * place.width(), 0);
        const QPointF up(0, -share * place.height());
        sketch.path(QPolygonF({place.bottomLeft() + right, place.topLeft() + right}), ink);
        sketch.path(QPolygonF({place.bottomLeft() + up, place.bottomRight() + up}), ink);
    }
    const double gap = sketch.lineHeight() / 4;
    sketch.words({place.center().x(), place.bottom() + gap}, Qt::AlignHCenter | Qt::AlignTop, "signal", Ink::Faint);
    sketch.words({place.left() - gap, place.center().y()}, Qt::AlignRight | Qt::AlignVCenter, "light", Ink::Faint);
}

} // namespace

Picture drawGamma(const Values& values, const Canvas& canvas) {
    const auto gamma = values.number("gamma");
    if (!gamma) {
        return {};
    }
    const QString number = QString::number(*gamma, 'f', 2);
    Sketch sketch(canvas.size, canvas.font);
    sketch.addLegend({{.words = "Gamma " + number,
                       .swatch = Swatch::Line,
                       .ink = Ink::First,
                       .name = "gamma words",
                       .pick = Pick{"Basic", 2}},
                      {.words = "1.00, for comparison", .swatch = Swatch::Dashes, .ink = Ink::Faint}});
    sketch.leave(sketch.width("light "), 1, 1, 1.25 * sketch.lineHeight());
    const QRectF place = fitted(sketch.room(), 1);
    drawAxes(sketch, place);
    Shape& straight = sketch.path(QPolygonF({place.bottomLeft(), place.topRight()}), Ink::Faint);
    straight.dashed = true;
    straight.name = "straight";
    Shape& line = sketch.path(curve(place, *gamma), Ink::First);
    line.name = "gamma";
    line.pick = Pick{"Basic", 2};
    constexpr double half = 0.5;
    constexpr double percent = 100;
    return {.name = "Gamma curve",
            .description = QString("Gamma %1: half of the signal gives %2 % of the light.")
                               .arg(number)
                               .arg(std::lround(std::pow(half, *gamma) * percent)),
            .shapes = sketch.take()};
}

} // namespace wb::desktop
