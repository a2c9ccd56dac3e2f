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

TEST(Scope, TellsWhichTablesCoverWholeBytes) {
    const Row top = flagAt(1, 7, "top", "Top");
    const Row others = reservedAt(1, 6, 0, "others");
    const Row next = {.name = "next", .label = "Next", .parts = {{2}}, .kind = Kind::Bytes, .length = 2};
    EXPECT_TRUE(coverWholeBytes(std::to_array<Row>({top, others, next})));
    EXPECT_FALSE(coverWholeBytes(std::to_array<Row>({others, next}))) << "a bit is missing";
    EXPECT_FALSE(coverWholeBytes(std::to_array<Row>({top, next}))) << "seven bits are missing";
    EXPECT_FALSE(coverWholeBytes(std::to_array<Row>({top, others, others}))) << "bits stand twice";
    EXPECT_FALSE(coverWholeBytes(std::to_array<Row>({next, top, others}))) << "out of order";
    EXPECT_FALSE(coverWholeBytes(std::to_array<Row>({top, others, reservedAt(3, 7, 0, "far")}))) << "a byte is missing";
}

constexpr std::array<Row, 3> mixedRows = {{
    {.name = "low", .label = "Low", .parts = {{0, 3, 0}}},
    {.name = "high", .label = "High", .parts = {{0, 7, 4}, {1}}},
    {.name = "last", .label = "Last", .parts = {{2}}},
}};

TEST(Scope, LeavesRowsThatAreCutAsBytes) {
    const auto pathsUpTo = [](std::size_t end) {
        Reading reading = withBytes({1, 2, 3, 4});
        Scope(reading, 8, "a", "C").fill(mixedRows, end);
        std::string paths;
        for (const Field& field : reading.fields) {
            paths += field.path + ' ' + std::to_string(field.where.front().count) + ' ';
        }
        return paths;
    };
    EXPECT_EQ(pathsUpTo(0), "");
    EXPECT_EQ(pathsUpTo(1), "a.rest 1 ");
    EXPECT_EQ(pathsUpTo(2), "a.low 1 a.high 1 ");
    EXPECT_EQ(pathsUpTo(3), "a.low 1 a.high 1 a.last 1 ");
    EXPECT_EQ(pathsUpTo(4), "a.low 1 a.high 1 a.last 1 a.rest 1 ");
}

} // namespace
} // namespace wb::fields
