#pragma once

#include "core/workbench.h"

/// The panels Hints(5) to Hints(7) of the established timings, cells 35 to 37 (VESA E-EDID Standard, Release A,
/// section 3.8). A click writes its bit at once.
namespace wb::block0 {

void ET1_Click(Workbench& workbench, int index);
void ET2_Click(Workbench& workbench, int index);
/// Has the one element 7, which is the top bit; the reserved bits of the cell stay.
void ET3_Click(Workbench& workbench, int index);

} // namespace wb::block0
