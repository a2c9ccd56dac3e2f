#pragma once

#include <cstdint>

#include "core/workbench.h"

/// Extension flag and check sum of block 0 (VESA E-EDID Standard, Release A, section 3.11).
namespace wb::report {

/// The sum of all 128 cells of block 0, check sum included, modulo 256: 0 for a valid block. A failure is shown and
/// ends the sum, which is then that of the cells before.
std::int16_t ComputeCheckSum(Workbench& workbench);

/// Decodes extension count (cell 126) and check sum (cell 127). A cell 126 that cannot be read is the caller's failure.
void ConvertExtCheckSum(Workbench& workbench);

} // namespace wb::report
