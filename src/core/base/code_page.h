#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wb {

/// The Unicode character of an 8-bit one. One to one over 0 to 255: NUL and the five codes that the page leaves open
/// (81, 8D, 8F, 90, 9D) stand for themselves.
char16_t codePageToUnicode(char character);
/// The way back, or nothing where the code page does not have the character.
std::optional<char> unicodeToCodePage(char32_t character);

/// A text of 8-bit characters in UTF-8.
std::string codePageToUtf8(std::string_view text);

/// Bytes of the UTF-8 sequence that stands at the front of a text, 0 where there is none.
std::size_t utf8SequenceLength(std::string_view text);

/// The content of a Unicode file in characters of Windows code page 1252: UTF-16 of either byte order with a byte order
/// mark, UTF-8 with or without. Bytes that are no UTF-8 are taken as 8-bit text already. A character that the code page
/// does not have becomes '?'.
std::string decodeTextFile(std::string_view bytes);

/// The same for UTF-16 text, least significant bytes first, without a mark. A last half character is dropped.
std::string fromUtf16(std::string_view bytes);

} // namespace wb
