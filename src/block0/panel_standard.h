#pragma once

#include "core/workbench.h"

/// The two panels of standard timings (VESA E-EDID Standard, Release A, section 3.9): Hints(8) for the eight pairs of
/// cells 38 to 53, Hints(12) for the six pairs of a standard timing descriptor.
namespace wb::block0 {

/// Further steps of the focus dispatch for cells 38 to 53.
void openStandardTimingPanel(Workbench& workbench, int index);

/// Focus on the first cell of the pair.
void STOpt_Click(Workbench& workbench, int index);
/// The same; element 6 turns the block into a serial number descriptor instead.
void ExtSTOpt_Click(Workbench& workbench, int index);

// Aspect ratio of the selected pair.
void STAOptb_Click(Workbench& workbench, int index);
void ExtSTAOptb_Click(Workbench& workbench, int index);

// What the input box adjusts: focus on it.
void STAOpta_Click(Workbench& workbench, int index);
void ExtSTAOpta_Click(Workbench& workbench, int index);

void STAInput_GotFocus(Workbench& workbench, int index);
void ExtStaInput_GotFocus(Workbench& workbench, int index);

// On Enter: horizontal size in pixels or refresh rate in Hz.
void STAInput_KeyUp(Workbench& workbench, int index, int keyCode);
void ExtStaInput_KeyUp(Workbench& workbench, int index, int keyCode);

} // namespace wb::block0
