#pragma once

#include "core/workbench.h"

namespace wb::block0 {

/// Writes the text of DTaInput to the monitor descriptor in hand (VESA E-EDID Standard, Release A, section 3.10.3), as
/// the selected tag (DTa) and the selected field of it say. False when nothing is to be decoded: the entry was refused,
/// with a message, or its white point is switched off. A tag without such fields and a tag with no field selected write
/// nothing and give true.
bool writeDescriptorEntry(FrmEdid& screen);

} // namespace wb::block0
