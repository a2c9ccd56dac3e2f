#pragma once

#include <array>

#include "core/base/bits.h"

/// Detailed timings (VESA E-EDID Standard, Release A, section 3.10.2), for decoder and panel. Cells are counted from
/// the first of the block.
namespace wb::report {

/// The numbers of a detailed timing, in the order of their options on the panel.
enum TimingField {
    PixelClock,
    HActive,
    HBlanking,
    VActive,
    VBlanking,
    HSyncOffset,
    HSyncWidth,
    VSyncOffset,
    VSyncWidth,
    HBorder,
    VBorder,
    HImageSize,
    VImageSize,
    timingFieldCount
};

/// Of a number that has no upper bits.
inline constexpr CellBits noUpperBits{-1, {-1, 0}};

inline constexpr std::array<SplitField, timingFieldCount> timingFields = {{
    {{1, wholeByte}, {0, wholeByte}},
    {{4, {7, 4}}, {2, wholeByte}},
    {{4, {3, 0}}, {3, wholeByte}},
    {{7, {7, 4}}, {5, wholeByte}},
    {{7, {3, 0}}, {6, wholeByte}},
    {{11, {7, 6}}, {8, wholeByte}},
    {{11, {5, 4}}, {9, wholeByte}},
    {{11, {3, 2}}, {10, {7, 4}}},
    {{11, {1, 0}}, {10, {3, 0}}},
    {noUpperBits, {15, wholeByte}},
    {noUpperBits, {16, wholeByte}},
    {{14, {7, 4}}, {12, wholeByte}},
    {{14, {3, 0}}, {13, wholeByte}},
}};

inline constexpr int timingFlagCell = 17;

// Bits of the flags.
inline constexpr int interlacedBit = 7;
inline constexpr BitRange stereoUpperBits{6, 5};
inline constexpr int stereoLowBit = 0;
inline constexpr BitRange syncKindBits{4, 3};   ///< as the option of `DTSync`
inline constexpr BitRange syncDetailBits{2, 1}; ///< of the kind, the two bits that follow
inline constexpr int serrateBit = 2;            ///< vertical polarity where syncs are separate
inline constexpr int polarityBit = 1;           ///< horizontal polarity; of an analog sync, on which lines

/// Bits 6, 5 and 0 as one number, and by the option of the panel.
constexpr int stereoCode(int flags) {
    return (bits(flags, stereoUpperBits) << 1) | bits(flags, stereoLowBit, stereoLowBit);
}
constexpr int withStereoCode(int flags, int code) {
    return withBit(withBits(flags, stereoUpperBits, code >> 1), stereoLowBit, bit(code, 0));
}
inline constexpr std::array<int, 7> stereoCodes = {2, 4, 3, 5, 6, 7, 0};
inline constexpr int noStereoOption = 6;

} // namespace wb::report
