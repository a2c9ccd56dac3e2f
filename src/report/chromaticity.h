#pragma once

#include <string>

#include "core/workbench.h"

namespace wb::report {

/// Decodes the colour characteristics, cells 25 to 34 (VESA E-EDID Standard, Release A, section 3.7): eight coordinates
/// of ten bits, their two low bits gathered in cells 25 and 26. A failure is shown and ends the decoder.
void ConvertChromaticity(Workbench& workbench);

/// The coordinate of the eight high bits and the two low ones, 0 to 1023 in units of 1/1024. A failure (a number beyond
/// 16 bits) is shown and gives 0.
double ChromaBitsToFraction(Workbench& workbench, int high, int low);

/// The ten binary digits of a coordinate: cut, then rounded up where 0.0005 or more is left over. A carry out of the
/// ten digits is lost, so that 1 gives ten zeros; so does what is negative. A failure is shown and gives an empty text.
std::string FractionToChromaBits(Workbench& workbench, double value);

/// A coordinate as screens and reports show it, with three decimals.
std::string chromaText(double coordinate);

} // namespace wb::report
