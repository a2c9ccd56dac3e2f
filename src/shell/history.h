#pragma once

#include "core/workbench.h"

namespace wb::shell {

/// Has the program remember the changes of its user from now on, as many as memory allows. A step is what one action
/// did to the cells; the keys of a cell that does not hold two characters yet are one step with those before. What the
/// program does by itself to a check sum is no step. Loading another image, and closing block 0, forget all.
///
/// Taking a step back sets the texts of both blocks without events, runs the decoders, whose own writes stay, and gives
/// the focus to the cell that had it, with its events. EDIDModified is set unless the image is again the one that was
/// loaded or saved last.
void keepHistory(Workbench& workbench);

} // namespace wb::shell
