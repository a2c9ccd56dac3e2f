#include "fields/difference.h"

#include <gtest/gtest.h>

#include "fields/image_of.h"

namespace wb::fields {
namespace {

std::string lineOf(const FieldPair& pair) {
    const auto [first, second] = pair.texts();
    return pair.any().path + ": " + first + " | " + second;
}

TEST(Differences, AreNoneBetweenTheSame) {
    const Reading reading = ImageOf().withSums().reading();
    EXPECT_TRUE(differencesOf(reading, reading).empty());
    EXPECT_EQ(pairsOf(reading, reading).size(), reading.fields.size());
}

TEST(Differences, TellBothValues) {
    const Reading first = ImageOf().set(16, {10}).set(127, {0}).reading();
    const Reading second = ImageOf().set(16, {11}).set(127, {0}).reading();
    const auto found = differencesOf(first, second);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].any().path, "base.vendor.week");
    EXPECT_EQ(found[0].first.raw(), "0A");
    EXPECT_EQ(found[0].second.raw(), "0B");
}

TEST(Differences, TellTheBitsWhereTheWordsLookTheSame) {
    const Reading first = ImageOf().set(16, {10}).reading();
    const Reading second = ImageOf().set(16, {11}).reading();
    const auto found = differencesOf(first, second);
    ASSERT_FALSE(found.empty());
    const auto [before, after] = found[0].texts([](std::string_view) { return std::string("x"); });
    EXPECT_EQ(before, "x (0A)");
    EXPECT_EQ(after, "x (0B)");
}

TEST(Differences, PutWhatOnlyTheSecondHasBehindAllElse) {
    const Reading first = ImageOf(1).reading();
    const Reading second = ImageOf(2).set(128, {2, 3, 4}).reading();
    const auto found = differencesOf(first, second);
    ASSERT_GE(found.size(), 2U);
    EXPECT_EQ(found.front().any().path, "base.extension_count") << "of both";
    EXPECT_EQ(found.back().first.field, nullptr);
    EXPECT_EQ(lineOf(found.back()).rfind("cta[1].", 0), 0U);
    EXPECT_NE(lineOf(found.back()).find(": (none) | "), std::string::npos);
    const auto back = differencesOf(second, first);
    EXPECT_EQ(back.back().second.field, nullptr);
}

} // namespace
} // namespace wb::fields
