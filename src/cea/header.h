#pragma once

#include "core/workbench.h"

/// The header of the extension block: cell 1 is its version, cell 2 the offset of the first detailed timing (CEA-861-D,
/// section 7.5).
namespace wb::cea {

/// Shows the version, in decimal.
void BuildVersion(Workbench& workbench);

/// Enter takes the version: 1 to 3, rounded to a whole number.
void VerRev_KeyUp(Workbench& workbench, int index, int keyCode);
/// Enter takes the offset of the first detailed timing: 0 or 4 to 109, rounded to a whole number.
void DetailOffset_KeyUp(Workbench& workbench, int index, int keyCode);

void VerRev_GotFocus(Workbench& workbench, int index);
void DetailOffset_GotFocus(Workbench& workbench, int index);

/// What lbEDID(5) says of an offset, given in decimal.
std::string offsetCaption(const std::string& offset);

} // namespace wb::cea
