#include "desktop/pictures/sketch.h"

#include <algorithm>

namespace wb::desktop {

namespace {

/// In heights of a line.
constexpr double swatchWidth = 1.2;
constexpr double swatchGap = 0.4;
constexpr double legendGap = 1;

} // namespace

Shape& Sketch::area(const QPolygonF& corners, Ink fill, Ink line) {
    return shapes_.emplace_back(Shape{.kind = Shape::Kind::Area, .points = corners, .fill = fill, .line = line});
}

Shape& Sketch::path(const QPolygonF& steps, Ink line) {
    return shapes_.emplace_back(Shape{.kind = Shape::Kind::Path, .points = steps, .line = line});
}

Shape& Sketch::dot(const QPointF& middle, Ink fill) {
    return shapes_.emplace_back(
        Shape{.kind = Shape::Kind::Dot, .points = QPolygonF({middle}), .fill = fill, .line = Ink::Text});
}

Shape& Sketch::words(const QPointF& point, Qt::Alignment alignment, const QString& words, Ink ink) {
    QRectF box(0, 0, width(words), lineHeight());
    box.moveCenter(point);
    if (alignment.testFlag(Qt::AlignLeft)) {
        box.moveLeft(point.x());
    } else if (alignment.testFlag(Qt::AlignRight)) {
        box.moveRight(point.x());
    }
    if (alignment.testFlag(Qt::AlignTop)) {
        box.moveTop(point.y());
    } else if (alignment.testFlag(Qt::AlignBottom)) {
        box.moveBottom(point.y());
    }
    return shapes_.emplace_back(
        Shape{.kind = Shape::Kind::Words, .points = QPolygonF(box), .line = ink, .words = words});
}

double Sketch::widthOf(const std::vector<LegendLine>& lines) const {
    double widest = 0;
    for (const LegendLine& line : lines) {
        widest = std::max(widest, width(line.words));
    }
    return (swatchWidth + swatchGap) * lineHeight() + widest;
}

void Sketch::addLegend(const std::vector<LegendLine>& lines) {
    const double high = static_cast<double>(lines.size()) * lineHeight();
    if (room_.width() - widthOf(lines) >= room_.height() - high) {
        addLegendBeside(lines);
        return;
    }
    addLegendAt({room_.left(), room_.bottom() - high}, lines);
    leave(0, 0, 0, high + legendGap * lineHeight() / 2);
}

void Sketch::addLegendBeside(const std::vector<LegendLine>& lines) {
    const double wide = widthOf(lines);
    addLegendAt({room_.right() - wide, room_.top()}, lines);
    leave(0, 0, wide + legendGap * lineHeight(), 0);
}

void Sketch::addLegendAt(QPointF at, const std::vector<LegendLine>& lines) {
    const double end = room_.bottom() + 1; // lengths that add up to the room may miss it by a rounding
    for (const LegendLine& line : lines) {
        if (at.y() + lineHeight() <= end) {
            addLegendLine(line, at + QPointF(0, lineHeight() / 2));
        }
        at.ry() += lineHeight();
    }
}

void Sketch::addLegendLine(const LegendLine& line, const QPointF& left) {
    const double em = lineHeight();
    addSwatch(line, QRectF(left.x(), left.y() - em / 4, swatchWidth * em, em / 2));
    Shape& shape = words(left + QPointF((swatchWidth + swatchGap) * em, 0), Qt::AlignLeft | Qt::AlignVCenter,
                         line.words, line.faint ? Ink::Faint : Ink::Text);
    shape.name = line.name;
    shape.pick = line.pick;
}

void Sketch::addSwatch(const LegendLine& line, const QRectF& place) {
    switch (line.swatch) {
        case Swatch::Line:
        case Swatch::Dashes: {
            const double middle = place.center().y();
            path(QPolygonF({QPointF(place.left(), middle), QPointF(place.right(), middle)}), line.ink).dashed =
                line.swatch == Swatch::Dashes;
            break;
        }
        case Swatch::Dot:
            dot(place.center(), line.ink);
            break;
        case Swatch::Box:
            area(QPolygonF(place), line.ink);
            break;
        case Swatch::None:
            break;
    }
}

QRectF fitted(const QRectF& room, double ratio) {
    QSizeF size(room.height() * ratio, room.height());
    if (size.width() > room.width()) {
        size = QSizeF(room.width(), room.width() / ratio);
    }
    QRectF rect(QPointF(0, 0), size);
    rect.moveCenter(room.center());
    return rect;
}

} // namespace wb::desktop
