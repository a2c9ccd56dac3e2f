#pragma once

#include "core/workbench.h"

/// Speaker allocation block: its first data byte is a mask of speaker positions (CEA-861-D, section 7.5.3).
namespace wb::cea {

/// Decodes the mask for panel and report.
void BuildSpeaker(Workbench& workbench);

/// Writes the position of the check into the mask, and clears its reserved bit 7.
void speaker_Click(Workbench& workbench, int index);

} // namespace wb::cea
