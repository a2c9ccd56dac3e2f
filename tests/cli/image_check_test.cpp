#include "cli/image_check.h"

#include <gtest/gtest.h>

namespace wb::cli {
namespace {

const std::string header("\x00\xFF\xFF\xFF\xFF\xFF\xFF\x00", 8);

/// The results, the wrong ones in upper case "BAD:".
std::string textOf(const std::vector<CheckResult>& results) {
    std::string text;
    for (const CheckResult& result : results) {
        text += (result.good ? "" : "BAD: ") + result.text + '\n';
    }
    return text;
}

/// The results of the checks of whatever these bytes are.
std::vector<CheckResult> check(const std::string& bytes, std::size_t blocks) {
    return checkImage(*Image::fromBytes(bytes), blocks);
}

/// A block with the header, the extension count and a valid check sum: six times FF is 5FA hexadecimal.
std::string block0(char extensions) {
    std::string block = header + std::string(120, '\0');
    block[126] = extensions;
    block[127] = static_cast<char>(0x06 - extensions);
    return block;
}

TEST(ImageCheck, FindsNothingWrongWithAValidImage) {
    EXPECT_EQ(textOf(check(block0(0), 1)), "header ok\nlength 128 ok\ncheck sum of block 0 ok\n");
    const std::string extension = std::string("\x02\xFE", 2) + std::string(126, '\0');
    EXPECT_EQ(textOf(check(block0(1) + extension, 2)),
              "header ok\nlength 256 ok\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n");
}

TEST(ImageCheck, TellsWhatIsWrong) {
    std::string image = block0(0);
    image[3] = '\xFE';
    EXPECT_EQ(textOf(check(image, 1)), "BAD: header wrong\nlength 128 ok\nBAD: check sum of block 0 06 should be 07\n");
    EXPECT_EQ(textOf(check(block0(1), 2)), "header ok\nBAD: length 128 should be 256\ncheck sum of block 0 ok\n");
    EXPECT_EQ(textOf(check(block0(1) + std::string("\x02") + std::string(127, '\0'), 2)),
              "header ok\nlength 256 ok\ncheck sum of block 0 ok\nBAD: check sum of block 1 00 should be FE\n");
}

TEST(ImageCheck, ChecksTheSumOfEveryBlock) {
    const std::string image = block0(2) + std::string(255, '\0') + '\x01';
    EXPECT_EQ(textOf(check(image, 3)),
              "header ok\nlength 384 ok\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n"
              "BAD: check sum of block 2 01 should be 00\n");
}

TEST(ImageCheck, TellsRightSumsOfFurtherBlocksTogether) {
    std::string image = block0(5) + std::string(5 * 128, '\0');
    EXPECT_EQ(textOf(check(image, 6)),
              "header ok\nlength 768 ok\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n"
              "check sums of blocks 2 to 5 ok\n");
    image[4 * 128] = '\x01';
    EXPECT_EQ(textOf(check(image, 6)),
              "header ok\nlength 768 ok\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n"
              "check sums of blocks 2 to 3 ok\nBAD: check sum of block 4 00 should be FF\ncheck sum of block 5 ok\n");
}

TEST(ImageCheck, CountsWhatIsBehindTheLastBlock) {
    EXPECT_EQ(textOf(check(block0(0) + "ab", 1)),
              "header ok\nBAD: length 130 should be 128\ncheck sum of block 0 ok\n");
}

TEST(ImageCheck, ALengthIsAFindingWhereThePlainReadingHasNoError) {
    const auto isFinding = [](const std::string& bytes, std::size_t blocks) {
        return check(bytes, blocks)[1].finding.has_value();
    };
    EXPECT_TRUE(isFinding(block0(0) + "ab", 1));
    EXPECT_FALSE(isFinding(block0(0), 1));
    EXPECT_FALSE(isFinding(block0(1), 2)) << "a missing block";
}

TEST(ImageCheck, GoesByTheNumberOfBlocksThatItIsGiven) {
    const std::string image = block0(2) + std::string(128, '\0');
    EXPECT_EQ(textOf(check(image, 2)), "header ok\nlength 256 ok\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n");
    EXPECT_EQ(textOf(check(image, 3)),
              "header ok\nBAD: length 256 should be 384\ncheck sum of block 0 ok\ncheck sum of block 1 ok\n");
}

} // namespace
} // namespace wb::cli
