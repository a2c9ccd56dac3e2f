#pragma once

#include <string>

#include "core/workbench.h"

/// Basic display parameters of block 0, cells 20 to 24 (VESA E-EDID Standard, Release A, section 3.6). A
/// failure is shown and ends the decoder.
namespace wb::report {

void ConvertVideoInput(Workbench& workbench); ///< cell 20
/// Cells 21 and 22: centimetres in the cell, millimetres in the words; 0 leaves the number out.
void ConvertMaxHorizontalSize(Workbench& workbench);
void ConvertMaxVerticalSize(Workbench& workbench);
void ConvertGamma(Workbench& workbench);          ///< cell 23, 1.00 to 3.55
void ConvertFeatureSupport(Workbench& workbench); ///< cell 24

/// The transfer characteristic of a byte (0 to 255) with two decimals; 255 is 3.55 like any other.
std::string gammaText(int byte);

} // namespace wb::report
