#pragma once

#include <QString>
#include <optional>

#include "core/workbench.h"

namespace wb::desktop {

/// The detailed timing whose panel is shown.
struct TimingTarget {
    int byte;     ///< of the image, the first of its 18
    QString name; ///< as the panel calls it, with the block where that is not block 0
};

/// That of the block screen that was active last; nothing while it shows another panel.
std::optional<TimingTarget> shownTiming(const Workbench& workbench);

} // namespace wb::desktop
