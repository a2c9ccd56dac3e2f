#pragma once

#include "core/workbench.h"

namespace wb::cea {

/// Recalculates the check sum cell of the extension block after an edit; does nothing while ModifyEDIDOn is false. A
/// cell that cannot be read counts as nothing. The change memory is that of block 0, on purpose.
void CalcCheckSum(Workbench& workbench);

} // namespace wb::cea
