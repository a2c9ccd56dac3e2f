#pragma once

#include <string>

#include "core/base/bits.h"
#include "core/workbench.h"

/// The panel Hints(4) of the chromaticity coordinates, cells 25 to 34 (VESA E-EDID Standard, Release A, section 3.7).
namespace wb::block0 {

/// Further steps of the focus dispatch.
void openChromaticityPanel(Workbench& workbench, int index);

/// Focus on the cell with the high bits of the coordinate; tests no flag.
void chkChroma_Click(Workbench& workbench, int index);
void ChromaValue_GotFocus(Workbench& workbench, int index);
/// On Enter writes a fraction up to 1.0 to the selected coordinate.
void ChromaValue_KeyUp(Workbench& workbench, int index, int keyCode);

/// Whether an entry can be a coordinate; otherwise tells the user.
bool isCoordinate(Workbench& workbench, double entry);
/// Writes the ten binary digits of a coordinate into its cells, which are counted from `firstCell`. The other bits of
/// the lower cell stay.
void writeCoordinate(BlockScreen& screen, const std::string& digits, const SplitField& field, int firstCell = 0);

} // namespace wb::block0
