#include "adapters/cvt.h"

#include <gtest/gtest.h>

#include <limits>
#include <ostream>
#include <string>
#include <vector>

namespace wb::adapters {
namespace {

struct KnownTiming {
    CvtMode mode;
    std::string line;
};

void PrintTo(const KnownTiming& timing, std::ostream* out) {
    *out << timing.line;
}

class Cvt : public testing::TestWithParam<KnownTiming> {};

TEST_P(Cvt, IsThatOfTheStandard) {
    EXPECT_EQ(missingCvtLibrary(), "");
    EXPECT_EQ(fields::modelineText(cvtModeline(GetParam().mode)), "Modeline " + GetParam().line);
}

/// What the tool `cvt` prints, which for most of these is also in the list of VESA's monitor timings (DMT).
INSTANTIATE_TEST_SUITE_P(
    Known, Cvt,
    testing::Values(
        KnownTiming{{640, 480}, R"("640x480_60.00"  23.75  640 664 720 800  480 483 487 500 -hsync +vsync)"},
        KnownTiming{{1024, 768}, R"("1024x768_60.00"  63.50  1024 1072 1176 1328  768 771 775 798 -hsync +vsync)"},
        KnownTiming{{1440, 900, 75}, R"("1440x900_75.00"  136.75  1440 1536 1688 1936  900 903 909 942 -hsync +vsync)"},
        KnownTiming{{1920, 1080},
                    R"("1920x1080_60.00"  173.00  1920 2048 2248 2576  1080 1083 1088 1120 -hsync +vsync)"},
        KnownTiming{{2560, 1440},
                    R"("2560x1440_60.00"  312.25  2560 2752 3024 3488  1440 1443 1448 1493 -hsync +vsync)"},
        KnownTiming{{1600, 1200, 60, true},
                    R"("1600x1200R"  130.25  1600 1648 1680 1760  1200 1203 1207 1235 +hsync -vsync)"},
        KnownTiming{{1920, 1080, 60, true},
                    R"("1920x1080R"  138.50  1920 1968 2000 2080  1080 1083 1088 1111 +hsync -vsync)"},
        KnownTiming{{1920, 1200, 120, true},
                    R"("1920x1200R"  317.00  1920 1968 2000 2080  1200 1203 1209 1271 +hsync -vsync)"},
        KnownTiming{{2560, 1440, 60, true},
                    R"("2560x1440R"  241.50  2560 2608 2640 2720  1440 1443 1448 1481 +hsync -vsync)"},
        KnownTiming{{3840, 2160, 60, true},
                    R"("3840x2160R"  533.00  3840 3888 3920 4000  2160 2163 2168 2222 +hsync -vsync)"}));

std::string refusalOf(const CvtMode& mode) {
    try {
        return fields::modelineText(cvtModeline(mode));
    } catch (const fields::ModelineError& error) {
        return error.what();
    }
}

TEST(CvtRefusal, OfWidthsBetweenTheCells) {
    EXPECT_EQ(refusalOf({1366, 768}), "CVT widths are multiples of 8; 1366 is between 1360 and 1368");
}

TEST(CvtRefusal, OfSizesWithoutATiming) {
    for (const CvtMode& mode : std::vector<CvtMode>{{0, 768}, {1024, 0}, {-8, 768}, {16392, 768}, {1024, 16385}}) {
        EXPECT_EQ(refusalOf(mode), "CVT timings are computed for sizes from 8x1 to 16384x16384");
    }
}

TEST(CvtRefusal, OfRatesWithoutATiming) {
    for (const double rate : {0.0, 9.99, 500.01, -60.0, std::numeric_limits<double>::quiet_NaN()}) {
        EXPECT_EQ(refusalOf({1024, 768, rate}), "CVT timings are computed for refresh rates from 10 to 500 Hz");
    }
}

TEST(CvtRefusal, OfReducedBlankingAtOtherRates) {
    EXPECT_EQ(refusalOf({1024, 768, 75, true}),
              "CVT timings with reduced blanking have a refresh rate of 60 Hz or a multiple of it");
    EXPECT_EQ(refusalOf({1024, 768, 59.94, true}),
              "CVT timings with reduced blanking have a refresh rate of 60 Hz or a multiple of it");
}

TEST(CvtRefusal, OfWhatHasNoPixelClock) {
    EXPECT_EQ(refusalOf({8, 1, 10}), "there is no CVT timing for 8x1_10.00");
}

TEST(CvtLimits, TheLargestAndFastestIsATiming) {
    const fields::Modeline timing = cvtModeline({16384, 16384, 480, true});
    EXPECT_EQ(timing.horizontal.active, 16384);
    EXPECT_EQ(timing.horizontal.total, 16544);
    EXPECT_EQ(timing.vertical.active, 16384);
    EXPECT_GT(timing.vertical.total, timing.vertical.syncEnd);
}

} // namespace
} // namespace wb::adapters
