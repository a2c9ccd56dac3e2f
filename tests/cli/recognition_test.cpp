#include "cli/recognition.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

const std::string header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);

std::string repeated(const std::string& text, int count) {
    std::string result;
    for (int i = 0; i < count; ++i) {
        result += text;
    }
    return result;
}

TEST(Recognition, DataFilesByTheirMarker) {
    EXPECT_EQ(recognise("x\r\n128 bytes of EDID Code:\r\n").kind, ContentKind::DataFile);
    EXPECT_EQ(recognise("\xFF\x01 128 BYTES OF EDID CODE:").kind, ContentKind::DataFile);
    EXPECT_EQ(recognise("128 BYTES OF EDID CODE").kind, ContentKind::Nothing);
    EXPECT_EQ(recognise("128 BYTES  OF EDID CODE:").kind, ContentKind::Nothing);
}

TEST(Recognition, HexadecimalTexts) {
    for (const std::string pair : {"0aF9", "0A F9 ", "0a,f9,", "0x0A, 0xf9,\r\n", "0X0af9\t", "0\tA\nF\n9"}) {
        const Content content = recognise(repeated(pair, 64));
        EXPECT_EQ(content.kind, ContentKind::HexText) << pair;
        EXPECT_EQ(content.image, repeated("\x0A\xF9", 64)) << pair;
    }
}

TEST(Recognition, HexadecimalTextsHaveAtLeast128WholePairs) {
    EXPECT_EQ(recognise(repeated("AB ", 127)).kind, ContentKind::Nothing);
    EXPECT_EQ(recognise(repeated("AB ", 128) + "C").kind, ContentKind::Nothing);
    EXPECT_EQ(recognise(repeated("AB ", 129)).kind, ContentKind::HexText);
}

TEST(Recognition, OtherCharactersMakeNoHexadecimalText) {
    for (const std::string tail : {"G", "0x", "0x1", "x", "AB 0x1 2", ";", "A 0xBC D"}) {
        EXPECT_EQ(recognise(repeated("AB ", 128) + tail).kind, ContentKind::Nothing) << tail;
    }
}

TEST(Recognition, BinaryImagesByTheirHeader) {
    EXPECT_EQ(recognise(header + std::string(120, 'a')).kind, ContentKind::Binary);
    EXPECT_EQ(recognise(header + std::string(123, 'a')).kind, ContentKind::Binary);
    EXPECT_EQ(recognise(header + std::string(119, 'a')).kind, ContentKind::Nothing);
    EXPECT_EQ(recognise(header).kind, ContentKind::Nothing);
}

TEST(Recognition, BinaryImagesByTheirLength) {
    for (const char odd : {'\0', '\x01', '\x1B', '\x7F', '\x80', '\xFF'}) {
        EXPECT_EQ(recognise(std::string(255, 'z') + odd).kind, ContentKind::Binary) << int(odd);
        EXPECT_EQ(recognise(std::string(256, 'z') + odd).kind, ContentKind::Nothing) << int(odd);
    }
    EXPECT_EQ(recognise(std::string(128, 'z')).kind, ContentKind::Nothing);
    EXPECT_EQ(recognise(std::string(124, 'z') + "\t\r\n\f").kind, ContentKind::Nothing);
    const std::string image = std::string(127, 'z') + '\0';
    EXPECT_EQ(recognise(image).image, image);
}

TEST(Recognition, NothingInAnEmptyFile) {
    EXPECT_EQ(recognise("").kind, ContentKind::Nothing);
}

} // namespace
} // namespace wb::cli
