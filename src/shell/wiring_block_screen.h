#pragma once

#include "block0/grid.h"
#include "block0/panel_detailed_timing.h"

namespace wb::shell {

/// A handler for a procedure of one screen that takes no index.
template <const block0::BlockScreenRules& rules, void (*procedure)(const block0::BlockScreenRules&, Workbench&)>
void screenHandler(Workbench& workbench, int) {
    procedure(rules, workbench);
}

/// Connects what the two block screens have in common: the filter and the length check of the cells, and the panels of
/// a detailed timing.
template <const block0::BlockScreenRules& rules>
void connectBlockScreen(BlockScreen& screen) {
    screen.txtEdit.on.keyPress = &block0::txtEdit_KeyPress;
    screen.txtEdit.on.lostFocus = [](Workbench& workbench, int index) {
        block0::txtEdit_LostFocus(rules, workbench, index);
    };
    screen.DT.on.click = [](Workbench& workbench, int index) { block0::DT_Click(rules, workbench, index); };
    screen.DTInput.on.gotFocus = &screenHandler<rules, block0::DTInput_GotFocus>;
    screen.DTInput.on.keyUp = [](Workbench& workbench, int, int keyCode) {
        block0::DTInput_KeyUp(rules, workbench, keyCode);
    };
    screen.DT1.on.click = &screenHandler<rules, block0::DT1_Click>;
    screen.DTStereo.on.click = &screenHandler<rules, block0::DTStereo_Click>;
    screen.DTSync.on.click = &screenHandler<rules, block0::DTSync_Click>;
    screen.SyncLine.on.click = &screenHandler<rules, block0::SyncLine_Click>;
    screen.VSyncLine.on.click = &screenHandler<rules, block0::VSyncLine_Click>;
    screen.SyncSerrate.on.click = &screenHandler<rules, block0::SyncSerrate_Click>;
}

} // namespace wb::shell
