#include "report/established_timings.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

struct BitCase {
    int check;
    std::string_view cell, timing1, timing2;
};

class EstablishedTiming : public Block0, public testing::WithParamInterface<BitCase> {};

TEST_P(EstablishedTiming, EachBitHasItsWords) {
    set(35, {GetParam().cell, GetParam().cell});
    ConvertEstablishedTiming1(workbench);
    EXPECT_EQ(workbench.EstablishedTiming1Text, blanks(9) + std::string(GetParam().timing1));
    ConvertEstablishedTiming2(workbench);
    EXPECT_EQ(workbench.EstablishedTiming2Text, blanks(9) + std::string(GetParam().timing2));
    for (int i = 0; i <= 7; ++i) {
        EXPECT_EQ(screen.ET1(i).value(), i == GetParam().check ? 1 : 0);
        EXPECT_EQ(screen.ET2(i).value(), i == GetParam().check ? 1 : 0);
    }
}

INSTANTIATE_TEST_SUITE_P(
    Rows, EstablishedTiming,
    testing::Values(BitCase{0, "80", "720 X 400 @ 70Hz (IBM,VGA)", "800 X 600 @ 72Hz (VESA)"},
                    BitCase{1, "40", "720 X 400 @ 88Hz (IBM,XGA2)", "800 X 600 @ 75Hz (VESA)"},
                    BitCase{2, "20", "640 X 480 @ 60Hz (IBM,VGA)", "832 X 624 @ 75Hz (Apple,Mac II)"},
                    BitCase{3, "10", "640 X 480 @ 67Hz (Apple,Mac II)", "1024 X 768 @ 87Hz(Interlaced 8514a, IBM)"},
                    BitCase{4, "08", "640 X 480 @ 72Hz (VESA)", "1024 X 768 @ 60Hz (VESA)"},
                    BitCase{5, "04", "640 X 480 @ 75Hz (VESA)", "1024 X 768 @ 70Hz (VESA)"},
                    BitCase{6, "02", "800 X 600 @ 56Hz (VESA)", "1024 X 768 @ 75Hz (VESA)"},
                    BitCase{7, "01", "800 X 600 @ 60Hz (VESA)", "1280 X 1024 @ 75Hz (VESA)"}));

using EstablishedTimings = Block0;

TEST_F(EstablishedTimings, LinesAreSeparatedAndNotEnded) {
    set(35, {"81", "00"});
    ConvertEstablishedTiming1(workbench);
    EXPECT_EQ(workbench.EstablishedTiming1Text,
              "         720 X 400 @ 70Hz (IBM,VGA)\r\n         800 X 600 @ 60Hz (VESA)");
    workbench.EstablishedTiming2Text = "before";
    ConvertEstablishedTiming2(workbench);
    EXPECT_EQ(workbench.EstablishedTiming2Text, "");
}

TEST_F(EstablishedTimings, EachDecoderClearsItsOwnChecks) {
    set(35, {"80", "80"});
    ConvertEstablishedTiming1(workbench);
    ConvertEstablishedTiming2(workbench);
    set(36, {"00"});
    ConvertEstablishedTiming2(workbench);
    EXPECT_EQ(screen.ET1(0).value(), 1);
    EXPECT_EQ(screen.ET2(0).value(), 0);
}

TEST_F(EstablishedTimings, AFailureLeavesAnEmptyTextAndClearedChecks) {
    set(35, {"80"});
    ConvertEstablishedTiming1(workbench);
    set(35, {"ZZ"});
    ConvertEstablishedTiming1(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(workbench.EstablishedTiming1Text, "");
    EXPECT_EQ(screen.ET1(0).value(), 0);
}

TEST_F(EstablishedTimings, OnlyBit7OfTheManufacturersTimingsCounts) {
    set(37, {"80"});
    ConvertReservedTiming(workbench);
    EXPECT_EQ(workbench.ReservedTimingText, "         1152 X 870 @ 75Hz (Apple,Mac II)");
    EXPECT_EQ(screen.ET3(7).value(), 1);
    set(37, {"7F"});
    ConvertReservedTiming(workbench);
    EXPECT_EQ(workbench.ReservedTimingText, "");
    EXPECT_EQ(screen.ET3(7).value(), 0);
}

} // namespace
} // namespace wb::report
