#pragma once

#include "core/workbench.h"

namespace wb::report {

/// A report is built five times over to be shown. Where it is certain that nobody can tell, the last pass is the only
/// one to run.
enum class Passes { Each, LastWhereAlike };

/// Builds the report of the open image and puts it into the report window. `hidden` is for printing: a window that was
/// not open is then created without being shown, and the text stays writable. Without an open image nothing happens.
void ShowReport(Workbench& workbench, bool hidden, Passes how = Passes::LastWhereAlike);

} // namespace wb::report
