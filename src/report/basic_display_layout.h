#pragma once

#include <array>

#include "core/base/bits.h"

/// The bits of the basic display parameters of block 0 (VESA E-EDID Standard, Release A, section 3.6), for decoders and
/// panel. Checks are counted as in their array of the panel.
namespace wb::report {

// Video input, digital and analog.
inline constexpr int digitalBit = 7;
inline constexpr int dfpBit = 0;                                ///< of a digital input: VESA DFP 1.x compatible
inline constexpr BitRange signalLevelBits{6, 5};                ///< of an analog one, as the option of `Signal`
inline constexpr std::array<int, 5> syncBits = {0, 1, 2, 3, 4}; ///< of an analog one, by the check of `Sync`

// Feature support.
inline constexpr BitRange displayTypeBits{4, 3};                      ///< as the option of `DisplayType`
inline constexpr std::array<int, 6> featureBits = {7, 6, 5, 2, 1, 0}; ///< by the check of `FSupport`

} // namespace wb::report
