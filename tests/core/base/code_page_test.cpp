#include "core/base/code_page.h"

#include <gtest/gtest.h>

namespace wb {
namespace {

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
