#include "block0/editor.h"

namespace wb::test {
namespace {

/// What a visit of a cell shows.
struct Visit {
    int first, last; ///< the cells
    int panel;
    int groupFirst, groupLast;
    bool wholeField; ///< the field is `first` to `last`, otherwise each cell is a field
};

const Visit fixedVisits[] = {
    {0, 7, 0, 0, -1, true},         {8, 9, 1, 8, 17, true},         {10, 11, 1, 8, 17, true},
    {12, 15, 1, 8, 17, true},       {16, 16, 1, 8, 17, true},       {17, 17, 1, 8, 17, true},
    {18, 18, 2, 19, 19, true},      {19, 19, 2, 18, 18, true},      {20, 24, 3, 20, 24, false},
    {25, 34, 4, 25, 34, false},     {35, 35, 5, 0, -1, true},       {36, 36, 6, 0, -1, true},
    {37, 37, 7, 0, -1, true},       {38, 39, 8, 38, 53, true},      {40, 41, 8, 38, 53, true},
    {42, 43, 8, 38, 53, true},      {44, 45, 8, 38, 53, true},      {46, 47, 8, 38, 53, true},
    {48, 49, 8, 38, 53, true},      {50, 51, 8, 38, 53, true},      {52, 53, 8, 38, 53, true},
    {126, 126, 13, 127, 127, true}, {127, 127, 13, 126, 126, true},
};

class Dispatch : public Editor {
protected:
    void expectVisits(const Visit& row) {
        for (int i = row.first; i <= row.last; ++i) {
            SCOPED_TRACE(cellName(i));
            visit(i);
            expectPanel(row.panel);
            for (int other = 0; other < BlockScreen::cellCount; ++other) {
                const bool inField = row.wholeField ? other >= row.first && other <= row.last : other == i;
                const bool inGroup = other >= row.groupFirst && other <= row.groupLast;
                const CellColour expected = inField   ? CellColour::Field
                                            : inGroup ? CellColour::Group
                                                      : CellColour::Window;
                EXPECT_EQ(screen().txtEdit(other).backColor(), expected) << other;
            }
            EXPECT_EQ(screen().InFocusDispatch, flagFalse);
        }
    }
    void expectPanel(int panel) {
        for (int other = 0; other <= 13; ++other) {
            EXPECT_EQ(screen().Hints(other).visible(), other == panel) << other;
        }
    }
    void makeTiming(int base) { program.setCells(base, {"01"}); }
    void makeDescriptor(int base, const char* tag) { program.setCells(base, {"00", "00", "00", tag}); }
};

TEST_F(Dispatch, EachCellOutsideTheBlocks) {
    for (const Visit& row : fixedVisits) {
        expectVisits(row);
    }
}

TEST_F(Dispatch, EachCellOfATiming) {
    for (const int base : {54, 72, 90, 108}) {
        makeTiming(base);
        expectVisits({base, base + 1, 9, base, base + 17, true});
        expectVisits({base + 2, base + 16, 9, base, base + 17, false});
        expectVisits({base + 17, base + 17, 10, base, base + 17, false});
    }
}

TEST_F(Dispatch, EachCellOfADescriptor) {
    for (const auto& [tag, panel] : {std::pair{"FF", 11}, {"FE", 11}, {"FD", 11}, {"FC", 11}, {"FA", 12}}) {
        SCOPED_TRACE(tag);
        for (const int base : {54, 72, 90, 108}) {
            makeDescriptor(base, tag);
            expectVisits({base, base + 1, panel, base, base + 17, true});
            expectVisits({base + 2, base + 17, panel, base, base + 17, false});
        }
    }
}

TEST_F(Dispatch, EachCellOfAColourPoint) {
    switchModify(); // its decoder gives the focus to the input box, which a dead panel refuses
    makeDescriptor(54, "FB");
    expectVisits({54, 55, 11, 54, 71, true});
    expectVisits({56, 71, 11, 54, 71, false});
}

TEST_F(Dispatch, ADescriptorTagIsComparedInCapitals) {
    makeDescriptor(54, "fa");
    visit(60);
    expectPanel(12);
}

struct VendorVisit {
    int cell;
    int label;
    int maxLength;
    const char* text;
};

const VendorVisit vendorVisits[] = {
    {8, 0, 3, "ABC"},     {9, 0, 3, "ABC"},     {10, 1, 4, "AB"},     {11, 1, 4, "AB"}, {12, 2, 20, "00001"},
    {13, 2, 20, "00001"}, {14, 2, 20, "00001"}, {15, 2, 20, "00001"}, {16, 3, 2, "10"}, {17, 4, 4, "2001"},
};

TEST_F(Dispatch, IdentityCells) {
    program.setCells(8, {"04", "43", "41", "42", "01", "00", "00", "00", "0A", "0B"});
    for (const VendorVisit& row : vendorVisits) {
        SCOPED_TRACE(cellName(row.cell));
        visit(row.cell);
        for (int label = 0; label <= 4; ++label) {
            EXPECT_EQ(screen().lbVendor(label).fontBold(), label == row.label) << label;
        }
        EXPECT_EQ(screen().VendorInfo.maxLength(), row.maxLength);
        EXPECT_EQ(screen().VendorInfo.text(), row.text);
        EXPECT_EQ(screen().lbVendor(0).caption(), "Manufacturer - ABC");
        EXPECT_EQ(screen().lbVendor(1).caption(), "Product Code - 4241(AB)");
        EXPECT_EQ(screen().lbVendor(2).caption(), "Serial Number - 00001");
        EXPECT_EQ(screen().lbVendor(3).caption(), "Week Manufacture - 10");
        EXPECT_EQ(screen().lbVendor(4).caption(), "Year Manufacture - 2001");
    }
}

TEST_F(Dispatch, VersionAndRevision) {
    program.setCells(18, {"01", "1F"});
    visit(18);
    EXPECT_TRUE(screen().lbEDID(0).fontBold());
    EXPECT_FALSE(screen().lbEDID(1).fontBold());
    EXPECT_EQ(screen().VerRev.text(), "1");
    EXPECT_EQ(screen().lbEDID(3).caption(), "1.31");
    visit(19);
    EXPECT_FALSE(screen().lbEDID(0).fontBold());
    EXPECT_TRUE(screen().lbEDID(1).fontBold());
    EXPECT_EQ(screen().VerRev.text(), "31");
}

TEST_F(Dispatch, VideoInput) {
    program.setCells(20, {"80"});
    visit(20);
    EXPECT_TRUE(screen().VideoInput.visible());
    EXPECT_FALSE(screen().DPMS.visible());
    EXPECT_FALSE(screen().BasicInput.visible());
    EXPECT_FALSE(screen().Basic(0).visible());
    EXPECT_TRUE(screen().lbBasic(0).fontBold());
    EXPECT_FALSE(screen().lbBasic(1).fontBold());
    EXPECT_TRUE(screen().VideoMode(1).selected());
    EXPECT_EQ(cell(20), "80") << "a visit changes nothing";
}

TEST_F(Dispatch, BasicValues) {
    program.setCells(21, {"34", "00", "78"});
    const char* texts[] = {"520", "", "2.20"}; // nothing stands before the blank of " mm"
    for (int i = 0; i <= 2; ++i) {
        SCOPED_TRACE(cellName(21 + i));
        visit(21 + i);
        EXPECT_TRUE(screen().BasicInput.visible());
        EXPECT_EQ(screen().BasicInput.text(), texts[i]);
        for (int other = 0; other <= 2; ++other) {
            EXPECT_EQ(screen().Basic(other).selected(), other == i) << other;
            EXPECT_TRUE(screen().Basic(other).visible());
        }
        EXPECT_FALSE(screen().VideoInput.visible());
        EXPECT_FALSE(screen().DPMS.visible());
        EXPECT_FALSE(screen().lbBasic(0).fontBold());
        EXPECT_EQ(focused(), cellName(21 + i));
    }
}

TEST_F(Dispatch, FeatureSupport) {
    program.setCells(24, {"81"});
    visit(20);
    visit(24);
    EXPECT_TRUE(screen().DPMS.visible());
    EXPECT_FALSE(screen().VideoInput.visible());
    EXPECT_FALSE(screen().BasicInput.visible());
    EXPECT_EQ(screen().BasicInput.text(), "");
    EXPECT_FALSE(screen().lbBasic(0).fontBold());
    EXPECT_FALSE(screen().lbBasic(1).fontBold()) << "its heading is not made bold";
    EXPECT_EQ(screen().FSupport(0).value(), 1);
    EXPECT_EQ(screen().FSupport(5).value(), 1);
}

TEST_F(Dispatch, ChromaticityLowBits) {
    visit(27);
    for (const int index : {25, 26}) {
        visit(index);
        EXPECT_FALSE(screen().lbChromaChange(0).visible());
        EXPECT_TRUE(screen().lbChromaChange(1).visible());
        EXPECT_FALSE(screen().ChromaValue.visible());
        EXPECT_EQ(screen().chkChroma.firstSelected(), -1);
    }
}

TEST_F(Dispatch, ChromaticityValues) {
    for (int i = 0; i <= 7; ++i) {
        program.setCells(27 + i, {"80"});
        visit(27 + i);
        EXPECT_TRUE(screen().lbChromaChange(0).visible());
        EXPECT_FALSE(screen().lbChromaChange(1).visible());
        EXPECT_TRUE(screen().ChromaValue.visible());
        EXPECT_EQ(screen().chkChroma.firstSelected(), i);
        EXPECT_EQ(screen().ChromaValue.text(), "0.500");
        EXPECT_EQ(focused(), cellName(27 + i));
    }
}

TEST_F(Dispatch, EstablishedTimings) {
    program.setCells(35, {"81", "40", "FF"});
    visit(35);
    EXPECT_EQ(screen().ET1(0).value(), 1);
    EXPECT_EQ(screen().ET1(7).value(), 1);
    visit(36);
    EXPECT_EQ(screen().ET2(1).value(), 1);
    visit(37);
    EXPECT_EQ(screen().ET3(7).value(), 1);
    EXPECT_EQ(cells(35, 37), "81 40 FF");
}

TEST_F(Dispatch, StandardTimings) {
    program.setCells(38, {"31", "00", "31", "40", "31", "80", "31", "C0"});
    for (int i = 38; i <= 53; ++i) {
        SCOPED_TRACE(cellName(i));
        const int pair = (i - 38) / 2;
        visit(i);
        EXPECT_EQ(screen().STOpt.firstSelected(), pair);
        EXPECT_EQ(screen().CurrentBlockBase, 39 + 2 * pair);
        EXPECT_EQ(screen().STAOptb.firstSelected(), pair <= 3 ? pair : 0) << "its ratio";
    }
    EXPECT_EQ(screen().STOpt(3).caption(), "640 X 360 @60Hz");
}

TEST_F(Dispatch, ExtensionFlag) {
    program.setCells(126, {"02"});
    visit(126);
    EXPECT_TRUE(screen().lbEDID(6).fontBold());
    EXPECT_FALSE(screen().lbEDID(7).fontBold());
    EXPECT_TRUE(frame().Command4.enabled());
    EXPECT_EQ(frame().Command4.caption(), "See Ext Block");
    EXPECT_EQ(screen().lbEDID(6).caption(), "Extended Flag = 2");
    EXPECT_EQ(screen().lbEDID(7).caption(), "CheckSum Is Invalid");
    program.setCells(126, {"00", "06"});
    visit(126);
    EXPECT_FALSE(frame().Command4.enabled());
    EXPECT_EQ(frame().Command4.caption(), "No Ext Block");
    EXPECT_EQ(screen().lbEDID(7).caption(), "CheckSum OK");
}

TEST_F(Dispatch, Checksum) {
    program.setCells(126, {"02", "04"});
    visit(127);
    EXPECT_FALSE(screen().lbEDID(6).fontBold());
    EXPECT_TRUE(screen().lbEDID(7).fontBold());
    EXPECT_EQ(screen().lbEDID(7).caption(), "CheckSum OK");
    EXPECT_EQ(frame().Command4.caption(), "No Ext Block") << "the button follows cell 126 alone";
}

struct TimingVisit {
    int offset;
    int option; ///< -1: none
    bool input;
};

const TimingVisit timingVisits[] = {
    {0, 0, true},   {1, 0, true},   {2, 1, true},    {3, 2, true},  {4, -1, false}, {5, 3, true},
    {6, 4, true},   {7, -1, false}, {8, 5, true},    {9, 6, true},  {10, 7, true},  {11, 8, true},
    {12, 11, true}, {13, 12, true}, {14, -1, false}, {15, 9, true}, {16, 10, true},
};

TEST_F(Dispatch, FieldsOfATiming) {
    makeTiming(72);
    for (const TimingVisit& row : timingVisits) {
        SCOPED_TRACE(cellName(72 + row.offset));
        visit(72 + row.offset);
        EXPECT_EQ(screen().DT.firstSelected(), row.option);
        EXPECT_EQ(screen().DTInput.visible(), row.input);
        EXPECT_EQ(screen().DTInput.text(), "");
    }
    visit(89);
    EXPECT_EQ(screen().DT.firstSelected(), -1);
    EXPECT_FALSE(screen().DTInput.visible()) << "on the other panel";
}

TEST_F(Dispatch, BlocksAndTheirCaptions) {
    const char* ranges[] = {"(54-71)", "(72-89)", "(90-107)", "(108-125)"};
    for (int block = 0; block <= 3; ++block) {
        SCOPED_TRACE("block " + std::to_string(block));
        const int base = 54 + 18 * block;
        makeTiming(base);
        visit(base + 17);
        EXPECT_EQ(screen().CurrentBlockBase, base);
        EXPECT_EQ(screen().CurrentBlockNumber, block);
        EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagFalse);
        for (const int panel : {9, 10, 11}) {
            EXPECT_EQ(screen().Hints(panel).caption(), std::string("Detailed Timing ") + ranges[block]);
        }
        EXPECT_EQ(screen().Hints(12).caption(), std::string("Ext. Standard Timing ") + ranges[block]);
    }
}

TEST_F(Dispatch, AStandardTimingDescriptorHasItsOwnPanelAndCaption) {
    makeDescriptor(54, "FA");
    visit(54);
    expectPanel(12);
    EXPECT_EQ(screen().Hints(12).caption(), "Ext. Standard Timing (54-71)");
    EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagTrue);
}

TEST_F(Dispatch, ThreeZerosThatAreNotTextMakeNoDescriptor) {
    program.setCells(54, {"0", "00", "00"});
    visit(54);
    EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagFalse);
    expectPanel(9);
}

TEST_F(Dispatch, TheHelpOfADoubleClickIsForBlocksInModifyMode) {
    visit(54);
    EXPECT_FALSE(screen().DTHelp.visible());
    switchModify();
    visit(54);
    EXPECT_TRUE(screen().DTHelp.visible());
    visit(53);
    EXPECT_FALSE(screen().DTHelp.visible());
}

TEST_F(Dispatch, AVisitChangesNoTiming) {
    program.setCells(54, {"02", "3A", "80", "18", "71", "38", "2D", "40", "58", "2C", "45", "00", "06", "44", "21",
                          "00", "00", "9F"});
    const std::string before = cells(54, 71);
    visit(71);
    EXPECT_EQ(screen().DT1.value(), 1);
    EXPECT_TRUE(screen().DTSync(3).selected());
    visit(53);
    visit(54);
    visit(71);
    EXPECT_EQ(cells(54, 71), before);
}

TEST_F(Dispatch, FieldsOfARangeDescriptor) {
    makeDescriptor(54, "FD");
    for (int offset = 0; offset <= 17; ++offset) {
        visit(54 + offset);
        const bool hasOption = offset >= 5 && offset <= 9;
        EXPECT_EQ(screen().DtaOpt.firstSelected(), hasOption ? offset - 5 : -1) << offset;
        EXPECT_FALSE(screen().Windex(0).visible());
        EXPECT_FALSE(screen().Windex(1).visible());
    }
}

TEST_F(Dispatch, ACurveUnlocksItsCellsWhateverModify) {
    makeDescriptor(54, "FD");
    program.setCells(64, {"02"});
    visit(54);
    // The decoder locks the same cells again while Modify is off, but only where there is a curve to show.
    EXPECT_TRUE(screen().txtEdit(63).locked());
    EXPECT_TRUE(screen().txtEdit(64).locked());
}

TEST_F(Dispatch, AnUndecodedCurveLeavesItsCellsUnlocked) {
    makeDescriptor(54, "FD");
    program.setCells(64, {"04"}); // timings of a later version: the decoder stops before its locks
    visit(54);
    EXPECT_TRUE(screen().txtEdit(63).locked());
    for (int i = 64; i <= 71; ++i) {
        EXPECT_FALSE(screen().txtEdit(i).locked()) << i;
    }
}

TEST_F(Dispatch, FieldsOfAColourPoint) {
    switchModify();
    makeDescriptor(54, "FB");
    program.setCells(59, {"01", "00", "80", "80", "78", "02"});
    const int options[] = {-1, -1, -1, -1, -1, -1, -1, 0, 1, 2, -1, -1, 3, 4, 5, -1, -1, -1};
    for (int offset = 0; offset <= 17; ++offset) {
        visit(54 + offset);
        EXPECT_EQ(screen().DtaOptWhite.firstSelected(), options[offset]) << offset;
        EXPECT_TRUE(screen().Windex(0).visible());
        EXPECT_TRUE(screen().Windex(1).visible());
    }
    visit(72);
    EXPECT_FALSE(screen().Windex(0).ownVisible());
    EXPECT_FALSE(screen().Windex(1).ownVisible());
}

TEST_F(Dispatch, FieldsOfAStandardTimingDescriptor) {
    makeDescriptor(54, "FA");
    for (int offset = 0; offset <= 17; ++offset) {
        visit(54 + offset);
        const bool hasPair = offset >= 5 && offset <= 16;
        EXPECT_EQ(screen().ExtSTOpt.firstSelected(), hasPair ? (offset - 5) / 2 : -1) << offset;
        EXPECT_EQ(screen().ExtStaFrame.enabled(), hasPair) << offset;
        EXPECT_EQ(screen().DT.firstSelected(), offset <= 1 ? 0 : -1) << "an option of a hidden panel, " << offset;
    }
}

} // namespace
} // namespace wb::test
