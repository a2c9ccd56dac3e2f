#pragma once

#include "core/workbench.h"

/// Established timings, one bit each (VESA E-EDID Standard, Release A, section 3.8). A
/// failure is shown and ends the decoder.
namespace wb::report {

void ConvertEstablishedTiming1(Workbench& workbench); ///< cell 35
void ConvertEstablishedTiming2(Workbench& workbench); ///< cell 36
/// Cell 37, of which only bit 7 has a meaning.
void ConvertReservedTiming(Workbench& workbench);

} // namespace wb::report
