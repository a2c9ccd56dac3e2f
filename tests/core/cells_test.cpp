#include "core/cells.h"

#include <gtest/gtest.h>

#include "core/edid_image.h"
#include "support/program.h"

namespace wb {
namespace {

using Boxes = std::vector<std::string>;

TEST(Cells, HexTextToCharReadsTwoDigits) {
    test::Program program;
    EXPECT_EQ(HexTextToChar(program.workbench, "41"), "A");
    EXPECT_EQ(HexTextToChar(program.workbench, "00"), std::string(1, '\0'));
    EXPECT_EQ(HexTextToChar(program.workbench, ""), std::string(1, '\0'));
    EXPECT_EQ(HexTextToChar(program.workbench, "F"), "\xF0");
    EXPECT_EQ(HexTextToChar(program.workbench, "414"), "A");
    EXPECT_TRUE(program.boxes.empty());
}

TEST(Cells, ACodeOutOfRangeIsShownAndGivesAnEmptyText) {
    test::Program program;
    EXPECT_EQ(HexTextToChar(program.workbench, "ZZ"), "") << "42 * 16 + 42 is no character";
    EXPECT_EQ(HexTextToChar(program.workbench, "0 "), "") << "0 - 16 is none either";
    EXPECT_EQ(program.takeBoxes(), Boxes(2, "Invalid procedure call or argument"));
    EXPECT_THROW(byteOf(program.workbench, "ZZ"), Failure);
    EXPECT_EQ(program.takeBoxes(), Boxes{"Invalid procedure call or argument"}) << "the caller shows the second one";
}

TEST(Cells, OddDigitsInsideTheRangeAreRead) {
    test::Program program;
    EXPECT_EQ(byteOf(program.workbench, "0G"), 23);
    EXPECT_EQ(byteOf(program.workbench, "ff"), 255);
    EXPECT_EQ(byteOf(program.workbench, "1 "), 0);
}

TEST(Cells, BinaryTextToDecimalSumsInThirtyTwoBits) {
    test::Program program;
    EXPECT_EQ(BinaryTextToDecimal(program.workbench, ""), "0");
    EXPECT_EQ(BinaryTextToDecimal(program.workbench, "1x1"), "5");
    EXPECT_EQ(BinaryTextToDecimal(program.workbench, std::string(32, '1')), "4294967295");
    EXPECT_EQ(BinaryTextToDecimal(program.workbench, "0" + std::string(32, '1')), "4294967295");
    EXPECT_TRUE(program.boxes.empty());
    EXPECT_EQ(BinaryTextToDecimal(program.workbench, "1" + std::string(32, '0')), "");
    EXPECT_EQ(program.takeBoxes(), Boxes{"Overflow"});
}

TEST(Cells, ValueShowsItsOverflowAndGivesZero) {
    test::Program program;
    EXPECT_EQ(Value(program.workbench, "1E999"), 0);
    EXPECT_EQ(program.takeBoxes(), Boxes{"Overflow"});
}

class Checksum : public testing::Test {
protected:
    Checksum() {
        program.workbench.frmEDID();
        program.workbench.ModifyEDIDOn = flagTrue;
        program.workbench.Block0ChecksumAsLoaded = "00";
        program.workbench.Block0ChecksumLast = "00";
    }

    test::Program program;
};

TEST_F(Checksum, DoesNothingUnlessModifyIsOn) {
    program.workbench.ModifyEDIDOn = flagFalse;
    program.setCells(0, {"01"});
    program.setCells(127, {"77"});
    RecalcBlock0Checksum(program.workbench);
    EXPECT_EQ(program.cell(127), "77");
    EXPECT_EQ(program.workbench.EDIDModified, flagFalse);
}

TEST_F(Checksum, ASumOfZeroIsWrittenAsTwoDigits) {
    RecalcBlock0Checksum(program.workbench);
    EXPECT_EQ(program.cell(127), "00");
    EXPECT_EQ(program.workbench.EDIDModified, flagFalse);
    EXPECT_EQ(program.workbench.EDIDRedecodeNeeded, flagFalse);
}

TEST_F(Checksum, ASumOfOneGivesFF) {
    program.setCells(0, {"01"});
    RecalcBlock0Checksum(program.workbench);
    EXPECT_EQ(program.cell(127), "FF");
    EXPECT_EQ(program.workbench.EDIDModified, flagTrue);
    EXPECT_EQ(program.workbench.EDIDRedecodeNeeded, flagTrue);
    EXPECT_EQ(program.workbench.Block0ChecksumLast, "FF");
}

TEST_F(Checksum, ChangesThatCancelOutLeaveTheImageModified) {
    program.setCells(5, {"FF", "FF"});
    RecalcBlock0Checksum(program.workbench);
    program.workbench.Block0ChecksumAsLoaded = program.cell(127);
    program.workbench.EDIDModified = flagFalse;
    program.setCells(5, {"FE"});
    RecalcBlock0Checksum(program.workbench);
    program.setCells(6, {"00"});
    RecalcBlock0Checksum(program.workbench);
    program.setCells(6, {"FF"});
    program.setCells(5, {"FF"});
    RecalcBlock0Checksum(program.workbench);
    EXPECT_EQ(program.cell(127), program.workbench.Block0ChecksumAsLoaded);
    EXPECT_EQ(program.workbench.EDIDModified, flagTrue) << "the flag is never cleared here";
}

TEST_F(Checksum, AnUnreadableCellEndsTheRecalculation) {
    program.setCells(3, {"ZZ"});
    program.setCells(127, {"77"});
    RecalcBlock0Checksum(program.workbench);
    EXPECT_EQ(program.takeBoxes(), Boxes(2, "Invalid procedure call or argument"));
    EXPECT_EQ(program.cell(127), "77");
}

TEST(Image, DetailedBlocksFollowOneAnother) {
    EXPECT_EQ(detailedBlockBase(0), 54);
    EXPECT_EQ(detailedBlockBase(3), 108);
}

TEST(Image, ADescriptorIsMarkedByTheTextsOfThreeCells) {
    test::Program program;
    FrmEdid& screen = program.workbench.frmEDID();
    program.setCells(54, {"00", "00", "00", "FF"});
    EXPECT_TRUE(hasDescriptorMark(screen, 54));
    program.setCells(54, {"0", "000", "00"});
    EXPECT_TRUE(hasDescriptorMark(screen, 54)) << "the texts are joined";
    program.setCells(54, {"00", "00", "0"});
    EXPECT_FALSE(hasDescriptorMark(screen, 54));
    EXPECT_THROW(hasDescriptorMark(screen, 126), Failure) << "past the grid";
}

TEST(Image, TheTimingOffsetIsANumberOfSixteenBits) {
    SharedVariables variables;
    variables.ExtDtdOffsetText = "29";
    EXPECT_EQ(timingOffset(variables), 29);
    for (const char* text : {"", "1D", "32768"}) {
        variables.ExtDtdOffsetText = text;
        EXPECT_THROW(timingOffset(variables), Failure) << text;
    }
}

TEST(Image, ExtensionByDecimalTextReadsHexadecimalAsDecimal) {
    test::Program program;
    for (const auto& [text, extension] :
         {std::pair{"00", false}, {"01", true}, {"10", true}, {"0A", false}, {"FF", false}, {"1E", true}}) {
        program.setCells(126, {text});
        EXPECT_EQ(hasExtensionByDecimalText(program.workbench), extension) << text;
    }
}

} // namespace
} // namespace wb
