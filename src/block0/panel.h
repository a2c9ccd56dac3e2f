#pragma once

#include <utility>

#include "core/base/bits.h"
#include "core/keys.h"
#include "core/workbench.h"

/// How the handlers of the panels of frmEDID run, each with the usual trap.
namespace wb::block0 {

/// A key in an input box: runs `body(screen)` on Enter; any other key does nothing.
template <class Body>
void onEnter(Workbench& workbench, int keyCode, Body&& body) {
    if (keyCode == enterKey) {
        trapped(workbench, [&] { std::forward<Body>(body)(workbench.frmEDID()); });
    }
}

/// Runs `body(screen)` unless the dispatch or a decoder is setting the controls.
template <class Body>
void whenUserActs(Workbench& workbench, Body&& body) {
    trapped(workbench, [&] {
        FrmEdid& screen = workbench.frmEDID();
        if (screen.InFocusDispatch == flagFalse) {
            std::forward<Body>(body)(screen);
        }
    });
}

/// Puts a number into bits of a cell of block 0, then decodes the field of the cell.
void changeBits(Workbench& workbench, int cell, BitRange range, int number);

/// A click on a check by the user: puts its bit into the cell and decodes the field.
void changeBit(Workbench& workbench, int cell, int place, const Control& check);

} // namespace wb::block0
