#pragma once

#include "core/base/image_layout.h"
#include "core/workbench.h"

/// The panels of the identity fields: Hints(1) for vendor and product, cells 8 to 17 (VESA E-EDID Standard, Release A,
/// section 3.4), Hints(2) for version and revision, cells 18 and 19 (section 3.5).
namespace wb::block0 {

/// The cells of the identity field that a cell of 8 to 17 belongs to.
CellRange identityField(int index);

// Further steps of the focus dispatch.
void openVendorPanel(Workbench& workbench, int index);
void openVersionPanel(Workbench& workbench, int index);

void VendorInfo_GotFocus(Workbench& workbench, int index);
/// Lets through what the active field can hold and tells about anything else; week and year take any key.
void VendorInfo_KeyPress(Workbench& workbench, int index, int& keyAscii);
/// On Enter writes the entry to the active field.
void VendorInfo_KeyUp(Workbench& workbench, int index, int keyCode);

void VerRev_GotFocus(Workbench& workbench, int index);
/// On Enter writes the entry to version or revision.
void VerRev_KeyUp(Workbench& workbench, int index, int keyCode);

} // namespace wb::block0
