#pragma once

#include "core/base/bits.h"
#include "core/base/image_layout.h"

/// What the identity fields of block 0 mean (VESA E-EDID Standard, Release A, section 3.4), for decoders and panel.
namespace wb::report {

/// The three letters of the manufacturer have five bits each; those of the second one lie across both cells.
inline constexpr BitRange firstLetterBits{6, 2}; ///< of the first cell
inline constexpr SplitField secondLetter{{cells::manufacturer.first, {1, 0}}, {cells::manufacturer.last, {7, 5}}};
inline constexpr BitRange thirdLetterBits{4, 0}; ///< of the second cell
inline constexpr int letterBase = 'A' - 1;       ///< the character of the number 0, before those of the letters

inline constexpr int firstYear = 1990; ///< the year of the number 0

} // namespace wb::report
