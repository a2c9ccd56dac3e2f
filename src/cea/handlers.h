#pragma once

#include <utility>

#include "cea/checksum.h"
#include "cea/procedure.h"
#include "core/keys.h"

/// The kinds of procedures of the extension screen.
namespace wb::cea {

/// A key in an input box: a procedure on Enter; any other key does nothing.
template <class Body>
void onEnter(Workbench& workbench, int keyCode, Body&& body) {
    if (keyCode == enterKey) {
        procedure(workbench, std::forward<Body>(body));
    }
}

/// A decoder: what it sets on the panels changes no cell, and the check sum follows.
template <class Body>
void decoder(Workbench& workbench, Body&& body) {
    procedure(workbench, [&](const Procedure& run) {
        run.screen.InFocusDispatch = flagTrue;
        std::forward<Body>(body)(run);
        CalcCheckSum(workbench);
        run.screen.InFocusDispatch = flagFalse;
    });
}

/// A handler of a panel's control: it does nothing while a decoder sets that control, and ends with the check sum.
template <class Body>
void panelHandler(Workbench& workbench, Body&& body) {
    procedure(workbench, [&](const Procedure& run) {
        if (run.screen.InFocusDispatch == flagFalse) {
            std::forward<Body>(body)(run);
            CalcCheckSum(workbench);
        }
    });
}

} // namespace wb::cea
