#pragma once

#include "image_of.h"

namespace wb::fields {

/// A block 0 of revision 1.4 in which everything is in order, without a single finding: 8 bits, DisplayPort, sRGB
/// primaries, 52 x 29 cm, 1920 x 1080 at 60 Hz; then a name, range limits without a formula and a serial number.
inline ImageOf goodImage() {
    ImageOf image;
    image.set(8, {0x5C, 0x54, 0x34, 0x12, 1, 0, 0, 0, 10, 30, 1, 4}).set(20, {0xA5, 52, 29, 120, 0x02});
    image.set(25, {0xEE, 0x91, 0xA3, 0x54, 0x4C, 0x99, 0x26, 0x0F, 0x50, 0x54}).set(38, {0xD1, 0xC0});
    for (std::size_t place = 40; place < 54; place += 2) {
        image.set(place, {1, 1});
    }
    image.set(54, {0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58, 0x2C, 0x45, 0, 0x07, 0x25, 0x21, 0, 0, 0x1E});
    image.set(72, {0, 0, 0, 0xFC, 0, 'P', 'l', 'a', 'i', 'n', 10, 32, 32, 32, 32, 32, 32, 32});
    image.set(90, {0, 0, 0, 0xFD, 0, 48, 75, 30, 83, 17, 1, 10, 32, 32, 32, 32, 32, 32});
    image.set(108, {0, 0, 0, 0xFF, 0, 'A', '1', 10, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32});
    return image;
}

/// The same by 1.3, where the first timing is the preferred one and the display is told to have colours.
inline ImageOf goodImage13() {
    return goodImage().set(19, {3, 0x80}).set(24, {0x0A}).set(100, {0});
}

/// The detailed timing of goodImage, for another slot.
inline void setTiming(ImageOf& image, std::size_t place) {
    image.set(place,
              {0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58, 0x2C, 0x45, 0, 0x07, 0x25, 0x21, 0, 0, 0x1E});
}

} // namespace wb::fields
