#pragma once

#include <string>
#include <string_view>

namespace wb::cli {

enum class ContentKind { Nothing, DataFile, HexText, Binary };

struct Content {
    ContentKind kind = ContentKind::Nothing;
    std::string image; ///< the bytes of a hexadecimal text or a binary image
};

/// Tells what a file holds, by its content:
/// - a data file has the words "128 BYTES OF EDID CODE:" in any letter case;
/// - a hexadecimal text has only hexadecimal digits, blanks, tabs, line ends, commas and prefixes "0x", and an even
///   number of digits, at least 256;
/// - a binary image has at least 128 bytes and begins with the header 00 FF FF FF FF FF FF 00, or its length is a
///   multiple of 128 and it holds a byte that no ASCII text has.
/// Takes time in proportion to the length.
Content recognise(std::string_view bytes);

} // namespace wb::cli
