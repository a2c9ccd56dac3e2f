#pragma once

#include "core/workbench.h"

namespace wb::report {

/// Lays the report of block 0 out into ReportBlock0Lines: the hex dump straight from the cells, everything else from
/// what the decoders last left in the shared variables. A failure (more lines than the buffer has entries) is shown;
/// what was laid out so far stands, then without the end mark.
void BuildBlock0Report(Workbench& workbench);
/// Whether that build goes well.
bool fitsBlock0Report(const Workbench& workbench);
/// The same, but a failure is thrown.
void layOutBlock0Report(Workbench& workbench);

} // namespace wb::report
