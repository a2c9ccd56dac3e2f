#include "desktop/windows/child_placing.h"

#include <QPoint>
#include <algorithm>

namespace wb::desktop {

namespace {

bool isFree(const QRect& place, const QList<QRect>& others) {
    return std::none_of(others.begin(), others.end(), [&](const QRect& other) { return other.intersects(place); });
}

} // namespace

QRect openingPlace(QSize area, QSize wanted, const QList<QRect>& others, int step) {
    const QRect room(QPoint(0, 0), area);
    QList<QPoint> corners = {QPoint(0, 0)};
    for (const QRect& other : others) {
        corners += QPoint(other.x() + other.width(), other.y());
        corners += QPoint(other.x(), other.y() + other.height());
    }
    const QSize size = wanted.boundedTo(area);
    for (const QPoint& corner : corners) {
        const QRect place(corner, size);
        if (room.contains(place) && isFree(place, others)) {
            return place;
        }
    }
    QPoint corner = others.isEmpty() ? QPoint(0, 0) : others.front().topLeft() + QPoint(step, step);
    if (!room.adjusted(0, 0, -area.width() / 2, -area.height() / 2).contains(corner)) {
        corner = QPoint(step, step); // the stairs start anew
    }
    return {corner, size.boundedTo(area - QSize(corner.x(), corner.y()))};
}

} // namespace wb::desktop
