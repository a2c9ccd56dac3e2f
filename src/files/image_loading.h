#pragma once

#include "core/workbench.h"

/// How an image gets into the cells of the two block screens.
namespace wb::files {

/// Writes EDIDCells 0 to 127 into the cells of frmEDID and decodes them.
void LoadBlock0Cells(Workbench& workbench);
/// Writes EDIDCells 128 to 255 into the cells of frmCEA_EXT and, where cell 0 has the tag of a CEA timing extension,
/// decodes them.
void LoadExtensionCells(Workbench& workbench);
/// The content of a new image; asks whether it has a CEA-861 extension. Failures pass to the caller.
void InitNewImage(Workbench& workbench);
/// Makes the four identity texts of frmEDID empty.
void clearIdentityTexts(Workbench& workbench);

} // namespace wb::files
