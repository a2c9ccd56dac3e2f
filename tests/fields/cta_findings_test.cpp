#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "extension_image.h"
#include "invariants.h"

namespace wb::fields {
namespace {

using testing::HasSubstr;

std::size_t countIn(const ImageOf& image, std::string_view code) {
    const Reading reading = image.reading();
    expectInvariants(reading);
    return countOf(reading, code);
}

constexpr int basicAudio = 0x40;
constexpr int ycbcr444 = 0x20;
constexpr int ycbcr422 = 0x10;

TEST(CtaFindings, TellOfAnUnknownRevision) {
    EXPECT_EQ(countIn(ctaWith({}).set(129, {4}), "cta.revision"), 1U);
    EXPECT_EQ(countIn(ctaWith({}).set(129, {0}), "cta.revision"), 1U);
    EXPECT_EQ(countIn(ctaWith({}).set(129, {3}), "cta.revision"), 0U);
    EXPECT_EQ(countIn(ctaWith({}).set(129, {1}), "cta.revision"), 0U);
}

TEST(CtaFindings, TellOfATimingOffsetInTheHeader) {
    const Reading low = ctaWith({0x41, 16}).set(130, {3}).reading();
    EXPECT_EQ(findingOf(low, "cta.timing_offset_low").byte, 130U);
    EXPECT_EQ(findingOf(low, "cta.timing_offset_low").severity, Severity::Error);
    EXPECT_FALSE(hasField(low, "cta[1].video[1].code"));
    EXPECT_EQ(countIn(ctaWith({}).set(130, {4}), "cta.timing_offset_low"), 0U);
    EXPECT_EQ(countIn(ctaWith({}).set(130, {0}), "cta.timing_offset_low"), 0U);
}

TEST(CtaFindings, TellOfATimingOffsetPastTheEnd) {
    const Reading high = ctaWith({0x41, 16}).set(130, {128}).reading();
    EXPECT_EQ(countOf(high, "cta.timing_offset_high"), 1U);
    EXPECT_TRUE(hasField(high, "cta[1].video[1].code"));
    EXPECT_EQ(countIn(ctaWith({0x41, 16}).set(130, {127}), "cta.timing_offset_high"), 0U);
}

TEST(CtaFindings, TellOfADataBlockThatRunsOver) {
    const Reading over = ctaWith({0x44, 16, 31}).reading();
    const Finding& finding = findingOf(over, "cta.data_block_over");
    EXPECT_EQ(finding.byte, 132U);
    EXPECT_EQ(finding.path, "cta[1].data_block[1].length");
    EXPECT_THAT(finding.text, HasSubstr("video data block at byte 132 takes 5 bytes and runs 2 over"));
    EXPECT_THAT(finding.text, HasSubstr("byte 135"));
    EXPECT_EQ(countIn(ctaWith({0x42, 16, 31}), "cta.data_block_over"), 0U);
}

TEST(CtaFindings, TellOfBytesAfterTheLastTiming) {
    const Reading reading = ctaWith({0x41, 16}).set(200, {7}).reading();
    EXPECT_EQ(findingOf(reading, "cta.padding_not_zero").byte, 200U);
    EXPECT_EQ(countIn(ctaWith({0x41, 16}).set(255, {7}), "cta.padding_not_zero"), 0U);
}

TEST(CtaFindings, TellOfDataBlocksTooShortForTheirKind) {
    const Reading reading = ctaWith({0xE2, 0x06, 0x01}).reading();
    EXPECT_THAT(findingOf(reading, "cta.data_block_short").text,
                HasSubstr("HDR static metadata data block at byte 132 has 1 of at least 2 bytes of content, so that"));
    EXPECT_EQ(countIn(ctaWith({0xE3, 0x06, 0x01, 0x01}), "cta.data_block_short"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x82, 0x01, 0x00}), "cta.data_block_short"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x83, 0x01, 0x00, 0x00}), "cta.data_block_short"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x64, 0x03, 0x0C, 0x00, 0x10}), "cta.data_block_short"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00}), "cta.data_block_short"), 0U);
}

TEST(CtaFindings, TellOfASecondDataBlockOfAKindThatStandsOnce) {
    const Reading two = ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x65, 0x03, 0x0C, 0x00, 0x20, 0x00}).reading();
    EXPECT_EQ(findingOf(two, "cta.data_block_repeated").byte, 138U);
    EXPECT_EQ(countIn(ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x65, 0x1A, 0x00, 0x00, 0x20, 0x00}),
                      "cta.data_block_repeated"),
              0U);
    EXPECT_EQ(countIn(ctaWith({0x41, 16, 0x41, 31}), "cta.data_block_repeated"), 0U);
}

TEST(CtaFindings, TellOfReservedTags) {
    EXPECT_EQ(countIn(ctaWith({0x01, 0x05}), "cta.data_block_reserved"), 1U);
    EXPECT_EQ(countIn(ctaWith({0xE1, 0x09}), "cta.data_block_reserved"), 1U);
    EXPECT_EQ(countIn(ctaWith({0xE2, 0x00, 0x00}), "cta.data_block_reserved"), 0U);
}

TEST(CtaFindings, TellOfZerosBeforeTheTimings) {
    EXPECT_EQ(countIn(ctaWith({0x41, 16, 0, 0}), "cta.data_block_padding"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x41, 16}), "cta.data_block_padding"), 0U);
}

TEST(CtaFindings, TellOfAudioWithoutBasicAudio) {
    EXPECT_EQ(findingOf(ctaWith({0x23, 0x09, 0x07, 0x07}).reading(), "cta.basic_audio_missing").byte, 131U);
    EXPECT_EQ(countIn(ctaWith({0x83, 0x01, 0x00, 0x00}), "cta.basic_audio_missing"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x07, 0x07}, basicAudio), "cta.basic_audio_missing"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x41, 16}), "cta.basic_audio_missing"), 0U);
}

TEST(CtaFindings, TellOfBasicAudioWithoutAudioDataBlocks) {
    EXPECT_EQ(countIn(ctaWith({0x41, 16}, basicAudio), "cta.audio_block_missing"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x07, 0x07}, basicAudio), "cta.audio_block_missing"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x41, 16}), "cta.audio_block_missing"), 0U);
}

TEST(CtaFindings, TellOfMoreThanTwoChannelsOfPcmWithoutSpeakers) {
    EXPECT_EQ(findingOf(ctaWith({0x23, 0x0A, 0x07, 0x07}).reading(), "cta.speakers_missing").byte, 128U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x07, 0x07}), "cta.speakers_missing"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x15, 0x07, 0x50}), "cta.speakers_missing"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x0A, 0x07, 0x07, 0x83, 0x07, 0, 0}), "cta.speakers_missing"), 0U);
}

TEST(CtaFindings, TellOfAudioDescriptorsThatCannotBe) {
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x00, 0x07}), "cta.audio_no_rate"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x01, 0x07}), "cta.audio_no_rate"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x24, 0x09, 0x07, 0x07, 0x15}), "cta.audio_incomplete"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x26, 0x09, 0x07, 0x07, 0x15, 0x07, 0x50}), "cta.audio_incomplete"), 0U);
    EXPECT_EQ(findingOf(ctaWith({0x23, 0x01, 0x07, 0x07}).reading(), "field.reserved_value").path,
              "cta[1].audio[1].format");
    EXPECT_EQ(findingOf(ctaWith({0x23, 0x09, 0x87, 0x07}).reading(), "field.reserved_bits").path,
              "cta[1].audio[1].reserved_2");
    EXPECT_EQ(countIn(ctaWith({0x23, 0x09, 0x7F, 0x07}), "field.reserved_bits"), 0U);
}

TEST(CtaFindings, TellOfMoreNativeTimingsThanThereAre) {
    EXPECT_EQ(countIn(ctaWith({}, 1), "cta.native_count"), 1U);
    EXPECT_EQ(countIn(ctaWith({}, 1).set(54, {1, 0x1D}), "cta.native_count"), 0U);
    EXPECT_EQ(countIn(ctaWith({}, 2).set(54, {1, 0x1D}).set(132, {1, 0x1D}), "cta.native_count"), 0U);
    EXPECT_EQ(countIn(ctaWith({}, 3).set(54, {1, 0x1D}).set(132, {1, 0x1D}), "cta.native_count"), 1U);
    // Two timings of block 0, with other descriptors between them.
    EXPECT_EQ(countIn(ctaWith({}, 2).set(54, {1, 0x1D}).set(108, {1, 0x1D}), "cta.native_count"), 0U);
    EXPECT_EQ(countIn(ctaWith({}, 3).set(54, {1, 0x1D}).set(108, {1, 0x1D}), "cta.native_count"), 1U);
}

TEST(CtaFindings, TellOfOneYcbcrFlagWithoutTheOtherOnHdmi) {
    const auto onHdmi = [](int flags) { return ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00}, flags).reading(); };
    EXPECT_EQ(findingOf(onHdmi(ycbcr444), "cta.ycbcr_flags").path, "cta[1].header.ycbcr_444");
    EXPECT_EQ(findingOf(onHdmi(ycbcr422), "cta.ycbcr_flags").path, "cta[1].header.ycbcr_422");
    for (int flags = 0; flags < 256; ++flags) {
        const bool one = ((flags & ycbcr444) != 0) != ((flags & ycbcr422) != 0);
        EXPECT_EQ(countOf(onHdmi(flags), "cta.ycbcr_flags"), one ? 1U : 0U) << flags;
        EXPECT_EQ(countIn(ctaWith({0x41, 16}, flags), "cta.ycbcr_flags"), 0U) << flags;
    }
}

TEST(CtaFindings, LookAtTheirOwnFlagsAlone) {
    for (int flags = 0; flags < 256; ++flags) {
        SCOPED_TRACE(flags);
        const bool basic = (flags & basicAudio) != 0;
        const Reading sound = ctaWith({0x23, 0x09, 0x07, 0x07}, flags).reading();
        EXPECT_EQ(countOf(sound, "cta.basic_audio_missing"), basic ? 0U : 1U);
        EXPECT_EQ(countOf(sound, "cta.audio_block_missing"), 0U);
        const Reading silent = ctaWith({0x41, 16}, flags).reading();
        EXPECT_EQ(countOf(silent, "cta.basic_audio_missing"), 0U);
        EXPECT_EQ(countOf(silent, "cta.audio_block_missing"), basic ? 1U : 0U);
        EXPECT_EQ(countOf(silent, "cta.native_count"), flags % 16 > 0 ? 1U : 0U);
    }
}

TEST(CtaFindings, TellOfOddPhysicalAddresses) {
    const auto withAddress = [](int first, int second) { return ctaWith({0x65, 0x03, 0x0C, 0x00, first, second}); };
    EXPECT_EQ(findingOf(withAddress(0x00, 0x00).reading(), "cta.physical_address_zero").byte, 136U);
    EXPECT_EQ(countIn(withAddress(0x10, 0x00), "cta.physical_address_zero"), 0U);
    EXPECT_EQ(findingOf(withAddress(0x10, 0x10).reading(), "cta.physical_address_gap").byte, 136U);
    EXPECT_EQ(countIn(withAddress(0x11, 0x00), "cta.physical_address_gap"), 0U);
}

TEST(CtaFindings, TellOfDeepColourWithoutAClock) {
    EXPECT_EQ(countIn(ctaWith({0x66, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x20}), "cta.deep_color_without_clock"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x67, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x20, 0x00}), "cta.deep_color_without_clock"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x67, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x20, 0x2D}), "cta.deep_color_without_clock"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x66, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x80}), "cta.deep_color_without_clock"), 0U);
}

TEST(CtaFindings, NameTheDeepestColourThatIsToldWithoutAClock) {
    const auto pathOf = [](int flags) {
        return findingOf(ctaWith({0x66, 0x03, 0x0C, 0x00, 0x10, 0x00, flags}).reading(), "cta.deep_color_without_clock")
            .path;
    };
    EXPECT_EQ(pathOf(0x70), "cta[1].hdmi.deep_color_48");
    EXPECT_EQ(pathOf(0x30), "cta[1].hdmi.deep_color_36");
    EXPECT_EQ(pathOf(0x10), "cta[1].hdmi.deep_color_30");
}

TEST(CtaFindings, TellOfLatenciesOfInterlacedFormatsAlone) {
    EXPECT_EQ(countIn(ctaWith({0x6A, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x40, 1, 1}), "cta.latency_flags"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x6C, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0xC0, 1, 1, 1, 1}), "cta.latency_flags"), 0U);
}

TEST(CtaFindings, TellOfAnHdmiBlockThatEndsBeforeWhatItAnnounces) {
    EXPECT_EQ(countIn(ctaWith({0x69, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x80, 1}), "cta.hdmi_short"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x6A, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x80, 1, 1}), "cta.hdmi_short"), 0U);
    EXPECT_EQ(countIn(ctaWith({0x6B, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x20, 0, 0x40, 1}), "cta.hdmi_short"), 1U);
    EXPECT_EQ(countIn(ctaWith({0x6C, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x20, 0, 0x40, 1, 2}), "cta.hdmi_short"), 0U);
}

TEST(CtaFindings, TellOfAnHdmiBlockThatEndsAtItsFlags) {
    const auto withFlags = [](int flags) {
        return countIn(ctaWith({0x68, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 60, flags}), "cta.hdmi_short");
    };
    EXPECT_EQ(withFlags(0x00), 0U);
    EXPECT_EQ(withFlags(0x0F), 0U);
    EXPECT_EQ(withFlags(0x80), 1U);
    EXPECT_EQ(withFlags(0x20), 1U);
    // Once, however much is missing.
    EXPECT_EQ(withFlags(0xE0), 1U);
}

TEST(CtaFindings, TellOfBytesAbout3dThatAreCut) {
    const auto with3d = [](std::initializer_list<int> tail) {
        ImageOf image = ctaWith({0x6F, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 60, 0x20, 0, 0, 0, 0, 0, 0, 0});
        return image.set(132, {0x68 + static_cast<int>(tail.size())}).set(141, tail);
    };
    const auto isCut = [&](std::initializer_list<int> tail) { return countIn(with3d(tail), "cta.hdmi_short"); };
    // The detail of a structure that has one.
    EXPECT_EQ(isCut({0x80, 0x01, 0x28}), 1U);
    EXPECT_EQ(isCut({0x80, 0x02, 0x28, 0x10}), 0U);
    EXPECT_EQ(isCut({0x80, 0x01, 0x26}), 0U);
    // Structures of all formats, and the mask.
    EXPECT_EQ(isCut({0xA0, 0x00}), 1U);
    EXPECT_EQ(isCut({0xA0, 0x01, 0x00}), 1U);
    EXPECT_EQ(isCut({0xA0, 0x02, 0x00, 0x41}), 0U);
    EXPECT_EQ(isCut({0xC0, 0x03, 0x00, 0x41, 0x00}), 1U);
    EXPECT_EQ(isCut({0xC0, 0x04, 0x00, 0x41, 0x00, 0x03}), 0U);
    // What is left of them is no structure of one format.
    const Reading cut = with3d({0xC0, 0x03, 0x00, 0x41, 0x05}).reading();
    EXPECT_EQ(textOf(cut, "cta[1].hdmi.three_d_rest"), "05");
    EXPECT_FALSE(hasField(cut, "cta[1].hdmi.three_d[1].structure"));
}

TEST(CtaFindings, TellOfTheHdmiForumWithoutHdmi) {
    EXPECT_EQ(findingOf(ctaWith({0x67, 0xD8, 0x5D, 0xC4, 1, 0, 0x80, 0}).reading(), "cta.hdmi_missing").byte, 128U);
    EXPECT_EQ(countIn(ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x67, 0xD8, 0x5D, 0xC4, 1, 0, 0x80, 0}),
                      "cta.hdmi_missing"),
              0U);
}

/// The same with a second extension in block 2, which has these data blocks.
ImageOf twoCtaWith(std::initializer_list<int> first, int firstFlags, std::initializer_list<int> second,
                   int secondFlags) {
    const auto offsetOf = [](const auto& dataBlocks) { return 4 + static_cast<int>(dataBlocks.size()); };
    return ImageOf(3)
        .set(128, {0x02, 0x03, offsetOf(first), firstFlags})
        .set(132, first)
        .set(256, {0x02, 0x03, offsetOf(second), secondFlags})
        .set(260, second);
}

TEST(CtaFindings, TakeAllExtensionsOfAnImageTogether) {
    const std::initializer_list<int> hdmi = {0x65, 0x03, 0x0C, 0x00, 0x10, 0x00};
    const std::initializer_list<int> forum = {0x67, 0xD8, 0x5D, 0xC4, 1, 0, 0x80, 0};
    const std::initializer_list<int> surround = {0x23, 0x0F, 0x07, 0x07};
    const std::initializer_list<int> speakers = {0x83, 0x4F, 0, 0};
    EXPECT_EQ(countIn(twoCtaWith(hdmi, 0, forum, 0), "cta.hdmi_missing"), 0U);
    EXPECT_EQ(findingOf(twoCtaWith({}, 0, forum, 0).reading(), "cta.hdmi_missing").byte, 256U);
    const ImageOf sound = twoCtaWith(surround, basicAudio, speakers, basicAudio);
    EXPECT_EQ(countIn(sound, "cta.speakers_missing"), 0U);
    EXPECT_EQ(countIn(sound, "cta.audio_block_missing"), 0U);
    EXPECT_EQ(countIn(twoCtaWith(speakers, basicAudio, surround, 0), "cta.speakers_missing"), 0U);
    EXPECT_EQ(countIn(twoCtaWith(surround, basicAudio, {}, 0), "cta.speakers_missing"), 1U);
    EXPECT_EQ(countIn(twoCtaWith({}, basicAudio, {}, 0), "cta.audio_block_missing"), 1U);
    EXPECT_EQ(countIn(twoCtaWith(surround, 0, speakers, basicAudio), "cta.basic_audio_missing"), 0U);
    EXPECT_EQ(findingOf(twoCtaWith({}, 0, surround, 0).reading(), "cta.basic_audio_missing").byte, 259U);
    EXPECT_EQ(findingOf(twoCtaWith(hdmi, 0, {}, ycbcr444).reading(), "cta.ycbcr_flags").path,
              "cta[2].header.ycbcr_444");
}

TEST(CtaFindings, TellOfASecondDataBlockInALaterExtension) {
    const std::initializer_list<int> hdmi = {0x65, 0x03, 0x0C, 0x00, 0x10, 0x00};
    const Reading reading = twoCtaWith(hdmi, 0, hdmi, 0).reading();
    EXPECT_EQ(countOf(reading, "cta.data_block_repeated"), 1U);
    EXPECT_EQ(findingOf(reading, "cta.data_block_repeated").byte, 260U);
    // Paths count within their extension.
    EXPECT_EQ(textOf(reading, "cta[2].hdmi.physical_address"), "1.0.0.0");
    EXPECT_EQ(countIn(twoCtaWith({0x41, 16}, 0, {0x41, 31}, 0), "cta.data_block_repeated"), 0U);
    // Also where others stand between them.
    ImageOf third(4);
    third.set(128, {0x02, 0x03, 10, 0}).set(132, hdmi).set(256, {0x02, 0x03, 4, 0}).set(384, {0x02, 0x03, 10, 0});
    EXPECT_EQ(findingOf(third.set(388, hdmi).reading(), "cta.data_block_repeated").byte, 388U);
}

TEST(CtaFindings, CountNativeTimingsOverAllExtensions) {
    const auto withTimings = [](int firstNative, int secondNative) {
        return twoCtaWith({}, firstNative, {}, secondNative).set(132, {1, 0x1D}).set(260, {1, 0x1D, 0, 0, 0, 0, 0, 0});
    };
    EXPECT_EQ(countIn(withTimings(2, 2), "cta.native_count"), 0U);
    EXPECT_EQ(findingOf(withTimings(3, 2).reading(), "cta.native_count").path, "cta[1].header.native_count");
    EXPECT_EQ(findingOf(withTimings(2, 3).reading(), "cta.native_count").path, "cta[2].header.native_count");
    // The first timings of the image are the native ones.
    ImageOf image = twoCtaWith({}, 1, {}, 1);
    for (const std::size_t place : {132U, 260U}) {
        image.set(place, {0x02, 0x3A, 0x80, 0x18, 0x71, 0x38, 0x2D, 0x40, 0x58, 0x2C, 0x45, 0, 0, 0, 0, 0, 0, 0x1E});
    }
    const Reading reading = image.reading();
    ASSERT_EQ(reading.summary.modes.size(), 2U);
    EXPECT_TRUE(reading.summary.modes[0].native);
    EXPECT_FALSE(reading.summary.modes[1].native);
}

TEST(CtaFindings, LookForVideoCodesInAllExtensions) {
    EXPECT_EQ(countIn(twoCtaWith({0x41, 97}, 0, {0xE2, 0x0E, 97}, 0), "cta.video_420_repeated"), 1U);
    EXPECT_EQ(countIn(twoCtaWith({0x41, 96}, 0, {0xE2, 0x0E, 97}, 0), "cta.video_420_repeated"), 0U);
    EXPECT_EQ(countIn(twoCtaWith({0x41, 16}, 0, {0x41, 31, 0xE2, 0x0F, 0x02}, 0), "cta.capability_map_long"), 0U);
    EXPECT_EQ(countIn(twoCtaWith({0x41, 16}, 0, {0x41, 31, 0xE2, 0x0F, 0x04}, 0), "cta.capability_map_long"), 1U);
}

TEST(CtaFindings, TellOfRatesOfTheHdmiForumThatCannotBe) {
    const auto withRate = [](int rate) { return ctaWith({0x67, 0xD8, 0x5D, 0xC4, 1, rate, 0x80, 0}); };
    EXPECT_EQ(countIn(withRate(68), "cta.hdmi_forum_rate"), 1U);
    EXPECT_EQ(countIn(withRate(69), "cta.hdmi_forum_rate"), 0U);
    EXPECT_EQ(countIn(withRate(0), "cta.hdmi_forum_rate"), 0U);
    const auto withVariableRates = [](int least, int most) {
        return ctaWith({0x6A, 0xD8, 0x5D, 0xC4, 1, 0, 0x80, 0, 0, least, most});
    };
    EXPECT_EQ(countIn(withVariableRates(48, 40), "cta.variable_rates"), 1U);
    EXPECT_EQ(countIn(withVariableRates(48, 48), "cta.variable_rates"), 0U);
    EXPECT_EQ(countIn(withVariableRates(48, 0), "cta.variable_rates"), 0U);
}

TEST(CtaFindings, TellOfHighDynamicRangeWithoutTheStandardOne) {
    EXPECT_EQ(countIn(ctaWith({0xE3, 0x06, 0x04, 0x01}), "cta.hdr_without_sdr"), 1U);
    EXPECT_EQ(countIn(ctaWith({0xE3, 0x06, 0x05, 0x01}), "cta.hdr_without_sdr"), 0U);
}

TEST(CtaFindings, CountBlocksByTheOverrideOfTheHdmiForum) {
    ImageOf image(3);
    image.set(126, {1}).set(128, {0x02, 0x03, 7, 0, 0xE2, 0x78, 2}).set(256, {0x02, 0x03, 4, 0});
    EXPECT_EQ(countIn(image, "image.blocks_extra"), 0U);
    EXPECT_EQ(textOf(image.reading(), "cta[1].eeodb.extension_count"), "2 blocks");
    EXPECT_EQ(countIn(image.set(134, {3}), "image.blocks_missing"), 1U);
    EXPECT_EQ(countIn(image.set(133, {0x00}), "image.blocks_extra"), 1U);
}

TEST(CtaFindings, PassOverAnOverrideThatTellsOfNoBlocks) {
    ImageOf image(2);
    image.set(126, {1}).set(128, {0x02, 0x03, 7, 0, 0xE2, 0x78, 0});
    EXPECT_EQ(countIn(image, "image.blocks_extra"), 0U);
}

TEST(CtaFindings, PassOverAnOverrideInABlockThatIsNotAnnounced) {
    ImageOf image(2);
    image.set(126, {0}).set(128, {0x02, 0x03, 7, 0, 0xE2, 0x78, 3});
    EXPECT_EQ(countIn(image, "image.blocks_missing"), 0U);
    EXPECT_EQ(countIn(image, "image.blocks_extra"), 1U);
}

TEST(CtaFindings, TellOfAnOverrideThatIsNotTheFirstDataBlock) {
    EXPECT_EQ(countIn(ctaWith({0x41, 16, 0xE2, 0x78, 1}), "cta.override_place"), 1U);
    EXPECT_EQ(countIn(ctaWith({0xE2, 0x78, 1, 0x41, 16}), "cta.override_place"), 0U);
}

} // namespace
} // namespace wb::fields
