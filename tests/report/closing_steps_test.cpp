// What the decoders of block 0 have in common: the check sum and InFocusDispatch at their end, and what a failure
// leaves.

#include <ostream>

#include "block0_fixture.h"
#include "report/basic_display.h"
#include "report/checksum.h"
#include "report/chromaticity.h"
#include "report/detailed_timing.h"
#include "report/established_timings.h"
#include "report/identity.h"
#include "report/standard_timings.h"

namespace wb::report {
namespace {

struct Decoder {
    std::string_view name;
    void (*run)(Workbench&);
    int cell; ///< one that it reads
    bool raisesFlag;
};

std::ostream& operator<<(std::ostream& out, const Decoder& decoder) {
    return out << decoder.name;
}

constexpr Decoder decoders[] = {
    {"ConvertChromaticity", ConvertChromaticity, 34, false},
    {"ConvertDetailedTiming", ConvertDetailedTiming, 70, true},
    {"ConvertFeatureSupport", ConvertFeatureSupport, 24, true},
    {"ConvertGamma", ConvertGamma, 23, false},
    {"ConvertMaxHorizontalSize", ConvertMaxHorizontalSize, 21, false},
    {"ConvertRevision", ConvertRevision, 19, false},
    {"ConvertStandardTimings", ConvertStandardTimings, 53, true},
    {"ConvertEstablishedTiming1", ConvertEstablishedTiming1, 35, true},
    {"ConvertEstablishedTiming2", ConvertEstablishedTiming2, 36, true},
    {"ConvertReservedTiming", ConvertReservedTiming, 37, true},
    {"ConvertVersion", ConvertVersion, 18, false},
    {"ConvertMaxVerticalSize", ConvertMaxVerticalSize, 22, false},
    {"ConvertVideoInput", ConvertVideoInput, 20, true},
    {"ConvertWeek", ConvertWeek, 16, false},
    {"ConvertYear", ConvertYear, 17, false},
};

class ClosingSteps : public Block0, public testing::WithParamInterface<Decoder> {
protected:
    ClosingSteps() {
        // A timing, so that the detailed timing is decoded as one; with the "01" the sum of cells 0 to 126 is 1.
        set(54, {"01"});
        screen.CurrentBlockBase = 54;
        workbench.ModifyEDIDOn = flagTrue;
        set(127, {"AA"});
    }
};

TEST_P(ClosingSteps, RecalculateTheCheckSumAndLowerTheFlag) {
    GetParam().run(workbench);
    EXPECT_EQ(cell(127), "FF");
    EXPECT_EQ(screen.InFocusDispatch, flagFalse);
    EXPECT_TRUE(boxes().empty());
}

TEST_P(ClosingSteps, ADecoderWithoutTheFlagLeavesItAlone) {
    screen.InFocusDispatch = flagTrue;
    GetParam().run(workbench);
    EXPECT_EQ(screen.InFocusDispatch, GetParam().raisesFlag ? flagFalse : flagTrue);
}

TEST_P(ClosingSteps, DoNothingToTheCheckSumWithoutModify) {
    workbench.ModifyEDIDOn = flagFalse;
    GetParam().run(workbench);
    EXPECT_EQ(cell(127), "AA");
}

TEST_P(ClosingSteps, AreLeftOutAfterAFailure) {
    set(GetParam().cell, {"ZZ"});
    GetParam().run(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(cell(127), "AA");
    EXPECT_EQ(screen.InFocusDispatch, flag(GetParam().raisesFlag));
}

INSTANTIATE_TEST_SUITE_P(All, ClosingSteps, testing::ValuesIn(decoders),
                         [](const auto& row) { return std::string(row.param.name); });

class WithoutCheckSum : public Block0 {
protected:
    void expectNoCheckSumAfter(void (*run)(Workbench&)) {
        workbench.ModifyEDIDOn = flagTrue;
        set(127, {"AA"});
        run(workbench);
        EXPECT_EQ(cell(127), "AA");
    }
};

TEST_F(WithoutCheckSum, TheJoiningProceduresAndTheCheckSumsOwnDecoderWriteNone) {
    expectNoCheckSumAfter(CompleteSerialNumber);
    expectNoCheckSumAfter(ShowCompleteVersion);
    expectNoCheckSumAfter(ConvertExtCheckSum);
}

TEST_F(WithoutCheckSum, TheVendorDecodersWriteIt) {
    for (void (*const run)(Workbench&) : {ConvertManufacturer, ConvertProductCode, ConvertSerialNumber}) {
        workbench.ModifyEDIDOn = flagTrue;
        set(127, {"AA"});
        run(workbench);
        EXPECT_EQ(cell(127), "00");
    }
}

} // namespace
} // namespace wb::report
