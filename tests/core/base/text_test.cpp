#include "core/base/text.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>

#include "core/base/failure.h"

namespace wb {
namespace {

TEST(Text, JoinsTextsInTheRoomThatThereIs) {
    EXPECT_EQ(joined({}), "");
    EXPECT_EQ(joined({"a", "", "bc"}), "abc");
    std::string target(100, 'x');
    const auto room = target.capacity();
    join(target, {"one ", "two"});
    EXPECT_EQ(target, "one two");
    EXPECT_EQ(target.capacity(), room);
}

TEST(Text, AddsTextsOfAnySizeBehindWhatIsThere) {
    const std::string letters = "abcdefghijklmnopqrstuvwxyz";
    std::string pieces;
    std::string whole = "<";
    for (std::size_t size = 0; size <= letters.size(); ++size) {
        append(whole, {letters.substr(0, size), "|"});
        pieces += letters.substr(0, size) + "|";
    }
    EXPECT_EQ(whole, "<" + pieces);
    const std::string large(3000, 'x');
    std::string target = "a";
    append(target, {"b", large, "c", std::string(1023, 'd'), "e", std::string(1024, 'f'), "g"});
    EXPECT_EQ(target, "ab" + large + "c" + std::string(1023, 'd') + "e" + std::string(1024, 'f') + "g");
}

TEST(Text, BlanksAreAsManyAsAreMissing) {
    EXPECT_EQ(blanks(-1), "");
    EXPECT_EQ(blanks(3), "   ");
    EXPECT_EQ(blanks(129).size(), 128U) << "no more than there are";
    EXPECT_EQ(padding("ab", 4), "  ");
    EXPECT_EQ(padding("abcd", 4), "");
    EXPECT_EQ(padding("abcde", 4), "");
}

TEST(Text, PaddingNeverCuts) {
    EXPECT_EQ(PadRight("ab", 4), "ab  ");
    EXPECT_EQ(PadRight("abcd", 3), "abcd");
    EXPECT_EQ(PadLeft("ab", 4), "  ab");
    EXPECT_EQ(PadLeft("abcd", 3), "abcd");
}

TEST(Text, RepeatAndIndent) {
    EXPECT_EQ(RepeatText("ab", 3), "ababab");
    EXPECT_EQ(RepeatText("ab", 0), "");
    EXPECT_EQ(RepeatText("ab", -1), "");
    EXPECT_EQ(IndentText("x", 2), "  x");
    EXPECT_EQ(IndentText("x", -2), "x");
}

TEST(Text, CenterRoundsHalvesToEven) {
    EXPECT_EQ(CenterText("x\r\n", 70), std::string(34, ' ') + "x\r\n");
    EXPECT_EQ(CenterText(std::string(25, 'x'), 70), std::string(22, ' ') + std::string(25, 'x'));
    EXPECT_EQ(CenterText(std::string(23, 'x'), 70), std::string(24, ' ') + std::string(23, 'x'));
}

TEST(Text, CenterLosesWhatDoesNotFit) {
    EXPECT_EQ(CenterText("", 70), "");
    EXPECT_EQ(CenterText("\r\n", 70), "");
    EXPECT_EQ(CenterText(std::string(70, 'x'), 70), "");
    EXPECT_EQ(CenterText(std::string(69, 'x') + "\r\n", 70), std::string(69, 'x') + "\r\n") << "0.5 rounds to 0";
    EXPECT_EQ(CenterText(std::string(70, 'x') + "\r\n", 70), "");
}

TEST(Text, CenterCountsTwoCharactersLessForALineEndAnywhere) {
    // "a CR LF bc": the last two characters, whatever they are, do not count.
    EXPECT_EQ(CenterText("a\r\nbc", 9), "   a\r\nbc");
}

TEST(Text, StripTrailingCrLfTakesOneAway) {
    EXPECT_EQ(StripTrailingCrLf("a\r\n\r\n"), "a\r\n");
    EXPECT_EQ(StripTrailingCrLf("a\n"), "a\n");
    EXPECT_EQ(StripTrailingCrLf("\r\n"), "");
}

TEST(Text, HexDigitValueNeverRejects) {
    EXPECT_EQ(HexDigitValue(""), 0);
    EXPECT_EQ(HexDigitValue("7"), 7);
    EXPECT_EQ(HexDigitValue("a"), 10);
    EXPECT_EQ(HexDigitValue("F"), 15);
    EXPECT_EQ(HexDigitValue("G"), 23);
    EXPECT_EQ(HexDigitValue(" "), -16);
    EXPECT_EQ(HexDigitValue("AB"), 17);
    EXPECT_EQ(HexDigitValue("ab"), 49);
}

TEST(Text, ByteToHex2NeitherPadsNorCutsBeyondTwoDigits) {
    EXPECT_EQ(ByteToHex2(0), "00");
    EXPECT_EQ(ByteToHex2(10), "0A");
    EXPECT_EQ(ByteToHex2(255), "FF");
    EXPECT_EQ(ByteToHex2(256), "100");
    EXPECT_EQ(ByteToHex2(-1), "FFFF");
    EXPECT_THROW(ByteToHex2(32768), Failure);
}

TEST(Text, TheTextOfAByteIsThatOfItsNumber) {
    for (int byte = 0; byte < 256; ++byte) {
        std::array<char, 3> digits{};
        std::snprintf(digits.data(), digits.size(), "%02X", static_cast<unsigned>(byte));
        EXPECT_EQ(byteText(byte), digits.data());
        EXPECT_EQ(ByteToHex2(byte), digits.data());
    }
}

TEST(Text, HexToBinaryTextKnowsUpperCaseOnly) {
    EXPECT_EQ(binaryDigitsOf('A'), "1010");
    EXPECT_EQ(binaryDigitsOf('a'), "");
    EXPECT_EQ(HexToBinaryText("1F"), "00011111");
    EXPECT_EQ(HexToBinaryText("aF"), "1111");
    EXPECT_EQ(HexToBinaryText("G "), "");
}

TEST(Text, QuotedEscapesAllButBlankToTilde) {
    EXPECT_EQ(quoted("a\"b\\c\r\n\t\x01\xFF~ "), R"("a\"b\\c\r\n\t\x01\xFF~ ")");
}

TEST(Text, ACitationStandsAsItIs) {
    EXPECT_EQ(inQuotes("a'b\n"), "'a'b\n'");
    EXPECT_EQ(inQuotes(""), "''");
}

TEST(Text, UpperCaseIsThatOfTheLettersAToZ) {
    EXPECT_EQ(upperCase("aZ\xE4"), "AZ\xE4");
}

} // namespace
} // namespace wb
