#include <gtest/gtest.h>

#include "extension_image.h"

namespace wb::fields {
namespace {

/// A map in block 1, a CTA-861 extension in block 2, DisplayID in block 3.
ImageOf mapped() {
    return ImageOf(4).set(128, {0xF0, 0x02, 0x70}).set(256, {0x02, 0x03, 4}).set(384, {0x70, 0x12});
}

TEST(BlockMap, NamesBlocks) {
    const Reading reading = mapped().reading();
    EXPECT_EQ(textOf(reading, "map[1].block[2]"), "CTA-861 extension");
    EXPECT_EQ(textOf(reading, "map[1].block[3]"), "DisplayID extension");
    EXPECT_EQ(textOf(reading, "map[1].block[4]"), "not used");
    EXPECT_EQ(fieldOf(reading, "map[1].block[127]").where.front().byte, 254U);
}

TEST(BlockMap, TellsWhatItHasWrong) {
    EXPECT_EQ(countOf(mapped().reading(), "map.tag_wrong"), 0U);
    EXPECT_EQ(findingOf(mapped().set(130, {0x02}).reading(), "map.tag_wrong").path, "map[1].block[3]");
    EXPECT_EQ(countOf(mapped().reading(), "map.block_missing"), 0U);
    EXPECT_EQ(findingOf(mapped().set(131, {0x02}).reading(), "map.block_missing").byte, 131U);
}

TEST(BlockMap, StandsInTwoPlaces) {
    EXPECT_EQ(countOf(mapped().reading(), "map.place"), 0U);
    EXPECT_EQ(countOf(mapped().set(256, {0xF0}).reading(), "map.place"), 1U);
    EXPECT_EQ(countOf(ImageOf(130).set(128, {0xF0}).set(128 * 128, {0xF0}).reading(), "map.place"), 0U);
}

TEST(BlockMap, LeadsMoreThanOneExtensionBeforeRevision4) {
    EXPECT_EQ(countOf(ImageOf(3).set(19, {3}).set(128, {0x02}).reading(), "map.missing"), 1U);
    EXPECT_EQ(countOf(ImageOf(3).set(19, {3}).set(128, {0xF0}).reading(), "map.missing"), 0U);
    EXPECT_EQ(countOf(ImageOf(3).set(19, {4}).set(128, {0x02}).reading(), "map.missing"), 0U);
    EXPECT_EQ(countOf(ImageOf(2).set(19, {3}).set(128, {0x02}).reading(), "map.missing"), 0U);
}

TEST(Extensions, OfAnUnknownTagAreTold) {
    EXPECT_EQ(countOf(ImageOf(2).set(128, {0x33}).reading(), "extension.unknown"), 1U);
    EXPECT_EQ(countOf(ImageOf(2).set(128, {0x40}).reading(), "extension.unknown"), 0U);
    EXPECT_EQ(textOf(ImageOf(2).set(128, {0x40}).reading(), "extension[1].tag"), "64");
    for (const int tag : {0xA7, 0xAF, 0xBF}) {
        const Reading transfer = ImageOf(2).set(128, {tag}).reading();
        EXPECT_EQ(countOf(transfer, "extension.unknown"), 0U);
        EXPECT_EQ(transfer.blocks.at(1).name, "display transfer characteristics extension");
    }
    EXPECT_EQ(countOf(ImageOf(2).set(128, {0xA8}).reading(), "extension.unknown"), 1U);
}

} // namespace
} // namespace wb::fields
