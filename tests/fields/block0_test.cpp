#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "fields/json.h"
#include "good_image.h"

namespace wb::fields {
namespace {

std::int64_t wholeOf(const Reading& reading, const std::string& path) {
    return std::get<std::int64_t>(fieldOf(reading, path).value);
}

double realOf(const Reading& reading, const std::string& path) {
    return std::get<double>(fieldOf(reading, path).value);
}

bool flagOf(const Reading& reading, const std::string& path) {
    return std::get<bool>(fieldOf(reading, path).value);
}

std::string textOf(const Reading& reading, const std::string& path) {
    return fieldOf(reading, path).text;
}

bool hasField(const Reading& reading, std::string_view path) {
    return std::any_of(reading.fields.begin(), reading.fields.end(),
                       [&](const Field& field) { return field.path == path; });
}

bool isEmpty(const Value& value) {
    return std::holds_alternative<std::monostate>(value);
}

/// The four slots without any mode or name.
ImageOf withoutModes() {
    ImageOf image = goodImage();
    image.set(38, {1, 1});
    for (std::size_t place = 54; place < 126; place += 18) {
        image.set(place, {0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    }
    return image;
}

TEST(Block0, TellsMakerProductAndDate) {
    const Reading reading = goodImage().reading();
    EXPECT_EQ(textOf(reading, "base.vendor.manufacturer"), "WBT");
    EXPECT_EQ(wholeOf(reading, "base.vendor.product_code"), 0x1234);
    EXPECT_EQ(wholeOf(reading, "base.vendor.serial_number"), 1);
    EXPECT_EQ(wholeOf(reading, "base.vendor.week"), 10);
    EXPECT_EQ(wholeOf(reading, "base.vendor.year"), 2020);
    const Summary& summary = reading.summary;
    EXPECT_EQ(summary.version, "1.4");
    EXPECT_EQ(summary.maker, "WBT");
    EXPECT_EQ(summary.productCode, 0x1234);
    EXPECT_EQ(summary.serialNumber, 1);
    EXPECT_EQ(summary.week, 10);
    EXPECT_EQ(summary.year, 2020);
    EXPECT_FALSE(summary.modelYear);
    EXPECT_EQ(summary.name, "Plain");
    EXPECT_EQ(summary.serialText, "A1");
}

TEST(Block0, TellsTheQuartersOfALimitingClock) {
    // 150 MHz less one quarter, and CVT 1.1 with 16:9.
    ImageOf image = goodImage().set(24, {0x03}).set(99, {15, 4, 0x11, 0x04, 0, 0x40, 0x28, 0, 60});
    image.set(54, {0x98, 0x3A});
    const Reading reading = image.reading();
    const auto finding = std::find_if(reading.findings.begin(), reading.findings.end(),
                                      [](const Finding& f) { return f.code == "timing.outside_limits"; });
    ASSERT_NE(finding, reading.findings.end());
    EXPECT_THAT(finding->text, testing::HasSubstr("150.00 MHz and the range limits allow 0 to 149.75 MHz"));
}

TEST(Block0, TakesAnEmptyTextForNone) {
    const Reading reading = goodImage().set(113, {10, 32, 32}).reading();
    EXPECT_EQ(std::get<std::string>(fieldOf(reading, "base.descriptor[4].serial_text").value), "");
    EXPECT_FALSE(reading.summary.serialText);
    EXPECT_THAT(summaryToJson(reading), testing::HasSubstr("\"serial_text\":null,\"name\":\"Plain\""));
}

TEST(Block0, TellsLittleEndianSerialNumbersAndNone) {
    EXPECT_EQ(goodImage().set(12, {0x78, 0x56, 0x34, 0xF2}).reading().summary.serialNumber, 0xF2345678);
    const Reading none = goodImage().set(12, {0, 0, 0, 0}).reading();
    EXPECT_TRUE(isEmpty(fieldOf(none, "base.vendor.serial_number").value));
    EXPECT_FALSE(none.summary.serialNumber);
}

TEST(Block0, TellsTheModelYearSince14) {
    const Reading reading = goodImage().set(16, {255}).reading();
    EXPECT_EQ(fieldOf(reading, "base.vendor.year").label, "Model year");
    EXPECT_EQ(reading.summary.modelYear, 2020);
    EXPECT_FALSE(reading.summary.year);
    EXPECT_FALSE(reading.summary.week);
    const Reading before = goodImage13().set(16, {255}).reading();
    EXPECT_EQ(fieldOf(before, "base.vendor.year").label, "Year of manufacture");
    EXPECT_EQ(before.summary.year, 2020);
    EXPECT_FALSE(before.summary.week);
}

TEST(Block0, ReadsTheDigitalInputByRevision) {
    const Reading reading = goodImage().reading();
    EXPECT_EQ(textOf(reading, "base.basic.input"), "digital");
    EXPECT_EQ(wholeOf(reading, "base.basic.bit_depth"), 8);
    EXPECT_EQ(textOf(reading, "base.basic.interface"), "DisplayPort");
    EXPECT_EQ(reading.summary.bitsPerColor, 8);
    EXPECT_EQ(reading.summary.videoInterface, "DisplayPort");
    const Reading unknown = goodImage().set(20, {0x80}).reading();
    EXPECT_TRUE(isEmpty(fieldOf(unknown, "base.basic.bit_depth").value));
    EXPECT_FALSE(unknown.summary.bitsPerColor);
    EXPECT_FALSE(unknown.summary.videoInterface);
    const Reading before = goodImage13().set(20, {0x81}).reading();
    EXPECT_TRUE(flagOf(before, "base.basic.dfp"));
    EXPECT_EQ(before.summary.videoInterface, "DFP 1.x");
    EXPECT_FALSE(hasField(before, "base.basic.bit_depth"));
}

TEST(Block0, ReadsTheAnalogInput) {
    const Reading reading = goodImage().set(20, {0x4A}).reading();
    EXPECT_FALSE(reading.summary.digital);
    EXPECT_EQ(textOf(reading, "base.basic.signal_level"), "1.000 V and -0.400 V (1.400 V peak to peak)");
    EXPECT_FALSE(flagOf(reading, "base.basic.setup"));
    EXPECT_TRUE(flagOf(reading, "base.basic.separate_sync"));
    EXPECT_FALSE(flagOf(reading, "base.basic.composite_sync"));
    EXPECT_TRUE(flagOf(reading, "base.basic.sync_on_green"));
    EXPECT_FALSE(flagOf(reading, "base.basic.serrations"));
    EXPECT_TRUE(hasField(reading, "base.basic.display_type"));
}

TEST(Block0, ReadsASizeOrAnAspectRatio) {
    EXPECT_EQ(wholeOf(goodImage().reading(), "base.basic.width"), 52);
    const Reading landscape = goodImage().set(21, {79, 0}).reading();
    EXPECT_NEAR(realOf(landscape, "base.basic.aspect_ratio"), 1.78, 1e-9);
    EXPECT_TRUE(isEmpty(fieldOf(landscape, "base.basic.height").value));
    const Reading portrait = goodImage().set(21, {0, 61}).reading();
    EXPECT_NEAR(realOf(portrait, "base.basic.portrait_ratio"), 1.6, 1e-9);
    EXPECT_EQ(wholeOf(goodImage13().set(22, {0}).reading(), "base.basic.width"), 52);
}

TEST(Block0, ReadsGammaByRevision) {
    EXPECT_NEAR(realOf(goodImage().reading(), "base.basic.gamma"), 2.2, 1e-9);
    const Reading elsewhere = goodImage().set(23, {255}).reading();
    EXPECT_TRUE(isEmpty(fieldOf(elsewhere, "base.basic.gamma").value));
    EXPECT_FALSE(elsewhere.summary.gamma);
    EXPECT_NEAR(*goodImage13().set(23, {255}).reading().summary.gamma, 3.55, 1e-9);
}

TEST(Block0, ReadsFeaturesByRevision) {
    const Reading reading = goodImage().set(24, {0x51}).reading();
    EXPECT_FALSE(flagOf(reading, "base.basic.standby"));
    EXPECT_TRUE(flagOf(reading, "base.basic.suspend"));
    EXPECT_FALSE(flagOf(reading, "base.basic.active_off"));
    EXPECT_EQ(textOf(reading, "base.basic.color_encodings"), "RGB 4:4:4, YCbCr 4:2:2");
    EXPECT_FALSE(flagOf(reading, "base.basic.srgb_default"));
    EXPECT_FALSE(flagOf(reading, "base.basic.preferred_timing"));
    EXPECT_TRUE(flagOf(reading, "base.basic.continuous_frequency"));
    const Reading before = goodImage13().set(24, {0x51}).reading();
    EXPECT_EQ(textOf(before, "base.basic.display_type"), "non-RGB colour");
    EXPECT_TRUE(flagOf(before, "base.basic.gtf"));
}

TEST(Block0, TellsChromaticitiesInTenBits) {
    // EE 91 A3 54 4C 99 26 0F 50 54
    const Reading reading = goodImage().reading();
    EXPECT_EQ(realOf(reading, "base.chromaticity.red_x"), (0xA3 * 4 + 3) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.red_y"), (0x54 * 4 + 2) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.green_x"), (0x4C * 4 + 3) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.green_y"), (0x99 * 4 + 2) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.blue_x"), (0x26 * 4 + 2) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.blue_y"), (0x0F * 4 + 1) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.white_x"), (0x50 * 4 + 0) / 1024.0);
    EXPECT_EQ(realOf(reading, "base.chromaticity.white_y"), (0x54 * 4 + 1) / 1024.0);
    ASSERT_TRUE(reading.summary.primaries);
    EXPECT_EQ((*reading.summary.primaries)[3].x, 0.3125);
}

TEST(Block0, TellsEstablishedTimings) {
    // The first and last bit of each byte.
    const Reading reading = withoutModes().set(35, {0x81, 0x91, 0x81}).reading();
    EXPECT_TRUE(flagOf(reading, "base.established.720x400_70"));
    EXPECT_FALSE(flagOf(reading, "base.established.720x400_88"));
    EXPECT_TRUE(flagOf(reading, "base.established.1024x768i_87"));
    EXPECT_TRUE(flagOf(reading, "base.established.manufacturer_0"));
    EXPECT_FALSE(flagOf(reading, "base.established.manufacturer_6"));
    EXPECT_EQ(modesOf(reading), (Modes{"720x400@70000", "800x600@60000", "800x600@72000", "1024x768i@87000",
                                       "1280x1024@75000", "1152x870@75000"}));
}

TEST(Block0, ReadsTheAspectRatioOfStandardTimingsByRevision) {
    // 1280 pixels at 85 Hz in each ratio.
    ImageOf image = withoutModes().set(38, {129, 0x19, 129, 0x59, 129, 0x99, 129, 0xD9});
    EXPECT_EQ(modesOf(image.reading()),
              (Modes{"1280x800@85000", "1280x960@85000", "1280x1024@85000", "1280x720@85000"}));
    EXPECT_EQ(textOf(image.reading(), "base.standard[1].aspect_ratio"), "16:10, 800 lines");
    EXPECT_EQ(wholeOf(image.reading(), "base.standard[4].width"), 1280);
    EXPECT_EQ(wholeOf(image.reading(), "base.standard[4].refresh"), 85);
    EXPECT_TRUE(hasField(image.reading(), "base.standard[5].unused"));
    EXPECT_EQ(modesOf(image.set(19, {2}).reading()).front(), "1280x1280@85000");
    EXPECT_EQ(modesOf(image.set(19, {3}).reading()).front(), "1280x800@85000");
}

TEST(Block0, TellsThePreferredMode) {
    const Reading reading = goodImage().reading();
    ASSERT_TRUE(reading.summary.preferredMode);
    EXPECT_EQ(reading.summary.preferredMode->width, 1920);
    EXPECT_EQ(reading.summary.preferredMode->refreshMilliHertz, 60000);
    EXPECT_EQ(reading.summary.preferredMode->horizontalTotal, 2200);
    EXPECT_TRUE(reading.summary.preferredMode->native);
    EXPECT_EQ(modesOf(reading), (Modes{"1920x1080@60000", "1920x1080@60000"}));
    // Without the bit: 1.4 and 1.3 prefer the first timing all the same, earlier ones do not.
    EXPECT_FALSE(goodImage().set(24, {0}).reading().summary.preferredMode->native);
    EXPECT_TRUE(goodImage13().set(24, {0x08}).reading().summary.preferredMode);
    EXPECT_FALSE(goodImage13().set(19, {2}).set(24, {0x08}).reading().summary.preferredMode);
}

TEST(Block0, KeepsTheNumbersOfTheSlots) {
    ImageOf image = goodImage();
    setTiming(image, 108);
    const Reading reading = image.reading();
    EXPECT_EQ(textOf(reading, "base.detailed[1].pixel_clock"), "148.50 MHz");
    EXPECT_EQ(textOf(reading, "base.descriptor[2].name"), "Plain");
    EXPECT_EQ(textOf(reading, "base.descriptor[3].tag"), "FDh, range limits");
    EXPECT_TRUE(hasField(reading, "base.detailed[4].pixel_clock"));
}

TEST(Block0, TakesTheSizeFromTheFirstTimingWhereItIsMoreExact) {
    const auto sizeOf = [](const ImageOf& image) {
        const Summary summary = image.reading().summary;
        return std::pair(summary.widthMillimetres.value_or(0), summary.heightMillimetres.value_or(0));
    };
    EXPECT_EQ(sizeOf(goodImage()), std::pair(519, 293));
    EXPECT_EQ(sizeOf(goodImage().set(21, {0, 0})), std::pair(519, 293));
    EXPECT_EQ(sizeOf(goodImage().set(21, {60, 29})), std::pair(600, 290)); // both disagree
    EXPECT_EQ(sizeOf(goodImage().set(66, {160, 90, 0})), std::pair(520, 290));
    EXPECT_EQ(sizeOf(goodImage().set(21, {0, 0}).set(66, {160, 90, 0})), std::pair(0, 0));
    EXPECT_EQ(sizeOf(goodImage().set(66, {0, 0, 0})), std::pair(520, 290));
    // 519 and 293 mm are 596 mm across.
    EXPECT_EQ(goodImage().reading().summary.diagonalInches, 23.5);
    EXPECT_FALSE(goodImage().set(21, {79, 0}).set(66, {0, 0, 0}).reading().summary.diagonalInches);
}

} // namespace
} // namespace wb::fields
