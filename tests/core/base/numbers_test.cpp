#include "core/base/numbers.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <functional>
#include <limits>
#include <random>

#include "core/base/failure.h"

namespace wb {
namespace {

FailureKind failureOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const Failure& failure) {
        return failure.kind();
    }
    ADD_FAILURE() << "no failure";
    return FailureKind::InvalidCall;
}

TEST(Numbers, IntegersAreChecked) {
    EXPECT_EQ(int16From(32767), 32767);
    EXPECT_EQ(int16From(-32768), -32768);
    EXPECT_EQ(failureOf([] { int16From(32768); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { int32From(2147483648LL); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { roundToInt16(32767.5); }), FailureKind::Overflow);
}

TEST(Numbers, RoundsHalvesToEven) {
    EXPECT_EQ(roundToInt16(0.5), 0);
    EXPECT_EQ(roundToInt16(1.5), 2);
    EXPECT_EQ(roundToInt16(2.5), 2);
    EXPECT_EQ(roundToInt16(-0.5), 0);
    EXPECT_EQ(roundToInt16(-1.5), -2);
    EXPECT_EQ(roundToInt16(643.5), 644);
}

struct PatternCase {
    double value;
    const char* pattern;
    const char* text;
};

class Patterns : public testing::TestWithParam<PatternCase> {};

TEST_P(Patterns, FormatNumber) {
    EXPECT_EQ(formatNumber(GetParam().value, GetParam().pattern), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Patterns,
    testing::Values(PatternCase{0, "0", "0"}, PatternCase{2.5, "0", "3"}, PatternCase{3.5, "0", "4"},
                    PatternCase{-2.5, "0", "-3"}, PatternCase{0.4, "0", "0"}, PatternCase{-0.4, "0", "0"},
                    PatternCase{0, "###", ""}, PatternCase{400, "###", "400"}, PatternCase{2550, "###", "2550"},
                    PatternCase{7, "00", "07"}, PatternCase{255, "00", "255"}, PatternCase{1, "00000", "00001"},
                    PatternCase{4294967295.0, "00000", "4294967295"}, PatternCase{148.5, "0.00", "148.50"},
                    PatternCase{0.125, "0.00", "0.13"},
                    // The double next to 1.005 lies below it.
                    PatternCase{1.005, "0.00", "1.00"}, PatternCase{9.999, "0.00", "10.00"},
                    PatternCase{0.5, "##0.000", "0.500"}, PatternCase{0.9990234375, "##0.000", "0.999"},
                    PatternCase{0.0625, "##0.000", "0.063"}, PatternCase{-0.001, "0.00", "0.00"},
                    PatternCase{1e20, "0", "100000000000000000000"}));

/// The decimal expansion of a double is finite: with enough digits to_chars gives all of it, and rounding is a matter
/// of one digit.
std::string roundedByAllDigits(double value, int decimals) {
    std::array<char, 1200> buffer{};
    const auto result =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, 1080);
    std::string digits(buffer.data(), result.ptr);
    const std::size_t end = digits.find('.') + 1 + static_cast<std::size_t>(decimals);
    const bool up = digits[end] >= '5';
    digits.resize(end);
    for (std::size_t at = end; up && at-- > 0;) {
        if (digits[at] == '.') {
            continue;
        }
        if (digits[at] != '9') {
            ++digits[at];
            return decimals == 0 ? digits.substr(0, end - 1) : digits;
        }
        digits[at] = '0';
    }
    digits.insert(0, up ? "1" : "");
    return decimals == 0 ? digits.substr(0, digits.size() - 1) : digits;
}

TEST(Numbers, RoundOnTheExactValueWhateverItIs) {
    constexpr std::array<const char*, 4> patterns = {"0", "0.0", "0.00", "0.000"};
    std::mt19937_64 random(20);
    const auto expectRounded = [&](double value) {
        for (int decimals = 0; decimals < 4; ++decimals) {
            ASSERT_EQ(formatNumber(value, patterns[static_cast<std::size_t>(decimals)]),
                      roundedByAllDigits(value, decimals))
                << value;
        }
    };
    // Pixel clocks, coordinates and gammas, and what lies just beside each.
    for (const int divisor : {1, 8, 100, 1000, 1024}) {
        for (int number = 0; number < 5000; ++number) {
            const double value = static_cast<double>(number) / divisor;
            expectRounded(value);
            expectRounded(std::nextafter(value, 1e9));
            expectRounded(std::nextafter(value, 0.0));
        }
    }
    std::uniform_real_distribution<double> exponent(-13, 52);
    std::uniform_real_distribution<double> mantissa(1, 2);
    for (int i = 0; i < 20000; ++i) {
        expectRounded(std::ldexp(mantissa(random), static_cast<int>(exponent(random))));
    }
}

struct ValueCase {
    const char* text;
    double value;
};

class LeadingNumber : public testing::TestWithParam<ValueCase> {};

TEST_P(LeadingNumber, StopsAtTheFirstCharacterThatCannotContinue) {
    EXPECT_DOUBLE_EQ(leadingNumber(GetParam().text), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, LeadingNumber,
    testing::Values(ValueCase{"", 0}, ValueCase{"01", 1}, ValueCase{"10", 10}, ValueCase{"0A", 0}, ValueCase{"FF", 0},
                    ValueCase{"1E", 1}, ValueCase{"1E2", 100}, ValueCase{"1e+2", 100}, ValueCase{"1E-2x", 0.01},
                    ValueCase{" 1 2\t3 ", 123}, ValueCase{"-5", -5}, ValueCase{"+5", 5}, ValueCase{".5", 0.5},
                    ValueCase{"5.", 5}, ValueCase{"1.2.3", 1.2}, ValueCase{"abc", 0}, ValueCase{"&H1F", 31},
                    ValueCase{"&hFFFFFFFF", 4294967295.0}, ValueCase{"&HG", 0}, ValueCase{"- 1 . 5", -1.5},
                    ValueCase{"1E-999", 0}, ValueCase{"1 E + 2", 100}, ValueCase{"1E+", 1}, ValueCase{"1E.5", 1},
                    ValueCase{"--5", 0}, ValueCase{"\r\n7", 7}, ValueCase{"7\xA0", 7}, ValueCase{"& H 1\tF", 31},
                    ValueCase{"-&H10", 0}, ValueCase{"&H", 0}, ValueCase{"&HFFFF", 65535}, ValueCase{"0E999", 0},
                    ValueCase{"1E-99999999999999999999", 0}));

TEST(Numbers, LeadingNumberBeyondADoubleIsAnOverflow) {
    EXPECT_EQ(failureOf([] { leadingNumber("1E999"); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { leadingNumber(std::string(400, '9')); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { leadingNumber("0.1E999"); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { leadingNumber(".001E+99999999999999999999"); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { leadingNumber(std::string(400, '9') + "E-5"); }), FailureKind::Overflow);
    EXPECT_EQ(failureOf([] { leadingNumber("&H" + std::string(300, 'F')); }), FailureKind::Overflow);
}

TEST(Numbers, WhatIsTooSmallForADoubleIsZero) {
    EXPECT_EQ(leadingNumber("0." + std::string(400, '0') + "1"), 0);
    EXPECT_EQ(leadingNumber("1" + std::string(400, '0') + "E-999"), 0);
    EXPECT_DOUBLE_EQ(leadingNumber("0." + std::string(400, '0') + "1E401"), 1);
}

TEST(Numbers, StrictConversionTakesTheWholeText) {
    EXPECT_DOUBLE_EQ(strictNumber("  -1.5E1 "), -15);
    EXPECT_DOUBLE_EQ(strictNumber("+2e+1"), 20);
    EXPECT_DOUBLE_EQ(strictNumber(".5"), 0.5);
    EXPECT_DOUBLE_EQ(strictNumber("5."), 5);
    EXPECT_EQ(failureOf([] { strictNumber("1E999"); }), FailureKind::Overflow);
    for (const char* text : {"", " ", "1x", "x", "1 2", "&H10", ".", "-", "1E", "1,5", "+-1", "E5", "1.2.3", "1E5.0"}) {
        EXPECT_EQ(failureOf([&] { strictNumber(text); }), FailureKind::TypeMismatch) << text;
    }
}

TEST(Numbers, PlainDecimalHasNoExponent) {
    EXPECT_EQ(plainDecimal(0), "0");
    EXPECT_EQ(plainDecimal(0.5), "0.5");
    EXPECT_EQ(plainDecimal(-3), "-3");
    EXPECT_EQ(plainDecimal(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(plainDecimal(1e20), "100000000000000000000");
    EXPECT_EQ(plainDecimal(1e-7), "0.0000001");
    EXPECT_EQ(plainDecimal(123456.75), "123456.75");
    EXPECT_EQ(plainDecimal(0.1 + 0.2), "0.3");
    EXPECT_EQ(plainDecimal(-0.0), "0");
    EXPECT_EQ(plainDecimal(999999999999999.0), "999999999999999");
    EXPECT_EQ(plainDecimal(9999999999999995.0), "10000000000000000") << "15 digits, and a carry into a new one";
    EXPECT_EQ(plainDecimal(12345678901234567.0), "12345678901234600");
}

TEST(Numbers, WhatHasNoDigitsOrTooManyIsAnOverflow) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    for (const double value : {infinity, -infinity, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(failureOf([&] { formatNumber(value, "0.00"); }), FailureKind::Overflow) << value;
        EXPECT_EQ(failureOf([&] { plainDecimal(value); }), FailureKind::Overflow) << value;
    }
    EXPECT_EQ(formatNumber(1, "0." + std::string(450, '0')), "1." + std::string(450, '0'));
    EXPECT_EQ(failureOf([] { formatNumber(1, "0." + std::string(451, '0')); }), FailureKind::Overflow);
    EXPECT_EQ(formatNumber(std::numeric_limits<double>::max(), "0").size(), 309U);
}

TEST(Numbers, HexadecimalOfNegativeNumbers) {
    EXPECT_EQ(hexadecimal16(-1), "FFFF");
    EXPECT_EQ(hexadecimal32(-1), "FFFFFFFF");
    EXPECT_EQ(hexadecimal32(0), "0");
    EXPECT_EQ(hexadecimal32(6500), "1964");
}

TEST(Numbers, CharacterCodeOfNothingIsAnInvalidCall) {
    EXPECT_EQ(characterCode("\xFF"), 255);
    EXPECT_EQ(failureOf([] { characterCode(""); }), FailureKind::InvalidCall);
}

} // namespace
} // namespace wb
