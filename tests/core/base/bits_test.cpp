#include "core/base/bits.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

// The expectations are worked out on the binary digits that stand with them.

TEST(Bits, RangeIsReadAsANumber) {
    EXPECT_EQ(bits(0b1011'0110, 7, 4), 0b1011);
    EXPECT_EQ(bits(0b1011'0110, 3, 0), 0b0110);
    EXPECT_EQ(bits(0b1011'0110, 6, 5), 0b01);
    EXPECT_EQ(bits(0b1011'0110, 2, 2), 1);
    EXPECT_EQ(bits(0b1011'0110, 7, 0), 0b1011'0110);
}

TEST(Bits, RangeMayReachBeyondAByte) {
    EXPECT_EQ(bits(0x3A5, 9, 8), 0b11);
    EXPECT_EQ(bits(0x7FFFFFFF, 30, 0), 0x7FFFFFFF);
    EXPECT_EQ(bits(0x7FFFFFFF, 30, 30), 1);
    EXPECT_EQ(bits(0xFF, 9, 8), 0);
}

TEST(Bits, FieldIsPutInAndOtherBitsStay) {
    EXPECT_EQ(withBits(0b1011'0110, 7, 4, 0b0101), 0b0101'0110);
    EXPECT_EQ(withBits(0b1011'0110, 3, 0, 0), 0b1011'0000);
    EXPECT_EQ(withBits(0b1011'0110, 6, 5, 0b10), 0b1101'0110);
    EXPECT_EQ(withBits(0, 9, 8, 0b11), 0x300);
    EXPECT_EQ(withBits(0, 30, 0, 0x7FFFFFFF), 0x7FFFFFFF);
}

TEST(Bits, WhatHasNoRoomIsDropped) {
    EXPECT_EQ(withBits(0b1000'0001, 3, 2, 0b111), 0b1000'1101);
    EXPECT_EQ(withBits(0, 0, 0, 2), 0);
}

TEST(Bits, SingleBitsAreCountedFromTheLowest) {
    EXPECT_TRUE(bit(0b1000'0001, 7));
    EXPECT_TRUE(bit(0b1000'0001, 0));
    EXPECT_FALSE(bit(0b1000'0001, 6));
    EXPECT_FALSE(bit(0b1000'0001, 1));
}

TEST(Bits, SingleBitIsSetOrCleared) {
    EXPECT_EQ(withBit(0b1000'0001, 6, true), 0b1100'0001);
    EXPECT_EQ(withBit(0b1000'0001, 7, false), 0b0000'0001);
    EXPECT_EQ(withBit(0b1000'0001, 0, true), 0b1000'0001);
}

TEST(Bits, NegativeNumberIsItsTwosComplement) {
    EXPECT_EQ(bits(-2, 4, 0), 0b11110);
    EXPECT_EQ(withBits(0, 7, 5, -3), 0b1010'0000);
}

TEST(Bits, NumberIsJoinedFromTwoCells) {
    constexpr SplitField twoOfEach{{1, {1, 0}}, {0, {7, 6}}};
    EXPECT_EQ(twoOfEach.join(0b1111'1110, 0b0111'1111), 0b1001);
    constexpr SplitField wholeBytes{{1, wholeByte}, {0, wholeByte}};
    EXPECT_EQ(wholeBytes.join(0x12, 0x34), 0x1234);
    constexpr SplitField nothingAbove{{0, {-1, 0}}, {0, wholeByte}};
    EXPECT_EQ(nothingAbove.join(0xFF, 0x34), 0x34);
}

TEST(Bits, RangeOfATableIsThatOfItsPlaces) {
    constexpr BitRange upperHalf{7, 4};
    static_assert(maskOf(upperHalf) == 0b1111'0000);
    static_assert(bits(0b1011'0110, upperHalf) == 0b1011);
    static_assert(withBits(0b1011'0110, upperHalf, 0b0101) == 0b0101'0110);
    EXPECT_EQ(maskOf({0, 0}), 1);
    EXPECT_EQ(maskOf({30, 0}), 0x7FFFFFFF);
}

} // namespace
} // namespace wb
