#pragma once

#include "core/workbench.h"
#include "fields/modeline.h"

namespace wb::shell {

/// Enters a timing into the 18 cells from byte `byte` of the image on, as a user does: number by number at the panel of
/// the detailed timing, with its flags, each as it stands in the modeline. Entries wipe bits of each other there, and
/// lose digits (docs/inside.md); the cells that are not as they should be afterwards are typed one by one. The size of
/// the picture and the kind of stereo stay, the borders become 0.
///
/// Gives whether the cells hold the timing then; they do not where editing is off and where the cells are out of reach.
/// A timing that has no room in the cells is a fields::ModelineError, and changes nothing.
bool enterTiming(Workbench& workbench, int byte, const fields::Modeline& modeline);

} // namespace wb::shell
