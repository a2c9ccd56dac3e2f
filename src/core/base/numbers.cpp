#include "core/base/numbers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "core/base/exact_rounding.h"
#include "core/base/failure.h"

namespace wb {

namespace {

template <class Integer>
Integer checkedFrom(std::int64_t value) {
    if (value < std::numeric_limits<Integer>::min() || value > std::numeric_limits<Integer>::max()) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<Integer>(value);
}

template <class Integer>
Integer checkedRound(double value) {
    const double whole = roundHalfEven(value);
    if (!(whole >= static_cast<double>(std::numeric_limits<Integer>::min()) &&
          whole <= static_cast<double>(std::numeric_limits<Integer>::max()))) {
        throw Failure(FailureKind::Overflow);
    }
    return static_cast<Integer>(whole);
}

/// Integer part and decimals of a number that is not negative, rounded half away from zero at `decimals` on the
/// double's exact value.
std::string roundedByGuardDigits(double magnitude, int decimals) {
    // A double of the sizes met here that is no exact half differs from one within this many further digits.
    constexpr int guardDigits = 60;
    std::array<char, 512> buffer{}; // room for 451 digits, the point and the guard
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, std::chars_format::fixed,
                                      decimals + guardDigits);
    if (!std::isfinite(magnitude) || result.ec != std::errc()) {
        throw Failure(FailureKind::Overflow);
    }
    std::string digits(buffer.data(), result.ptr);
    const auto point = digits.find('.');
    const bool up = digits[point + 1 + static_cast<std::size_t>(decimals)] >= '5';
    digits.resize(point + 1 + static_cast<std::size_t>(decimals));
    if (up) {
        auto at = digits.size();
        while (at > 0) {
            char& c = digits[--at];
            if (c == '.') {
                continue;
            }
            if (c != '9') {
                ++c;
                return digits;
            }
            c = '0';
        }
        digits.insert(digits.begin(), '1');
    }
    return digits;
}

/// The number that `digits` are the rounded text of, with at least `minimum` digits before the point.
std::string signedText(const std::string& digits, bool negative, std::size_t minimum) {
    const auto split = std::min(digits.find('.'), digits.size());
    const auto first = std::min(digits.find_first_not_of('0'), split);
    const std::size_t zeros = minimum > split - first ? minimum - (split - first) : 0;
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    const bool hasDecimals = split + 1 < digits.size();
    std::string result = negative && !zero ? "-" : "";
    result.append(zeros, '0');
    result.append(digits, first, (hasDecimals ? digits.size() : split) - first);
    return result;
}

} // namespace

std::int16_t int16From(std::int64_t value) {
    return checkedFrom<std::int16_t>(value);
}

std::int32_t int32From(std::int64_t value) {
    return checkedFrom<std::int32_t>(value);
}

double roundHalfEven(double value) {
    const double floor = std::floor(value);
    const double rest = value - floor;
    if (rest < 0.5) {
        return floor;
    }
    if (rest > 0.5) {
        return floor + 1;
    }
    return std::fmod(floor, 2) == 0 ? floor : floor + 1;
}

std::int16_t roundToInt16(double value) {
    return checkedRound<std::int16_t>(value);
}

std::int32_t roundToInt32(double value) {
    return checkedRound<std::int32_t>(value);
}

std::string formatNumber(double value, std::string_view pattern) {
    const auto point = pattern.find('.');
    const std::string_view wholePattern = pattern.substr(0, point);
    const int decimals = point == std::string_view::npos ? 0 : static_cast<int>(pattern.size() - point - 1);
    std::size_t minimum = 0;
    for (const char c : wholePattern) {
        minimum += c == '0' ? 1 : 0;
    }
    const double magnitude = std::fabs(value);
    if (ExactRounding::fits(magnitude, decimals) && minimum <= ExactRounding::mostDigits) {
        const ExactRounding rounded(magnitude, decimals, Halves::AwayFromZero);
        return rounded.text(value < 0 && !rounded.isZero(), minimum);
    }
    return signedText(roundedByGuardDigits(magnitude, decimals), value < 0, minimum);
}

std::string formatNumber(std::string_view text, std::string_view pattern) {
    return formatNumber(strictNumber(text), pattern);
}

std::string plainDecimal(double value) {
    if (!std::isfinite(value)) {
        throw Failure(FailureKind::Overflow);
    }
    std::array<char, 64> buffer{};
    const auto scientific = std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value),
                                          std::chars_format::scientific, 14);
    const std::string text(buffer.data(), scientific.ptr);
    const auto mark = text.find('e');
    int exponent = 0;
    const char* start = text.data() + mark + 1;
    std::from_chars(*start == '+' ? start + 1 : start, text.data() + text.size(), exponent);
    std::string digits = text.substr(0, 1) + text.substr(2, mark - 2);
    digits.erase(digits.find_last_not_of('0') + 1);
    if (digits.empty()) {
        return "0";
    }
    std::string result = value < 0 ? "-" : "";
    const int count = static_cast<int>(digits.size());
    if (exponent < 0) {
        return result + "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
    }
    if (count <= exponent + 1) {
        return result + digits + std::string(static_cast<std::size_t>(exponent + 1 - count), '0');
    }
    const std::size_t whole = static_cast<std::size_t>(exponent) + 1;
    return result + digits.substr(0, whole) + "." + digits.substr(whole);
}

namespace {

std::string hexadecimalOf(std::uint32_t value) {
    std::string digits;
    do {
        digits.insert(digits.begin(), "0123456789ABCDEF"[value & 15U]);
        value >>= 4U;
    } while (value != 0);
    return digits;
}

} // namespace

std::string hexadecimal16(std::int16_t value) {
    return hexadecimalOf(static_cast<std::uint16_t>(value));
}

std::string hexadecimal32(std::int32_t value) {
    return hexadecimalOf(static_cast<std::uint32_t>(value));
}

int characterCode(std::string_view text) {
    if (text.empty()) {
        throw Failure(FailureKind::InvalidCall);
    }
    return static_cast<unsigned char>(text.front());
}

} // namespace wb
