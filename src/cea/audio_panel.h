#pragma once

#include "core/workbench.h"

/// The panels of a short audio descriptor (CEA-861-D, section 7.5.2). Their controls write into a cell of the first
/// descriptor, or of the last one where the block has a second descriptor and the focus is in the last. Each handler
/// ends with the check sum of the block, and does nothing while a decoder sets its control.
namespace wb::cea {

/// Writes the format code, always of the first descriptor: 1 for uncompressed (index 0), 0 for compressed (1).
void AudioFormat_Click(Workbench& workbench, int index);
/// Writes the format code `index`, 0 to 14, and captions the panel by it. A block with a second descriptor has it in
/// the last one, wherever the focus is.
void AudFormCode_Click(Workbench& workbench, int index);
/// Writes the number of channels, 1 to 8, as the row of the list, 0 to 7.
void AudChCBox_Click(Workbench& workbench, int index);
/// Writes the sampling frequency of bit `index`, clears the reserved bit 7, and decodes the byte.
void SampFreq_Click(Workbench& workbench, int index);
/// Writes the sample size of bit `index`, 0 to 2, clears all other bits but the sizes, and decodes the byte.
void bitrate_Click(Workbench& workbench, int index);
/// Writes the maximum bit rate as the row of the list, 0 to 255: its number of units of 8 kilobits per second. Goes by
/// the focus alone.
void bitrateCBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
