#pragma once

#include <string_view>
#include <vector>

#include "core/base/image.h"
#include "fields/field.h"
#include "fields/summary.h"

namespace wb::fields {

enum class Sum { Ok, Wrong, Missing };

struct BlockInfo {
    std::size_t index = 0;
    std::uint8_t tag = 0;  ///< its first byte; 0 for block 0 and for a missing one
    std::string_view name; ///< such as "CTA-861 extension"
    Sum sum = Sum::Missing;
};

/// All that an image says.
struct Reading {
    Image image;
    std::vector<BlockInfo> blocks{}; ///< those that are there, then those that are announced and missing
    std::vector<Field> fields{};     ///< in the order of their first bits, each bit of the image in exactly one of them
    std::vector<Finding> findings{}; ///< in the order of their bytes
    Summary summary{};
};

/// Reads an image of any content. Never fails: what makes no sense is a field with its raw bytes and a finding.
Reading read(const Image& image);

/// The bits of a field in hexadecimal: as one number in as many digits as its bits need where there are up to 64, else
/// byte by byte in their order.
std::string rawText(const Image& image, const Field& field);

/// The field that holds bit `bit` (7 to 0) of a byte of the image, or null past its end.
const Field* fieldAt(const Reading& reading, std::size_t byte, int bit);

} // namespace wb::fields
