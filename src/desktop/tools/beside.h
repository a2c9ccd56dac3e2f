#pragma once

#include <QWidget>

namespace wb::desktop {

/// Moves a window that is about to show, in its size, to the right or the left of the frame where the screen has room;
/// else over the lower right of the frame, which hides the least of the cells.
void placeBeside(QWidget& window, const QWidget& frame);

} // namespace wb::desktop
