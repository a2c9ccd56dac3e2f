#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

#include "good_image.h"
#include "invariants.h"
#include "support/temporary_folder.h"

namespace wb::fields {
namespace {

/// A change of goodImage that leads to a finding, and a smaller one that does not.
struct Case {
    std::string_view code;
    Severity severity;
    std::size_t byte;
    ImageOf (*has)();
    ImageOf (*nearly)();
};

std::ostream& operator<<(std::ostream& out, const Case& tried) {
    return out << tried.code;
}

class Block0Findings : public testing::TestWithParam<Case> {};

TEST_P(Block0Findings, AreToldWhereTheyApplyAndNowhereElse) {
    const Case& tried = GetParam();
    const Reading reading = tried.has().withSums().reading();
    EXPECT_EQ(countOf(reading, tried.code), 1U);
    const auto found = std::find_if(reading.findings.begin(), reading.findings.end(),
                                    [&](const Finding& finding) { return finding.code == tried.code; });
    ASSERT_NE(found, reading.findings.end());
    EXPECT_EQ(found->severity, tried.severity);
    EXPECT_EQ(found->byte, tried.byte);
    EXPECT_EQ(countOf(tried.nearly().withSums().reading(), tried.code), 0U);
    expectInvariants(reading);
}

using enum Severity;

constexpr std::array identityCases = {
    Case{"base.header", Error, 0, [] { return goodImage().set(7, {1}); }, [] { return goodImage().set(8, {0x5D}); }},
    Case{"base.version_unknown", Error, 18, [] { return goodImage().set(18, {2}); },
         [] {
             return goodImage().set(18, {1, 0});
         }},
    Case{"base.revision_unknown", Warning, 19, [] { return goodImage().set(19, {5}); }, goodImage},
    // A letter of 27, and the letters A, Z, A.
    Case{"vendor.maker_letters", Warning, 8,
         [] {
             return goodImage().set(8, {0x6C, 0x54});
         },
         [] {
             return goodImage().set(8, {0x07, 0x41});
         }},
    Case{"vendor.serial_placeholder", Note, 12,
         [] {
             return goodImage().set(12, {1, 1, 1, 1});
         },
         [] {
             return goodImage().set(12, {1, 1, 1, 0});
         }},
    Case{"vendor.no_serial", Note, 12,
         [] {
             return goodImage().set(12, {0, 0, 0, 0}).set(111, {0xFE});
         },
         [] {
             return goodImage().set(12, {0, 0, 0, 0});
         }},
    Case{"vendor.week", Warning, 16, [] { return goodImage().set(16, {55}); },
         [] { return goodImage().set(16, {54}); }},
    Case{"vendor.week", Warning, 16, [] { return goodImage13().set(16, {255}); },
         [] { return goodImage().set(16, {255}); }},
    Case{"vendor.year", Warning, 17, [] { return goodImage().set(17, {15}); },
         [] { return goodImage().set(17, {16}); }},
    Case{"vendor.year", Warning, 17, [] { return goodImage13().set(17, {8}); },
         [] { return goodImage13().set(17, {9}); }},
    Case{"field.reserved_bits", Warning, 8, [] { return goodImage().set(8, {0xDC}); }, goodImage},
    // Bytes that a dummy has behind its tag.
    Case{"field.reserved_bits", Warning, 113, [] { return goodImage().set(111, {0x10}); },
         [] {
             return goodImage().set(108, {0, 0, 0, 0x10, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
         }},
};

constexpr std::array displayCases = {
    Case{"field.reserved_value", Warning, 20, [] { return goodImage().set(20, {0xA6}); }, goodImage},
    Case{"field.reserved_value", Warning, 20, [] { return goodImage().set(20, {0xF5}); },
         [] { return goodImage().set(20, {0xE5}); }},
    Case{"basic.size_half", Warning, 21, [] { return goodImage13().set(22, {0}); },
         [] { return goodImage().set(22, {0}); }},
    Case{"basic.no_preferred_timing", Warning, 24, [] { return goodImage13().set(24, {0x08}); },
         [] { return goodImage().set(24, {0x00}); }},
    Case{"chromaticity.none", Warning, 25,
         [] {
             return goodImage().set(25, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
         },
         // Analog and monochrome.
         [] {
             return goodImage().set(20, {0x0F}).set(25, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
         }},
    // Red x is 0.64; y is 0.376, then 0.345.
    Case{"chromaticity.impossible", Warning, 27, [] { return goodImage().set(28, {0x60}); },
         [] { return goodImage().set(28, {0x58}); }},
    Case{"chromaticity.impossible", Warning, 31, [] { return goodImage().set(26, {0x81}).set(32, {0}); },
         [] { return goodImage().set(32, {0}); }},
    // White x is 0.449, where the line from red to green has y 0.48; its y is 0.5, then 0.449.
    Case{"chromaticity.white_outside", Warning, 33,
         [] {
             return goodImage().set(33, {0x73, 0x80});
         },
         [] {
             return goodImage().set(33, {0x73, 0x73});
         }},
    // Red x of sRGB is 655/1024: 659, then 654.
    Case{"chromaticity.not_srgb", Warning, 25, [] { return goodImage().set(24, {0x06}).set(27, {0xA4}); },
         [] { return goodImage().set(24, {0x06}).set(25, {0xAE}); }},
    Case{"chromaticity.of_monochrome", Note, 25, [] { return goodImage().set(20, {0x0F}); },
         [] { return goodImage().set(20, {0x0F}).set(24, {0x0A}); }},
};

constexpr std::array timingCases = {
    Case{"standard.reserved", Warning, 40,
         [] {
             return goodImage().set(40, {0, 1});
         },
         [] {
             return goodImage().set(40, {1, 0});
         }},
    Case{"standard.duplicate", Note, 40,
         [] {
             return goodImage().set(40, {0xD1, 0xC0});
         },
         [] {
             return goodImage().set(40, {0xD1, 0xC1});
         }},
    Case{"timing.nothing_active", Error, 56, [] { return goodImage().set(56, {0}).set(58, {0x01}); },
         [] { return goodImage().set(56, {1}).set(58, {0x01}); }},
    Case{"timing.nothing_active", Error, 59, [] { return goodImage().set(59, {0}).set(61, {0}); },
         [] { return goodImage().set(59, {1}).set(61, {0}); }},
    // The front porch has 88 of 280 pixels: the sync 193, then 192.
    Case{"timing.h_sync_beyond_blanking", Error, 62, [] { return goodImage().set(63, {193}); },
         [] { return goodImage().set(63, {192}); }},
    // 45 lines: 40 and 6, then 40 and 5.
    Case{"timing.v_sync_beyond_blanking", Error, 64, [] { return goodImage().set(64, {0x86}).set(65, {0x08}); },
         [] { return goodImage().set(64, {0x85}).set(65, {0x08}); }},
    Case{"timing.no_sync", Warning, 62, [] { return goodImage().set(63, {0}); },
         [] { return goodImage().set(63, {1}); }},
    Case{"timing.no_sync", Warning, 64, [] { return goodImage().set(64, {0x40}); },
         [] { return goodImage().set(64, {0x41}); }},
    Case{"timing.duplicate", Note, 72,
         [] {
             ImageOf image = goodImage();
             setTiming(image, 72);
             return image;
         },
         [] {
             ImageOf image = goodImage();
             setTiming(image, 72);
             return image.set(89, {0x1C});
         }},
    // 2200 x 1125 pixels at 24.7 MHz are 9.98 pictures a second, at 24.8 MHz 10.02.
    Case{"timing.rate", Warning, 54,
         [] {
             return goodImage().set(54, {0xA6, 0x09});
         },
         [] {
             return goodImage().set(54, {0xB0, 0x09});
         }},
    Case{"timing.size_is_ratio", Note, 66,
         [] {
             return goodImage().set(66, {160, 90, 0});
         },
         [] {
             return goodImage().set(66, {160, 91, 0});
         }},
    // The screen has 520 x 290 mm: 531, then 530.
    Case{"timing.size_disagrees", Warning, 66, [] { return goodImage().set(66, {0x13}); },
         [] { return goodImage().set(66, {0x12}); }},
    // Another timing may show less, and not more.
    Case{"timing.size_disagrees", Warning, 84,
         [] {
             ImageOf image = goodImage();
             setTiming(image, 72);
             return image.set(84, {0x13});
         },
         [] {
             ImageOf image = goodImage();
             setTiming(image, 72);
             return image.set(84, {0x00, 0x00, 0x11});
         }},
    // 60 Hz, 67.5 kHz, 148.5 MHz.
    Case{"timing.outside_limits", Warning, 54, [] { return goodImage().set(96, {59}); },
         [] {
             return goodImage().set(95, {60, 60});
         }},
    Case{"timing.outside_limits", Warning, 54, [] { return goodImage().set(97, {69}); },
         [] { return goodImage().set(97, {68}); }},
    Case{"timing.outside_limits", Warning, 54, [] { return goodImage().set(99, {14}); },
         [] { return goodImage().set(99, {15}); }},
    Case{"base.no_preferred_timing", Warning, 54,
         [] {
             return goodImage().set(54, {0, 0});
         },
         [] {
             return goodImage().set(54, {1, 0});
         }},
};

constexpr std::array descriptorCases = {
    Case{"base.no_name", Warning, 72, [] { return goodImage13().set(75, {0xFE}); },
         [] { return goodImage().set(75, {0xFE}); }},
    Case{"base.no_range_limits", Warning, 72, [] { return goodImage13().set(93, {0x0F}); },
         [] { return goodImage().set(93, {0x0F}); }},
    Case{"base.no_range_limits", Warning, 72, [] { return goodImage().set(24, {0x03}).set(93, {0x0F}); },
         [] { return goodImage().set(24, {0x03}); }},
    Case{"descriptor.order", Warning, 108,
         [] {
             ImageOf image = goodImage();
             setTiming(image, 108);
             return image;
         },
         [] {
             ImageOf image = goodImage();
             setTiming(image, 72);
             return image;
         }},
    Case{"descriptor.all_zero", Warning, 108,
         [] {
             return goodImage().set(108, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
         },
         [] {
             return goodImage().set(108, {0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1});
         }},
    Case{"descriptor.unused", Note, 108, [] { return goodImage().set(111, {0x10}); },
         [] { return goodImage().set(111, {0x0F}); }},
    Case{"descriptor.tag_reserved", Warning, 111, [] { return goodImage().set(111, {0x11}); },
         [] { return goodImage().set(111, {0x0F}); }},
    Case{"descriptor.tag_of_later_revision", Warning, 111, [] { return goodImage13().set(111, {0xF7}); },
         [] { return goodImage().set(111, {0xF7}); }},
    Case{"descriptor.duplicate", Warning, 111, [] { return goodImage().set(111, {0xFC}); },
         [] { return goodImage().set(75, {0xFE}).set(111, {0xFE}); }},
    Case{"text.control_character", Warning, 78, [] { return goodImage().set(78, {0x1F}); },
         [] { return goodImage().set(78, {0x20}); }},
    Case{"text.control_character", Warning, 78, [] { return goodImage().set(78, {0x7F}); },
         [] { return goodImage().set(78, {0x7E}); }},
    Case{"text.not_ascii", Warning, 78, [] { return goodImage().set(78, {0x80}); },
         [] { return goodImage().set(78, {0x7F}); }},
    Case{"text.empty", Note, 77,
         [] {
             return goodImage().set(77, {10, 32, 32, 32, 32, 32});
         },
         [] {
             return goodImage().set(77, {'A', 10, 32, 32, 32, 32});
         }},
    Case{"text.no_end_mark", Warning, 89, [] { return goodImage().set(82, {' '}); },
         // Thirteen characters have no end mark.
         [] {
             return goodImage().set(82, {'t', 'e', 'x', 't', 'o', 'f', '1', '3'});
         }},
    Case{"text.bad_padding", Warning, 84, [] { return goodImage().set(84, {0}); }, goodImage},
};

/// A CVT code of 1080 lines, 16:9, with 60 Hz in both forms, the preferred rate.
ImageOf codeImage() {
    return goodImage().set(108, {0, 0, 0, 0xF8, 0, 1, 0x1B, 0x24, 0x29, 0, 0, 0, 0, 0, 0, 0, 0, 0});
}

ImageOf whitePointImage() {
    return goodImage().set(108, {0, 0, 0, 0xFB, 0, 1, 0, 0x50, 0x54, 120, 0, 0, 0, 0, 0, 10, 32, 32});
}

constexpr std::array contentCases = {
    Case{"descriptor.version_unknown", Warning, 113, [] { return codeImage().set(113, {2}); }, codeImage},
    Case{"descriptor.version_unknown", Warning, 113,
         [] {
             return goodImage().set(111, {0xF7, 0, 1});
         },
         [] {
             return goodImage().set(111, {0xF7, 0, 10});
         }},
    Case{"descriptor.version_unknown", Warning, 113,
         [] {
             return goodImage().set(111, {0xF9, 0, 1});
         },
         [] {
             return goodImage().set(111, {0xF9, 0, 3});
         }},
    Case{"descriptor.bad_padding", Warning, 123, [] { return whitePointImage().set(125, {0}); }, whitePointImage},
    Case{"descriptor.bad_padding", Warning, 125, [] { return goodImage().set(111, {0xFA}).set(125, {0}); },
         [] { return goodImage().set(111, {0xFA}).set(125, {10}); }},
    // 50 Hz, then 60 Hz with reduced blanking alone.
    Case{"cvt.preferred_rate_unsupported", Warning, 116, [] { return codeImage().set(116, {0x09}); },
         [] { return codeImage().set(116, {0x21}); }},
    Case{"field.reserved_bits", Warning, 115, [] { return codeImage().set(115, {0x25}); }, codeImage},
};

/// Range limits by CVT 1.2, of all aspect ratios, preferred 16:9 at 60 Hz.
ImageOf cvtImage() {
    return goodImage().set(24, {0x03}).set(100, {4, 0x12, 0, 240, 0xF8, 0x28, 0, 60});
}

constexpr std::array rangeCases = {
    Case{"range.min_above_max", Error, 95,
         [] {
             return goodImage().set(95, {76, 75});
         },
         [] {
             return goodImage().set(95, {75, 75});
         }},
    Case{"range.min_above_max", Error, 97,
         [] {
             return goodImage().set(97, {84, 83});
         },
         [] {
             return goodImage().set(97, {83, 83});
         }},
    // The same bytes with 255 added to the highest rate.
    Case{"range.min_above_max", Error, 97,
         [] {
             return goodImage().set(97, {84, 10});
         },
         [] {
             return goodImage().set(94, {0x08}).set(97, {84, 10});
         }},
    Case{"range.zero", Warning, 95, [] { return goodImage().set(95, {0}); }, [] { return goodImage().set(95, {1}); }},
    Case{"range.zero", Warning, 97, [] { return goodImage().set(97, {0}); }, [] { return goodImage().set(97, {1}); }},
    Case{"range.clock_zero", Warning, 99, [] { return goodImage().set(99, {0}); },
         [] { return goodImage().set(99, {1}); }},
    Case{"descriptor.bad_padding", Warning, 101, [] { return goodImage().set(107, {0}); }, goodImage},
    Case{"descriptor.bad_padding", Warning, 101, [] { return goodImage().set(101, {0}); }, cvtImage},
    Case{"range.formula_without_continuous", Warning, 100, [] { return goodImage().set(100, {0}); },
         [] { return goodImage().set(24, {0x03}).set(100, {0}); }},
    Case{"range.preferred_aspect_unsupported", Warning, 105, [] { return cvtImage().set(104, {0xB8}); },
         [] { return cvtImage().set(104, {0x40}); }},
    Case{"range.preferred_rate_zero", Warning, 107, [] { return cvtImage().set(107, {0}); }, cvtImage},
    Case{"field.reserved_value", Warning, 100, [] { return goodImage().set(24, {0x03}).set(100, {3}); }, cvtImage},
};

std::string caseName(const testing::TestParamInfo<Case>& tried) {
    std::string name(tried.param.code);
    std::replace(name.begin(), name.end(), '.', '_');
    return name + '_' + std::to_string(tried.index);
}

INSTANTIATE_TEST_SUITE_P(Identity, Block0Findings, testing::ValuesIn(identityCases), caseName);
INSTANTIATE_TEST_SUITE_P(Display, Block0Findings, testing::ValuesIn(displayCases), caseName);
INSTANTIATE_TEST_SUITE_P(Timings, Block0Findings, testing::ValuesIn(timingCases), caseName);
INSTANTIATE_TEST_SUITE_P(Descriptors, Block0Findings, testing::ValuesIn(descriptorCases), caseName);
INSTANTIATE_TEST_SUITE_P(Contents, Block0Findings, testing::ValuesIn(contentCases), caseName);
INSTANTIATE_TEST_SUITE_P(Range, Block0Findings, testing::ValuesIn(rangeCases), caseName);

TEST_P(Block0Findings, AreListedInTheDocuments) {
    const std::string row =
        '`' + std::string(GetParam().code) + "` | " + std::string(severityName(GetParam().severity));
    EXPECT_NE(test::TemporaryFolder::read(WORKBENCH_SOURCE_DIR "/docs/findings.md").find("| " + row + " |"),
              std::string::npos)
        << row;
}

/// The bytes that the findings of that code are about.
std::vector<std::size_t> placesOf(const Reading& reading, std::string_view code) {
    std::vector<std::size_t> places;
    for (const Finding& finding : reading.findings) {
        if (finding.code == code) {
            places.push_back(finding.byte);
        }
    }
    return places;
}

TEST(Findings, TellOfYearsBeforeTheRevisionWasPublished) {
    const std::vector<int> published = {1994, 1996, 1997, 1999, 2006};
    for (int revision = 0; revision < 5; ++revision) {
        for (int byte = 0; byte < 256; ++byte) {
            const Reading reading = goodImage().set(17, {byte}).set(19, {revision}).reading();
            const bool isBefore = 1990 + byte < published[static_cast<std::size_t>(revision)];
            EXPECT_EQ(countOf(reading, "vendor.year"), isBefore ? 1U : 0U) << revision << ", " << byte;
        }
    }
}

/// goodImage with so many active pixels, active lines, and blank ones in its timing.
ImageOf withTiming(int width, int height, int blankPixels, int blankLines) {
    return goodImage().set(56, {width % 256, blankPixels % 256, width / 256 << 4 | blankPixels / 256, height % 256,
                                blankLines % 256, height / 256 << 4 | blankLines / 256});
}

TEST(Findings, TellNoModeOfATimingWithoutPixelsOrLines) {
    EXPECT_EQ(modesOf(withTiming(1920, 1080, 280, 45).reading()), (Modes{"1920x1080@60000", "1920x1080@60000"}));
    EXPECT_EQ(modesOf(withTiming(1920, 1, 280, 45).reading()).size(), 2U);
    EXPECT_EQ(modesOf(withTiming(1, 1080, 280, 45).reading()).size(), 2U);
    EXPECT_EQ(modesOf(withTiming(1920, 0, 280, 45).reading()), Modes{"1920x1080@60000"}) << "of the standard timing";
    EXPECT_EQ(modesOf(withTiming(0, 1080, 280, 45).reading()), Modes{"1920x1080@60000"});
    // Without a total there is no rate either.
    EXPECT_EQ(countOf(withTiming(0, 1080, 0, 45).reading(), "timing.outside_limits"), 0U);
    EXPECT_EQ(countOf(withTiming(1920, 0, 280, 0).reading(), "timing.outside_limits"), 0U);
    EXPECT_EQ(countOf(withTiming(1920, 0, 280, 0).set(54, {100, 0}).reading(), "timing.outside_limits"), 0U)
        << "a line rate far below the limits";
    EXPECT_EQ(countOf(withTiming(1920, 1, 280, 0).reading(), "timing.outside_limits"), 1U);
}

/// goodImage, whose screen has 520 x 290 mm, with such a picture of its first timing and of a second one.
ImageOf withPictures(int width, int height, int secondWidth, int secondHeight) {
    ImageOf image = goodImage();
    setTiming(image, 72);
    const auto setSize = [&](std::size_t place, int pictureWidth, int pictureHeight) {
        image.set(place + 12, {pictureWidth % 256, pictureHeight % 256, pictureWidth / 256 << 4 | pictureHeight / 256});
    };
    setSize(54, width, height);
    setSize(72, secondWidth, secondHeight);
    return image;
}

TEST(Findings, TellOfPicturesOfAnotherSizeThanTheScreen) {
    const auto placesWith = [](int width, int height, int secondWidth, int secondHeight) {
        return placesOf(withPictures(width, height, secondWidth, secondHeight).reading(), "timing.size_disagrees");
    };
    const std::vector<std::size_t> none;
    EXPECT_EQ(placesWith(530, 300, 530, 300), none) << "a centimetre more is rounding";
    EXPECT_EQ(placesWith(510, 280, 20, 20), none) << "the preferred timing fills the screen, others need not";
    EXPECT_EQ(placesWith(531, 290, 520, 290), std::vector<std::size_t>{66});
    EXPECT_EQ(placesWith(509, 290, 520, 290), std::vector<std::size_t>{66});
    EXPECT_EQ(placesWith(520, 301, 520, 290), std::vector<std::size_t>{66});
    EXPECT_EQ(placesWith(520, 279, 520, 290), std::vector<std::size_t>{66});
    EXPECT_EQ(placesWith(520, 290, 531, 290), std::vector<std::size_t>{84});
    EXPECT_EQ(placesWith(520, 290, 520, 301), std::vector<std::size_t>{84});
    EXPECT_EQ(placesWith(520, 290, 20, 301), std::vector<std::size_t>{84});
}

TEST(Findings, TellOfAspectRatiosInPlaceOfASize) {
    const std::vector<std::pair<int, int>> ratios = {{4, 3}, {16, 9}, {16, 10}, {160, 90}, {160, 100}};
    for (const auto& [width, height] : ratios) {
        const auto countOfRatio = [](int pictureWidth, int pictureHeight) {
            return countOf(withPictures(pictureWidth, pictureHeight, 520, 290).reading(), "timing.size_is_ratio");
        };
        EXPECT_EQ(countOfRatio(width, height), 1U) << width;
        EXPECT_EQ(countOfRatio(width + 1, height), 0U) << width;
        EXPECT_EQ(countOfRatio(width, height + 2), 0U) << width;
    }
}

TEST(Findings, TellOfAspectRatiosWhereTheScreenHasNoSizeEither) {
    for (const auto& [width, height] : {std::pair(4, 3), std::pair(16, 9)}) {
        const Reading reading = withPictures(width, height, width, height).set(21, {0, 0}).reading();
        EXPECT_EQ(placesOf(reading, "timing.size_is_ratio"), (std::vector<std::size_t>{66, 84})) << width;
        EXPECT_FALSE(reading.summary.widthMillimetres) << width;
    }
}

TEST(Findings, TellOfSerialNumbersThatStandForNone) {
    for (int byte = 0; byte < 256; ++byte) {
        const Reading reading = goodImage().set(12, {byte, byte, byte, byte}).reading();
        EXPECT_EQ(countOf(reading, "vendor.serial_placeholder"), byte == 1 || byte == 255 ? 1U : 0U) << byte;
    }
}

/// Descriptors without a content in all slots but those that are set then.
ImageOf withEmptySlots() {
    ImageOf image = goodImage();
    for (std::size_t place = 54; place < 126; place += 18) {
        image.set(place, {0, 0, 0, 0x0F, 0, 10, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32, 32});
    }
    return image;
}

TEST(Findings, AreToldOfTheDescriptorInEverySlot) {
    for (std::size_t place = 54; place < 126; place += 18) {
        SCOPED_TRACE(place);
        const Reading reading = withEmptySlots().set(place + 3, {0x11}).reading();
        EXPECT_EQ(placesOf(reading, "descriptor.tag_reserved"), std::vector{place + 3});
    }
}

TEST(Findings, CompareEverySlotWithAllBefore) {
    for (std::size_t first = 54; first < 126; first += 18) {
        for (std::size_t second = first + 18; second < 126; second += 18) {
            SCOPED_TRACE(std::to_string(first) + " and " + std::to_string(second));
            const Reading names = withEmptySlots().set(first + 3, {0xFC}).set(second + 3, {0xFC}).reading();
            EXPECT_EQ(placesOf(names, "descriptor.duplicate"), std::vector{second + 3});
            ImageOf image = goodImage();
            for (std::size_t place = 54; place < 126; place += 18) {
                setTiming(image, place);
                image.set(place + 12, {static_cast<int>(place)}); // all differ
            }
            image.set(second + 12, {static_cast<int>(first)});
            EXPECT_EQ(placesOf(image.reading(), "timing.duplicate"), std::vector{second});
        }
    }
}

TEST(Findings, CompareEveryStandardTimingWithAllBefore) {
    for (std::size_t first = 0; first < 8; ++first) {
        for (std::size_t second = first + 1; second < 8; ++second) {
            SCOPED_TRACE(std::to_string(first) + " and " + std::to_string(second));
            ImageOf image = goodImage();
            for (int i = 0; i < 8; ++i) {
                image.set(38 + 2 * static_cast<std::size_t>(i), {0x81 + i, 0x40}); // all differ
            }
            image.set(38 + 2 * second, {0x81 + static_cast<int>(first)});
            EXPECT_EQ(placesOf(image.reading(), "standard.duplicate"), std::vector{38 + 2 * second});
        }
    }
}

TEST(Findings, AreNoneOfImagesInOrder) {
    for (ImageOf image : {goodImage(), goodImage13(), cvtImage(), codeImage(), whitePointImage()}) {
        const Reading reading = image.withSums().reading();
        for (const Finding& finding : reading.findings) {
            ADD_FAILURE() << finding.code << ": " << finding.text;
        }
    }
}

} // namespace
} // namespace wb::fields
