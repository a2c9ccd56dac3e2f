#pragma once

#include "core/workbench.h"

namespace wb::report {

/// Builds the report of the extension block (CEA-861-D, section 7.5) in ReportExtLines, from the cells and from what
/// the decoders of its screen left. Each line has a fixed entry, later ones overwrite earlier ones, and an end mark
/// among them cuts the report. Each build moves ExtDtdStart on, by 1 and 3 for each timing. A failure is shown and
/// leaves the buffer as it stands.
void BuildExtensionReport(Workbench& workbench);
/// The same, but a failure is thrown.
void layOutExtensionReport(Workbench& workbench);
/// Moves ExtDtdStart on as that many builds without a failure do. What does not fit into it is an Overflow failure.
void skipExtensionReports(Workbench& workbench, int builds);

} // namespace wb::report
