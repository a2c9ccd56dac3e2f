#include "report/checksum.h"

#include "block0_fixture.h"

namespace wb::report {
namespace {

struct FlagCase {
    std::string_view cell126, cell127, shown, flagText, checksum;
};

class ExtensionAndCheckSum : public Block0, public testing::WithParamInterface<FlagCase> {};

TEST_P(ExtensionAndCheckSum, AreTold) {
    set(126, {GetParam().cell126, GetParam().cell127});
    ConvertExtCheckSum(workbench);
    EXPECT_EQ(screen.lbEDID(6).caption(), "Extended Flag = " + std::string(GetParam().shown));
    EXPECT_EQ(workbench.ExtensionFlagText, std::string(GetParam().flagText) + "\r\n");
    EXPECT_EQ(screen.lbEDID(7).caption(), GetParam().checksum);
    EXPECT_EQ(workbench.Block0ChecksumText, std::string(GetParam().checksum) + "\r\n");
}

constexpr std::string_view ok = "CheckSum OK";
constexpr std::string_view invalid = "CheckSum Is Invalid";

INSTANTIATE_TEST_SUITE_P(Rows, ExtensionAndCheckSum,
                         testing::Values(FlagCase{"00", "00", "0", "No Extension EDID Block(s)", ok},
                                         FlagCase{"01", "FF", "1", "Extension EDID Block(s): 1", ok},
                                         FlagCase{"01", "FE", "1", "Extension EDID Block(s): 1", invalid},
                                         FlagCase{"0A", "F6", "10", "Extension EDID Block(s): 10", ok},
                                         FlagCase{"C8", "38", "200", "Extension EDID Block(s): 200", ok},
                                         FlagCase{"FF", "01", "255", "Extension EDID Block(s): 255", ok},
                                         FlagCase{"00", "01", "0", "No Extension EDID Block(s)", invalid}));

using CheckSum = Block0;

TEST_F(CheckSum, IsTheSumOfAllCellsModulo256) {
    EXPECT_EQ(ComputeCheckSum(workbench), 0);
    set(0, {"FF", "FF", "03"});
    EXPECT_EQ(ComputeCheckSum(workbench), 1);
    set(127, {"FF"});
    EXPECT_EQ(ComputeCheckSum(workbench), 0);
}

TEST_F(CheckSum, OneThatFailsInTheMiddleIsThePartialSum) {
    set(3, {"02", "ZZ", "05"});
    EXPECT_EQ(ComputeCheckSum(workbench), 2);
    EXPECT_EQ(boxes(), unreadable());
    ConvertExtCheckSum(workbench);
    EXPECT_EQ(workbench.Block0ChecksumText, "CheckSum Is Invalid\r\n");
    boxes();
    set(3, {"00"});
    ConvertExtCheckSum(workbench);
    EXPECT_EQ(boxes(), unreadable());
    EXPECT_EQ(workbench.Block0ChecksumText, "CheckSum OK\r\n") << "told by the partial sum";
}

TEST_F(CheckSum, AnExtensionCountThatCannotBeReadIsTheCallersFailure) {
    set(126, {"ZZ"});
    EXPECT_THROW(ConvertExtCheckSum(workbench), Failure);
    EXPECT_EQ(boxes(), Lines{"Invalid procedure call or argument"}) << "the helper's alone";
    EXPECT_EQ(workbench.ExtensionFlagText, "");
}

TEST_F(CheckSum, IsRightAgainAfterARecalculation) {
    set(126, {"00", "00"});
    set(5, {"01"});
    ConvertExtCheckSum(workbench);
    EXPECT_EQ(screen.lbEDID(7).caption(), "CheckSum Is Invalid");
    set(127, {"FF"});
    ConvertExtCheckSum(workbench);
    EXPECT_EQ(screen.lbEDID(7).caption(), "CheckSum OK");
}

} // namespace
} // namespace wb::report
