#pragma once

#include <utility>

#include "core/edid_image.h"
#include "core/workbench.h"

/// How the decoders of block 0 run.
namespace wb::report {

/// Sets controls whose handlers would take that for the user's doing and write cells: InFocusDispatch, raised
/// meanwhile, holds them back. A failure leaves it raised.
template <class Body>
void settingControls(BlockScreen& screen, Body&& body) {
    screen.InFocusDispatch = flagTrue;
    std::forward<Body>(body)();
    screen.InFocusDispatch = flagFalse;
}

/// A decoder of fields without such controls: the check sum follows `body(screen)`. A failure is shown and ends it.
template <class Body>
void decoder(Workbench& workbench, Body&& body) {
    trapped(workbench, [&] {
        std::forward<Body>(body)(workbench.frmEDID());
        RecalcBlock0Checksum(workbench);
    });
}

/// A decoder that sets such controls, and then does `further(screen)` with InFocusDispatch lowered again.
template <class Body, class Further>
void controlDecoder(Workbench& workbench, Body&& body, Further&& further) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        settingControls(screen, [&] {
            std::forward<Body>(body)(screen);
            RecalcBlock0Checksum(workbench);
        });
        std::forward<Further>(further)(screen);
    });
}
template <class Body>
void controlDecoder(Workbench& workbench, Body&& body) {
    controlDecoder(workbench, std::forward<Body>(body), [](FrmEdid&) {});
}

} // namespace wb::report
