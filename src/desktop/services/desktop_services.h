#pragma once

#include "desktop/services/clock.h"
#include "desktop/services/dialogs.h"
#include "desktop/services/event_loop.h"
#include "desktop/services/message_boxes.h"
#include "desktop/services/printing.h"
#include "desktop/services/settings.h"
#include "desktop/services/shell.h"
#include "desktop/services/window_arranger.h"

namespace wb::desktop {

/// What the desktop asks of the system below it.
struct SystemServices {
    platform::Registry& registry;
    platform::OperatingSystem& operatingSystem;
    platform::DirectEdidReader& edidReader;
    platform::Shell& deviceTool;
};

/// All services of the desktop program.
class DesktopServices {
public:
    DesktopServices(ModelGate& gate, const SystemServices& system);
    DesktopServices(const DesktopServices&) = delete;
    DesktopServices& operator=(const DesktopServices&) = delete;

    const platform::Services& services() const { return services_; }
    MdiArranger& arranger() { return arranger_; }

private:
    QtMessageBoxes messageBoxes_;
    QtPrinter printer_;
    QtDialogs dialogs_;
    QtSettings settings_;
    QtShell shell_;
    SystemClock clock_;
    QtEventLoop eventLoop_;
    MdiArranger arranger_;
    platform::Services services_;
};

} // namespace wb::desktop
