#pragma once

#include "core/workbench.h"

namespace wb::report {

/// Turns the cells of block 0 into meaning: runs every decoder once, in a fixed order that later decoders rest on. Each
/// shows its own failures, after which the next one runs; the last one, of the extension flag and check sum, passes its
/// failure on.
void BuildEDIDDefinations(Workbench& workbench);

} // namespace wb::report
