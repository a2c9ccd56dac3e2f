#pragma once

#include <functional>

#include "core/screens/block_screen.h"
#include "core/workbench.h"
#include "desktop/base/live_reading.h"
#include "desktop/views/control_view.h"
#include "fields/reading.h"

namespace wb::desktop {

/// Says in words what each cell is: the byte, and by the plain reading of the image the fields that it is part of. For
/// those who hear the screen, since a panel tells of the cell in focus only, and for tool tips.
class CellNames {
public:
    using Find = std::function<ControlView*(const Control&)>;

    explicit CellNames(Find find) : find_(std::move(find)) {}

    /// Names those cells of the loaded screens of which there is something else to say.
    void refresh(const Workbench& workbench, const LiveReading& live) const;

private:
    void name(BlockScreen& screen, const LiveReading& live, std::size_t firstByte) const;

    Find find_;
};

} // namespace wb::desktop
