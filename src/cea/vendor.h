#pragma once

#include "core/workbench.h"

/// Vendor specific data block (CEA-861-D, section 7.5.4): three bytes of IEEE registration identifier, least
/// significant first, two bytes of data and one of extension flags (HDMI 1.3, section 8.3.2).
namespace wb::cea {

// Decode the texts of the cells, whatever they hold, for panel and report.
void BuildVendorID(Workbench& workbench);
void BuildVendorData(Workbench& workbench);
/// The flags, from the value of the cell.
void BuildVSDBExt(Workbench& workbench);

/// Enter takes the identifier, six digits, most significant first. Neither length nor digits are checked: a short text
/// is split as far as it goes.
void txtBoxVendorID_KeyUp(Workbench& workbench, int index, int keyCode);
/// Enter takes the two data bytes, four digits. Not checked either.
void txtBoxVendorData_KeyUp(Workbench& workbench, int index, int keyCode);
void txtBoxVendorID_GotFocus(Workbench& workbench, int index);
void txtBoxVendorData_GotFocus(Workbench& workbench, int index);

/// Writes the flag of the check; the bits without a check stay.
void VSDBExt_Click(Workbench& workbench, int index);

} // namespace wb::cea
