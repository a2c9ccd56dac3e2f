#include "report/chromaticity.h"

#include "block0_fixture.h"
#include "core/base/text.h"

namespace wb::report {
namespace {

using Chromaticity = Block0;

TEST_F(Chromaticity, NothingSetIsZero) {
    ConvertChromaticity(workbench);
    EXPECT_EQ(workbench.ChromaText1, "Red X - 0.000 Green X - 0.000 Blue X - 0.000 White X - 0.000");
    EXPECT_EQ(workbench.ChromaText2, "Red Y - 0.000 Green Y - 0.000 Blue Y - 0.000 White Y - 0.000");
}

TEST_F(Chromaticity, EverythingSetStaysBelowOne) {
    for (int i = 25; i <= 34; ++i) {
        set(i, {"FF"});
    }
    ConvertChromaticity(workbench);
    EXPECT_EQ(workbench.ChromaText1, "Red X - 0.999 Green X - 0.999 Blue X - 0.999 White X - 0.999");
    EXPECT_EQ(screen.chkChroma(7).caption(), "White Y - 0.999");
}

TEST_F(Chromaticity, EachCoordinateHasItsBits) {
    // High bytes 8, 16, ... 64 give 32/1024, 64/1024, ... 256/1024; low bits 3 2 1 0, then 0 1 2 3.
    set(25, {"E4", "1B", "08", "10", "18", "20", "28", "30", "38", "40"});
    ConvertChromaticity(workbench);
    const Lines captions = {"Red X - 0.034",    // 35/1024 = 0.03418
                            "Red Y - 0.064",    // 66/1024 = 0.06445
                            "Green X - 0.095",  // 97/1024 = 0.09473
                            "Green Y - 0.125",  // 128/1024
                            "Blue X - 0.156",   // 160/1024 = 0.15625
                            "Blue Y - 0.188",   // 193/1024 = 0.18848
                            "White X - 0.221",  // 226/1024 = 0.22070
                            "White Y - 0.253"}; // 259/1024 = 0.25293
    for (int k = 0; k <= 7; ++k) {
        EXPECT_EQ(screen.chkChroma(k).caption(), captions[static_cast<std::size_t>(k)]);
    }
    EXPECT_EQ(workbench.ChromaText1, "Red X - 0.034 Green X - 0.095 Blue X - 0.156 White X - 0.221");
    EXPECT_EQ(workbench.ChromaText2, "Red Y - 0.064 Green Y - 0.125 Blue Y - 0.188 White Y - 0.253");
}

TEST_F(Chromaticity, EachLowBitCounts) {
    const Lines digits = {"0.000", "0.001", "0.002", "0.003"}; // 1/1024 = 0.00098 and so on
    for (int k = 0; k <= 7; ++k) {
        for (int low = 1; low <= 3; ++low) {
            SCOPED_TRACE(std::to_string(low) + " of coordinate " + std::to_string(k));
            set(25, {"00", "00"});
            set(25 + k / 4, {ByteToHex2(low << (6 - 2 * (k % 4)))});
            ConvertChromaticity(workbench);
            for (int other = 0; other <= 7; ++other) {
                const std::string& caption = screen.chkChroma(other).caption();
                EXPECT_EQ(caption.substr(caption.size() - 5), digits[other == k ? static_cast<std::size_t>(low) : 0]);
            }
        }
    }
}

TEST_F(Chromaticity, AHalfIsRoundedAwayFromZero) {
    set(27, {"10"}); // 64/1024 = 0.0625
    ConvertChromaticity(workbench);
    EXPECT_EQ(screen.chkChroma(0).caption(), "Red X - 0.063");
}

TEST_F(Chromaticity, TheInputBoxTakesTheSelectedCoordinate) {
    screen.ChromaValue.setText("before");
    set(27, {"80"});
    ConvertChromaticity(workbench);
    EXPECT_EQ(screen.ChromaValue.text(), "before") << "none is selected";
    screen.chkChroma(0).changeValue(1);
    ConvertChromaticity(workbench);
    EXPECT_EQ(screen.ChromaValue.text(), "0.500");
}

TEST_F(Chromaticity, AFailureKeepsTheLinesButNotTheCaptionsBeforeIt) {
    ConvertChromaticity(workbench);
    set(27, {"80", "80", "ZZ"});
    ConvertChromaticity(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(screen.chkChroma(1).caption(), "Red Y - 0.500");
    EXPECT_EQ(screen.chkChroma(2).caption(), "Green X - 0.000");
    EXPECT_EQ(workbench.ChromaText1, "Red X - 0.000 Green X - 0.000 Blue X - 0.000 White X - 0.000");
}

TEST_F(Chromaticity, BitsToFraction) {
    EXPECT_EQ(ChromaBitsToFraction(workbench, 255, 3), 0.9990234375);
    EXPECT_EQ(ChromaBitsToFraction(workbench, 128, 0), 0.5);
    EXPECT_EQ(ChromaBitsToFraction(workbench, 0, 1), 0.0009765625);
    EXPECT_EQ(ChromaBitsToFraction(workbench, 256, 1), 0.0009765625) << "only ten digits count";
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(ChromaBitsToFraction(workbench, 8192, 0), 0);
    EXPECT_EQ(boxes(), Lines{"Overflow"});
}

struct EncodeCase {
    double value;
    std::string_view bits;
};

class ChromaEncoder : public Block0, public testing::WithParamInterface<EncodeCase> {};

TEST_P(ChromaEncoder, GivesTenDigits) {
    EXPECT_EQ(FractionToChromaBits(workbench, GetParam().value), GetParam().bits);
}

INSTANTIATE_TEST_SUITE_P(Rows, ChromaEncoder,
                         testing::Values(EncodeCase{0, "0000000000"}, EncodeCase{0.25, "0100000000"},
                                         EncodeCase{0.5, "1000000000"}, EncodeCase{0.625, "1010000000"},
                                         EncodeCase{0.640, "1010001111"},  // 655, 0.00035 left over
                                         EncodeCase{0.9999, "0000000000"}, // the carry is lost
                                         EncodeCase{1.0, "0000000000"}, EncodeCase{-0.5, "0000000000"},
                                         EncodeCase{0.0004, "0000000000"}, EncodeCase{0.0006, "0000000001"}));

} // namespace
} // namespace wb::report
