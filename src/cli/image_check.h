#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace wb::cli {

/// One finding about an image.
struct Finding {
    bool good = false;
    std::string text;
};

/// Checks the header, the length against the extension count in byte 126 (up to `mostBlocks` blocks of 128 bytes), and
/// the check sums of block 0 and of the first extension, each as far as the image goes (VESA E-EDID Standard).
std::vector<Finding> checkImage(std::string_view image, std::size_t mostBlocks);

} // namespace wb::cli
