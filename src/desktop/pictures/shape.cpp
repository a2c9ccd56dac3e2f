#include "desktop/pictures/shape.h"

#include <algorithm>
#include <cmath>

namespace wb::desktop {

namespace {

/// How far from a line or a dot a click still means it, in pixels.
constexpr double reach = 5;

double distance(const QPointF& a, const QPointF& b) {
    return std::hypot(a.x() - b.x(), a.y() - b.y());
}

double distance(const QPointF& point, const QPointF& from, const QPointF& to) {
    const QPointF way = to - from;
    const double length = QPointF::dotProduct(way, way);
    const double share = length > 0 ? std::clamp(QPointF::dotProduct(point - from, way) / length, 0.0, 1.0) : 0;
    return distance(point, from + share * way);
}

bool isOnPath(const QPolygonF& path, const QPointF& point) {
    for (qsizetype i = 0; i + 1 < path.size(); ++i) {
        if (distance(point, path[i], path[i + 1]) <= reach) {
            return true;
        }
    }
    return false;
}

bool holds(const Shape& shape, const QPointF& point) {
    switch (shape.kind) {
        case Shape::Kind::Path:
            return isOnPath(shape.points, point);
        case Shape::Kind::Dot:
            return distance(point, shape.points.front()) <= 2 * reach;
        case Shape::Kind::Area:
        case Shape::Kind::Words:
            break;
    }
    return shape.points.containsPoint(point, Qt::OddEvenFill);
}

} // namespace

const Shape* pickedAt(const Picture& picture, const QPointF& point) {
    const auto found = std::find_if(picture.shapes.rbegin(), picture.shapes.rend(),
                                    [&](const Shape& shape) { return shape.pick && holds(shape, point); });
    return found == picture.shapes.rend() ? nullptr : &*found;
}

} // namespace wb::desktop
