#include <gtest/gtest.h>

#include "good_image.h"

namespace wb::fields {
namespace {

const Value& valueOf(const Reading& reading, const std::string& path) {
    return fieldOf(reading, path).value;
}

Value whole(std::int64_t number) {
    return number;
}

/// goodImage with another descriptor in its last slot.
ImageOf withDescriptor(std::initializer_list<int> bytes) {
    return goodImage().set(108, bytes);
}

TEST(Descriptors, TellTextsInUtf8) {
    const Reading reading =
        withDescriptor({0, 0, 0, 0xFE, 0, 'c', 'a', 'f', 0xE9, 7, '!', ' ', 10, 32, 32, 32, 32, 32}).reading();
    EXPECT_EQ(std::get<std::string>(valueOf(reading, "base.descriptor[4].text")), "caf\u00E9\a!");
    EXPECT_EQ(fieldOf(reading, "base.descriptor[4].text").text, "caf\u00E9\\x07!");
}

TEST(Descriptors, TellRangeLimits) {
    const Reading reading = goodImage().reading();
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.min_v_rate"), whole(48));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.max_v_rate"), whole(75));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.min_h_rate"), whole(30));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.max_h_rate"), whole(83));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.max_pixel_clock"), whole(170));
    EXPECT_EQ(fieldOf(reading, "base.descriptor[3].range.timing_support").text, "range limits only");
    ASSERT_TRUE(reading.summary.range);
    EXPECT_EQ(reading.summary.range->minVerticalHertz, 48);
    EXPECT_EQ(reading.summary.range->maxHorizontalKilohertz, 83);
    EXPECT_EQ(reading.summary.range->maxClockMegahertz, 170);
}

TEST(Descriptors, AddOffsetsToRangeLimitsSince14) {
    // Horizontal: on both; vertical: on the maximum.
    const Reading reading = goodImage().set(94, {0x0E}).reading();
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.min_v_rate"), whole(48));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.max_v_rate"), whole(330));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.min_h_rate"), whole(285));
    EXPECT_EQ(valueOf(reading, "base.descriptor[3].range.max_h_rate"), whole(338));
    EXPECT_EQ(reading.summary.range->maxVerticalHertz, 330);
    EXPECT_EQ(goodImage13().set(94, {0x0E}).reading().summary.range->maxVerticalHertz, 75);
}

TEST(Descriptors, TellTheSecondaryGtfCurve) {
    const Reading reading = goodImage().set(100, {2, 0, 50, 81, 0x58, 0x02, 128, 41}).reading();
    const std::string range = "base.descriptor[3].range.";
    EXPECT_EQ(valueOf(reading, range + "gtf_start"), whole(100));
    EXPECT_EQ(valueOf(reading, range + "gtf_c"), Value(40.5));
    EXPECT_EQ(valueOf(reading, range + "gtf_m"), whole(600));
    EXPECT_EQ(valueOf(reading, range + "gtf_k"), whole(128));
    EXPECT_EQ(valueOf(reading, range + "gtf_j"), Value(20.5));
}

TEST(Descriptors, TellTheLimitsOfCvt) {
    // 170 MHz less 5 * 0.25, 0x1F0 * 8 pixels, 4:3 and 5:4, preferred 5:4, reduced blanking, vertical stretch, 75 Hz.
    const Reading reading = goodImage().set(100, {4, 0x11, 0x15, 0xF0, 0x90, 0x70, 0x10, 75}).reading();
    const std::string range = "base.descriptor[3].range.";
    EXPECT_EQ(valueOf(reading, range + "cvt_version"), whole(1));
    EXPECT_EQ(valueOf(reading, range + "cvt_revision"), whole(1));
    EXPECT_EQ(valueOf(reading, range + "clock_less"), Value(1.25));
    EXPECT_EQ(valueOf(reading, range + "max_h_active"), whole(3968));
    EXPECT_EQ(valueOf(reading, range + "aspect_4_3"), Value(true));
    EXPECT_EQ(valueOf(reading, range + "aspect_16_9"), Value(false));
    EXPECT_EQ(valueOf(reading, range + "aspect_5_4"), Value(true));
    EXPECT_EQ(fieldOf(reading, range + "preferred_aspect").text, "5:4");
    EXPECT_EQ(valueOf(reading, range + "reduced_blanking"), Value(true));
    EXPECT_EQ(valueOf(reading, range + "standard_blanking"), Value(false));
    EXPECT_EQ(valueOf(reading, range + "v_stretch"), Value(true));
    EXPECT_EQ(valueOf(reading, range + "preferred_rate"), whole(75));
    EXPECT_EQ(reading.summary.range->maxClockMegahertz, 168.75);
}

TEST(Descriptors, TellNoLimitWhereRangeLimitsHaveNone) {
    const std::string range = "base.descriptor[3].range.";
    const Reading withoutClock = goodImage().set(99, {0}).reading();
    EXPECT_EQ(fieldOf(withoutClock, range + "max_pixel_clock").text, "not told");
    EXPECT_FALSE(withoutClock.summary.range->maxClockMegahertz);
    const Reading leastClock = goodImage().set(99, {1}).reading();
    EXPECT_EQ(fieldOf(leastClock, range + "max_pixel_clock").text, "10 MHz");
    EXPECT_EQ(leastClock.summary.range->maxClockMegahertz, 10);
    const auto pixelsOf = [&](int byte12, int byte13) {
        return fieldOf(goodImage().set(100, {4, 0x11, byte12, byte13, 0x90, 0, 0, 75}).reading(),
                       range + "max_h_active")
            .text;
    };
    EXPECT_EQ(pixelsOf(0, 0), "no limit");
    EXPECT_EQ(pixelsOf(0, 1), "8 px");
    EXPECT_EQ(pixelsOf(1, 0), "2048 px");
}

TEST(Descriptors, ReadTheFormulaByRevision) {
    EXPECT_EQ(fieldOf(goodImage().set(100, {0}).reading(), "base.descriptor[3].range.timing_support").text,
              "default GTF");
    EXPECT_EQ(fieldOf(goodImage13().reading(), "base.descriptor[3].range.timing_support").text,
              "no secondary timing formula");
}

TEST(Descriptors, TellWhitePoints) {
    const Reading reading =
        withDescriptor({0, 0, 0, 0xFB, 0, 1, 0x0D, 0x50, 0x54, 120, 0, 0, 0, 0, 255, 10, 32, 32}).reading();
    const std::string first = "base.descriptor[4].white_point[1].";
    EXPECT_EQ(valueOf(reading, first + "index"), whole(1));
    EXPECT_EQ(valueOf(reading, first + "x"), Value(323 / 1024.0));
    EXPECT_EQ(valueOf(reading, first + "y"), Value(337 / 1024.0));
    EXPECT_NEAR(std::get<double>(valueOf(reading, first + "gamma")), 2.2, 1e-9);
    EXPECT_EQ(fieldOf(reading, "base.descriptor[4].white_point[2].index").text, "unused");
    EXPECT_EQ(fieldOf(reading, "base.descriptor[4].white_point[2].gamma").text, "not told");
}

TEST(Descriptors, TellCoefficientsWithTheirSign) {
    const Reading reading =
        withDescriptor({0, 0, 0, 0xF9, 0, 3, 0x64, 0, 0x9C, 0xFF, 1, 0, 2, 0, 3, 0, 4, 0x80}).reading();
    const std::string management = "base.descriptor[4].color_management.";
    EXPECT_EQ(valueOf(reading, management + "version"), whole(3));
    EXPECT_EQ(valueOf(reading, management + "red_a3"), Value(1.0));
    EXPECT_EQ(valueOf(reading, management + "red_a2"), Value(-1.0));
    EXPECT_EQ(valueOf(reading, management + "green_a3"), Value(0.01));
    EXPECT_NEAR(std::get<double>(valueOf(reading, management + "blue_a2")), -327.64, 1e-9);
}

/// Those that stand behind the modes of goodImage.
Modes addedModes(const Reading& reading) {
    Modes modes = modesOf(reading);
    modes.erase(modes.begin(), modes.begin() + 2);
    return modes;
}

TEST(Descriptors, TellCvtCodes) {
    // 1050 lines, 16:9 (1866.7 pixels, of which 1864 are a multiple of 8), 60 Hz preferred and reduced, and 50 Hz.
    const Reading reading =
        withDescriptor({0, 0, 0, 0xF8, 0, 1, 0x0C, 0x24, 0x31, 0, 0, 0, 0, 0, 0, 0, 0, 0}).reading();
    const std::string code = "base.descriptor[4].cvt[1].";
    EXPECT_EQ(valueOf(reading, code + "lines"), whole(1050));
    EXPECT_EQ(fieldOf(reading, code + "aspect_ratio").text, "16:9, 1864 pixels a line");
    EXPECT_EQ(fieldOf(reading, code + "preferred_rate").text, "60 Hz");
    EXPECT_EQ(valueOf(reading, code + "rate_50"), Value(true));
    EXPECT_EQ(valueOf(reading, code + "rate_60"), Value(false));
    EXPECT_EQ(valueOf(reading, code + "rate_60_rb"), Value(true));
    EXPECT_EQ(fieldOf(reading, "base.descriptor[4].cvt[2].unused").label, "Unused code");
    EXPECT_EQ(addedModes(reading), (Modes{"1864x1050@50000", "1864x1050@60000"}));
}

TEST(Descriptors, TellCvtCodesOfEveryAspectRatio) {
    // 768, 1080, 1050 and 768 lines, half of them less one in the upper four and lower eight bits; 60 Hz.
    const Reading reading =
        withDescriptor({0, 0, 0, 0xF8, 0, 1, 0x7F, 0x10, 0x28, 0x1B, 0x24, 0x28, 0x0C, 0x28, 0x28, 0x7F, 0x1C, 0x28})
            .reading();
    const auto aspectOf = [&](int code) {
        return fieldOf(reading, "base.descriptor[4].cvt[" + std::to_string(code) + "].aspect_ratio").text;
    };
    EXPECT_EQ(aspectOf(1), "4:3, 1024 pixels a line");
    EXPECT_EQ(aspectOf(2), "16:9, 1920 pixels a line");
    EXPECT_EQ(aspectOf(3), "16:10, 1680 pixels a line");
    EXPECT_EQ(aspectOf(4), "15:9, 1280 pixels a line");
    EXPECT_EQ(addedModes(reading), (Modes{"1024x768@60000", "1920x1080@60000", "1680x1050@60000", "1280x768@60000"}));
    const Reading most = withDescriptor({0, 0, 0, 0xF8, 0, 1, 0xFF, 0xF0, 0x28}).reading();
    EXPECT_EQ(valueOf(most, "base.descriptor[4].cvt[1].lines"), whole(8192));
}

struct CvtRate {
    int bit;
    std::string name;
    std::string label;
    int hertz;
    int preferred; ///< the code of the preferred rate that it supports
};

TEST(Descriptors, TellEveryRateOfCvtCodes) {
    const std::vector<CvtRate> rates = {{0x10, "rate_50", "50 Hz supported", 50, 0},
                                        {0x08, "rate_60", "60 Hz supported", 60, 1},
                                        {0x04, "rate_75", "75 Hz supported", 75, 2},
                                        {0x02, "rate_85", "85 Hz supported", 85, 3},
                                        {0x01, "rate_60_rb", "60 Hz with reduced blanking supported", 60, 1}};
    const std::vector<std::string> preferred = {"50 Hz", "60 Hz", "75 Hz", "85 Hz"};
    const std::string code = "base.descriptor[4].cvt[1].";
    for (int chosen = 0; chosen < 4; ++chosen) {
        for (const CvtRate& rate : rates) {
            SCOPED_TRACE(rate.name + " with preferred rate " + std::to_string(chosen));
            const Reading reading =
                withDescriptor({0, 0, 0, 0xF8, 0, 1, 0x1B, 0x24, chosen << 5 | rate.bit, 0, 0, 0, 0, 0, 0, 0, 0, 0})
                    .reading();
            for (const CvtRate& other : rates) {
                EXPECT_EQ(valueOf(reading, code + other.name), Value(other.bit == rate.bit));
            }
            EXPECT_EQ(fieldOf(reading, code + rate.name).label, rate.label);
            EXPECT_EQ(fieldOf(reading, code + "preferred_rate").text, preferred[static_cast<std::size_t>(chosen)]);
            EXPECT_EQ(addedModes(reading), (Modes{"1920x1080@" + std::to_string(rate.hertz) + "000"}));
            EXPECT_EQ(countOf(reading, "cvt.preferred_rate_unsupported"), rate.preferred == chosen ? 0U : 1U);
        }
    }
}

TEST(Descriptors, TellMoreStandardTimings) {
    const Reading reading =
        withDescriptor({0, 0, 0, 0xFA, 0, 129, 0x19, 1, 1, 1, 1, 1, 1, 1, 1, 0xD1, 0xC0, 10}).reading();
    EXPECT_EQ(valueOf(reading, "base.descriptor[4].standard[1].width"), whole(1280));
    EXPECT_EQ(addedModes(reading), (Modes{"1280x800@85000", "1920x1080@60000"}));
}

TEST(Descriptors, TellMoreEstablishedTimings) {
    // The first and the last timing, and one in each byte between.
    const Reading reading =
        withDescriptor({0, 0, 0, 0xF7, 0, 10, 0x80, 0x01, 0x40, 0x04, 0x02, 0x10, 0, 0, 0, 0, 0, 0}).reading();
    EXPECT_EQ(valueOf(reading, "base.descriptor[4].established.1440x900_60_rb"), Value(true));
    EXPECT_EQ(valueOf(reading, "base.descriptor[4].established.1440x900_60"), Value(false));
    EXPECT_EQ(addedModes(reading), (Modes{"640x350@85000", "1280x1024@85000", "1440x900@60000", "1600x1200@60000",
                                          "1920x1200@60000", "1920x1440@75000"}));
}

TEST(Descriptors, KeepTheDataOfOthers) {
    EXPECT_EQ(fieldOf(withDescriptor({0, 0, 0, 3, 0, 1, 2}).reading(), "base.descriptor[4].manufacturer_data").text,
              "01 02 0A 20 20 20 20 20 20 20 20 20 20");
    EXPECT_EQ(fieldOf(withDescriptor({0, 0, 0, 0x42}).reading(), "base.descriptor[4].tag").text, "42h, reserved");
}

} // namespace
} // namespace wb::fields
