#pragma once

#include "core/workbench.h"

/// The header of a data block: its decoders, one for each kind, and the panel that edits it.
namespace wb::cea {

void BuildVideoTag(Workbench& workbench);
/// Also tells compressed from uncompressed audio, by the format code of the first descriptor.
void BuildAudioTag(Workbench& workbench);
void BuildSpeakerTag(Workbench& workbench);
void BuildVendorTag(Workbench& workbench);

/// Put another tag or length into the header of the block that stands in the panel. No data moves.
void optButTag_Click(Workbench& workbench, int index);
void TagCBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
