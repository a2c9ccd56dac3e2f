#pragma once

#include "desktop/windows/main_view.h"
#include "shell/import_image.h"

namespace wb::desktop {

/// What the desktop program knows to do for an import: compressed files, and a box for the choice among several images.
shell::ImportWays importWays(MainView& frame);

} // namespace wb::desktop
