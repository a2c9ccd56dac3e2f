#include "core/base/json_writer.h"

#include <gtest/gtest.h>

#include <limits>

namespace wb {
namespace {

TEST(JsonWriter, PutsCommasBetweenMembersAndElements) {
    JsonWriter json;
    json.beginObject().member("a", 1).key("b").beginArray().value(true).null().beginObject().endObject().endArray();
    json.member("c", std::optional<int>()).endObject();
    EXPECT_EQ(json.text(), R"({"a":1,"b":[true,null,{}],"c":null})");
}

TEST(JsonWriter, EscapesWhatATextMayNotHold) {
    JsonWriter json;
    json.value(std::string("a\"b\\c\nd\te\x1B\x7F\0", 12) + "\xC3\xBC");
    EXPECT_EQ(json.text(), "\"a\\\"b\\\\c\\nd\\te\\u001b\\u007f\\u0000\xC3\xBC\"");
}

TEST(JsonWriter, ReplacesWhatIsNoUtf8) {
    JsonWriter json;
    json.value(
        "a\xFC"
        "b\xE2\x82");
    EXPECT_EQ(json.text(),
              "\"a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD\xEF\xBF\xBD\"");
}

TEST(JsonWriter, WritesNumbersInTheFewestDigits) {
    JsonWriter json;
    json.beginArray().value(0.1).value(148.5).value(-3).value(std::numeric_limits<double>::infinity()).endArray();
    EXPECT_EQ(json.text(), "[0.1,148.5,-3,null]");
}

TEST(JsonWriter, KeepsTheOrderOfPiecesOfAnySize) {
    JsonWriter json;
    std::string expected = "[";
    json.beginArray();
    for (std::size_t size = 0; size < 2200; size += 37) {
        json.value(std::string(size, 'x')).value(size);
        expected += (size == 0 ? "\"" : ",\"") + std::string(size, 'x') + "\"," + std::to_string(size);
        EXPECT_EQ(json.text(), expected) << "up to here";
    }
    json.endArray();
    EXPECT_EQ(std::move(json).text(), expected + "]");
}

} // namespace
} // namespace wb
