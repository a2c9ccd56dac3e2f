#pragma once

#include <string>
#include <vector>

#include "core/base/image.h"

namespace wb::cli {

/// What one check of an image gave.
struct CheckResult {
    bool good = false;
    std::string text;
};

/// Checks the header, the length against that of `blocks` blocks of 128 bytes, and the check sum of every block (VESA
/// E-EDID Standard).
std::vector<CheckResult> checkImage(const Image& image, std::size_t blocks);

} // namespace wb::cli
