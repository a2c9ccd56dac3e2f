// The words that stand for bits, each table of the standards from its first value to its last.

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <ostream>

#include "extension_image.h"
#include "good_image.h"

namespace wb::fields {
namespace {

using Words = std::map<unsigned, std::string>; ///< by the value of the bits; those that are left out are reserved

/// Bits `high` to `low` of the byte at `place`, all of whose values are words.
struct Choices {
    std::string path;
    ImageOf image;
    std::size_t place;
    unsigned high;
    unsigned low;
    Words words;
};

std::ostream& operator<<(std::ostream& out, const Choices& choices) {
    return out << choices.path;
}

/// The image with that value in the bits.
ImageOf withBits(const ImageOf& image, std::size_t place, unsigned high, unsigned low, unsigned value) {
    const unsigned mask = (1U << (high - low + 1)) - 1;
    const unsigned others = image.image().byte(place) & ~(mask << low);
    return ImageOf(image).set(place, {static_cast<int>(others | value << low)});
}

/// Whether a finding tells that the value of the field has no meaning.
bool isToldAsReserved(const Reading& reading, const std::string& path) {
    return std::any_of(reading.findings.begin(), reading.findings.end(), [&](const Finding& finding) {
        return finding.code == "field.reserved_value" && finding.path == path;
    });
}

class ChoiceFields : public testing::TestWithParam<Choices> {};

TEST_P(ChoiceFields, HaveWordsForTheValuesOfTheStandardAlone) {
    const Choices& tried = GetParam();
    for (unsigned value = 0; value < 1U << (tried.high - tried.low + 1); ++value) {
        const Reading reading = withBits(tried.image, tried.place, tried.high, tried.low, value).reading();
        const auto words = tried.words.find(value);
        const std::string& text = fieldOf(reading, tried.path).text;
        EXPECT_EQ(text, words == tried.words.end() ? "reserved (" + std::to_string(value) + ")" : words->second);
        EXPECT_EQ(isToldAsReserved(reading, tried.path), text.starts_with("reserved")) << text;
    }
}

ImageOf analogImage() {
    return goodImage().set(20, {0x0F});
}

const std::vector<Choices> block0 = {
    {"base.basic.input", goodImage(), 20, 7, 7, {{0, "analog"}, {1, "digital"}}},
    {"base.basic.signal_level",
     analogImage(),
     20,
     6,
     5,
     {{0, "0.700 V and -0.300 V (1.000 V peak to peak)"},
      {1, "0.714 V and -0.286 V (1.000 V peak to peak)"},
      {2, "1.000 V and -0.400 V (1.400 V peak to peak)"},
      {3, "0.700 V and 0.000 V (0.700 V peak to peak)"}}},
    {"base.basic.bit_depth",
     goodImage(),
     20,
     6,
     4,
     {{0, "not told"},
      {1, "6 bit"},
      {2, "8 bit"},
      {3, "10 bit"},
      {4, "12 bit"},
      {5, "14 bit"},
      {6, "16 bit"},
      {7, "reserved"}}},
    {"base.basic.interface",
     goodImage(),
     20,
     3,
     0,
     {{0, "not told"}, {1, "DVI"}, {2, "HDMI-a"}, {3, "HDMI-b"}, {4, "MDDI"}, {5, "DisplayPort"}}},
    {"base.basic.display_type",
     analogImage(),
     24,
     4,
     3,
     {{0, "monochrome or grayscale"}, {1, "RGB colour"}, {2, "non-RGB colour"}, {3, "not told"}}},
    {"base.basic.color_encodings",
     goodImage(),
     24,
     4,
     3,
     {{0, "RGB 4:4:4"},
      {1, "RGB 4:4:4, YCbCr 4:4:4"},
      {2, "RGB 4:4:4, YCbCr 4:2:2"},
      {3, "RGB 4:4:4, YCbCr 4:4:4, YCbCr 4:2:2"}}},
    {"base.detailed[1].sync_type",
     goodImage(),
     71,
     4,
     3,
     {{0, "analog composite"}, {1, "bipolar analog composite"}, {2, "digital composite"}, {3, "digital separate"}}},
    {"base.detailed[1].v_sync_polarity", goodImage(), 71, 2, 2, {{0, "negative"}, {1, "positive"}}},
    {"base.detailed[1].h_sync_polarity", goodImage(), 71, 1, 1, {{0, "negative"}, {1, "positive"}}},
    {"base.descriptor[3].range.h_offset",
     goodImage(),
     94,
     3,
     2,
     {{0, "none"}, {2, "255 on the maximum"}, {3, "255 on both"}}},
    {"base.descriptor[3].range.v_offset",
     goodImage(),
     94,
     1,
     0,
     {{0, "none"}, {2, "255 on the maximum"}, {3, "255 on both"}}},
    {"base.descriptor[3].range.timing_support",
     goodImage(),
     100,
     7,
     0,
     {{0, "default GTF"}, {1, "range limits only"}, {2, "secondary GTF"}, {4, "CVT"}}},
    {"base.descriptor[3].range.timing_support",
     goodImage13(),
     100,
     7,
     0,
     {{0, "no secondary timing formula"}, {2, "secondary GTF"}}},
    {"base.descriptor[3].range.preferred_aspect",
     goodImage().set(100, {4, 0x11, 0, 0, 0xF8, 0, 0, 60}),
     105,
     7,
     5,
     {{0, "4:3"}, {1, "16:9"}, {2, "16:10"}, {3, "5:4"}, {4, "15:9"}}},
};

const Words scans = {{1, "always overscanned"}, {2, "always underscanned"}, {3, "both"}};
Words scansWith(const std::string& first) {
    Words words = scans;
    words[0] = first;
    return words;
}

const ImageOf capabilities = ctaWith({0xE2, 0x00, 0});
/// With a mandatory 3D format, and one structure of a video descriptor with its detail.
const ImageOf hdmi = ctaWith({0x6C, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0x20, 0x80, 0x02, 0x08, 0x00});
const ImageOf hdmiForum = ctaWith({0x6C, 0xD8, 0x5D, 0xC4, 1, 0, 0x80, 0, 0, 0, 0, 0, 0});
const Words linkRates = {{0, "none"},
                         {1, "3 Gbit/s on 3 lanes"},
                         {2, "6 Gbit/s on 3 lanes"},
                         {3, "6 Gbit/s on 4 lanes"},
                         {4, "8 Gbit/s on 4 lanes"},
                         {5, "10 Gbit/s on 4 lanes"},
                         {6, "12 Gbit/s on 4 lanes"}};

const std::vector<Choices> cta = {
    {"cta[1].video_capability.ycc_quantization", capabilities, 134, 7, 7, {{0, "not told"}, {1, "selectable"}}},
    {"cta[1].video_capability.rgb_quantization", capabilities, 134, 6, 6, {{0, "not told"}, {1, "selectable"}}},
    {"cta[1].video_capability.preferred_scan", capabilities, 134, 5, 4, scansWith("as for IT and CE formats")},
    {"cta[1].video_capability.it_scan", capabilities, 134, 3, 2, scansWith("IT formats not supported")},
    {"cta[1].video_capability.ce_scan", capabilities, 134, 1, 0, scansWith("CE formats not supported")},
    {"cta[1].hdr_dynamic.metadata[1].type",
     ctaWith({0xE4, 0x07, 3, 1, 0}),
     135,
     7,
     0,
     {{1, "SMPTE ST 2094-10"}, {2, "ETSI TS 103 433"}, {3, "ITU-T H.265 SEI"}, {4, "SMPTE ST 2094-40"}}},
    {"cta[1].audio[1].format",
     ctaWith({0x23, 0x09, 0x07, 0x07}),
     133,
     6,
     3,
     {{1, "L-PCM"},
      {2, "AC-3"},
      {3, "MPEG-1"},
      {4, "MP3"},
      {5, "MPEG-2"},
      {6, "AAC LC"},
      {7, "DTS"},
      {8, "ATRAC"},
      {9, "One Bit Audio"},
      {10, "Enhanced AC-3"},
      {11, "DTS-HD"},
      {12, "MAT"},
      {13, "DST"},
      {14, "WMA Pro"},
      {15, "extended"}}},
    {"cta[1].audio[1].extended_format",
     ctaWith({0x23, 0x79, 0x07, 0x20}),
     135,
     7,
     3,
     {{4, "MPEG-4 HE AAC"},
      {5, "MPEG-4 HE AAC v2"},
      {6, "MPEG-4 AAC LC"},
      {7, "DRA"},
      {8, "MPEG-4 HE AAC + MPEG Surround"},
      {10, "MPEG-4 AAC LC + MPEG Surround"},
      {11, "MPEG-H 3D Audio"},
      {12, "AC-4"},
      {13, "L-PCM 3D Audio"},
      {14, "Auro-Cx"},
      {15, "MPEG-D USAC"}}},
    {"cta[1].audio[1].surround_signaling",
     ctaWith({0x23, 0x79, 0x07, 0x40}),
     135,
     0,
     0,
     {{0, "implicit"}, {1, "implicit and explicit"}}},
    {"cta[1].speaker_location.speaker[1].speaker",
     ctaWith({0xE3, 0x14, 0x20, 0}),
     135,
     4,
     0,
     {{0, "front left"},
      {1, "front right"},
      {2, "front center"},
      {3, "low frequency effects 1"},
      {4, "back left"},
      {5, "back right"},
      {6, "front left of center"},
      {7, "front right of center"},
      {8, "back center"},
      {9, "low frequency effects 2"},
      {10, "side left"},
      {11, "side right"},
      {12, "top front left"},
      {13, "top front right"},
      {14, "top front center"},
      {15, "top center"},
      {16, "top back left"},
      {17, "top back right"},
      {18, "top side left"},
      {19, "top side right"},
      {20, "top back center"},
      {21, "bottom front center"},
      {22, "bottom front left"},
      {23, "bottom front right"},
      {24, "front left wide"},
      {25, "front right wide"},
      {26, "left surround"},
      {27, "right surround"}}},
    {"cta[1].hdmi.three_d_multi",
     hdmi,
     141,
     6,
     5,
     {{0, "none"},
      {1, "structures for the first 16 video descriptors"},
      {2, "structures for those video descriptors that a mask names"}}},
    {"cta[1].hdmi.image_size",
     hdmi,
     141,
     4,
     3,
     {{0, "not told"},
      {1, "of the right aspect ratio in block 0"},
      {2, "right in block 0, in cm"},
      {3, "right in block 0, in 5 cm"}}},
    {"cta[1].hdmi.three_d[1].structure",
     hdmi,
     143,
     3,
     0,
     {{0, "frame packing"},
      {1, "field alternative"},
      {2, "line alternative"},
      {3, "side by side, full"},
      {4, "left and depth"},
      {5, "left, depth, graphics and graphics depth"},
      {6, "top and bottom"},
      {8, "side by side, half"}}},
    {"cta[1].hdmi.three_d[1].detail",
     hdmi,
     144,
     7,
     4,
     {{0, "all horizontal and quincunx sub-samplings"},
      {1, "horizontal sub-sampling"},
      {6, "all quincunx sub-samplings"},
      {7, "quincunx, odd left, odd right"},
      {8, "quincunx, odd left, even right"},
      {9, "quincunx, even left, odd right"},
      {10, "quincunx, even left, even right"}}},
    {"cta[1].hdmi_forum.max_frl_rate", hdmiForum, 139, 7, 4, linkRates},
    {"cta[1].hdmi_forum.dsc_max_frl_rate", hdmiForum, 144, 7, 4, linkRates},
    {"cta[1].hdmi_forum.dsc_max_slices",
     hdmiForum,
     144,
     3,
     0,
     {{0, "none"},
      {1, "1 slice up to 340 MHz"},
      {2, "2 slices up to 340 MHz each"},
      {3, "4 slices up to 340 MHz each"},
      {4, "8 slices up to 340 MHz each"},
      {5, "8 slices up to 400 MHz each"},
      {6, "12 slices up to 400 MHz each"},
      {7, "16 slices up to 400 MHz each"}}},
};

const ImageOf device =
    ctaWith({0xFF, 0x02, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});

/// The analog interfaces; the others with their lanes or links in the lower digit.
Words interfaceWords() {
    Words words = {{0, "analog, VGA connector"}, {1, "analog, NAVI-V"}, {2, "analog, NAVI-D"}};
    const std::vector<std::string> digital = {"LVDS",           "RSDS",      "DVI-D",      "DVI-I, analog",
                                              "DVI-I, digital", "HDMI-A",    "HDMI-B",     "MDDI",
                                              "DisplayPort",    "IEEE 1394", "M1, analog", "M1, digital"};
    for (unsigned value = 0x10; value < 0xD0; ++value) {
        words[value] = digital.at(value / 16 - 1) + ", lanes or links: " + std::to_string(value % 16);
    }
    return words;
}

const std::vector<Choices> vesa = {
    {"cta[1].dtc.color",
     ctaWith({0xA4, 0x45, 1, 2, 3}),
     133,
     7,
     6,
     {{0, "white"}, {1, "red"}, {2, "green"}, {3, "blue"}}},
    {"cta[1].display_device.interface", device, 134, 7, 0, interfaceWords()},
    {"cta[1].display_device.content_protection",
     device,
     136,
     7,
     0,
     {{0, "none"}, {1, "HDCP"}, {2, "DTCP"}, {3, "DPCP"}}},
    {"cta[1].display_device.orientation",
     device,
     144,
     7,
     6,
     {{0, "landscape"}, {1, "portrait"}, {2, "not fixed"}, {3, "not defined"}}},
    {"cta[1].display_device.rotation",
     device,
     144,
     5,
     4,
     {{0, "none"}, {1, "90 degrees clockwise"}, {2, "90 degrees counterclockwise"}, {3, "90 degrees either way"}}},
    {"cta[1].display_device.zero_pixel",
     device,
     144,
     3,
     2,
     {{0, "upper left"}, {1, "upper right"}, {2, "lower left"}, {3, "lower right"}}},
    {"cta[1].display_device.scan_direction",
     device,
     144,
     1,
     0,
     {{0, "not defined"}, {1, "fast along the long side"}, {2, "fast along the short side"}}},
    {"cta[1].display_device.subpixels",
     device,
     145,
     7,
     0,
     {{0, "not defined"},
      {1, "RGB vertical stripes"},
      {2, "RGB horizontal stripes"},
      {3, "vertical stripes in the order of the primaries"},
      {4, "horizontal stripes in the order of the primaries"},
      {5, "quad, red at the upper left"},
      {6, "quad, red at the lower left"},
      {7, "delta"},
      {8, "mosaic"},
      {9, "other"}}},
    {"cta[1].display_device.dithering", device, 148, 7, 6, {{0, "none"}, {1, "spatial"}, {2, "temporal"}, {3, "both"}}},
    {"cta[1].display_device.audio_delay_sign",
     device,
     150,
     7,
     7,
     {{0, "after the picture"}, {1, "before the picture"}}},
    {"cta[1].display_device.frame_conversion",
     device,
     151,
     7,
     6,
     {{0, "none"}, {1, "one buffer"}, {2, "two buffers"}, {3, "between frames"}}},
    {"cta[1].display_device.response", device, 162, 7, 7, {{0, "black to white"}, {1, "white to black"}}},
};

const ImageOf displayIdTiming =
    displayIdWith(0x12, {0x03, 0, 20, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});

const std::vector<Choices> displayId = {
    {"displayid[1].header.product_type",
     displayIdTiming,
     131,
     7,
     0,
     {{0, "extension of another section"},
      {1, "test equipment"},
      {2, "display panel"},
      {3, "standalone display"},
      {4, "television receiver"},
      {5, "repeater"},
      {6, "direct drive monitor"}}},
    {"displayid[1].header.primary_use",
     displayIdWith(0x20, {}),
     131,
     7,
     0,
     {{0, "extension of another section"},
      {1, "test equipment"},
      {2, "generic display"},
      {3, "television"},
      {4, "desktop productivity"},
      {5, "desktop gaming"},
      {6, "presentation"},
      {7, "virtual reality"},
      {8, "augmented reality"}}},
    {"displayid[1].type_i.timing[1].stereo",
     displayIdTiming,
     139,
     6,
     5,
     {{0, "none"}, {1, "stereo"}, {2, "as the user wants"}}},
    {"displayid[1].type_i.timing[1].aspect_ratio",
     displayIdTiming,
     139,
     3,
     0,
     {{0, "1:1"},
      {1, "5:4"},
      {2, "4:3"},
      {3, "15:9"},
      {4, "16:9"},
      {5, "16:10"},
      {6, "64:27"},
      {7, "256:135"},
      {8, "not defined"}}},
    {"displayid[1].type_i.timing[1].h_sync_polarity", displayIdTiming, 145, 7, 7, {{0, "negative"}, {1, "positive"}}},
    {"displayid[1].type_i.timing[1].v_sync_polarity", displayIdTiming, 153, 7, 7, {{0, "negative"}, {1, "positive"}}},
};

INSTANTIATE_TEST_SUITE_P(Block0, ChoiceFields, testing::ValuesIn(block0));
INSTANTIATE_TEST_SUITE_P(Cta, ChoiceFields, testing::ValuesIn(cta));
INSTANTIATE_TEST_SUITE_P(Vesa, ChoiceFields, testing::ValuesIn(vesa));
INSTANTIATE_TEST_SUITE_P(DisplayId, ChoiceFields, testing::ValuesIn(displayId));

/// A number some of whose values are words.
struct NumberWithWords {
    std::string path;
    ImageOf image;
    std::size_t place;
    Words words; ///< by the byte, those of numbers besides
};

TEST(NumbersWithWords, HaveThemForTheValuesOfTheStandard) {
    const ImageOf range = goodImage().set(100, {4, 0x11, 0, 0, 0xF8, 0, 0, 60});
    const ImageOf latencies = ctaWith({0x6C, 0x03, 0x0C, 0x00, 0x10, 0x00, 0, 0, 0xC0, 1, 1, 1, 1});
    const ImageOf whitePoint =
        goodImage().set(108, {0, 0, 0, 0xFB, 0, 1, 0x0D, 0x50, 0x54, 120, 0, 0, 0, 0, 0, 10, 32, 32});
    const Words milliseconds = {{0, "not told"},   {1, "0 ms"},       {2, "2 ms"},       {251, "500 ms"},
                                {252, "reserved"}, {253, "reserved"}, {254, "reserved"}, {255, "not supported"}};
    const Words sizes = {{0, "not told"}, {1, "1 cm"}, {255, "255 cm"}};
    const std::vector<NumberWithWords> all = {
        {"base.vendor.serial_number", goodImage(), 12, {{0, "none"}, {1, "1"}, {255, "255"}}},
        {"base.vendor.week",
         goodImage(),
         16,
         {{0, "not told"}, {1, "1"}, {54, "54"}, {255, "the year is the model's"}}},
        {"base.vendor.week", goodImage13(), 16, {{0, "not told"}, {1, "1"}, {255, "255"}}},
        {"base.basic.width", goodImage13(), 21, sizes},
        {"base.basic.height", goodImage13(), 22, sizes},
        {"base.basic.gamma",
         goodImage(),
         23,
         {{0, "1.00"}, {1, "1.01"}, {254, "3.54"}, {255, "told in an extension block"}}},
        {"base.descriptor[3].range.max_pixel_clock", range, 99, {{0, "not told"}, {1, "10 MHz"}, {255, "2550 MHz"}}},
        {"base.descriptor[3].range.max_h_active", range, 103, {{0, "no limit"}, {1, "8 px"}, {255, "2040 px"}}},
        {"base.descriptor[4].white_point[1].index", whitePoint, 113, {{0, "unused"}, {1, "1"}, {255, "255"}}},
        {"base.descriptor[4].white_point[1].gamma", whitePoint, 117, {{0, "1.00"}, {254, "3.54"}, {255, "not told"}}},
        {"cta[1].header.revision",
         ctaWith({}),
         129,
         {{0, "0"}, {1, "1 (CEA-861)"}, {2, "2 (CEA-861-A)"}, {3, "3 (CEA-861-B on)"}, {4, "4"}}},
        {"cta[1].hdmi.video_latency", latencies, 141, milliseconds},
        {"cta[1].hdmi.audio_latency", latencies, 142, milliseconds},
        {"cta[1].hdmi.interlaced_video_latency", latencies, 143, milliseconds},
        {"cta[1].hdmi.interlaced_audio_latency", latencies, 144, milliseconds},
        {"cta[1].hdmi_forum.max_tmds_clock",
         hdmiForum,
         137,
         {{0, "not above 340 MHz"}, {1, "5 MHz"}, {69, "345 MHz"}, {255, "1275 MHz"}}},
        {"cta[1].hdmi_forum.vrr_min", hdmiForum, 141, {{0, "none"}, {1, "1 Hz"}, {63, "63 Hz"}}},
        {"cta[1].hdmi_forum.vrr_max", hdmiForum, 142, {{0, "not told"}, {1, "1 Hz"}, {255, "255 Hz"}}},
        {"cta[1].hdr.max_luminance", ctaWith({0xE6, 0x06, 1, 1, 0, 0, 0}), 136, {{0, "not told"}}},
        {"cta[1].hdr.max_average_luminance", ctaWith({0xE6, 0x06, 1, 1, 0, 0, 0}), 137, {{0, "not told"}}},
        {"displayid[1].product.week",
         displayIdWith(0x12, {0x00, 0, 12, 'A', 'B', 'C', 0, 0, 0, 0, 0, 0, 12, 20, 0}),
         145,
         {{0, "not told"}, {1, "1"}, {52, "52"}, {255, "none, the year is that of the model"}}},
    };
    for (const NumberWithWords& tried : all) {
        for (const auto& [value, text] : tried.words) {
            const Reading reading = ImageOf(tried.image).set(tried.place, {static_cast<int>(value)}).reading();
            EXPECT_EQ(fieldOf(reading, tried.path).text, text) << tried.path << " of " << value;
            EXPECT_EQ(isToldAsReserved(reading, tried.path), text == "reserved") << tried.path << " of " << value;
        }
    }
}

TEST(StereoModes, AreThoseOfTheStandard) {
    const auto stereoOf = [](int flags) {
        return fieldOf(goodImage().set(71, {flags}).reading(), "base.detailed[1].stereo").text;
    };
    EXPECT_EQ(stereoOf(0x18), "none");
    EXPECT_EQ(stereoOf(0x19), "none");
    EXPECT_EQ(stereoOf(0x38), "field sequential, right image on sync");
    EXPECT_EQ(stereoOf(0x58), "field sequential, left image on sync");
    EXPECT_EQ(stereoOf(0x39), "2-way interleaved, right image on even lines");
    EXPECT_EQ(stereoOf(0x59), "2-way interleaved, left image on even lines");
    EXPECT_EQ(stereoOf(0x78), "4-way interleaved");
    EXPECT_EQ(stereoOf(0x79), "side by side interleaved");
}

} // namespace
} // namespace wb::fields
