#pragma once

#include <initializer_list>

#include "image_of.h"

namespace wb::fields {

/// An image whose block 1 is a CTA-861 extension of revision 3 with these data blocks, which start at byte 132; the
/// timing offset points behind them. `flags` is its byte 3.
inline ImageOf ctaWith(std::initializer_list<int> dataBlocks, int flags = 0) {
    return ImageOf(2).set(128, {0x02, 0x03, 4 + static_cast<int>(dataBlocks.size()), flags}).set(132, dataBlocks);
}

/// An image whose block 1 is a DisplayID section of that version with these data blocks, which start at byte 133; the
/// check sum of the section is right.
inline ImageOf displayIdWith(int version, std::initializer_list<int> dataBlocks) {
    const int length = static_cast<int>(dataBlocks.size());
    int sum = version + length + 3;
    for (const int byte : dataBlocks) {
        sum += byte;
    }
    return ImageOf(2)
        .set(128, {0x70, version, length, 3, 0})
        .set(133, dataBlocks)
        .set(133 + dataBlocks.size(), {-sum & 0xFF});
}

inline std::string textOf(const Reading& reading, const std::string& path) {
    return fieldOf(reading, path).text;
}

/// The first finding with the code; there must be one.
inline const Finding& findingOf(const Reading& reading, std::string_view code) {
    for (const Finding& finding : reading.findings) {
        if (finding.code == code) {
            return finding;
        }
    }
    throw std::out_of_range("no finding " + std::string(code));
}

inline bool hasField(const Reading& reading, const std::string& path) {
    for (const Field& field : reading.fields) {
        if (field.path == path) {
            return true;
        }
    }
    return false;
}

} // namespace wb::fields
