#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

#include "extension_image.h"

namespace wb::fields {
namespace {

using testing::ElementsAre;

/// Fields of block 1 and the texts that they must have.
void expectTexts(const Reading& reading, std::initializer_list<std::pair<std::string, std::string>> expected) {
    for (const auto& [path, text] : expected) {
        EXPECT_EQ(textOf(reading, "cta[1]." + path), text) << path;
    }
}

TEST(CtaHeader, IsReadByItsRevision) {
    const Reading third = ctaWith({}, 0xF5).reading();
    expectTexts(third, {{"header.revision", "3 (CEA-861-B on)"},
                        {"header.timing_offset", "4"},
                        {"header.underscan", "yes"},
                        {"header.basic_audio", "yes"},
                        {"header.ycbcr_444", "yes"},
                        {"header.ycbcr_422", "yes"},
                        {"header.native_count", "5"}});
    const Reading first = ctaWith({0x41, 16}, 0x40).set(129, {1}).reading();
    EXPECT_TRUE(hasField(first, "cta[1].header.reserved"));
    EXPECT_FALSE(hasField(first, "cta[1].header.basic_audio"));
    EXPECT_EQ(textOf(first, "cta[1].reserved"), "41 10");
    EXPECT_FALSE(hasField(first, "cta[1].video[1].code"));
}

TEST(CtaTimings, AreReadUpToTheFirstWithoutAClock) {
    ImageOf image = ctaWith({0x41, 16}, 0x01);
    image.set(134, {0x01, 0x1D, 0x00, 0x72, 0x51, 0xD0, 0x1E, 0x20, 0x6E, 0x28, 0x55, 0, 0, 0, 0, 0, 0, 0x1E});
    const Reading reading = image.reading();
    expectTexts(reading, {{"detailed[1].pixel_clock", "74.25 MHz"}, {"detailed[1].h_active", "1280 px"}});
    EXPECT_EQ(fieldOf(reading, "cta[1].padding").where.front().byte, 152U);
    ASSERT_EQ(reading.summary.modes.size(), 2U);
    EXPECT_TRUE(reading.summary.modes[1].native);
    EXPECT_EQ(reading.summary.modes[1].width, 1280);
}

TEST(CtaTimings, AreNativeAfterThoseOfBlock0) {
    ImageOf image = ctaWith({}, 0x02);
    for (const std::size_t place : {54U, 132U, 150U}) {
        image.set(place, {0x01, 0x1D, 0x00, 0x72, 0x51, 0xD0, 0x1E, 0x20, 0x6E, 0x28, 0x55, 0, 0, 0, 0, 0, 0, 0x1E});
    }
    const Reading reading = image.reading();
    ASSERT_EQ(reading.summary.modes.size(), 3U);
    EXPECT_TRUE(reading.summary.modes[1].native);
    EXPECT_FALSE(reading.summary.modes[2].native);
}

TEST(CtaAudio, ReadsFormatsWithWhatTheyDefine) {
    const Reading reading = ctaWith({0x35, 0x09, 0x07, 0x07, 0x15, 0x07, 0x50, 0x71, 0x06, 0x03, 0x4B,
                                     0x04, 0x02, 0x7F, 0x84, 0x6D, 0x7B, 0x04, 0x59, 0x79, 0x06, 0x34})
                                .reading();
    expectTexts(reading, {{"audio[1].format", "L-PCM"},
                          {"audio[1].channels", "2"},
                          {"audio[1].rate_48", "yes"},
                          {"audio[1].rate_96", "no"},
                          {"audio[1].size_24", "yes"},
                          {"audio[2].format", "AC-3"},
                          {"audio[2].channels", "6"},
                          {"audio[2].max_bit_rate", "640"},
                          {"audio[3].format", "WMA Pro"},
                          {"audio[3].profile", "3"},
                          {"audio[4].format", "One Bit Audio"},
                          {"audio[4].format_value", "2"},
                          {"audio[5].extended_format", "L-PCM 3D Audio"},
                          {"audio[5].channels", "24"},
                          {"audio[5].size_20", "no"},
                          {"audio[6].extended_format", "MPEG-H 3D Audio"},
                          {"audio[6].level", "3"},
                          {"audio[6].low_complexity_profile", "yes"},
                          {"audio[7].extended_format", "MPEG-4 AAC LC"},
                          {"audio[7].length_1024", "yes"},
                          {"audio[7].length_960", "no"}});
    ASSERT_EQ(reading.summary.audio.size(), 7U);
    EXPECT_EQ(reading.summary.audio[0].format, "L-PCM");
    EXPECT_THAT(reading.summary.audio[0].ratesKilohertz, ElementsAre(48, 44.1, 32));
    EXPECT_EQ(reading.summary.audio[4].channels, 24);
}

TEST(CtaAudio, ListsEverySamplingRate) {
    const std::vector<double> rates = {32, 44.1, 48, 88.2, 96, 176.4, 192}; // from bit 0 on
    for (std::size_t bit = 0; bit < rates.size(); ++bit) {
        const Reading reading = ctaWith({0x23, 0x09, 1 << bit, 0x07}).reading();
        ASSERT_EQ(reading.summary.audio.size(), 1U);
        EXPECT_EQ(reading.summary.audio[0].ratesKilohertz, std::vector{rates[bit]});
    }
}

TEST(CtaSpeakers, AreReadAndListed) {
    const Reading reading = ctaWith({0x83, 0x0F, 0x08, 0x01}).reading();
    expectTexts(reading, {{"speakers.lfe1", "yes"}, {"speakers.bc", "no"}, {"speakers.tpbl_tpbr", "yes"}});
    EXPECT_THAT(reading.summary.speakers,
                ElementsAre("Back left/right", "Front center", "Low frequency effects 1", "Front left/right",
                            "Left/right surround", "Top back left/right"));
}

TEST(CtaSpeakers, HaveARoomAndPlaces) {
    const Reading reading = ctaWith({0xEB, 0x13, 0xE5, 0x0F, 0x00, 0x00, 0x14, 0x14, 0x0A, 0x40, 0x00, 0xE0, //
                                     0xE8, 0x14, 0x20, 0x00, 0x61, 0x02, 0x40, 0xC0, 0x00})
                                .reading();
    expectTexts(reading, {{"room.speaker_count", "6"},
                          {"room.fc", "yes"},
                          {"room.x_max", "200 cm"},
                          {"room.display_x", "1.000"},
                          {"room.display_z", "-0.500"},
                          {"speaker_location.speaker[1].active", "yes"},
                          {"speaker_location.speaker[1].speaker", "front left"},
                          {"speaker_location.speaker[2].channel", "1"},
                          {"speaker_location.speaker[2].speaker", "front center"},
                          {"speaker_location.speaker[2].x", "1.000"},
                          {"speaker_location.speaker[2].y", "-1.000"}});
}

TEST(CtaHdmi, IsReadToItsLastBit) {
    const Reading reading =
        ctaWith({0x78, 0x03, 0x0C, 0x00, 0x21, 0x00, 0xB8, 0x3C, 0xE4, 0x15, 0xFF, 0x00, 0x01, 0xD8, 0x47, //
                 0x01, 0x05, 0x01, 0x41, 0x80, 0x01, 0x26, 0x38, 0x10, 0x00})
            .reading();
    expectTexts(reading, {{"hdmi.oui", "00-0C-03"},
                          {"hdmi.physical_address", "2.1.0.0"},
                          {"hdmi.supports_ai", "yes"},
                          {"hdmi.deep_color_48", "no"},
                          {"hdmi.deep_color_36", "yes"},
                          {"hdmi.deep_color_30", "yes"},
                          {"hdmi.deep_color_444", "yes"},
                          {"hdmi.dvi_dual", "no"},
                          {"hdmi.max_tmds_clock", "300 MHz"},
                          {"hdmi.content_cinema", "yes"},
                          {"hdmi.content_game", "no"},
                          {"hdmi.video_latency", "40 ms"},
                          {"hdmi.audio_latency", "not supported"},
                          {"hdmi.interlaced_video_latency", "not told"},
                          {"hdmi.interlaced_audio_latency", "0 ms"},
                          {"hdmi.three_d_present", "yes"},
                          {"hdmi.three_d_multi", "structures for those video descriptors that a mask names"},
                          {"hdmi.image_size", "right in block 0, in 5 cm"},
                          {"hdmi.vic_length", "2"},
                          {"hdmi.vic[1]", "1 (3840x2160 30 Hz 16:9)"},
                          {"hdmi.vic[2]", "5 (reserved)"},
                          {"hdmi.three_d_all.side_by_side_half", "yes"},
                          {"hdmi.three_d_all.top_and_bottom", "yes"},
                          {"hdmi.three_d_all.frame_packing", "yes"},
                          {"hdmi.three_d_all.line_alternative", "no"},
                          {"hdmi.three_d_mask[1]", "yes"},
                          {"hdmi.three_d_mask[2]", "no"},
                          {"hdmi.three_d_mask[16]", "yes"},
                          {"hdmi.three_d[1].video", "3"},
                          {"hdmi.three_d[1].structure", "top and bottom"},
                          {"hdmi.three_d[2].video", "4"},
                          {"hdmi.three_d[2].structure", "side by side, half"},
                          {"hdmi.three_d[2].detail", "horizontal sub-sampling"},
                          {"hdmi.padding", "00"}});
    ASSERT_TRUE(reading.summary.hdmi);
    EXPECT_EQ(reading.summary.hdmi->physicalAddress, "2.1.0.0");
    EXPECT_EQ(reading.summary.hdmi->maxTmdsClockMegahertz, 300);
    EXPECT_FALSE(reading.summary.hdmi->forum);
    EXPECT_EQ(countOf(reading, "cta.hdmi_short"), 0U);
}

TEST(CtaHdmi, HasNoCommonStructuresByAReservedValue) {
    const Reading reading =
        ctaWith({0x6D, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x00, 0x3C, 0x20, 0x60, 0x02, 0x01, 0x16, 0x00}).reading();
    expectTexts(reading, {{"hdmi.three_d_multi", "reserved (3)"},
                          {"hdmi.three_d[1].video", "1"},
                          {"hdmi.three_d[1].structure", "field alternative"},
                          {"hdmi.three_d[2].video", "2"},
                          {"hdmi.three_d[2].structure", "top and bottom"}});
    EXPECT_FALSE(hasField(reading, "cta[1].hdmi.three_d_all.side_by_side_half"));
}

TEST(CtaHdmi, AddsTheFormatsOfItsCodesToTheModes) {
    const ImageOf image =
        ctaWith({0x6F, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x00, 0x3C, 0x20, 0x00, 0xA0, 0x01, 0x02, 0x03, 0x04, 0x05});
    EXPECT_EQ(modesOf(image.reading()),
              (Modes{"3840x2160@30000", "3840x2160@25000", "3840x2160@24000", "4096x2160@24000"}));
}

TEST(CtaHdmi, OfTheForumIsReadToItsLastBit) {
    const Reading reading =
        ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00, //
                 0x6D, 0xD8, 0x5D, 0xC4, 0x01, 0x78, 0x88, 0x63, 0x06, 0x30, 0x90, 0x8B, 0x64, 0x0F})
            .reading();
    expectTexts(reading, {{"hdmi_forum.oui", "C4-5D-D8"},
                          {"hdmi_forum.version", "1"},
                          {"hdmi_forum.max_tmds_clock", "600 MHz"},
                          {"hdmi_forum.scdc_present", "yes"},
                          {"hdmi_forum.read_request", "no"},
                          {"hdmi_forum.scramble_below_340", "yes"},
                          {"hdmi_forum.max_frl_rate", "12 Gbit/s on 4 lanes"},
                          {"hdmi_forum.deep_color_420_36", "yes"},
                          {"hdmi_forum.deep_color_420_48", "no"},
                          {"hdmi_forum.allm", "yes"},
                          {"hdmi_forum.fast_vactive", "yes"},
                          {"hdmi_forum.vrr_min", "48 Hz"},
                          {"hdmi_forum.vrr_max", "144 Hz"},
                          {"hdmi_forum.dsc_1_2a", "yes"},
                          {"hdmi_forum.dsc_12bpc", "yes"},
                          {"hdmi_forum.dsc_16bpc", "no"},
                          {"hdmi_forum.dsc_max_frl_rate", "12 Gbit/s on 4 lanes"},
                          {"hdmi_forum.dsc_max_slices", "8 slices up to 340 MHz each"},
                          {"hdmi_forum.dsc_chunk_kilobytes", "16"}});
    ASSERT_TRUE(reading.summary.hdmi);
    EXPECT_TRUE(reading.summary.hdmi->forum);
    EXPECT_EQ(reading.summary.hdmi->maxTmdsClockMegahertz, 600);
    EXPECT_EQ(reading.summary.hdmi->physicalAddress, "1.0.0.0");
}

TEST(CtaHdmi, TellsTheSameCapabilitiesInAnExtendedDataBlock) {
    const Reading reading = ctaWith({0xE7, 0x79, 0x00, 0x00, 0x01, 0x50, 0x80, 0x30}).reading();
    expectTexts(reading, {{"data_block[1].extended_tag", "121 (HDMI Forum sink capability data block)"},
                          {"hdmi_forum.reserved_head", "00 00"},
                          {"hdmi_forum.max_tmds_clock", "400 MHz"},
                          {"hdmi_forum.scdc_present", "yes"},
                          {"hdmi_forum.max_frl_rate", "6 Gbit/s on 4 lanes"}});
}

TEST(CtaHdmi, SecondOfAKindHasANumber) {
    const Reading reading = ctaWith({0x65, 0x03, 0x0C, 0x00, 0x10, 0x00, 0x65, 0x03, 0x0C, 0x00, 0x20, 0x00}).reading();
    expectTexts(reading, {{"hdmi.physical_address", "1.0.0.0"}, {"hdmi[2].physical_address", "2.0.0.0"}});
}

TEST(CtaVendor, IsToldInRawBytes) {
    const Reading reading = ctaWith({0x65, 0x1A, 0x00, 0x00, 0x01, 0x02, 0xE5, 0x01, 0x46, 0xD0, 0x00, 0x4F, //
                                     0xE4, 0x11, 0x46, 0xD0, 0x00})
                                .reading();
    expectTexts(reading, {{"vendor.oui", "00-00-1A"},
                          {"vendor.payload", "01 02"},
                          {"vendor_video.oui", "00-D0-46"},
                          {"vendor_video.payload", "4F"},
                          {"vendor_audio.oui", "00-D0-46"}});
}

TEST(CtaExtended, ReadsVideoCapabilityAndColorimetry) {
    const Reading reading = ctaWith({0xE2, 0x00, 0xCB, 0xE3, 0x05, 0xE3, 0x80}).reading();
    expectTexts(reading, {{"video_capability.ycc_quantization", "selectable"},
                          {"video_capability.rgb_quantization", "selectable"},
                          {"video_capability.preferred_scan", "as for IT and CE formats"},
                          {"video_capability.it_scan", "always underscanned"},
                          {"video_capability.ce_scan", "both"},
                          {"colorimetry.bt2020_rgb", "yes"},
                          {"colorimetry.oprgb", "no"},
                          {"colorimetry.dci_p3", "yes"}});
    EXPECT_THAT(reading.summary.colorimetry,
                ElementsAre("BT.2020 RGB", "BT.2020 YCC", "BT.2020 cYCC", "xvYCC709", "xvYCC601", "DCI-P3"));
}

TEST(CtaExtended, ReadsHighDynamicRange) {
    const Reading reading =
        ctaWith({0xE6, 0x06, 0x05, 0x01, 0x60, 0x40, 0x80, 0xE5, 0x07, 0x03, 0x04, 0x00, 0x01}).reading();
    // 50 * 2^(96/32) = 400, 50 * 2^(64/32) = 200, 400 * (128/255)^2 / 100 = 1.008.
    expectTexts(reading, {{"hdr.gamma_sdr", "yes"},
                          {"hdr.gamma_hdr", "no"},
                          {"hdr.pq", "yes"},
                          {"hdr.metadata_type_1", "yes"},
                          {"hdr.max_luminance", "96 (400.0 cd/m2)"},
                          {"hdr.max_average_luminance", "64 (200.0 cd/m2)"},
                          {"hdr.min_luminance", "128 (1.0 cd/m2)"},
                          {"hdr_dynamic.metadata[1].length", "3"},
                          {"hdr_dynamic.metadata[1].type", "SMPTE ST 2094-40"},
                          {"hdr_dynamic.metadata[1].support", "01"}});
    EXPECT_THAT(reading.summary.hdr,
                ElementsAre("Perceptual quantizer (SMPTE ST 2084)", "Traditional gamma, SDR luminance range"));
}

TEST(CtaVesa, ReadsACurve) {
    const Reading reading = ctaWith({0xA4, 0x45, 10, 20, 30}).reading();
    expectTexts(reading, {{"dtc.color", "red"}, {"dtc.first", "5"}, {"dtc.points", "15 35 65"}});
}

TEST(CtaVesa, ReadsADisplayDevice) {
    const Reading reading =
        ctaWith({0xFF, 0x02, 0x92, 0x11, 0x01, 0x65, 0x2C, 0x80, 0x07, 0xB0, 0x04, 0x3C, 0x50, 0x01, 0x1B, 0x1B,
                 0x68, 0x80, 0x85, 0x43, 0x3C, 0x77, 0,    0,    0,    0,    0,    0,    0,    0,    0x85, 0x23})
            .reading();
    expectTexts(reading, {{"display_device.interface", "DisplayPort, lanes or links: 2"},
                          {"display_device.interface_version", "1.1"},
                          {"display_device.content_protection", "HDCP"},
                          {"display_device.min_clock", "25 MHz"},
                          {"display_device.max_clock", "300 MHz"},
                          {"display_device.native_width", "1920 px"},
                          {"display_device.native_height", "1200 px"},
                          {"display_device.aspect_ratio", "1.60"},
                          {"display_device.orientation", "portrait"},
                          {"display_device.rotation", "90 degrees clockwise"},
                          {"display_device.h_pitch", "0.27 mm"},
                          {"display_device.dithering", "spatial"},
                          {"display_device.direct_drive", "yes"},
                          {"display_device.deinterlacing", "yes"},
                          {"display_device.audio_delay_sign", "before the picture"},
                          {"display_device.audio_delay", "10 ms"},
                          {"display_device.frame_conversion", "one buffer"},
                          {"display_device.interface_depth", "8 bit"},
                          {"display_device.response_time", "5 ms"},
                          {"display_device.v_overscan", "3 %"}});
}

TEST(CtaVesa, ReadsATimingOfDisplayId) {
    const Reading reading = ctaWith({0xF6, 0x22, 0x00, 0x13, 0x44, 0x02, 0x84, 0x7F, 0x07, 0x17, 0x01, 0x57,
                                     0x80, 0x2B, 0x00, 0x37, 0x04, 0x2C, 0x00, 0x03, 0x80, 0x04, 0x00})
                                .reading();
    expectTexts(reading, {{"type_vii.timing[1].pixel_clock", "148.500 MHz"},
                          {"type_vii.timing[1].h_active", "1920 px"},
                          {"type_vii.timing[1].h_front_porch", "88 px"},
                          {"type_vii.timing[1].v_sync_polarity", "positive"}});
    ASSERT_EQ(reading.summary.modes.size(), 1U);
    EXPECT_EQ(reading.summary.modes[0].refreshMilliHertz, 60000);
    EXPECT_EQ(reading.summary.modes[0].horizontalTotal, 2200);
    EXPECT_EQ(reading.summary.modes[0].verticalTotal, 1125);
}

TEST(CtaUnknown, IsToldInRawBytes) {
    const Reading reading = ctaWith({0xE3, 0x1F, 0xAB, 0xCD, 0xC2, 0x12, 0x34, 0x02, 0x56, 0x78}).reading();
    expectTexts(reading, {{"data_block[1].extended_tag", "31 (data block with a reserved tag)"},
                          {"reserved.bytes", "AB CD"},
                          {"video_format.bytes", "12 34"},
                          {"data_block[3].tag", "0 (data block with a reserved tag)"},
                          {"reserved[2].bytes", "56 78"}});
}

struct Kind861 {
    std::string label;
    std::size_t least; ///< bytes of its content after the tags
    bool once = false;
    std::vector<int> begin = {}; ///< the first bytes of its content
};

/// Data blocks of one kind with so many bytes of content, zeros behind those that make the kind.
Reading readBlocks(int tag, int extendedTag, const Kind861& kind, std::size_t content, int count) {
    ImageOf image(2);
    std::size_t place = 132;
    for (int i = 0; i < count; ++i) {
        const bool extended = tag == 7;
        image.set(place, {tag << 5 | static_cast<int>(content + (extended ? 1 : 0))});
        ++place;
        if (extended) {
            image.set(place, {extendedTag});
            ++place;
        }
        for (std::size_t k = 0; k < content; ++k) {
            image.set(place + k, {k < kind.begin.size() ? kind.begin[k] : 0});
        }
        place += content;
    }
    return image.set(128, {0x02, 0x03, static_cast<int>(place - 128), 0}).reading();
}

void expectKind(int tag, int extendedTag, const Kind861& kind) {
    SCOPED_TRACE(std::to_string(tag) + ", " + std::to_string(extendedTag) + ": " + kind.label);
    const Reading least = readBlocks(tag, extendedTag, kind, kind.least, 1);
    const std::string number = std::to_string(tag == 7 ? extendedTag : tag);
    EXPECT_EQ(textOf(least, tag == 7 ? "cta[1].data_block[1].extended_tag" : "cta[1].data_block[1].tag"),
              number + " (" + kind.label + ")");
    EXPECT_EQ(countOf(least, "cta.data_block_short"), 0U);
    EXPECT_EQ(countOf(least, "cta.data_block_reserved"), kind.label == "data block with a reserved tag" ? 1U : 0U);
    if (kind.least > 0) {
        EXPECT_EQ(countOf(readBlocks(tag, extendedTag, kind, kind.least - 1, 1), "cta.data_block_short"), 1U);
    }
    EXPECT_EQ(countOf(readBlocks(tag, extendedTag, kind, kind.least, 2), "cta.data_block_repeated"),
              kind.once ? 1U : 0U);
}

const Kind861 reserved = {"data block with a reserved tag", 0};

TEST(CtaDataBlocks, AreOfTheKindsOfTheStandard) {
    const std::map<int, Kind861> kinds = {{1, {"audio data block", 3}},
                                          {2, {"video data block", 1}},
                                          {3, {"vendor-specific data block", 3}},
                                          {4, {"speaker allocation data block", 3, true}},
                                          {5, {"VESA display transfer characteristic data block", 1}},
                                          {6, {"video format data block", 1}}};
    for (const auto& [tag, kind] : kinds) {
        expectKind(tag, 0, kind);
    }
    expectKind(3, 0, {"HDMI vendor-specific data block", 5, true, {0x03, 0x0C, 0x00}});
    expectKind(3, 0, {"HDMI Forum vendor-specific data block", 7, true, {0xD8, 0x5D, 0xC4}});
    expectKind(3, 0, {"vendor-specific data block", 3, false, {0x1A, 0x00, 0x00}});
}

TEST(CtaDataBlocks, AreOfTheKindsOfTheStandardByTheirExtendedTags) {
    const std::map<int, Kind861> kinds = {{0, {"video capability data block", 1, true}},
                                          {1, {"vendor-specific video data block", 3}},
                                          {2, {"VESA display device data block", 30, true}},
                                          {3, {"VESA video timing data block", 1}},
                                          {4, {"data block reserved for HDMI video", 0}},
                                          {5, {"colorimetry data block", 2, true}},
                                          {6, {"HDR static metadata data block", 2, true}},
                                          {7, {"HDR dynamic metadata data block", 3}},
                                          {8, {"native video resolution data block", 1}},
                                          {13, {"video format preference data block", 1}},
                                          {14, {"YCbCr 4:2:0 video data block", 1}},
                                          {15, {"YCbCr 4:2:0 capability map data block", 0, true}},
                                          {17, {"vendor-specific audio data block", 3}},
                                          {18, {"data block reserved for HDMI audio", 0}},
                                          {19, {"room configuration data block", 4, true}},
                                          {20, {"speaker location data block", 2}},
                                          {32, {"InfoFrame data block", 2}},
                                          {34, {"DisplayID type VII timing data block", 21}},
                                          {35, {"DisplayID type VIII timing data block", 2}},
                                          {42, {"DisplayID type X timing data block", 7}},
                                          {120, {"HDMI Forum EDID extension override data block", 1, true}},
                                          {121, {"HDMI Forum sink capability data block", 6, true}}};
    for (int tag = 0; tag < 256; ++tag) {
        const auto kind = kinds.find(tag);
        expectKind(7, tag, kind == kinds.end() ? reserved : kind->second);
    }
}

TEST(CtaDataBlocks, ReadWhatIsInsideOfOneThatRunsOver) {
    const Reading reading = ctaWith({0x45, 16, 31}).reading();
    expectTexts(reading, {{"data_block[1].length", "5"}, {"video[2].code", "31 (1920x1080 50 Hz 16:9)"}});
    EXPECT_FALSE(hasField(reading, "cta[1].video[3].code"));
    EXPECT_EQ(fieldOf(reading, "cta[1].padding").where.front().byte, 135U);
}

} // namespace
} // namespace wb::fields
