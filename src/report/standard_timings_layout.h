#pragma once

#include "core/base/bits.h"
#include "core/base/image_layout.h"

/// Standard timings (VESA E-EDID Standard, Release A, section 3.9), for decoders, panels and dispatch: pairs of a size
/// byte and a rate byte, eight in block 0 and six in a descriptor.
namespace wb::report {

inline constexpr int standardTimingCount = 8;
inline constexpr int descriptorTimingCount = 6;

/// The first cell of a pair of block 0, and of a descriptor, there from the first cell of the block.
constexpr int standardTimingCell(int pair) {
    return cells::standardTimings.first + 2 * pair;
}
constexpr int descriptorTimingCell(int pair) {
    return 5 + 2 * pair;
}
/// The cells of all pairs of a descriptor.
inline constexpr CellRange descriptorTimingCells{descriptorTimingCell(0),
                                                 descriptorTimingCell(descriptorTimingCount) - 1};

/// The width in pixels is (size byte + widthOffset) x widthUnit.
inline constexpr int widthOffset = 31;
inline constexpr int widthUnit = 8;

// Bits of the rate byte.
inline constexpr BitRange aspectBits{7, 6}; ///< 0 is 16:10, 1 is 4:3, 2 is 5:4, 3 is 16:9
inline constexpr BitRange rateBits{5, 0};   ///< above the lowest rate
inline constexpr int lowestRate = 60;       ///< Hz

} // namespace wb::report
