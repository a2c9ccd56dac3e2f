#pragma once

#include "core/workbench.h"

namespace wb::report {

/// Builds the report of the open image and puts it into the report window. `hidden` is for printing: a window that was
/// not open is then created without being shown, and the text stays writable. Without an open image nothing happens.
void ShowReport(Workbench& workbench, bool hidden);

} // namespace wb::report
