#include "report/definitions.h"

#include <gmock/gmock.h>

#include "block0_fixture.h"

namespace wb::report {
namespace {

using testing::HasSubstr;
using Definitions = Block0;

TEST_F(Definitions, LaterDecodersRestOnEarlierOnes) {
    set(8, {"6A", "51", "41", "42", "01", "00", "00", "00", "07", "0D", "01", "03"});
    BuildEDIDDefinations(workbench);
    EXPECT_EQ(screen.txtBrand.text(), "Zarqo") << "from the manufacturer's name";
    EXPECT_EQ(workbench.CompleteSerial, "AB30700001");
    EXPECT_EQ(workbench.EDIDVersionRevisionText, "1.3");
    EXPECT_EQ(screen.VendorInfo.text(), "2003") << "the year is decoded last";
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Definitions, RunEveryDecoder) {
    set(20,
        {"80", "34", "20", "78", "08", "00", "00", "80", "00", "00", "00", "00", "00", "00", "00", "80", "80", "80"});
    set(54, {"01"});
    BuildEDIDDefinations(workbench);
    EXPECT_EQ(workbench.VideoInputText.substr(0, 14), "Digital Signal");
    EXPECT_EQ(workbench.MaxHImageSizeText, "520 mm");
    EXPECT_EQ(workbench.MaxVImageSizeText, "320 mm");
    EXPECT_EQ(workbench.DisplayGammaText, "2.20");
    EXPECT_EQ(workbench.DisplayTypeText, "R/G/B Color");
    EXPECT_EQ(workbench.ChromaText1.substr(0, 13), "Red X - 0.500");
    EXPECT_NE(workbench.EstablishedTiming1Text, "");
    EXPECT_NE(workbench.EstablishedTiming2Text, "");
    EXPECT_NE(workbench.ReservedTimingText, "");
    EXPECT_EQ(workbench.StandardTimingText.size(), 8);
    EXPECT_EQ(workbench.IDManufacturerName, "@@@");
    EXPECT_EQ(workbench.ProductIDCode, "0000");
    EXPECT_EQ(workbench.SerialLast5, "Not Used");
    EXPECT_EQ(workbench.ManufactureWeek, "00");
    EXPECT_EQ(workbench.ManufactureYear, "1990");
    EXPECT_THAT(workbench.DetailedBlockText(0), HasSubstr("Pixel Clock: 0.01 MHz"));
    EXPECT_EQ(workbench.ExtensionFlagText, "No Extension EDID Block(s)\r\n");
    EXPECT_EQ(workbench.Block0ChecksumText, "CheckSum Is Invalid\r\n");
}

TEST_F(Definitions, DecodeTheFourBlocksInTheirOrder) {
    set(54, {"00", "00", "00", "FE", "00", "41", "0A"});
    set(72, {"00", "00", "00", "FE", "00", "42", "0A"});
    set(90, {"00", "00", "00", "FE", "00", "43", "0A"});
    set(108, {"00", "00", "00", "FF", "00", "44", "0A"});
    BuildEDIDDefinations(workbench);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(workbench.DetailedBlockText(i),
                  "\r\n         ASCII Data:\r\n         " + std::string(1, static_cast<char>('A' + i)) + "\r\n\r\n");
    }
    EXPECT_EQ(workbench.DetailedBlockText(3), "\r\n         Monitor Serial Number:\r\n         D\r\n\r\n");
    EXPECT_EQ(screen.DTaInput.text(), "D");
    EXPECT_EQ(screen.CurrentBlockBase, 108);
    EXPECT_EQ(screen.CurrentBlockNumber, 3);
}

TEST_F(Definitions, TheAspectOfTheStandardTimingsFollowsCell108) {
    set(38, {"81", "80"});
    set(108, {"40"});
    BuildEDIDDefinations(workbench);
    EXPECT_EQ(screen.STAOptb.firstSelected(), 1);
}

TEST_F(Definitions, TheDescriptorFlagIsLeftAlone) {
    screen.CurrentBlockIsDescriptor = flagTrue;
    set(54, {"01", "00", "00", "FE", "00", "41", "0A"});
    BuildEDIDDefinations(workbench);
    EXPECT_EQ(screen.CurrentBlockIsDescriptor, flagTrue);
    EXPECT_EQ(workbench.DetailedBlockText(0), "\r\n         ASCII Data:\r\n         A\r\n\r\n");
}

TEST_F(Definitions, AFailedDecoderLetsTheNextOneRun) {
    set(54, {"00", "00", "00", "10"});
    set(21, {"ZZ"});
    set(72, {"00", "00", "00", "FE", "00", "42", "0A"});
    BuildEDIDDefinations(workbench);
    EXPECT_EQ(boxes(), (Lines{"Control array element does not exist", "Invalid procedure call or argument",
                              "Invalid procedure call or argument",
                              // The sum of the block meets the cell again.
                              "Invalid procedure call or argument", "Invalid procedure call or argument"}));
    EXPECT_EQ(workbench.DetailedBlockText(0), "\r\n");
    EXPECT_EQ(workbench.DetailedBlockText(1), "\r\n         ASCII Data:\r\n         B\r\n\r\n");
    EXPECT_EQ(workbench.ManufactureYear, "1990");
    EXPECT_EQ(workbench.ExtensionFlagText, "No Extension EDID Block(s)\r\n");
}

// All options and checks change, so every one of them raises its click.
TEST_F(Definitions, SettingTheControlsChangesNoCell) {
    const std::vector<std::string_view> cells = {"00", "FF", "FF", "FF", "FF", "FF", "FF", "00", "21", "96", "41",
                                                 "42", "01", "02", "03", "04", "07", "0D", "01", "03", "7F", "34",
                                                 "20", "78", "FF", "E4", "1B", "08", "10", "18", "20", "28", "30",
                                                 "38", "40", "FF", "FF", "80", "81", "80", "01", "01", "D1", "C0"};
    for (std::size_t i = 0; i < cells.size(); ++i) {
        set(static_cast<int>(i), {cells[i]});
    }
    set(54,
        {"02", "3A", "80", "18", "71", "38", "2D", "40", "58", "2C", "45", "00", "09", "25", "21", "00", "00", "FD"});
    set(72, {"00", "00", "00", "FA", "00", "81", "C0"});
    set(108, {"01", "00", "00", "00", "00", "C0"});
    std::string before;
    for (int i = 0; i < 128; ++i) {
        before += cell(i);
    }
    workbench.windows.show(screen);
    BuildEDIDDefinations(workbench);
    std::string after;
    for (int i = 0; i < 128; ++i) {
        after += cell(i);
    }
    EXPECT_EQ(after, before);
    EXPECT_EQ(workbench.focus.current()->fullName(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(boxes().empty());
}

TEST_F(Definitions, TheLastDecodersFailurePassesOn) {
    set(126, {"ZZ"});
    EXPECT_THROW(BuildEDIDDefinations(workbench), Failure);
    EXPECT_EQ(workbench.ManufactureYear, "1990");
}

} // namespace
} // namespace wb::report
