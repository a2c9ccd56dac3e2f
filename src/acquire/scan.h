#pragma once

#include "core/workbench.h"

/// "Scan+Read EDID": has the operating system detect its monitors anew, then reads what it stored.
namespace wb::acquire {

/// Starts the device console tool to remove the monitor of the open image and, three seconds later, to rescan; ten
/// seconds after that goes on as GetEDIDData. The waits block the whole program. A tool that is missing costs only
/// the waits. Failures pass to the caller.
void Command5_Click(Workbench& workbench);

} // namespace wb::acquire
