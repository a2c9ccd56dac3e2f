#pragma once

#include "core/workbench.h"

/// The header of a data block (CEA-861-D, section 7.5), tag in bits 7 to 5 and number of data bytes in bits 4 to 0: its
/// decoders, one for each kind of block, and the panel that edits it.
namespace wb::cea {

// Each decodes the header at the start of its block, whatever tag stands there: panel, length of the block and line of
// the report. The data bytes take the group colour.
void BuildVideoTag(Workbench& workbench);
/// Also tells compressed from uncompressed audio, by the format code of the first descriptor.
void BuildAudioTag(Workbench& workbench);
void BuildSpeakerTag(Workbench& workbench);
void BuildVendorTag(Workbench& workbench);

// The header of the block that stands in the panel (DataBlockKind) takes the focus and another tag or length. No data
// moves. Before any block, nothing but the check sum.
/// Writes the tag of the option: 0 to 4.
void optButTag_Click(Workbench& workbench, int index);
/// Writes the length, 0 to 31, as the row of the list; that of the video block goes into cell 4 in any case. Where the
/// start of the block that follows is not known, it is worked out from the new length.
void TagCBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
