#pragma once

#include <array>

#include "core/base/bits.h"

/// The places of the chromaticity coordinates in block 0 (VESA E-EDID Standard, Release A, section 3.7), for decoder
/// and panel: each of ten bits, the two low ones in a cell with those of three others.
namespace wb::report {

/// Red X, red Y, green X, green Y, blue X, blue Y, white X, white Y, as their options on the panel.
inline constexpr std::array<SplitField, 8> chromaticityFields = {{
    {{27, wholeByte}, {25, {7, 6}}},
    {{28, wholeByte}, {25, {5, 4}}},
    {{29, wholeByte}, {25, {3, 2}}},
    {{30, wholeByte}, {25, {1, 0}}},
    {{31, wholeByte}, {26, {7, 6}}},
    {{32, wholeByte}, {26, {5, 4}}},
    {{33, wholeByte}, {26, {3, 2}}},
    {{34, wholeByte}, {26, {1, 0}}},
}};

} // namespace wb::report
