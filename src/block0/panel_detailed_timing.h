#pragma once

#include <string>

#include "block0/screen_rules.h"

/// The panels of an 18-byte detailed timing (VESA E-EDID Standard, Release A, section 3.10.2), Hints(9) with its values
/// and Hints(10) with its flag byte. They work on the 18 cells from CurrentBlockBase, on either block screen.
namespace wb::block0 {

/// "Detailed Timing (54-71)" for the block that begins at cell 54.
std::string detailedTimingCaption(int base);

/// The cell of the block that stands for a field, by its number among report::timingFields, in the dispatch. Both
/// vertical sync fields have their lower bits in one cell, which is that of the offset.
int cellOfTimingField(int field);

/// The controls of both panels without a choice: no field, no stereo up to `lastStereo`, no sync kind, not interlaced,
/// an empty input box.
void resetDetailedTiming(BlockScreen& screen, int lastStereo);

/// Shows the panel of the cell at `offset` of the block from CurrentBlockBase, gives the field its colour and selects
/// its option. The cells with upper bits of several fields have no input box.
void showDetailedTimingField(const Statements& run, BlockScreen& screen, int offset);

/// Focus on the first cell of the field.
void DT_Click(const BlockScreenRules& rules, Workbench& workbench, int index);
void DTInput_GotFocus(const BlockScreenRules& rules, Workbench& workbench);
/// On Enter writes the entry to the field that is selected; the pixel clock is entered in MHz.
void DTInput_KeyUp(const BlockScreenRules& rules, Workbench& workbench, int keyCode);

// The bits of the flag byte.
void DT1_Click(const BlockScreenRules& rules, Workbench& workbench);
void DTStereo_Click(const BlockScreenRules& rules, Workbench& workbench);
void DTSync_Click(const BlockScreenRules& rules, Workbench& workbench);
void SyncLine_Click(const BlockScreenRules& rules, Workbench& workbench);
void VSyncLine_Click(const BlockScreenRules& rules, Workbench& workbench);
/// Tests no flag: a decoder that changes the check writes the bit too.
void SyncSerrate_Click(const BlockScreenRules& rules, Workbench& workbench);

} // namespace wb::block0
