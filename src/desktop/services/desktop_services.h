#pragma once

#include "desktop/services/clock.h"
#include "desktop/services/dialogs.h"
#include "desktop/services/event_loop.h"
#include "desktop/services/message_boxes.h"
#include "desktop/services/printing.h"
#include "desktop/services/settings.h"
#include "desktop/services/system.h"
#include "desktop/services/window_arranger.h"
#include "platform/stored_edid_system.h"

namespace wb::desktop {

/// All services of the desktop program.
class DesktopServices {
public:
    /// Both must outlive the services.
    DesktopServices(ModelGate& gate, System& system);
    DesktopServices(const DesktopServices&) = delete;
    DesktopServices& operator=(const DesktopServices&) = delete;

    const platform::Services& services() const { return services_; }
    MdiArranger& arranger() { return arranger_; }
    QtPrinter& printer() { return printer_; }

private:
    QtMessageBoxes messageBoxes_;
    QtPrinter printer_;
    QtDialogs dialogs_;
    QtSettings settings_;
    platform::StoredEdidSystem operatingSystem_;
    platform::NoDirectReader edidReader_;
    SystemClock clock_;
    QtEventLoop eventLoop_;
    MdiArranger arranger_;
    platform::Services services_;
};

} // namespace wb::desktop
