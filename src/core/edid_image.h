#pragma once

#include "core/cells.h"
#include "core/workbench.h"

/// The open image: 256 two-character cells on two screens. Cell i of frmEDID holds image byte i, cell i of frmCEA_EXT
/// byte 128 + i. Nothing keeps a parallel numeric image.
namespace wb {

/// Recalculates the check sum cell of block 0 after an edit; does nothing while ModifyEDIDOn is false. A check sum text
/// other than the loaded one sets EDIDModified, one other than the last EDIDRedecodeNeeded.
void RecalcBlock0Checksum(Workbench& workbench);

/// The check sum memory that both blocks share: compares the text of a check sum cell with the loaded and the last one.
void noteChecksum(Workbench& workbench, const std::string& checksumText);

/// Takes the check sum of block 0 as that of the image as it was loaded.
void rememberChecksum(Workbench& workbench);

/// The text of a check sum cell for that sum of the other cells (0 to 255).
std::string checksumTextFor(int sum);

/// Enables Command4 with "See Ext Block" where the value of byte 126 is not 0; otherwise disables it with "No Ext
/// Block". Gives whether there is an extension. Failures pass to the caller.
bool UpdateExtensionButton(Workbench& workbench);

/// Whether byte 126 counts as an extension in the report and in files: by the decimal number at the start of its text,
/// so that "0A" and "FF" do not.
bool hasExtensionByDecimalText(Workbench& workbench);

} // namespace wb
