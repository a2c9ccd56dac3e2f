#include "core/base/code_page.h"

#include <gtest/gtest.h>

#include <map>

namespace wb {
namespace {

/// The codes from 128 to 159 as Unicode's table of Windows code page 1252 lists them.
constexpr std::u16string_view upperControls =
    u"\u20AC\x0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\x008D\u017D\x008F"
    u"\x0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A\u0153\x009D\u017E\u0178";

char16_t characterOf(int code) {
    return code >= 128 && code < 160 ? upperControls[static_cast<std::size_t>(code - 128)]
                                     : static_cast<char16_t>(code);
}

TEST(CodePage, KnowsTheCharacterOfEveryCode) {
    ASSERT_EQ(upperControls.size(), 32U);
    for (int code = 0; code < 256; ++code) {
        EXPECT_EQ(codePageToUnicode(static_cast<char>(code)), characterOf(code)) << code;
    }
}

TEST(CodePage, KnowsTheCodeOfEveryCharacterThatHasOne) {
    std::map<char32_t, char> codes;
    for (int code = 0; code < 256; ++code) {
        codes[characterOf(code)] = static_cast<char>(code);
    }
    for (char32_t character = 0; character < 0x10010; ++character) {
        const auto code = codes.find(character);
        ASSERT_EQ(unicodeToCodePage(character), code == codes.end() ? std::nullopt : std::optional(code->second))
            << static_cast<unsigned>(character);
    }
}

TEST(CodePage, WritesUtf8ThatReadsBack) {
    for (int code = 0; code < 256; ++code) {
        const std::string text = {'a', static_cast<char>(code), 'b'};
        EXPECT_EQ(decodeTextFile(codePageToUtf8(text)), text) << code;
    }
    EXPECT_EQ(codePageToUtf8("a\x80\xE4\x83"), "a\xE2\x82\xAC\xC3\xA4\xC6\x92"); // 20AC, E4, 192
}

TEST(CodePage, TellsTheLengthOfUtf8Sequences) {
    struct Case {
        std::string_view bytes;
        std::size_t length;
    };
    using namespace std::string_view_literals;
    for (const Case& tried :
         {Case{""sv, 0}, Case{"\0"sv, 1}, Case{"\x7F"sv, 1}, Case{"\xC2\x80"sv, 2}, Case{"\xDF\xBF"sv, 2},
          Case{"\xE0\xA0\x80"sv, 3}, Case{"\xED\x9F\xBF"sv, 3}, Case{"\xEE\x80\x80"sv, 3}, Case{"\xEF\xBF\xBF"sv, 3},
          Case{"\xF0\x90\x80\x80"sv, 4}, Case{"\xF4\x8F\xBF\xBF"sv, 4}}) {
        EXPECT_EQ(utf8SequenceLength(tried.bytes), tried.length) << testing::PrintToString(tried.bytes);
        EXPECT_EQ(utf8SequenceLength(std::string(tried.bytes) + "\x80"), tried.length);
        EXPECT_EQ(utf8SequenceLength(tried.bytes.substr(0, tried.length - 1)), 0U) << "cut off";
    }
    // Bytes that begin none, the longest forms that are too long, surrogates, what is above 10FFFF, and other bytes
    // inside.
    for (const std::string_view bytes :
         {"\x80"sv, "\xBF"sv, "\xC0\x80"sv, "\xC1\xBF"sv, "\xE0\x9F\xBF"sv, "\xF0\x8F\xBF\xBF"sv, "\xED\xA0\x80"sv,
          "\xED\xBF\xBF"sv, "\xF4\x90\x80\x80"sv, "\xF5\x80\x80\x80"sv, "\xFF"sv, "\xC2\x7F"sv, "\xC2\xC0"sv,
          "\xE1\x80\x7F"sv, "\xF1\x80\x80\xC0"sv}) {
        EXPECT_EQ(utf8SequenceLength(bytes), 0U) << testing::PrintToString(bytes);
    }
}

TEST(CodePage, TakesPairsOfSurrogatesForOneCharacter) {
    const auto decoded = [](const std::u16string& units) {
        std::string bytes;
        for (const char16_t unit : units) {
            bytes += static_cast<char>(unit & 0xFFU);
            bytes += static_cast<char>(unit >> 8U);
        }
        return fromUtf16(bytes);
    };
    for (const char16_t lead : {u'\xD800', u'\xDBFF'}) {
        for (const char16_t trail : {u'\xDC00', u'\xDFFF'}) {
            EXPECT_EQ(decoded({lead, trail, u'a'}), "?a");
            EXPECT_EQ(decoded({lead, trail}), "?");
        }
        for (const char16_t other : {u'\xDBFE', u'\xE000'}) {
            EXPECT_EQ(decoded({lead, other, u'a'}), "??a");
        }
        EXPECT_EQ(decoded({lead, u'a'}), "?a");
        EXPECT_EQ(decoded({lead}), "?");
    }
    for (const char16_t other : {u'\xD7FF', u'\xDC00', u'\xE000'}) {
        EXPECT_EQ(decoded({other, u'\xDC00', u'a'}), "??a");
    }
}

TEST(CodePage, DecodesUtf8WithAndWithoutMark) {
    // The euro sign has code 80 hexadecimal in the code page, the registered mark AE as in Unicode.
    EXPECT_EQ(decodeTextFile("a\xE2\x82\xAC\xC2\xAE"), "a\x80\xAE");
    EXPECT_EQ(decodeTextFile("\xEF\xBB\xBF"
                             "a\xC3\xBC"),
              "a\xFC");
}

TEST(CodePage, DecodesUtf16OfBothByteOrders) {
    EXPECT_EQ(decodeTextFile(std::string("\xFF\xFE"
                                         "a\0\xAC\x20\xFC\0",
                                         8)),
              "a\x80\xFC");
    EXPECT_EQ(decodeTextFile(std::string("\xFE\xFF\0a\x20\xAC\0\xFC", 8)), "a\x80\xFC");
}

TEST(CodePage, TakesBytesThatAreNoUtf8AsTheyStand) {
    for (const char* bytes :
         {"\xFC", "a\xC3", "\xC3\x28", "\xC0\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE2\x82"}) {
        EXPECT_EQ(decodeTextFile(bytes), bytes);
    }
}

TEST(CodePage, MarksCharactersThatItDoesNotHave) {
    EXPECT_EQ(decodeTextFile("\xD0\x96"), "?");
    EXPECT_EQ(decodeTextFile("\xF0\x9F\x98\x80!"), "?!");
    EXPECT_EQ(fromUtf16("\x3D\xD8\x02\xDE!\x01"), "??"); // a pair of surrogates is one character
    EXPECT_EQ(decodeTextFile("\xC2\x80"), "?");          // U+0080 is not the euro sign
    EXPECT_EQ(decodeTextFile("\xC2\x81"), "\x81");       // the holes keep their code
}

TEST(CodePage, DropsHalfACharacter) {
    EXPECT_EQ(fromUtf16(std::string("a\0b", 3)), "a");
    EXPECT_EQ(fromUtf16("a"), "");
}

} // namespace
} // namespace wb
