#pragma once

#include "core/workbench.h"

/// Short video descriptors: bit 7 is the native flag, bits 6 to 0 the video identification code (CEA-861-D, section
/// 7.5.1).
namespace wb::cea {

/// The rows of VideoBlkCBox, one for each known code.
void fillVideoFormats(FrmCeaExt& screen);

/// Decodes all descriptors into report lines and shows the one in focus (cell 0 before any).
void BuildShortVideo(Workbench& workbench);

/// Write another code, or the native flag, into the descriptor in focus. The report line follows with the next
/// decoding.
void VideoBlkCBox_Click(Workbench& workbench, int index);
void NativeChkBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
