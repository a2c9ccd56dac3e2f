#pragma once

#include <QWidget>

namespace wb::desktop {

/// Scrolls what contains the widget, its page and the frame's area, until it can be seen, and restores a minimised
/// child window around it.
void bringIntoSight(QWidget& widget);

} // namespace wb::desktop
