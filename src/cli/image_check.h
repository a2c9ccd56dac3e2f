#pragma once

#include <optional>
#include <string>
#include <vector>

#include "core/base/image.h"
#include "fields/field.h"

namespace wb::cli {

/// What one check of an image gave.
struct CheckResult {
    bool good = false;
    std::string text;
    std::optional<fields::Finding> finding{}; ///< an error, where it is not good and fields::read tells of none
};

/// Checks the header, the length against that of `blocks` blocks of 128 bytes, and the check sum of every block (VESA
/// E-EDID Standard).
std::vector<CheckResult> checkImage(const Image& image, std::size_t blocks);

} // namespace wb::cli
