#include "fields/reading.h"

#include <gtest/gtest.h>

#include "extension_image.h"
#include "good_image.h"

namespace wb::fields {
namespace {

/// The content of an image, as read from its first `count` bytes alone, `missing` standing for the others.
Reading readUpTo(const Image& image, std::size_t count, char missing) {
    std::string bytes = image.content().substr(0, count);
    bytes.resize(image.bytes().size(), missing);
    return read(*Image::fromBytes(bytes));
}

Image twoBlocks() {
    ImageOf image(2);
    for (std::size_t i = 128; i < 255; ++i) {
        image.set(i, {0x5A});
    }
    return image.withSums().image();
}

TEST(Reading, TellsOfReadsThatEndedEarly) {
    const Image image = twoBlocks();
    for (const char missing : {'\0', '\xFF'}) {
        for (const std::size_t count : {129U, 200U, 240U}) {
            SCOPED_TRACE(count);
            const Reading reading = readUpTo(image, count, missing);
            ASSERT_EQ(countOf(reading, "image.ended_early"), 1U);
            for (const Finding& finding : reading.findings) {
                if (finding.code == "image.ended_early") {
                    EXPECT_EQ(finding.byte, count);
                    EXPECT_EQ(finding.block, 1U);
                }
            }
        }
        // Fifteen bytes prove nothing.
        EXPECT_EQ(countOf(readUpTo(image, 241, missing), "image.ended_early"), 0U);
    }
    EXPECT_EQ(countOf(readUpTo(image, 128, '\0'), "image.ended_early"), 1U);
}

TEST(Reading, TakesTheZerosAtTheEndOfASoundBlockAsTheyAre) {
    // The other bytes sum up to 0.
    const ImageOf image = ImageOf(2).set(128, {0x02, 0x03, 0xFB}).withSums();
    ASSERT_EQ(image.reading().blocks[1].sum, Sum::Ok);
    EXPECT_EQ(countOf(image.reading(), "image.ended_early"), 0U);
}

TEST(Reading, CountsTheBlocks) {
    const Image image = twoBlocks();
    EXPECT_EQ(countOf(read(image), "image.blocks_missing") + countOf(read(image), "image.blocks_extra"), 0U);
    EXPECT_EQ(countOf(ImageOf(2).set(126, {2}).reading(), "image.blocks_missing"), 1U);
    EXPECT_EQ(countOf(ImageOf(2).set(126, {0}).reading(), "image.blocks_extra"), 1U);
}

TEST(Reading, TellsOfBytesAfterTheLastBlock) {
    const std::string bytes = goodImage().image().content();
    EXPECT_EQ(countOf(read(*Image::fromBytes(bytes + "x")), "image.left_over"), 1U);
    EXPECT_EQ(countOf(read(*Image::fromBytes(bytes)), "image.left_over"), 0U);
}

TEST(Reading, TellsOfEachWrongSum) {
    EXPECT_EQ(countOf(ImageOf(2).set(20, {1}).set(128, {1}).reading(), "block.checksum"), 2U);
    EXPECT_EQ(countOf(ImageOf(2).withSums().reading(), "block.checksum"), 0U);
    EXPECT_TRUE(ImageOf(2).withSums().reading().summary.sumsOk);
    EXPECT_FALSE(ImageOf(2).withSums().set(128, {1}).reading().summary.sumsOk);
}

std::vector<std::string> identifyingPaths(const Reading& reading) {
    std::vector<std::string> paths;
    for (const Field& field : reading.fields) {
        if (field.identifies) {
            paths.push_back(field.path);
        }
    }
    return paths;
}

TEST(Reading, MarksTheFieldsThatTellOneUnitFromTheOthersOfItsModel) {
    using Paths = std::vector<std::string>;
    EXPECT_EQ(identifyingPaths(goodImage().reading()),
              (Paths{"base.vendor.serial_number", "base.descriptor[4].serial_text"}));
    const auto section = [](int version, std::initializer_list<int> dataBlocks) {
        Paths paths = identifyingPaths(displayIdWith(version, dataBlocks).reading());
        std::erase(paths, "base.vendor.serial_number");
        return paths;
    };
    EXPECT_EQ(section(0x12, {0x00, 0, 12, 'A', 'B', 'C', 0, 0, 1, 0, 0, 0, 12, 20, 0}),
              Paths{"displayid[1].product.serial"});
    EXPECT_EQ(section(0x20, {0x20, 0, 12, 0, 0x0C, 3, 0, 0, 1, 0, 0, 0, 12, 20, 0}),
              Paths{"displayid[1].product.serial"});
    EXPECT_EQ(section(0x12, {0x0A, 0, 2, 'A', '1'}), Paths{"displayid[1].serial.serial_text"});
    EXPECT_EQ(section(0x12, {0x12, 0, 22, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 'A', 'B', 'C', 0, 0, 1, 0, 0, 0}),
              Paths{"displayid[1].tiled.serial"});
    EXPECT_EQ(section(0x20, {0x29, 0, 16, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16}),
              Paths{"displayid[1].container.id"});
}

} // namespace
} // namespace wb::fields
