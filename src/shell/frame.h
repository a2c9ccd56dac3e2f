#pragma once

#include "core/workbench.h"

/// The commands of the frame.
namespace wb::shell {

/// Command1, Print Preview and the tool bar key of that name: the report of the open image in its window.
void translateEDID(Workbench& workbench);
/// Switches Modify EDID; switched on, the focus goes to the first cell of block 0.
void Command2_Click(Workbench& workbench);
/// Switches Auto Cell Seek.
void Command3_Click(Workbench& workbench);
/// Calls up the extension screen.
void Command4_Click(Workbench& workbench);

/// A tool bar button, by its place; each does what the like-named menu entry does.
void tbToolBar_ButtonClick(Workbench& workbench, int index);

template <platform::Arrangement mode>
void arrange(Workbench& workbench) {
    workbench.platform.arranger.arrange(mode);
}

} // namespace wb::shell
