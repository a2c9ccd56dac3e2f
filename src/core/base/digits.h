#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace wb {

/// By the code of the character.
inline constexpr auto hexDigits = [] {
    std::array<std::int8_t, 256> digits{};
    digits.fill(-1);
    for (std::int8_t i = 0; i < 10; ++i) {
        digits[static_cast<std::size_t>('0' + i)] = i;
    }
    for (std::int8_t i = 0; i < 6; ++i) {
        digits[static_cast<std::size_t>('A' + i)] = static_cast<std::int8_t>(10 + i);
        digits[static_cast<std::size_t>('a' + i)] = static_cast<std::int8_t>(10 + i);
    }
    return digits;
}();

/// 0 to 15 for a hexadecimal digit in either case, -1 for any other character.
constexpr int hexDigit(char c) {
    return hexDigits[static_cast<unsigned char>(c)];
}

/// 0 to 255 for a pair of hexadecimal digits, -1 for any other text.
constexpr int hexPair(std::string_view text) {
    if (text.size() != 2) {
        return -1;
    }
    const int high = hexDigit(text[0]);
    const int low = hexDigit(text[1]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

/// Whether there are hexadecimal digits alone; also where there is nothing.
constexpr bool areHexDigits(std::string_view text) {
    return std::all_of(text.begin(), text.end(), [](char c) { return hexDigit(c) >= 0; });
}

/// Whether "0x" stands in front, in either case.
constexpr bool hasHexPrefix(std::string_view text) {
    return text.starts_with("0x") || text.starts_with("0X");
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
