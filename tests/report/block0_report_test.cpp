#include "report/block0_report.h"

#include <map>

#include "block0_fixture.h"

namespace wb::report {
namespace {

class Block0Report : public Block0 {
protected:
    std::string entry(int index) { return workbench.ReportBlock0Lines(index); }
    void fillTexts() {
        workbench.IDManufacturerName = "HLV";
        workbench.ProductIDCode = "4241(AB)";
        workbench.SerialLast5 = "00001";
        workbench.ManufactureWeek = "07";
        workbench.ManufactureYear = "2003";
        workbench.CompleteSerial = "AB30700001";
        workbench.EDIDVersionText = "1";
        workbench.EDIDRevisionText = "3";
        workbench.VideoInputText = "Video";
        workbench.MaxHImageSizeText = "520 mm";
        workbench.MaxVImageSizeText = "320 mm";
        workbench.DisplayGammaText = "2.20";
        workbench.PowerFeatureText = "Stand-By";
        workbench.DisplayTypeText = "R/G/B Color";
        workbench.ChromaText1 = "X";
        workbench.ChromaText2 = "Y";
        workbench.EstablishedTiming1Text = "         I";
        workbench.EstablishedTiming2Text = "         II";
        workbench.ReservedTimingText = "         III";
        workbench.ExtensionFlagText = "Extension EDID Block(s): 1\r\n";
        workbench.Block0ChecksumText = "CheckSum OK\r\n";
        screen.txtBrand.setText("Halvorine");
        screen.txtModel.setText("M 1");
    }
};

const std::string rule = "______________________________________________________________________\r\n"; // 70 of them

TEST_F(Block0Report, EveryEntryUpToTheStandardTimings) {
    fillTexts();
    program.platform.setClock({2024, 2, 5, 7, 8, 9});
    set(9, {"0A"});
    set(127, {"FF"});
    BuildBlock0Report(workbench);
    const std::string expected[] = {
        "\r\n",
        "\r\n",
        "\r\n",
        "                            Time:  07:08:09\r\n",     // 15 characters: 27.5, to the even 28
        "                        Date:  Mon Feb 05, 2024\r\n", // 23 characters: 23.5, to the even 24
        rule,
        rule,
        "\r\n",
        "                        HALVORINE CORPORATION\r\n",       // 21 characters: 24.5, to the even 24
        "                    EDID Version # 1,  Revision # 3\r\n", // 31 characters: 19.5, to the even 20
        "                      Vantrel For: Halvorine M 1\r\n",
        rule,
        rule,
        "EDID Block 0, Bytes 0-127\r\n",
        "128 BYTES OF EDID CODE:\r\n",
        "\r\n",
        "      0   1   2   3   4   5   6   7   8   9   \r\n",
        "      ________________________________________\r\n",
        "0    |00  00  00  00  00  00  00  00  00  0A  \r\n",
        "10   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "20   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "30   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "40   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "50   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "60   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "70   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "80   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "90   |00  00  00  00  00  00  00  00  00  00  \r\n",
        "100  |00  00  00  00  00  00  00  00  00  00  \r\n",
        "110  |00  00  00  00  00  00  00  00  00  00  \r\n",
        "120  |00  00  00  00  00  00  00  FF  \r\n",
        "\r\n",
        rule,
        "\r\n",
        "(08-09)  ID Manufacturer Name ________________=   HLV\r\n",
        "(11-10)  Product ID Code _____________________=   4241(AB)\r\n",
        "(12-15)  Last 5 Digits of Serial Number ______=   00001\r\n",
        "   (16)  Week of Manufacture _________________=   07\r\n",
        "   (17)  Year of Manufacture _________________=   2003\r\n",
        "(10-17)  Complete Serial Number ______________=   AB30700001\r\n",
        "   (18)  EDID Version Number _________________=   1\r\n",
        "   (19)  EDID Revision Number ________________=   3\r\n",
        "\r\n",
        "   (20)  VIDEO INPUT DEFINITION:\r\n",
        "         Video     \r\n",
        "\r\n",
        "   (21)  Maximum Horizontal Image Size ________________=      520 mm\r\n",
        "   (22)  Maximum Vertical Image Size __________________=      320 mm\r\n",
        "   (23)  Display Gamma ________________________________=      2.20\r\n",
        "\r\n",
        "   (24)  Power Management and Supported Feature(s):\r\n",
        "         Stand-By\r\n",
        "         Display Type = R/G/B Color\r\n",
        "\r\n",
        "(25-34)  CHROMA INFO:\r\n",
        "         X\r\n",
        "         Y\r\n",
        "\r\n",
        "   (35)  ESTABLISHED TIMING I:\r\n",
        "         I\r\n",
        "\r\n",
        "   (36)  ESTABLISHED TIMING II:\r\n",
        "         II\r\n",
        "\r\n",
        "   (37)  Manufacturer's Reserved Timing:\r\n",
        "         III\r\n",
        "\r\n",
        "(38-53)  Standard Timing Identification:\r\n",
    };
    int index = 0;
    for (const std::string& text : expected) {
        EXPECT_EQ(entry(index), text) << "entry " << index;
        ++index;
    }
    EXPECT_EQ(index, 68);
}

TEST_F(Block0Report, WithoutDecodedTextsTheEndFollowsAtOnce) {
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(65), "           None Specified\r\n");
    EXPECT_EQ(entry(68), "") << "never assigned";
    EXPECT_EQ(entry(69), "\r\n");
    EXPECT_EQ(entry(70), "  (126)  ");
    EXPECT_EQ(entry(71), "  (127)  ");
    EXPECT_EQ(entry(72), "END REPORT");
    EXPECT_EQ(workbench.ReportBlock0Lines.size(), 301);
}

TEST_F(Block0Report, StandardTimingsMoveApart) {
    fillTexts();
    workbench.StandardTimingText.create(8);
    for (int i = 0; i < 8; ++i) {
        workbench.StandardTimingText(i) = std::to_string(i);
    }
    BuildBlock0Report(workbench);
    const std::map<int, std::string> expected = {
        {68, "         0\r\n"},
        {69, "         1\r\n"},
        {71, "         2\r\n"},
        {74, "         3\r\n"},
        {78, "         4\r\n"},
        {83, "         5\r\n"},
        {89, "         6\r\n"},
        {96, "         7\r\n"},
        {97, "\r\n"},
        {98, "  (126)  Extension EDID Block(s): 1\r\n"},
        {99, "  (127)  CheckSum OK\r\n"},
        {100, "END REPORT"},
    };
    for (int i = 68; i <= 300; ++i) {
        const auto line = expected.find(i);
        EXPECT_EQ(entry(i), line == expected.end() ? "" : line->second) << "entry " << i;
    }
}

TEST_F(Block0Report, DetailedBlocksFollowWithoutTheEmptyOnes) {
    workbench.StandardTimingText.create(8);
    workbench.DetailedBlockText(1) = "A\r\nB\r\n";
    workbench.DetailedBlockText(3) = "C";
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(97), rule);
    EXPECT_EQ(entry(98), "\r\n");
    EXPECT_EQ(entry(99), "(72-89) Detailed Timing / Descriptor Block 2:\r\nA\r\nB\r\n\r\n");
    EXPECT_EQ(entry(100), rule);
    EXPECT_EQ(entry(101), "\r\n");
    EXPECT_EQ(entry(102), "(108-125) Detailed Timing / Descriptor Block 4:\r\nC\r\n");
    EXPECT_EQ(entry(103), "\r\n");
    EXPECT_EQ(entry(104), "  (126)  ");
    EXPECT_EQ(entry(106), "END REPORT");
}

TEST_F(Block0Report, TheFirstAndThirdBlock) {
    workbench.DetailedBlockText(0) = "A";
    workbench.DetailedBlockText(2) = "B";
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(71), "(54-71) Detailed Timing / Descriptor Block 1:\r\nA\r\n");
    EXPECT_EQ(entry(74), "(90-107) Detailed Timing / Descriptor Block 3:\r\nB\r\n");
}

TEST_F(Block0Report, ATitleThatFillsTheWidthIsLost) {
    // "Vantrel For: " has 13 characters, the blank between brand and model one.
    screen.txtBrand.setText(std::string(50, 'B'));
    screen.txtModel.setText("12345");
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(10), "Vantrel For: " + std::string(50, 'B') + " 12345\r\n") << "69 characters, half a blank";
    screen.txtModel.setText("123456");
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(10), "");
}

TEST_F(Block0Report, ALongCellPushesItsRow) {
    set(0, {"12345", "1", ""});
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(18), "0    |123451       00  00  00  00  00  00  00  \r\n");
}

TEST_F(Block0Report, IsBuiltAnewEachTime) {
    workbench.DetailedBlockText(0) = "A";
    BuildBlock0Report(workbench);
    workbench.DetailedBlockText(0) = "";
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(72), "END REPORT");
    EXPECT_EQ(entry(75), "");
}

TEST_F(Block0Report, TheDumpIsAsFreshAsTheCellsAndTheRestAsTheDecoders) {
    workbench.DisplayGammaText = "2.20";
    set(23, {"FF"});
    BuildBlock0Report(workbench);
    EXPECT_EQ(entry(20), "20   |00  00  00  FF  00  00  00  00  00  00  \r\n");
    EXPECT_EQ(entry(48), "   (23)  Display Gamma ________________________________=      2.20\r\n");
}

TEST_F(Block0Report, TwentyOneTimingsFitTheBuffer) {
    workbench.StandardTimingText.create(21); // the last one at 68 + 210
    BuildBlock0Report(workbench);
    EXPECT_TRUE(boxes().empty());
    EXPECT_EQ(entry(278), "         \r\n");
    EXPECT_EQ(entry(282), "END REPORT");
}

TEST_F(Block0Report, MoreThanTheBufferHoldsEndsTheBuild) {
    workbench.StandardTimingText.create(22); // the last one at 68 + 231
    BuildBlock0Report(workbench);
    EXPECT_EQ(boxes(), Lines{"Subscript out of range"});
    EXPECT_EQ(entry(299), "         \r\n");
    EXPECT_EQ(entry(300), "\r\n");
    workbench.StandardTimingText.create(23);
    BuildBlock0Report(workbench);
    EXPECT_EQ(boxes(), Lines{"Subscript out of range"});
    EXPECT_EQ(entry(299), "         \r\n");
    EXPECT_EQ(entry(300), "");
}

} // namespace
} // namespace wb::report
