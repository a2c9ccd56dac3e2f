#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/base/image.h"

namespace wb::forms {

/// The bytes of one image as a reader of a form found them: at least a block.
struct Found {
    std::string bytes;
    std::size_t place = 0; ///< where in the text it begins
};

/// The readers of forms. Each gives every image in the text that begins with the header, in order.
std::vector<Found> readBase64(std::string_view text);
std::vector<Found> readDecimalLists(std::string_view text);
std::vector<Found> readStringLiterals(std::string_view text);
std::vector<Found> readDumps(std::string_view text);
std::vector<Found> readHexLines(std::string_view text);

/// All digits of a text that holds nothing but hexadecimal digits and what stands between them (blanks, line ends,
/// commas, "0x"), as bytes, whatever they are. Nothing where it holds anything else or less than a block.
std::vector<Found> readBareHex(std::string_view text);

} // namespace wb::forms
