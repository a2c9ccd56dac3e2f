#include "fields/place_text.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace wb::fields {
namespace {

std::string placeOf(std::initializer_list<BitRange> ranges) {
    Where where;
    for (const BitRange& range : ranges) {
        where.add(range);
    }
    return placeText(where);
}

TEST(PlaceText, IsTheByteInHexadecimal) {
    EXPECT_EQ(placeOf({{0}}), "00");
    EXPECT_EQ(placeOf({{0x7F}}), "7F");
    EXPECT_EQ(placeOf({{0x180}}), "180"); // in the fourth block
}

TEST(PlaceText, TellsTheBitsOfAPartOfAByte) {
    EXPECT_EQ(placeOf({{0x14, 7, 7}}), "14[7]");
    EXPECT_EQ(placeOf({{0x14, 0, 0}}), "14[0]");
    EXPECT_EQ(placeOf({{0x14, 6, 0}}), "14[6:0]");
    EXPECT_EQ(placeOf({{0x14, 7, 1}}), "14[7:1]");
}

TEST(PlaceText, TellsTheFirstAndTheLastOfSeveralBytes) {
    EXPECT_EQ(placeOf({{.byte = 0x36, .count = 2}}), "36-37");
    EXPECT_EQ(placeOf({{.byte = 0x36, .count = 18}}), "36-47");
}

TEST(PlaceText, TellsTheMostSignificantPartFirst) {
    EXPECT_EQ(placeOf({{0x3A, 7, 4}, {0x38}}), "3A[7:4]+38");
}

} // namespace
} // namespace wb::fields
