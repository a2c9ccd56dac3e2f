#pragma once

#include <string>
#include <string_view>

namespace wb::script {

/// The content of a Unicode file in characters of Windows code page 1252: UTF-16 of either byte order with a byte order
/// mark, UTF-8 with or without. Bytes that are no UTF-8 are taken as 8-bit text already. A character that the code page
/// does not have becomes '?'.
std::string decodeTextFile(std::string_view bytes);

/// The same for UTF-16 text, least significant bytes first, without a mark. A last half character is dropped.
std::string fromUtf16(std::string_view bytes);

} // namespace wb::script
