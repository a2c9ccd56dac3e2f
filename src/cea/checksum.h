#pragma once

#include "core/workbench.h"

namespace wb::cea {

/// Recalculates the check sum cell of the extension block after an edit; does nothing while ModifyEDIDOn is false. A
/// cell that cannot be read counts as nothing. Block 0 and the extension block share one change memory.
void CalcCheckSum(Workbench& workbench);

} // namespace wb::cea
