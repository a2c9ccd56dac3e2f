#pragma once

#include "core/workbench.h"

/// The panels of a short audio descriptor: its controls write into the first descriptor, or, in last mode, into the
/// last one.
namespace wb::cea {

void AudioFormat_Click(Workbench& workbench, int index);
void AudFormCode_Click(Workbench& workbench, int index);
void AudChCBox_Click(Workbench& workbench, int index);
void SampFreq_Click(Workbench& workbench, int index);
void bitrate_Click(Workbench& workbench, int index);
void bitrateCBox_Click(Workbench& workbench, int index);

} // namespace wb::cea
