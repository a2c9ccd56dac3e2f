#include "core/base/numbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>

#include "core/base/failure.h"
#include "fuzz/targets.h"

namespace wb::fuzz {

namespace {

/// The exact decimal expansion of a double, which is finite, rounded half away from zero by hand.
std::string roundedByAllDigits(double magnitude, std::size_t decimals) {
    std::array<char, 1600> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::fixed,
                                      1100); // the last place of any double is 1074
    std::string digits(buffer.data(), result.ptr);
    const std::size_t end = digits.find('.') + 1 + decimals;
    bool carry = digits[end] >= '5';
    digits.resize(end);
    for (std::size_t at = end; carry && at-- > 0;) {
        if (digits[at] != '.') {
            carry = digits[at] == '9';
            digits[at] = carry ? '0' : static_cast<char>(digits[at] + 1);
        }
    }
    return carry ? '1' + digits : digits;
}

/// A pattern by its rule: as many digits before the point as it has zeros there, as many behind it as it has
/// characters.
std::string formattedByHand(double value, std::size_t zeros, std::size_t decimals) {
    std::string digits = roundedByAllDigits(std::fabs(value), decimals);
    const bool isZero = digits.find_first_not_of("0.") == std::string::npos;
    const std::size_t point = digits.find('.');
    const std::string whole = digits.substr(0, point);
    const std::string stripped = whole.substr(std::min(whole.find_first_not_of('0'), whole.size()));
    const std::string fill(zeros > stripped.size() ? zeros - stripped.size() : 0, '0');
    return (value < 0 && !isZero ? "-" : "") + fill + stripped + (decimals > 0 ? digits.substr(point) : "");
}

std::string patternOf(std::size_t marks, std::size_t zeros, std::size_t decimals) {
    return std::string(marks, '#') + std::string(zeros, '0') + (decimals > 0 ? '.' + std::string(decimals, '0') : "");
}

void expectFormat(double value, std::size_t zeros, std::size_t decimals) {
    const std::string pattern = patternOf(zeros % 3, zeros, decimals);
    try {
        const std::string text = formatNumber(value, pattern);
        ASSERT_TRUE(std::isfinite(value));
        ASSERT_EQ(text, formattedByHand(value, zeros, decimals)) << pattern;
    } catch (const Failure& failure) {
        ASSERT_EQ(failure.kind(), FailureKind::Overflow);
        ASSERT_FALSE(std::isfinite(value)); // the largest double and the decimals tried here are below 451 digits
    }
}

/// A number that was written in full is read back as it was.
void expectReadBack(double value) {
    if (!std::isfinite(value)) {
        return;
    }
    std::array<char, 1600> buffer{};
    for (const auto format : {std::chars_format::fixed, std::chars_format::scientific}) {
        const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format);
        const std::string_view text(buffer.data(), static_cast<std::size_t>(result.ptr - buffer.data()));
        ASSERT_EQ(strictNumber(text), value) << text;
        ASSERT_EQ(leadingNumber(text), value) << text;
    }
}

std::optional<double> numberOf(double (*read)(std::string_view), std::string_view text) {
    try {
        return read(text);
    } catch (const Failure& failure) {
        EXPECT_TRUE(failure.kind() == FailureKind::Overflow || failure.kind() == FailureKind::TypeMismatch);
        return std::nullopt;
    }
}

/// What a text spells as a whole it spells at its start too.
void expectSameNumber(std::string_view text) {
    const auto strict = numberOf(&strictNumber, text);
    const auto leading = numberOf(&leadingNumber, text);
    if (strict) {
        ASSERT_TRUE(leading.has_value());
        ASSERT_EQ(*strict, *leading) << text;
        ASSERT_TRUE(std::isfinite(*strict));
        // The run-time of C reads a number exactly, and knows more that is none here: it has the last word on digits.
        const std::string plain(text.substr(text.find_first_not_of(" \t\r\n")));
        ASSERT_EQ(std::strtod(plain.c_str(), nullptr), *strict) << text;
    }
}

} // namespace

void numbers(std::string_view input) {
    std::array<char, sizeof(std::uint64_t)> start{};
    const std::string_view rest = input.substr(input.copy(start.data(), start.size()));
    const auto bits = std::bit_cast<std::uint64_t>(start);
    const auto choice = [&](std::size_t place, std::size_t end) {
        return place < rest.size() ? static_cast<unsigned char>(rest[place]) % end : 0;
    };
    const auto value = std::bit_cast<double>(bits);
    expectFormat(value, choice(0, 9), choice(1, 40));
    expectReadBack(value);
    // Sizes that are met in images: the bits as a number of thousandths.
    expectFormat(static_cast<double>(bits % 100000000U) / 1000, choice(0, 9), choice(1, 6));
    expectSameNumber(input);
    expectSameNumber(rest);
}

} // namespace wb::fuzz
