#pragma once

#include <cstdint>
#include <initializer_list>
#include <numeric>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "fields/reading.h"

namespace wb::fields {

/// An image to be changed byte by byte.
class ImageOf {
public:
    /// Blocks of zeros, block 0 with its header, version 1.4 and the number of the others.
    explicit ImageOf(std::size_t blocks = 1) : bytes_(blocks * Image::blockSize, '\0') {
        set(0, {0x00, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0xFF, 0x00}).set(18, {1, 4});
        set(126, {static_cast<int>(blocks - 1)});
    }

    ImageOf& set(std::size_t place, std::initializer_list<int> bytes) {
        for (const int byte : bytes) {
            bytes_.at(place++) = static_cast<char>(byte);
        }
        return *this;
    }

    /// Makes the bytes of every block sum up to 0.
    ImageOf& withSums() {
        for (std::size_t start = 0; start < bytes_.size(); start += Image::blockSize) {
            unsigned sum = 0;
            for (std::size_t i = start; i < start + Image::blockSize - 1; ++i) {
                sum += static_cast<unsigned char>(bytes_[i]);
            }
            bytes_[start + Image::blockSize - 1] = static_cast<char>(0U - sum);
        }
        return *this;
    }

    Image image() const { return *Image::fromBytes(bytes_); }
    Reading reading() const { return read(image()); }

private:
    std::string bytes_;
};

/// The field of that path; there must be one.
inline const Field& fieldOf(const Reading& reading, const std::string& path) {
    for (const Field& field : reading.fields) {
        if (field.path == path) {
            return field;
        }
    }
    throw std::out_of_range("no field " + path);
}

/// How many findings have the code.
inline std::size_t countOf(const Reading& reading, std::string_view code) {
    std::size_t count = 0;
    for (const Finding& finding : reading.findings) {
        count += finding.code == code ? 1U : 0U;
    }
    return count;
}

using Modes = std::vector<std::string>;

/// The modes of the summary with their refresh in thousandths of a hertz, such as "1920x1080i@60000".
inline Modes modesOf(const Reading& reading) {
    Modes modes;
    for (const Mode& mode : reading.summary.modes) {
        modes.push_back(std::to_string(mode.width) + 'x' + std::to_string(mode.height) +
                        (mode.interlaced == true ? "i@" : "@") + std::to_string(mode.refreshMilliHertz.value_or(0)));
    }
    return modes;
}

} // namespace wb::fields
