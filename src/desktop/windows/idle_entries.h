#pragma once

#include "core/control.h"

namespace wb::desktop {

/// Whether the command of that menu entry or tool bar button would do nothing at all in the present state: not a box,
/// not a file, not a focus step. `icons` tells whether there are minimised windows.
bool isIdle(const Control& entry, bool icons);

} // namespace wb::desktop
