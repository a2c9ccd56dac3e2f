#pragma once

#include <QColor>
#include <QPalette>

#include "desktop/pictures/shape.h"

namespace wb::desktop {

/// The colour of an ink on the ground of a window with that palette, light or dark.
QColor inkColour(Ink ink, const QPalette& palette);

} // namespace wb::desktop
