#pragma once

#include <string>

#include "core/workbench.h"

/// Standard timings, two bytes each (VESA E-EDID Standard, Release A, section 3.9).
namespace wb::report {

/// The words of a pair of bytes (0 to 255), such as "1280 X 800 @60Hz", or "Not Used". Ratio code 0 is 16:10 in every
/// version.
std::string standardTimingText(int sizeByte, int rateByte);

/// The aspect ratio code: the bits `aspectBits` of report/standard_timings_layout.h.
int aspectCode(int rateByte);

/// Decodes the eight pairs of cells 38 to 53. The aspect option follows the cell at CurrentBlockBase, which is the
/// second one of the pair in focus. A failure is shown and ends the decoder.
void ConvertStandardTimings(Workbench& workbench);

} // namespace wb::report
