#pragma once

#include <array>

#include "fields/summary.h"

namespace wb::desktop {

/// Chromaticities of light of one wavelength each, from 380 to 700 nm, closer together where the curve bends; beyond
/// 700 nm they stay the same. They follow from the colour-matching functions of the CIE 1931 standard colorimetric
/// observer (2 degrees; ISO/CIE 11664-1, table 1).
inline constexpr std::array<fields::Point, 44> spectralLocus = {{
    {0.1741, 0.0050}, // 380 nm
    {0.1733, 0.0048}, // 400 nm, from here in steps of 10
    {0.1726, 0.0048}, {0.1714, 0.0051}, {0.1689, 0.0069}, {0.1644, 0.0109}, {0.1566, 0.0177}, {0.1440, 0.0297},
    {0.1355, 0.0399}, // 465 nm, from here in steps of 5
    {0.1241, 0.0578}, {0.1096, 0.0868}, {0.0913, 0.1327}, {0.0687, 0.2007}, {0.0454, 0.2950}, {0.0235, 0.4127},
    {0.0082, 0.5384}, {0.0039, 0.6548}, {0.0139, 0.7502}, {0.0389, 0.8120}, {0.0743, 0.8338}, {0.1142, 0.8262},
    {0.1547, 0.8059}, {0.1929, 0.7816}, {0.2296, 0.7543}, {0.2658, 0.7243}, {0.3016, 0.6923}, {0.3373, 0.6589},
    {0.3731, 0.6245}, {0.4087, 0.5896}, {0.4441, 0.5547}, {0.4788, 0.5202}, {0.5125, 0.4866}, {0.5448, 0.4544},
    {0.5752, 0.4242}, {0.6029, 0.3965}, {0.6270, 0.3725}, {0.6482, 0.3514}, {0.6658, 0.3340}, {0.6801, 0.3197},
    {0.6915, 0.3083}, {0.7006, 0.2993}, {0.7079, 0.2920}, // 630 nm
    {0.7190, 0.2809},                                     // 640 nm
    {0.7347, 0.2653},                                     // 700 nm
}};

} // namespace wb::desktop
