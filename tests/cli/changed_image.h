#pragma once

#include <initializer_list>
#include <string>

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

} // namespace wb::test
