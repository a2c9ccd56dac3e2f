#pragma once

#include "core/workbench.h"

namespace wb::block0 {

/// The branch of the focus dispatch for the four 18-byte blocks, cells 54 to 125: which block, detailed timing or
/// descriptor, and which of its fields.
void openBlock(Workbench& workbench, int index);

} // namespace wb::block0
