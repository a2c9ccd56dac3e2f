#pragma once

#include <initializer_list>
#include <string>

#include "cli/samples.h"

namespace wb::test {

/// The image with other bytes from a place on.
inline std::string withBytes(std::string image, std::size_t place, std::initializer_list<int> bytes) {
    for (const int byte : bytes) {
        image[place++] = static_cast<char>(byte);
    }
    return image;
}

/// The image with the right check sum in a block.
inline std::string withSum(std::string image, std::size_t block = 0) {
    const std::size_t start = block * 128;
    unsigned sum = 0;
    for (std::size_t i = start; i < start + 127; ++i) {
        sum += static_cast<unsigned char>(image[i]);
    }
    image[start + 127] = static_cast<char>(256 - sum % 256);
    return image;
}

/// A sound image of so many blocks, two at least. Byte 126 announces one extension, as sinks of HDMI 2.1 have it for
/// old readers; the override data block in block 1 announces `extensions`.
inline std::string imageWithOverride(std::size_t blocks, int extensions) {
    std::string image = sample("zarqo-z40.bin").substr(0, 128);
    for (std::size_t block = 1; block < blocks; ++block) {
        image = withBytes(image + std::string(128, '\0'), block * 128, {0x02, 0x03, 4, 0});
        if (block == 1) {
            image = withBytes(image, 128, {0x02, 0x03, 7, 0, 0xE2, 0x78, extensions});
        }
        image = withSum(image, block);
    }
    return image;
}

} // namespace wb::test
