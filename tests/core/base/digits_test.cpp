#include "core/base/digits.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace wb {
namespace {

TEST(Digits, AreThoseOfNumbersToTheBase16) {
    const std::string lower = "0123456789abcdef";
    const std::string upper = "0123456789ABCDEF";
    for (int code = 0; code < 256; ++code) {
        const auto c = static_cast<char>(code);
        const std::size_t place = std::min(lower.find(c), upper.find(c));
        EXPECT_EQ(hexDigit(c), place == std::string::npos ? -1 : static_cast<int>(place)) << code;
    }
}

TEST(Digits, MakeAByteInPairs) {
    EXPECT_EQ(hexPair("00"), 0);
    EXPECT_EQ(hexPair("0f"), 15);
    EXPECT_EQ(hexPair("F0"), 240);
    EXPECT_EQ(hexPair("fF"), 255);
    for (const char* const other : {"", "0", "000", "0g", "g0", " 0", "0 ", "-1", "+1", "0x"}) {
        EXPECT_EQ(hexPair(other), -1) << other;
    }
}

TEST(Digits, AreToldFromAllElse) {
    EXPECT_TRUE(areHexDigits(""));
    EXPECT_TRUE(areHexDigits("019afAF"));
    for (const char* const other : {"g", "0g", "g0", "0 0", "-1", "0x10"}) {
        EXPECT_FALSE(areHexDigits(other)) << other;
    }
}

TEST(Digits, MayStandBehindAPrefix) {
    EXPECT_TRUE(hasHexPrefix("0x"));
    EXPECT_TRUE(hasHexPrefix("0X1F"));
    for (const char* const other : {"", "0", "x0", "00x", "1x"}) {
        EXPECT_FALSE(hasHexPrefix(other)) << other;
    }
}

TEST(WholeNumber, IsAllOfTheText) {
    EXPECT_EQ(wholeNumber<int>("-12"), -12);
    EXPECT_EQ(wholeNumber<unsigned char>("fF", 16), 255);
    for (const char* const other : {"", "-", "+1", " 1", "1 ", "1a", "1.0"}) {
        EXPECT_EQ(wholeNumber<int>(other), std::nullopt) << other;
    }
    EXPECT_EQ(wholeNumber<unsigned char>("100", 16), std::nullopt) << "there is no such byte";
    EXPECT_EQ(wholeNumber<unsigned char>("-1"), std::nullopt);
}

TEST(DecimalNumber, HasNeitherSignNorExponent) {
    EXPECT_EQ(decimalNumber("25.175"), 25.175);
    EXPECT_EQ(decimalNumber("60"), 60.0);
    for (const char* const other : {"", ".", "-1", "+1", "1e3", "1.2.3", "inf", "nan", " 1", "1 "}) {
        EXPECT_EQ(decimalNumber(other), std::nullopt) << other;
    }
}

} // namespace
} // namespace wb
