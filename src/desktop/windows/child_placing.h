#pragma once

#include <QList>
#include <QRect>

namespace wb::desktop {

/// Where a child window opens in an area of that size: beside or below the others, the active one first, where there is
/// room; else over the active one, by a step to the right and down, and no larger than what is left of the area.
QRect openingPlace(QSize area, QSize wanted, const QList<QRect>& others, int step);

} // namespace wb::desktop
