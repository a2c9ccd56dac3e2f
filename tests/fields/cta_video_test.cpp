#include <gtest/gtest.h>

#include <cmath>

#include "extension_image.h"
#include "fields/cta_video_codes.h"

namespace wb::fields {
namespace {

TEST(VideoCodes, HaveTheFormatsOfTheStandard) {
    struct Expected {
        unsigned code;
        const char* text;
        std::int64_t clockKilohertz;
    };
    constexpr Expected table[] = {{1, "640x480 59.94 Hz 4:3", 25175},       {4, "1280x720 60 Hz 16:9", 74250},
                                  {5, "1920x1080i 60 Hz 16:9", 74250},      {6, "1440x480i 59.94 Hz 4:3", 27000},
                                  {16, "1920x1080 60 Hz 16:9", 148500},     {20, "1920x1080i 50 Hz 16:9", 74250},
                                  {31, "1920x1080 50 Hz 16:9", 148500},     {39, "1920x1080i 50 Hz 16:9", 72000},
                                  {63, "1920x1080 120 Hz 16:9", 297000},    {90, "2560x1080 60 Hz 64:27", 198000},
                                  {97, "3840x2160 60 Hz 16:9", 594000},     {102, "4096x2160 60 Hz 256:135", 594000},
                                  {127, "5120x2160 100 Hz 64:27", 1485000}, {193, "5120x2160 120 Hz 64:27", 1485000},
                                  {199, "7680x4320 60 Hz 16:9", 2376000},   {219, "4096x2160 120 Hz 256:135", 1188000}};
    for (const auto& [code, text, clock] : table) {
        ASSERT_NE(videoFormatOf(code), nullptr) << code;
        EXPECT_EQ(formatText(*videoFormatOf(code)), text) << code;
        EXPECT_EQ(videoFormatOf(code)->clockKilohertz, clock) << code;
    }
}

TEST(VideoCodes, HaveClocksAndTotalsOfTheNominalRates) {
    for (unsigned code = 1; code <= 219; ++code) {
        const VideoFormat* format = videoFormatOf(code);
        ASSERT_EQ(format == nullptr, code > 127 && code < 193) << code;
        if (format == nullptr) {
            continue;
        }
        const double hertz = static_cast<double>(*modeOf(*format, false).refreshMilliHertz) / 1000;
        bool isNominal = false;
        for (const int nominal : {24, 25, 30, 48, 50, 60, 100, 120, 200, 240}) {
            isNominal = isNominal || std::abs(hertz / nominal - 1) < 0.002;
        }
        EXPECT_TRUE(isNominal) << code << ": " << hertz;
        EXPECT_GT(format->horizontalTotal, format->width) << code;
        EXPECT_GT(format->verticalTotal, format->height) << code;
    }
}

TEST(VideoCodes, EndWhereTheyAreReserved) {
    for (const unsigned code : {0U, 128U, 192U, 220U, 255U}) {
        EXPECT_EQ(videoFormatOf(code), nullptr) << code;
    }
}

TEST(CtaVideo, ReadsTheNativeFlagOfTheCodesUpTo64Alone) {
    const Reading reading = ctaWith({0x46, 0x90, 0x10, 0xC0, 0x41, 0xC1, 0x80}).reading();
    EXPECT_EQ(textOf(reading, "cta[1].video[1].code"), "16 (1920x1080 60 Hz 16:9)");
    EXPECT_EQ(textOf(reading, "cta[1].video[1].native"), "yes");
    EXPECT_EQ(textOf(reading, "cta[1].video[2].code"), "16 (1920x1080 60 Hz 16:9)");
    EXPECT_EQ(textOf(reading, "cta[1].video[2].native"), "no");
    EXPECT_EQ(textOf(reading, "cta[1].video[3].code"), "64 (1920x1080 100 Hz 16:9)");
    EXPECT_EQ(textOf(reading, "cta[1].video[3].native"), "yes");
    EXPECT_EQ(textOf(reading, "cta[1].video[4].code"), "65 (1280x720 24 Hz 64:27)");
    EXPECT_FALSE(hasField(reading, "cta[1].video[4].native"));
    EXPECT_EQ(textOf(reading, "cta[1].video[5].code"), "193 (5120x2160 120 Hz 64:27)");
    EXPECT_FALSE(hasField(reading, "cta[1].video[5].native"));
    EXPECT_EQ(textOf(reading, "cta[1].video[6].code"), "128 (reserved)");
    ASSERT_EQ(reading.summary.modes.size(), 5U);
    EXPECT_TRUE(reading.summary.modes[0].native);
    EXPECT_FALSE(reading.summary.modes[1].native);
    EXPECT_EQ(reading.summary.modes[4].width, 5120);
    EXPECT_EQ(reading.summary.modes[4].refreshMilliHertz, 120000);
    EXPECT_EQ(reading.summary.modes[4].source, ModeSource::Video);
}

TEST(CtaVideo, GoesOnCountingInTheNextDataBlock) {
    const Reading reading = ctaWith({0x42, 1, 2, 0x23, 0x09, 0x07, 0x07, 0x41, 3}).reading();
    EXPECT_EQ(std::get<std::int64_t>(fieldOf(reading, "cta[1].video[3].code").value), 3);
    EXPECT_EQ(fieldOf(reading, "cta[1].video[3].code").where.front().byte, 140U);
    EXPECT_EQ(textOf(reading, "cta[1].data_block[3].tag"), "2 (video data block)");
}

TEST(CtaVideo, ReadsFormatsOfYcc420) {
    const Reading reading = ctaWith({0x42, 1, 2, 0xE3, 0x0E, 96, 97, 0xE2, 0x0F, 0x02}).reading();
    EXPECT_EQ(textOf(reading, "cta[1].video_420[2].code"), "97 (3840x2160 60 Hz 16:9)");
    EXPECT_EQ(textOf(reading, "cta[1].capability_map_420.video[1]"), "no");
    EXPECT_EQ(textOf(reading, "cta[1].capability_map_420.video[2]"), "yes");
    EXPECT_EQ(textOf(reading, "cta[1].data_block[2].extended_tag"), "14 (YCbCr 4:2:0 video data block)");
    EXPECT_EQ(reading.summary.modes.size(), 4U);
}

TEST(CtaVideo, TellsWhatIsPreferred) {
    const Reading reading = ctaWith({0xE8, 0x0D, 16, 129, 144, 145, 161, 254, 193}).reading();
    const char* expected[] = {"16 (1920x1080 60 Hz 16:9)",
                              "detailed timing 1",
                              "detailed timing 16",
                              "DisplayID timing 1",
                              "format of the video format data block 1",
                              "format of the type VIII timing data block",
                              "193 (5120x2160 120 Hz 64:27)"};
    for (std::size_t i = 0; i < std::size(expected); ++i) {
        EXPECT_EQ(textOf(reading, "cta[1].preference[" + std::to_string(i + 1) + "].reference"), expected[i]);
    }
}

TEST(CtaFindings, TellOfReservedVideoCodes) {
    EXPECT_EQ(countOf(ctaWith({0x41, 220}).reading(), "cta.video_code_reserved"), 1U);
    EXPECT_EQ(countOf(ctaWith({0x41, 128}).reading(), "cta.video_code_reserved"), 1U);
    EXPECT_EQ(countOf(ctaWith({0x41, 0}).reading(), "cta.video_code_reserved"), 1U);
    EXPECT_EQ(countOf(ctaWith({0x43, 219, 127, 129}).reading(), "cta.video_code_reserved"), 0U);
}

TEST(CtaFindings, TellOfRepeatedVideoCodes) {
    const Reading repeated = ctaWith({0x42, 16, 0x90}).reading();
    ASSERT_EQ(countOf(repeated, "cta.video_code_repeated"), 1U);
    EXPECT_EQ(findingOf(repeated, "cta.video_code_repeated").byte, 134U);
    EXPECT_EQ(countOf(ctaWith({0x42, 16, 31}).reading(), "cta.video_code_repeated"), 0U);
}

TEST(CtaFindings, TellOfVideoCodesBothFor420AloneAndForAll) {
    const Reading reading = ctaWith({0x41, 97, 0xE3, 0x0E, 96, 97}).reading();
    EXPECT_EQ(countOf(reading, "cta.video_420_repeated"), 1U);
    EXPECT_EQ(findingOf(reading, "cta.video_420_repeated").path, "cta[1].video_420[2].code");
    EXPECT_EQ(findingOf(reading, "cta.video_420_repeated").byte, 137U);
    EXPECT_EQ(countOf(ctaWith({0x41, 96, 0xE2, 0x0E, 97}).reading(), "cta.video_420_repeated"), 0U);
}

TEST(CtaFindings, TellOfACapabilityMapBeyondTheVideoCodes) {
    const Reading reading = ctaWith({0x41, 97, 0xE3, 0x0F, 0x01, 0x02}).reading();
    EXPECT_EQ(countOf(reading, "cta.capability_map_long"), 1U);
    EXPECT_EQ(findingOf(reading, "cta.capability_map_long").path, "cta[1].capability_map_420.video[10]");
    EXPECT_EQ(findingOf(reading, "cta.capability_map_long").byte, 137U);
    EXPECT_EQ(countOf(ctaWith({0xE2, 0x0F, 0x02, 0x42, 97, 96}).reading(), "cta.capability_map_long"), 0U);
}

} // namespace
} // namespace wb::fields
