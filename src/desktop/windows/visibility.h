#pragma once

#include <QWidget>

namespace wb::desktop {

/// Scrolls what contains the widget, its page and the frame's area, until it can be seen.
void bringIntoSight(QWidget& widget);
/// Restores the child window that the widget stands in, if it is minimised.
void restoreWindowOf(QWidget& widget);

} // namespace wb::desktop
