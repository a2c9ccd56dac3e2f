#pragma once

#include <string_view>

/// Tags of extension blocks, which stand in their first cell (VESA E-EDID Standard, Release A, section 2.2.1): the
/// byte, and the text of the cell.
namespace wb {

inline constexpr int ceaTag = 0x02;
inline constexpr std::string_view ceaTagText = "02";

inline constexpr int blockMapTag = 0xF0;
inline constexpr std::string_view blockMapTagText = "F0";

} // namespace wb
