#pragma once

#include "core/workbench.h"

/// Established timings, one bit each (VESA E-EDID Standard, Release A, section 3.8). A
/// failure is shown and ends the decoder.
namespace wb::report {

void ConvertEstablishedTiming1(Workbench& workbench); ///< cell 35
void ConvertEstablishedTiming2(Workbench& workbench); ///< cell 36
/// Cell 37, of which only the highest bit has a meaning.
void ConvertReservedTiming(Workbench& workbench);

/// The bit of a check of `ET1` and `ET2`: from bit 7 down to bit 0.
constexpr int establishedTimingBit(int check) {
    return 7 - check;
}
inline constexpr int reservedTimingBit = 7;

} // namespace wb::report
