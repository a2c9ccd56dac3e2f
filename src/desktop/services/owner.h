#pragma once

#include <QWidget>

namespace wb::desktop {

/// The window that a box or dialog belongs to: the modal one that is up, else the frame; null while there is neither.
QWidget* dialogOwner();

} // namespace wb::desktop
