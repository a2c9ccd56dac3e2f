#pragma once

#include <charconv>
#include <optional>
#include <string_view>

namespace wb {

/// 0 to 15 for a hexadecimal digit in either case, -1 for any other character.
constexpr int hexDigit(char c) {
    if (c >= '0' && c <= '9') {
        return c - '0';
    }
    if (c >= 'A' && c <= 'F') {
        return c - 'A' + 10;
    }
    if (c >= 'a' && c <= 'f') {
        return c - 'a' + 10;
    }
    return -1;
}

/// The whole decimal number that the whole text spells (a minus may stand in front), or nothing.
template <class Number>
std::optional<Number> wholeNumber(std::string_view text, int base = 10) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, base);
    if (error != std::errc() || end != text.data() + text.size()) {
        return std::nullopt;
    }
    return number;
}

/// The decimal number without sign and exponent that the whole text spells, or nothing.
inline std::optional<double> decimalNumber(std::string_view text) {
    const bool isPlain = text.find_first_not_of("0123456789.") == std::string_view::npos;
    double number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
    return isPlain && error == std::errc() && end == text.data() + text.size() ? std::optional(number) : std::nullopt;
}

} // namespace wb
