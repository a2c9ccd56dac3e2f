#pragma once

#include <string_view>

#include "core/base/image_layout.h"

/// Monitor descriptors (VESA E-EDID Standard, Release A, section 3.10.3), for decoder, panel and dispatch. Cells are
/// counted from the first of the block.
namespace wb::report {

inline constexpr CellRange descriptorMarkCells{0, 2}; ///< zeros
inline constexpr int descriptorTagCell = 3;
inline constexpr int descriptorReservedCell = 4;

/// The text of a descriptor: it ends with a line feed, blanks fill up; one of full length has neither.
inline constexpr CellRange descriptorTextCells{5, detailedBlockSize - 1};
inline constexpr int lineFeed = 0x0A;
/// The line feed and the blanks as texts of cells. They also follow data that do not fill a descriptor.
inline constexpr std::string_view lineFeedText = "0A";
inline constexpr std::string_view blankText = "20";

/// The families with a meaning, by their options on the panel.
enum DescriptorFamily {
    SerialNumber,
    AsciiData,
    RangeLimits,
    MonitorName,
    ColorPoint,
    StandardTimings,
    descriptorFamilyCount
};

/// The tag of an option: from FF hexadecimal down, also behind the families.
constexpr int descriptorTag(int option) {
    return 0xFF - option;
}

} // namespace wb::report
