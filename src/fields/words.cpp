#include "fields/words.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/base/code_page.h"
#include "core/base/exact_rounding.h"
#include "core/base/text.h"

namespace wb::fields {

namespace {

constexpr std::string_view hexDigits = "0123456789ABCDEF";

void appendHex(std::string& text, unsigned byte) {
    text += hexDigits[byte >> 4U];
    text += hexDigits[byte & 15U];
}

/// Of the characters of Latin-1 and ASCII, those that are no signs.
bool isControl(char16_t character) {
    return character < u' ' || (character >= u'\x7F' && character < u'\xA0');
}

} // namespace

std::string hexNumber(std::uint64_t number, int bits) {
    std::string text;
    for (int digit = (bits + 3) / 4 - 1; digit >= 0; --digit) {
        text += hexDigits[number >> static_cast<unsigned>(4 * digit) & 15U];
    }
    return text;
}

std::string decimalText(double value, int decimals) {
    const double magnitude = std::fabs(value);
    if (ExactRounding::fits(magnitude, decimals)) {
        return ExactRounding(magnitude, decimals, Halves::ToEven).text(std::signbit(value), 1);
    }
    std::array<char, 64> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    return error == std::errc() ? std::string(buffer.data(), end) : std::string();
}

std::string withUnit(std::string number, std::string_view unit) {
    if (!unit.empty()) {
        number += ' ';
        number += unit;
    }
    return number;
}

std::string numbered(std::string_view name, std::size_t number) {
    std::string text(name);
    text += '[';
    text += std::to_string(number);
    text += ']';
    return text;
}

std::string hexText(std::span<const std::uint8_t> bytes) {
    if (bytes.empty()) {
        return {};
    }
    std::string text(bytes.size() * 3 - 1, ' ');
    char* place = text.data();
    for (const std::uint8_t byte : bytes) {
        const std::string_view digits = byteText(byte);
        place[0] = digits[0];
        place[1] = digits[1];
        place += 3;
    }
    return text;
}

std::string printable(std::string_view characters) {
    std::string text;
    for (const char character : characters) {
        if (isControl(codePageToUnicode(character))) {
            text += "\\x";
            appendHex(text, static_cast<unsigned char>(character));
        } else {
            text += codePageToUtf8({&character, 1});
        }
    }
    return text;
}

} // namespace wb::fields
