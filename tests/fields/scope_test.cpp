#include "fields/scope.h"

#include <gtest/gtest.h>

#include "image_of.h"

namespace wb::fields {
namespace {

Reading withBytes(std::initializer_list<int> bytes) {
    return Reading{.image = ImageOf().set(8, bytes).image()};
}

TEST(Scope, ReadsPartsHighestFirst) {
    Reading reading = withBytes({0x5A, 0xC3});
    const Scope scope(reading, 8, "a.b[2]", "Clause 1");
    const Field& field = scope.add({.name = "x", .label = "X", .parts = {{1, 7, 6}, {0, 3, 0}}});
    EXPECT_EQ(std::get<std::int64_t>(field.value), 0x3A);
    EXPECT_EQ(field.path, "a.b[2].x");
    EXPECT_EQ(field.clause, "Clause 1");
    EXPECT_EQ(rawText(reading.image, field), "3A");
    EXPECT_EQ(field.where.begin()[0].byte, 9U);
    EXPECT_EQ(field.where.begin()[1].byte, 8U);
}

TEST(Scope, ScalesNumbers) {
    Reading reading = withBytes({120});
    const Scope scope(reading, 8, "a", "C");
    const Field& field = scope.add(
        {.name = "gamma", .label = "Gamma", .parts = {{0}}, .unit = "Hz", .scale = 0.01, .bias = 1, .decimals = 2});
    EXPECT_DOUBLE_EQ(std::get<double>(field.value), 2.2);
    EXPECT_EQ(field.text, "2.20 Hz");
}

TEST(Scope, EndsTextsAtTheLineFeedAndReadsThemAsCodePage1252) {
    Reading reading = withBytes({'A', 0x80, ' ', 'b', 0x0A, ' ', 'x'});
    const Scope scope(reading, 8, "a", "C");
    const Row row = {.name = "t", .label = "T", .parts = {{0}}, .kind = Kind::Text, .length = 7};
    EXPECT_EQ(std::get<std::string>(scope.add(row).value), "A\u20AC b");
    EXPECT_EQ(rawText(reading.image, reading.fields.back()), "418020620A2078");
}

TEST(Scope, TellsWhatNoChoiceNames) {
    constexpr std::array<Choice, 1> choices = {{{1, "one"}}};
    Reading reading = withBytes({1, 2});
    const Scope scope(reading, 8, "a", "C");
    scope.add({.name = "x", .label = "X", .parts = {{0}}, .kind = Kind::Choice, .choices = choices});
    EXPECT_EQ(reading.fields.back().text, "one");
    scope.add({.name = "y", .label = "Y", .parts = {{1}}, .kind = Kind::Choice, .choices = choices});
    EXPECT_EQ(reading.fields.back().text, "reserved (2)");
}

} // namespace
} // namespace wb::fields
