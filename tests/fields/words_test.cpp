#include "fields/words.h"

#include <gtest/gtest.h>

#include <array>
#include <charconv>
#include <cmath>
#include <random>
#include <vector>

namespace wb::fields {
namespace {

/// As the library rounds: on the exact value, halves to the even digit.
std::string roundedByTheLibrary(double value, int decimals) {
    std::array<char, 400> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, std::chars_format::fixed, decimals);
    return {buffer.data(), end};
}

TEST(Words, DecimalsAreThoseOfTheExactValueWithHalvesToTheEvenDigit) {
    EXPECT_EQ(decimalText(0.125, 2), "0.12");
    EXPECT_EQ(decimalText(0.375, 2), "0.38");
    EXPECT_EQ(decimalText(2.5, 0), "2");
    EXPECT_EQ(decimalText(-0.001, 2), "-0.00");
    std::mt19937_64 random(21);
    const auto expectRounded = [](double value) {
        for (int decimals = 0; decimals < 5; ++decimals) {
            for (const double number : {value, -value}) {
                ASSERT_EQ(decimalText(number, decimals), roundedByTheLibrary(number, decimals)) << number;
            }
        }
    };
    for (const int divisor : {1, 8, 100, 1000, 1024, 65536}) {
        for (int number = 0; number < 3000; ++number) {
            const double value = static_cast<double>(number) / divisor;
            expectRounded(value);
            expectRounded(std::nextafter(value, 1e9));
            expectRounded(std::nextafter(value, 0.0));
        }
    }
    for (int i = 0; i < 20000; ++i) {
        expectRounded(std::ldexp(static_cast<double>(random() >> 11U), static_cast<int>(random() % 70) - 65));
    }
}

TEST(Words, BytesAreSeparatedByBlanks) {
    EXPECT_EQ(hexText({}), "");
    EXPECT_EQ(hexText(std::vector<std::uint8_t>{0xA3}), "A3");
    EXPECT_EQ(hexText(std::vector<std::uint8_t>{0xA3, 0x0F, 0x00}), "A3 0F 00");
}

} // namespace
} // namespace wb::fields
