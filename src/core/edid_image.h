#pragma once

#include "core/base/image_layout.h"
#include "core/cells.h"
#include "core/workbench.h"

/// The open image: 256 two-character cells on two screens. Cell i of frmEDID holds image byte i, cell i of frmCEA_EXT
/// byte 128 + i. Nothing keeps a parallel numeric image.
namespace wb {

/// Whether the bytes of an image begin with the eight of the header, 00 FF FF FF FF FF FF 00 (VESA E-EDID Standard,
/// header).
bool IsEDIDHeaderValid(std::string_view text);

/// Whether the block from cell `base` on is marked as no timing: the texts of its first three cells read "000000".
bool hasDescriptorMark(BlockScreen& screen, int base);

/// Recalculates the check sum cell of block 0 (VESA E-EDID Standard, Release A, section 3.11) after an edit, and notes
/// the outcome as below; does nothing while ModifyEDIDOn is false. A failure is shown and leaves the cell as it was.
void RecalcBlock0Checksum(Workbench& workbench);

/// The check sum memory that both blocks share. EDIDModified is set where the text of a check sum cell is not the
/// loaded one. Where it is not the last one that was noted, it becomes that, and EDIDRedecodeNeeded is set.
void noteChecksum(Workbench& workbench, const std::string& checksumText);

/// The cells hold another image: takes the check sum of block 0 as that of the image as it was loaded, and the
/// history begins anew.
void noteLoaded(Workbench& workbench);

/// A data file holds the image: EDIDModified is false.
void noteSaved(Workbench& workbench);

/// The text of a check sum cell for that sum of the other cells modulo 256 (0 to 255).
std::string checksumTextFor(int sum);

/// Whether byte 126 counts as an extension in the report and in files: by the decimal number at the start of its text,
/// so that "0A" and "FF" do not.
bool hasExtensionByDecimalText(Workbench& workbench);

/// From this number of data bytes on an audio block of the extension has a second descriptor, and a vendor block its
/// byte of extension flags (CEA-861-D, sections 7.5.2 and 7.5.4).
inline constexpr int longDataBlock = 6;

/// Where the detailed timings of the extension block begin (CEA-861-D, section 7.5): the number in ExtDtdOffsetText. A
/// text that is no number is a TypeMismatch failure, a number beyond 16 bits an Overflow.
std::int16_t timingOffset(const SharedVariables& variables);

} // namespace wb
