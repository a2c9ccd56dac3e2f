#pragma once

#include <QPalette>

namespace wb::desktop {

/// Palettes of the program's own, for who wants another one than the system's.
QPalette lightPalette();
QPalette darkPalette();

} // namespace wb::desktop
