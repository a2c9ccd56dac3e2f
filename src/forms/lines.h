#pragma once

#include <cstddef>
#include <string_view>

namespace wb::forms {

struct Line {
    std::string_view text; ///< without its line end, which is LF with a CR before it or not
    std::size_t next = 0;  ///< where the next one begins in the whole text; the size of that behind the last
};

/// The line of a text that begins at that place, which is not behind its end. Lines are taken one after the other: a
/// list of short ones would be many times as large as their text.
Line lineAt(std::string_view text, std::size_t place);

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}

constexpr bool isDecimalDigit(char c) {
    return c >= '0' && c <= '9';
}

constexpr bool isWordCharacter(char c) {
    return isDecimalDigit(c) || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

} // namespace wb::forms
