#pragma once

#include <QWidget>

class QMdiSubWindow;

namespace wb::desktop {

/// Scrolls what contains the widget, its page and the frame's area, until it can be seen.
void bringIntoSight(QWidget& widget);
/// The child window that the widget stands in or is, if that is minimised; else null.
QMdiSubWindow* minimisedWindowOf(QWidget& widget);
/// Restores that window.
void restoreWindowOf(QWidget& widget);

} // namespace wb::desktop
