#pragma once

#include "core/workbench.h"

/// Printing prints the text of the report; its layout is the report's own. All failures are passed over in silence.
namespace wb::shell {

void mnuFilePageSetup(Workbench& workbench);

/// Asks for the printer, builds the report anew and prints it. A report window that was open for reading is closed by
/// that. Without an open image, or without an active child window, nothing happens.
void mnuFilePrint(Workbench& workbench);

} // namespace wb::shell
