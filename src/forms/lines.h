#pragma once

#include <string_view>
#include <vector>

namespace wb::forms {

struct Line {
    std::string_view text; ///< without its line end
    std::size_t place = 0; ///< where it begins in the whole text
};

/// The lines of a text, ended by LF with a CR before it or not.
std::vector<Line> linesOf(std::string_view text);

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
