#pragma once

#include "core/base/bits.h"
#include "core/base/image_layout.h"

/// The colour point descriptor (VESA E-EDID Standard, Release A, section 3.10.3), for decoder, panel and dispatch: two
/// white points of an index, which is 0 for one that is not used, two coordinates of ten bits and gamma.
namespace wb::report {

inline constexpr int whitePointCount = 2;
inline constexpr int whitePointSize = 5;

/// The index cell of a white point, counted from the first cell of the block.
constexpr int whitePointCell(int point) {
    return 5 + whitePointSize * point;
}
/// Cells behind both points, which hold the end of a text.
inline constexpr CellRange colorPointPadding{whitePointCell(whitePointCount), detailedBlockSize - 1};

// Counted from the index cell.
inline constexpr SplitField whiteX{{2, wholeByte}, {1, {3, 2}}};
inline constexpr SplitField whiteY{{3, wholeByte}, {1, {1, 0}}};
inline constexpr int whiteGammaCell = 4;

/// The options of the panel: X, Y and gamma of the first point, then of the second.
inline constexpr int optionsOfPoint = 3;
inline constexpr int whiteOptionCount = whitePointCount * optionsOfPoint;
inline constexpr int gammaOption = 2; ///< of those of a point

/// The cell of an option, for a coordinate that of its upper bits, counted from the first cell of the block.
constexpr int whiteOptionCell(int option) {
    return whitePointCell(option / optionsOfPoint) + whiteX.upper.cell + option % optionsOfPoint;
}

} // namespace wb::report
