#pragma once

#include "core/workbench.h"

/// Typing in a cell of frmCEA_EXT.
namespace wb::cea {

/// A key released over a cell of exactly two characters decodes its field: the first row whose cells match.
void txtEdit_KeyUp(Workbench& workbench, int index, int keyCode);

} // namespace wb::cea
