#pragma once

#include <QFont>

namespace wb::desktop {

/// The system's fixed-pitch face; its size is left open, so that a widget takes that of its surroundings.
QFont fixedPitchFont();

} // namespace wb::desktop
