#pragma once

#include "core/workbench.h"

/// frmEDIDREG: the registry key below which the search for the stored EDID starts.
namespace wb::acquire {

/// The menu entry: shows frmEDIDREG modally.
void Windows2000_Click(Workbench& workbench);

void frmEDIDREG_Load(Workbench& workbench);

/// Button 0 saves the text as setting and base location and closes, button 1 closes, button 2 makes the text the base
/// location and tells what the search finds there. The setting is a record only: nothing reads it back.
void frmEDIDREG_Command1_Click(Workbench& workbench, int index);

} // namespace wb::acquire
