#pragma once

#include "core/workbench.h"

namespace wb::block0 {

/// Runs the decoder of the field that a cell of block 0 belongs to; the header, the extension flag and the check sum
/// have none. The fields are those of VESA E-EDID Standard, Release A, sections 3.4 to 3.10.
void decodeFieldOf(Workbench& workbench, int cell);

} // namespace wb::block0
