#pragma once

#include "core/workbench.h"

/// The button of the frame that opens the screen of the extension block.
namespace wb::block0 {

/// Enables Command4 with "See Ext Block" where the value of byte 126 is not 0; otherwise disables it with "No Ext
/// Block". Gives whether there is an extension. Failures pass to the caller.
bool UpdateExtensionButton(Workbench& workbench);

} // namespace wb::block0
