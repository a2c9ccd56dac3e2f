#pragma once

#include "desktop/windows/main_view.h"

namespace wb::desktop {

/// Gives the frame all that the desktop program adds to it.
void addTools(MainView& frame);

} // namespace wb::desktop
