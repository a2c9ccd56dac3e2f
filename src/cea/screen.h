#pragma once

#include "block0/screen_rules.h"

/// The life of the extension screen, and what it is to the code that both block screens share.
namespace wb::cea {

extern const block0::BlockScreenRules ceaScreenRules;

/// The load step: an empty CEA timing extension of version 3 (CEA-861-D, section 7.5), decoded.
void Form_Load(Workbench& workbench);

/// Goes back to the screen of block 0. Cells and locations stay.
void Cmd_Return_Click(Workbench& workbench, int index);

} // namespace wb::cea
