#include <gtest/gtest.h>

#include "good_image.h"
#include "invariants.h"

namespace wb::fields {
namespace {

/// A video timing block with one timing of each list: 5 + 18 + 3 + 2 bytes.
ImageOf blockImage() {
    ImageOf image(2);
    image.set(128, {0x10, 1, 1, 1, 1});
    setTiming(image, 133);
    return image.set(151, {0x1B, 0x24, 0x29, 0xD1, 0xC0});
}

TEST(VideoTimingBlock, TellsItsThreeLists) {
    const Reading reading = blockImage().reading();
    expectInvariants(reading);
    EXPECT_EQ(fieldOf(reading, "vtb[1].detailed[1].pixel_clock").text, "148.50 MHz");
    EXPECT_EQ(fieldOf(reading, "vtb[1].cvt[1].lines").text, "1080 px");
    EXPECT_EQ(fieldOf(reading, "vtb[1].standard[1].width").text, "1920 px");
    EXPECT_EQ(fieldOf(reading, "vtb[1].padding").where.front().count, 127U - 28U);
    ASSERT_EQ(reading.summary.modes.size(), 4U);
    EXPECT_EQ(reading.summary.modes.back().source, ModeSource::Standard);
}

TEST(VideoTimingBlock, TellsOfBytesBehindTheLists) {
    EXPECT_EQ(countOf(blockImage().set(156, {1}).reading(), "vtb.padding"), 1U);
    EXPECT_EQ(countOf(blockImage().reading(), "vtb.padding"), 0U);
}

TEST(VideoTimingBlock, TellsOfMoreTimingsThanThereIsRoomFor) {
    // 5 + 6 * 18 bytes leave 14: 4 codes of 3 bytes, and 1 standard timing.
    ImageOf image(2);
    image.set(128, {0x10, 1, 6, 4, 1});
    EXPECT_EQ(countOf(image.reading(), "vtb.overrun"), 0U);
    for (const auto& [place, count] : {std::pair(130U, 7), std::pair(131U, 5), std::pair(132U, 2)}) {
        ImageOf overfull = image;
        const Reading reading = overfull.set(place, {count}).reading();
        SCOPED_TRACE(place);
        EXPECT_GE(countOf(reading, "vtb.overrun"), 1U);
        expectInvariants(reading);
    }
}

} // namespace
} // namespace wb::fields
