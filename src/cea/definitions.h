#pragma once

#include "core/workbench.h"

/// Decoding of the whole extension block, a CEA timing extension (CEA-861-D, section 7.5).
namespace wb::cea {

/// Runs every decoder over the cells, in a fixed order.
void BuildCEA_EXT_Definations(Workbench& workbench);

/// Decodes the slots of the detailed timing area, up to seven.
void BuildDetailedTimings(Workbench& workbench);

} // namespace wb::cea
