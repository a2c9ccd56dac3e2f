#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "extension_image.h"

namespace wb::fields {
namespace {

using testing::HasSubstr;

/// 1920 x 1080 at 148.5 MHz of 2200 x 1125, in units of 10 kHz: 14850 - 1 = 0x3A01.
constexpr std::initializer_list<int> typeI = {0x03, 0x00, 20,   0x01, 0x3A, 0x00, 0x84, 0x7F, 0x07, 0x17, 0x01, 0x57,
                                              0x80, 0x2B, 0x00, 0x37, 0x04, 0x2C, 0x00, 0x03, 0x80, 0x04, 0x00};

TEST(DisplayId, ReadsHeaderAndSection) {
    const Reading reading = displayIdWith(0x12, typeI).reading();
    EXPECT_EQ(textOf(reading, "displayid[1].header.version"), "1.2");
    EXPECT_EQ(textOf(reading, "displayid[1].header.length"), "23");
    EXPECT_EQ(textOf(reading, "displayid[1].header.product_type"), "standalone display");
    EXPECT_EQ(textOf(displayIdWith(0x20, typeI).reading(), "displayid[1].header.primary_use"), "television");
    EXPECT_EQ(fieldOf(reading, "displayid[1].section_checksum").where.front().byte, 156U);
    EXPECT_EQ(fieldOf(reading, "displayid[1].padding").where.front().byte, 157U);
    EXPECT_EQ(textOf(reading, "displayid[1].data_block[1].tag"), "3 (type I detailed timings)");
}

TEST(DisplayId, ReadsTimings) {
    const Reading reading = displayIdWith(0x12, typeI).reading();
    const std::string timing = "displayid[1].type_i.timing[1].";
    EXPECT_EQ(textOf(reading, timing + "pixel_clock"), "148.500 MHz");
    EXPECT_EQ(textOf(reading, timing + "preferred"), "yes");
    EXPECT_EQ(textOf(reading, timing + "aspect_ratio"), "16:9");
    EXPECT_EQ(textOf(reading, timing + "h_blank"), "280 px");
    EXPECT_EQ(textOf(reading, timing + "v_sync_width"), "5 px");
    EXPECT_EQ(textOf(reading, timing + "h_sync_polarity"), "positive");
    ASSERT_EQ(reading.summary.modes.size(), 1U);
    EXPECT_EQ(reading.summary.modes[0].height, 1080);
    EXPECT_EQ(reading.summary.modes[0].refreshMilliHertz, 60000);
    EXPECT_EQ(reading.summary.modes[0].pixelClockKilohertz, 148500);
    EXPECT_TRUE(reading.summary.modes[0].native);
}

TEST(DisplayId, CountsTheFieldsOfInterlacedTimings) {
    // 1920 x 1080 at 74.25 MHz of 2200 x 1125: 7425 - 1 = 0x1D00.
    const Reading reading = displayIdWith(0x12, typeI).set(136, {0x00, 0x1D, 0x00, 0x14}).reading();
    EXPECT_EQ(textOf(reading, "displayid[1].type_i.timing[1].interlaced"), "yes");
    EXPECT_EQ(modesOf(reading), Modes{"1920x1080i@60000"});
    EXPECT_EQ(reading.summary.modes.at(0).verticalTotal, 1125);
}

TEST(DisplayId, ReadsProducts) {
    const Reading first =
        displayIdWith(0x12, {0x00, 0, 15, 'A', 'B', 'C', 0x34, 0x12, 0x01, 0x02, 0x00, 0x00, 12, 20, 3, 'X', 'y', '1'})
            .reading();
    EXPECT_EQ(textOf(first, "displayid[1].product.vendor"), "ABC");
    EXPECT_EQ(textOf(first, "displayid[1].product.code"), "4660");
    EXPECT_EQ(textOf(first, "displayid[1].product.serial"), "513");
    EXPECT_EQ(textOf(first, "displayid[1].product.week"), "12");
    EXPECT_EQ(textOf(first, "displayid[1].product.year"), "2020");
    EXPECT_EQ(textOf(first, "displayid[1].product.name"), "Xy1");
    const Reading second =
        displayIdWith(0x20, {0x20, 0, 13, 0x00, 0x0C, 0x03, 1, 0, 0, 0, 0, 0, 0xFF, 21, 1, 'Q'}).reading();
    EXPECT_EQ(textOf(second, "displayid[1].product.vendor"), "00-0C-03");
    EXPECT_EQ(textOf(second, "displayid[1].product.week"), "none, the year is that of the model");
    EXPECT_EQ(textOf(second, "displayid[1].product.name"), "Q");
}

TEST(DisplayId, ReadsTheDisplayThatATileBelongsTo) {
    const Reading first = displayIdWith(0x12, {0x12, 0, 22, 0x82, 0x10, 0x00, 0x00, 0x7F, 0x07, 0x6F, 0x08, 0,   0,
                                               0,    0, 0,  'A',  'B',  'C',  0x34, 0x12, 0x01, 0x02, 0x03, 0x04})
                              .reading();
    EXPECT_EQ(textOf(first, "displayid[1].tiled.arrangement"), "82 10 00 00 7F 07 6F 08 00 00 00 00 00");
    EXPECT_EQ(textOf(first, "displayid[1].tiled.vendor"), "ABC");
    EXPECT_EQ(textOf(first, "displayid[1].tiled.code"), "4660");
    EXPECT_EQ(textOf(first, "displayid[1].tiled.serial"), "67305985");
    const Reading cut =
        displayIdWith(0x20, {0x28, 0, 20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0x0C, 3, 1, 0, 0x11, 0x22})
            .reading();
    EXPECT_EQ(textOf(cut, "displayid[1].tiled.vendor"), "00-0C-03");
    EXPECT_EQ(textOf(cut, "displayid[1].tiled.rest"), "11 22");
}

TEST(DisplayId, ReadsDataBlocksOfCta861) {
    const Reading reading = displayIdWith(0x13, {0x81, 0, 4, 0x23, 0x09, 0x07, 0x07}).reading();
    EXPECT_EQ(textOf(reading, "displayid[1].cta.audio[1].format"), "L-PCM");
    ASSERT_EQ(reading.summary.audio.size(), 1U);
}

TEST(DisplayId, KeepsOtherDataBlocksInRawBytes) {
    const Reading reading = displayIdWith(0x20, {0x2B, 0, 2, 0xAB, 0xCD, 0x2B, 0, 1, 0xEF}).reading();
    EXPECT_EQ(textOf(reading, "displayid[1].data_block[1].tag"), "43 (adaptive sync)");
    EXPECT_EQ(textOf(reading, "displayid[1].adaptive_sync.bytes"), "AB CD");
    EXPECT_EQ(textOf(reading, "displayid[1].adaptive_sync[2].bytes"), "EF");
}

TEST(DisplayId, ReadsSerialNumbersThatAreTexts) {
    const Reading reading = displayIdWith(0x12, {0x0A, 0, 5, 'S', 'N', '-', '4', '2', 0x0A, 0, 0}).reading();
    EXPECT_EQ(textOf(reading, "displayid[1].serial.serial_text"), "SN-42");
    EXPECT_EQ(std::get<std::string>(fieldOf(reading, "displayid[1].serial.serial_text").value), "SN-42");
    EXPECT_EQ(fieldOf(reading, "displayid[1].serial.serial_text").label, "Product serial number");
    EXPECT_FALSE(hasField(reading, "displayid[1].serial[2].serial_text"));
}

TEST(DisplayId, ReadsContainerIdsInTheOrderOfTheirBytes) {
    const std::string id = "displayid[1].container.id";
    const Reading whole = displayIdWith(0x20, {0x29, 0,    17,   0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 0x66,
                                               0x77, 0x88, 0x99, 0xAA, 0xBB, 0xCC, 0xDD, 0xEE, 0xFF, 0x01})
                              .reading();
    EXPECT_EQ(textOf(whole, id), "00112233-4455-6677-8899-AABBCCDDEEFF");
    EXPECT_EQ(std::get<std::string>(fieldOf(whole, id).value), "00112233-4455-6677-8899-AABBCCDDEEFF");
    EXPECT_EQ(textOf(whole, "displayid[1].container.rest"), "01");
    const Reading cut = displayIdWith(0x20, {0x29, 0, 2, 0xAB, 0xCD}).reading();
    EXPECT_EQ(textOf(cut, id), "AB CD");
    EXPECT_TRUE(std::holds_alternative<std::monostate>(fieldOf(cut, id).value));
    EXPECT_TRUE(fieldOf(cut, id).identifies);
}

TEST(DisplayId, KnowsTheDataBlocksOfTheStandards) {
    const std::map<int, std::string> labels = {{0x00, "product identification"},
                                               {0x01, "display parameters"},
                                               {0x02, "color characteristics"},
                                               {0x03, "type I detailed timings"},
                                               {0x04, "type II detailed timings"},
                                               {0x05, "type III short timings"},
                                               {0x06, "type IV timing codes"},
                                               {0x07, "VESA timing standard"},
                                               {0x08, "CTA timing standard"},
                                               {0x09, "video timing range"},
                                               {0x0A, "product serial number"},
                                               {0x0B, "general purpose text"},
                                               {0x0C, "display device data"},
                                               {0x0D, "interface power sequencing"},
                                               {0x0E, "transfer characteristics"},
                                               {0x0F, "display interface"},
                                               {0x10, "stereo display interface"},
                                               {0x11, "type V short timings"},
                                               {0x12, "tiled display topology"},
                                               {0x13, "type VI detailed timings"},
                                               {0x20, "product identification"},
                                               {0x21, "display parameters"},
                                               {0x22, "type VII detailed timings"},
                                               {0x23, "type VIII timing codes"},
                                               {0x24, "type IX formula-based timings"},
                                               {0x25, "dynamic video timing range"},
                                               {0x26, "display interface features"},
                                               {0x27, "stereo display interface"},
                                               {0x28, "tiled display topology"},
                                               {0x29, "container identification"},
                                               {0x2A, "type X formula-based timings"},
                                               {0x2B, "adaptive sync"},
                                               {0x7E, "vendor-specific data"},
                                               {0x7F, "vendor-specific data"},
                                               {0x81, "CTA-861 data blocks"}};
    const std::map<int, int> leastBytes = {{0x00, 12}, {0x03, 20}, {0x20, 12}, {0x22, 20},
                                           {0x12, 22}, {0x28, 22}, {0x29, 16}};
    for (int tag = 0; tag < 256; ++tag) {
        SCOPED_TRACE(tag);
        const auto least = leastBytes.find(tag);
        const int bytes = least == leastBytes.end() ? 0 : least->second;
        // A revision, so that an empty one is no padding.
        const auto withBytes = [&](int count) {
            return displayIdWith(0x20, {tag, 1, count}).set(130, {3 + count}).reading();
        };
        const Reading reading = withBytes(bytes);
        const auto label = labels.find(tag);
        EXPECT_EQ(textOf(reading, "displayid[1].data_block[1].tag"),
                  std::to_string(tag) + " (" +
                      (label == labels.end() ? "data block with a reserved tag" : label->second) + ")");
        EXPECT_EQ(countOf(reading, "displayid.data_block_reserved"), label == labels.end() ? 1U : 0U);
        EXPECT_EQ(countOf(reading, "displayid.data_block_short"), 0U);
        if (bytes > 0) {
            EXPECT_EQ(countOf(withBytes(bytes - 1), "displayid.data_block_short"), 1U);
        }
    }
}

TEST(DisplayIdFindings, TellOfTheSection) {
    const auto section = [] { return displayIdWith(0x12, typeI); };
    EXPECT_EQ(countOf(section().reading(), "displayid.section_checksum"), 0U);
    EXPECT_EQ(findingOf(section().set(140, {0x55}).reading(), "displayid.section_checksum").byte, 156U);
    EXPECT_EQ(countOf(section().set(129, {0x30}).reading(), "displayid.version"), 1U);
    EXPECT_EQ(countOf(section().set(129, {0x20}).reading(), "displayid.version"), 0U);
    EXPECT_EQ(countOf(section().set(130, {122}).reading(), "displayid.section_length"), 1U);
    EXPECT_EQ(countOf(section().set(130, {121}).reading(), "displayid.section_length"), 0U);
    EXPECT_EQ(findingOf(section().set(254, {1}).reading(), "displayid.padding_not_zero").byte, 254U);
    EXPECT_EQ(countOf(section().set(255, {1}).reading(), "displayid.padding_not_zero"), 0U);
}

TEST(DisplayIdFindings, TellOfDataBlocks) {
    const Reading over = displayIdWith(0x12, {0x29, 0, 4, 1, 2}).reading();
    EXPECT_THAT(findingOf(over, "displayid.data_block_over").text,
                HasSubstr("container identification at byte 133 takes 7 bytes and runs 2 over"));
    EXPECT_EQ(countOf(displayIdWith(0x12, {0x29, 0, 2, 1, 2}).reading(), "displayid.data_block_over"), 0U);
    EXPECT_THAT(findingOf(displayIdWith(0x12, {0x03, 0, 2, 1, 2}).reading(), "displayid.data_block_short").text,
                HasSubstr("at byte 133 has 2 of at least 20 bytes of content, so that"));
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).reading(), "displayid.data_block_short"), 0U);
    EXPECT_EQ(countOf(displayIdWith(0x12, {0x03, 0, 2, 1, 2}).reading(), "displayid.timing_incomplete"), 1U);
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).reading(), "displayid.timing_incomplete"), 0U);
    EXPECT_EQ(countOf(displayIdWith(0x12, {0x60, 0, 0}).reading(), "displayid.data_block_reserved"), 1U);
    EXPECT_EQ(countOf(displayIdWith(0x12, {0x29, 0, 0}).reading(), "displayid.data_block_reserved"), 0U);
}

TEST(DisplayIdFindings, TellOfSyncBeyondTheBlanking) {
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).reading(), "timing.h_sync_beyond_blanking"), 0U);
    // Front porch 88 and sync 193 of 280, then 192.
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).set(146, {0xC0}).reading(), "timing.h_sync_beyond_blanking"), 1U);
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).set(146, {0xBF}).reading(), "timing.h_sync_beyond_blanking"), 0U);
    // Front porch 4 and sync 42 of 45, then 41.
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).set(154, {41}).reading(), "timing.v_sync_beyond_blanking"), 1U);
    EXPECT_EQ(countOf(displayIdWith(0x12, typeI).set(154, {40}).reading(), "timing.v_sync_beyond_blanking"), 0U);
}

} // namespace
} // namespace wb::fields
