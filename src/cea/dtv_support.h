#pragma once

#include "core/workbench.h"

/// Cell 3 of the extension block: support flags of a digital television and the number of native formats (CEA-861-D,
/// section 7.5).
namespace wb::cea {

/// Decodes the cell for panel and report.
void BuildDTVSupport(Workbench& workbench);

// Write the four flags, or the number of native formats (0 to 15), into the cell. The report text follows with the next
// decoding.
void NativeChk_Click(Workbench& workbench, int index);
void NativeCBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
