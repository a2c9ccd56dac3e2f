#include "report/basic_display.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

using BasicDisplay = Block0;

struct SizeCase {
    std::string_view cell, text;
};

class ImageSize : public Block0, public testing::WithParamInterface<SizeCase> {};

TEST_P(ImageSize, IsToldInMillimetres) {
    const std::string expected(GetParam().text);
    set(21, {GetParam().cell, GetParam().cell});
    ConvertMaxHorizontalSize(workbench);
    EXPECT_EQ(workbench.MaxHImageSizeText, expected);
    EXPECT_EQ(screen.Basic(0).caption(), "Max Horiz Size " + expected);
    ConvertMaxVerticalSize(workbench);
    EXPECT_EQ(workbench.MaxVImageSizeText, expected);
    EXPECT_EQ(screen.Basic(1).caption(), "Max Vert Size " + expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, ImageSize,
                         testing::Values(SizeCase{"00", " mm"}, SizeCase{"01", "10 mm"}, SizeCase{"34", "520 mm"},
                                         SizeCase{"FF", "2550 mm"}));

class Gamma : public Block0, public testing::WithParamInterface<SizeCase> {};

TEST_P(Gamma, HasTwoDecimals) {
    set(23, {GetParam().cell});
    ConvertGamma(workbench);
    EXPECT_EQ(workbench.DisplayGammaText, GetParam().text);
    EXPECT_EQ(screen.Basic(2).caption(), "Gamma  " + std::string(GetParam().text));
}

INSTANTIATE_TEST_SUITE_P(Rows, Gamma,
                         testing::Values(SizeCase{"00", "1.00"}, SizeCase{"78", "2.20"}, SizeCase{"FF", "3.55"},
                                         SizeCase{"7", "2.12"})); // 70 hexadecimal

struct AnalogCase {
    std::string_view cell, level, setup;
};

class AnalogInput : public Block0, public testing::WithParamInterface<AnalogCase> {};

TEST_P(AnalogInput, TellsLevelAndSetup) {
    set(20, {GetParam().cell});
    ConvertVideoInput(workbench);
    EXPECT_EQ(workbench.VideoInputText, "Analog Signal\r\n" + blanks(9) + std::string(GetParam().level) + "\r\n" +
                                            blanks(9) + std::string(GetParam().setup));
}

constexpr std::string_view level0 = "0.700, 0.300 (1.000 Vp-p)";

INSTANTIATE_TEST_SUITE_P(
    Rows, AnalogInput,
    testing::Values(
        AnalogCase{"00", level0, "               "}, AnalogCase{"20", "0.714, 0.286 (1.000 Vp-p)", "               "},
        AnalogCase{"40", "1.000, 0.400 (1.400 Vp-p)", "               "},
        AnalogCase{"60", "0.700, 0.000 (0.700 Vp-p)", "               "},
        AnalogCase{"01", level0, "Serration of the Vsync"}, AnalogCase{"02", level0, "  Sync on Green"},
        AnalogCase{"04", level0, " Composite Sync"}, AnalogCase{"08", level0, " Separate Syncs"},
        AnalogCase{"10", level0, "Blank-to-Black Setup"},
        AnalogCase{"0E", level0, "Separate Syncs, Composite Sync, Sync on Green"},
        // 38 characters stand before "Sync on Green", 53 before the serration.
        AnalogCase{"1B", level0,
                   "Blank-to-Black Setup, Separate Syncs, Sync on Green, \r\n         Serration of the Vsync"},
        // 54 characters stand before what wraps.
        AnalogCase{"1E", level0, "Blank-to-Black Setup, Separate Syncs, Composite Sync, \r\n         Sync on Green"},
        AnalogCase{"1D", level0,
                   "Blank-to-Black Setup, Separate Syncs, Composite Sync, \r\n         Serration of the Vsync"},
        // Wrapped once only.
        AnalogCase{"1F", level0,
                   "Blank-to-Black Setup, Separate Syncs, Composite Sync, \r\n         Sync on Green, "
                   "Serration of the Vsync"}));

TEST_F(BasicDisplay, AnalogControls) {
    set(20, {"4A"});
    ConvertVideoInput(workbench);
    EXPECT_TRUE(screen.VideoMode(0).selected());
    EXPECT_TRUE(screen.Analog.ownVisible());
    EXPECT_FALSE(screen.DFP.ownVisible());
    EXPECT_TRUE(screen.Analog.enabled());
    EXPECT_FALSE(screen.DFP.enabled());
    EXPECT_TRUE(screen.Signal(2).selected());
    EXPECT_EQ(screen.Sync(0).value(), 0);
    EXPECT_EQ(screen.Sync(1).value(), 1);
    EXPECT_EQ(screen.Sync(2).value(), 0);
    EXPECT_EQ(screen.Sync(3).value(), 1);
    EXPECT_EQ(screen.Sync(4).value(), 0);
    set(20, {"00"});
    ConvertVideoInput(workbench);
    EXPECT_TRUE(screen.Signal(0).selected());
    EXPECT_FALSE(screen.Signal(2).selected());
    EXPECT_EQ(screen.Sync(1).value(), 0);
    EXPECT_EQ(screen.Sync(3).value(), 0);
}

struct DigitalCase {
    std::string_view cell, words;
    int compatible;
};

class DigitalInput : public Block0, public testing::WithParamInterface<DigitalCase> {};

TEST_P(DigitalInput, EndsInTwoBlankLines) {
    set(20, {"0A"});
    ConvertVideoInput(workbench);
    set(20, {GetParam().cell});
    ConvertVideoInput(workbench);
    EXPECT_EQ(workbench.VideoInputText,
              "Digital Signal\r\n" + blanks(9) + std::string(GetParam().words) + blanks(24) + "\r\n" + blanks(24));
    EXPECT_TRUE(screen.VideoMode(1).selected());
    EXPECT_FALSE(screen.VideoMode(0).selected());
    EXPECT_FALSE(screen.Analog.ownVisible());
    EXPECT_TRUE(screen.DFP.ownVisible());
    EXPECT_FALSE(screen.Analog.enabled());
    EXPECT_TRUE(screen.DFP.enabled());
    EXPECT_EQ(screen.DFP_1(1).value(), GetParam().compatible);
    EXPECT_EQ(screen.Sync(1).value(), 0) << "no sync bit is looked at";
    EXPECT_TRUE(screen.Signal(0).selected()) << "the signal keeps its option";
}

INSTANTIATE_TEST_SUITE_P(Rows, DigitalInput,
                         testing::Values(DigitalCase{"80", "Non - VESA DFP 1.x Compatible", 0},
                                         DigitalCase{"81", "VESA DFP 1.x Compatible", 1},
                                         DigitalCase{"FE", "Non - VESA DFP 1.x Compatible", 0}));

TEST_F(BasicDisplay, AnInputByteThatCannotBeReadKeepsTheTextWithTheChecksCleared) {
    set(20, {"0A"});
    ConvertVideoInput(workbench);
    const std::string before = workbench.VideoInputText;
    set(20, {"ZZ"});
    ConvertVideoInput(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(workbench.VideoInputText, before);
    EXPECT_EQ(screen.Sync(1).value(), 0);
    EXPECT_EQ(screen.Sync(3).value(), 0);
}

struct FeatureCase {
    std::string_view cell, features;
};

class Features : public Block0, public testing::WithParamInterface<FeatureCase> {};

TEST_P(Features, AreListed) {
    set(24, {GetParam().cell});
    ConvertFeatureSupport(workbench);
    EXPECT_EQ(workbench.PowerFeatureText, GetParam().features);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Features,
    testing::Values(
        FeatureCase{"00", ""}, FeatureCase{"18", ""}, FeatureCase{"80", "Stand-By"}, FeatureCase{"40", "Suspend"},
        FeatureCase{"20", "Active Off/Very Low Power"}, FeatureCase{"04", "Standard Default Color Space"},
        FeatureCase{"02", "Preferred Timing Mode"}, FeatureCase{"01", "Default GTF Supported"},
        FeatureCase{"E0", "Stand-By, Suspend, Active Off/Very Low Power"},
        // 40 characters do not wrap.
        FeatureCase{"86", "Stand-By, Standard Default Color Space, Preferred Timing Mode"},
        // 46 characters wrap the colour space, but not the last item, which allows 80.
        FeatureCase{"E4", "Stand-By, Suspend, Active Off/Very Low Power, \r\n         Standard Default Color Space"},
        FeatureCase{"E1", "Stand-By, Suspend, Active Off/Very Low Power, Default GTF Supported"},
        // 30 characters before the timing mode, 53 before the last item.
        FeatureCase{"07", "Standard Default Color Space, Preferred Timing Mode, Default GTF Supported"},
        // 46, then 87 with the wrap counted, then 121.
        FeatureCase{"FF",
                    "Stand-By, Suspend, Active Off/Very Low Power, \r\n         Standard Default Color Space, \r\n"
                    "         Preferred Timing Mode, \r\n         Default GTF Supported"},
        FeatureCase{"E5",
                    "Stand-By, Suspend, Active Off/Very Low Power, \r\n         Standard Default Color Space, \r\n"
                    "         Default GTF Supported"}));

struct TypeCase {
    std::string_view cell;
    int option;
    std::string_view words;
};

class DisplayTypeOf : public Block0, public testing::WithParamInterface<TypeCase> {};

TEST_P(DisplayTypeOf, FollowsBits4And3) {
    set(24, {GetParam().cell});
    ConvertFeatureSupport(workbench);
    EXPECT_EQ(workbench.DisplayTypeText, GetParam().words);
    EXPECT_EQ(screen.DisplayType.firstSelected(), GetParam().option);
}

INSTANTIATE_TEST_SUITE_P(Rows, DisplayTypeOf,
                         testing::Values(TypeCase{"E7", 0, "Monochrome / grayscale"}, TypeCase{"08", 1, "R/G/B Color"},
                                         TypeCase{"10", 2, "Non R/G/B Multicolor"}, TypeCase{"FF", 3, "Undefined"}));

TEST_F(BasicDisplay, FeatureChecksFollowTheirBits) {
    set(24, {"A5"}); // bits 7, 5, 2, 0
    ConvertFeatureSupport(workbench);
    for (int i = 0; i <= 5; ++i) {
        EXPECT_EQ(screen.FSupport(i).value(), i == 1 || i == 4 ? 0 : 1) << i;
    }
    set(24, {"42"}); // bits 6, 1
    ConvertFeatureSupport(workbench);
    for (int i = 0; i <= 5; ++i) {
        EXPECT_EQ(screen.FSupport(i).value(), i == 1 || i == 4 ? 1 : 0) << i;
    }
}

TEST_F(BasicDisplay, AFeatureByteThatCannotBeReadEmptiesTheTexts) {
    set(24, {"E8"});
    ConvertFeatureSupport(workbench);
    set(24, {"ZZ"});
    ConvertFeatureSupport(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(workbench.PowerFeatureText, "");
    EXPECT_EQ(workbench.DisplayTypeText, "");
    EXPECT_EQ(screen.FSupport(0).value(), 0);
    EXPECT_TRUE(screen.DisplayType(1).selected()) << "the option is not cleared";
}

} // namespace
} // namespace wb::report
