#pragma once

#include "core/workbench.h"

/// The focus dispatch of frmCEA_EXT: what a cell is follows from comparing its number with the locations of the blocks,
/// row by row; the first row that matches decides. Cells that no row claims show the tag panel as it was.
namespace wb::cea {

/// Shows the field of the cell anew from the cells.
void txtEdit_GotFocus(Workbench& workbench, int index);

} // namespace wb::cea
