#pragma once

#include <string_view>

#include "core/base/image_layout.h"

/// The range limits descriptor (VESA E-EDID Standard, Release A, section 3.10.3), for decoder, panel and dispatch.
/// Cells are counted from the first of the block.
namespace wb::report {

/// The limits, in the order of their options on the panel; the last one is the pixel clock.
inline constexpr CellRange limitCells{5, 9};
inline constexpr int limitCount = limitCells.last - limitCells.first + 1;
inline constexpr int clockLimit = limitCount - 1;
inline constexpr int clockUnit = 10; ///< MHz
inline constexpr int unspecifiedLimit = 255;

/// Which secondary timing formula there is, as the text of the cell.
inline constexpr int formulaCell = 10;
inline constexpr std::string_view noFormula = "00";
inline constexpr std::string_view secondaryGtf = "02";
inline constexpr std::string_view reservedFormula = "04";

/// From there on all belongs to the formula. Without one, a line feed and blanks follow.
inline constexpr CellRange formulaCells{formulaCell, 17};
inline constexpr int formulaReservedCell = 11;
/// The curve of the formula. The start frequency has units of 2 kHz; C and J are stored doubled.
inline constexpr CellRange curveCells{12, 17};
inline constexpr int curveStartCell = 12;
inline constexpr int curveCCell = 13;
inline constexpr int curveMLowCell = 14;
inline constexpr int curveMHighCell = 15;
inline constexpr int curveKCell = 16;
inline constexpr int curveJCell = 17;

} // namespace wb::report
