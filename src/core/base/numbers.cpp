#include "core/base/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <optional>

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

/// The same for the sizes that are met most: at most three decimals of a number whose bits reach 64 places behind the
/// point at most. Nothing for others.
std::optional<std::string> roundedExactly(double magnitude, int decimals) {
    constexpr std::array<std::uint64_t, 4> powers = {1, 10, 100, 1000};
    constexpr double least = 1.0 / 2048; // 53 bits from the eleventh place on
    constexpr double limit = 1e15;
    if (decimals >= static_cast<int>(powers.size()) || !(magnitude < limit) || (magnitude < least && magnitude != 0)) {
        return std::nullopt;
    }
    const std::uint64_t power = powers[static_cast<std::size_t>(decimals)];
    auto whole = static_cast<std::uint64_t>(magnitude);
    // The product of the fraction, 64 bits behind the point, and the power, in two halves.
    const auto fraction = static_cast<std::uint64_t>(std::ldexp(magnitude - static_cast<double>(whole), 64));
    const std::uint64_t low = (fraction & 0xFFFFFFFFU) * power;
    const std::uint64_t high = (fraction >> 32U) * power + (low >> 32U);
    std::uint64_t part = (high >> 32U) + ((high >> 31U) & 1U); // half a unit or more rounds up
    if (part == power) {
        part = 0;
        ++whole;
    }
    std::array<char, 24> buffer{};
    char* end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), whole).ptr;
    *end++ = '.';
    for (std::uint64_t place = power / 10; place > 0; place /= 10) {
        *end++ = static_cast<char>('0' + part / place % 10);
    }
    return std::string(buffer.data(), end);
}

std::string roundedDecimals(double magnitude, int decimals) {
    if (std::optional<std::string> digits = roundedExactly(magnitude, decimals)) {
        return *std::move(digits);
    }
    return roundedByGuardDigits(magnitude, decimals);
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
    const std::string digits = roundedDecimals(std::fabs(value), decimals);
    const auto split = digits.find('.');
    std::string whole = digits.substr(0, split);
    whole.erase(0, whole.find_first_not_of('0') == std::string::npos ? whole.size() : whole.find_first_not_of('0'));
    const bool zero = digits.find_first_not_of("0.") == std::string::npos;
    if (whole.size() < minimum) {
        whole.insert(0, minimum - whole.size(), '0');
    }
    std::string result = value < 0 && !zero ? "-" : "";
    result += whole;
    if (decimals > 0) {
        result += digits.substr(split);
    }
    return result;
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
