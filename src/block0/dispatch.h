#pragma once

#include "block0/screen_rules.h"

/// The focus dispatch of frmEDID: which panel, colours, decoders and input box each cell has.
namespace wb::block0 {

extern const BlockScreenRules edidScreenRules;

/// Shows the field of the cell anew from the cells.
void txtEdit_GotFocus(Workbench& workbench, int index);

/// A key released over a cell of exactly two characters decodes its field.
void txtEdit_KeyUp(Workbench& workbench, int index, int keyCode);

/// With editing on blanks the 18 cells from CurrentBlockBase and makes them a serial number descriptor, whichever of
/// the panels 0 to 12 it was.
void Hints_DblClick(Workbench& workbench, int index);

} // namespace wb::block0
