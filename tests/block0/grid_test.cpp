#include <gmock/gmock.h>

#include "block0/dispatch.h"
#include "block0/editor.h"

namespace wb::test {
namespace {

using testing::HasSubstr;

class Grid : public Editor {};

const std::string invalidCall = "Invalid procedure call or argument";

TEST_F(Grid, WithModifyOffEveryPanelIsShownButDead) {
    program.setCells(127, {"12"});
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        visit(i);
        EXPECT_EQ(focused(), cellName(i));
        for (int panel = 0; panel <= 13; ++panel) {
            EXPECT_FALSE(screen().Hints(panel).enabled()) << panel;
        }
    }
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        EXPECT_TRUE(screen().txtEdit(i).locked()) << i;
    }
    EXPECT_TRUE(screen().txtBrand.locked());
    EXPECT_TRUE(screen().txtModel.locked());
    EXPECT_EQ(cell(127), "12") << "a wrong check sum stays";
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
}

TEST_F(Grid, WithModifyOffACellIsReadOnly) {
    visit(8);
    program.type("7");
    EXPECT_EQ(cell(8), "00");
}

TEST_F(Grid, ModifyOpensTheGate) {
    switchModify();
    visit(8);
    for (int panel = 0; panel <= 13; ++panel) {
        EXPECT_TRUE(screen().Hints(panel).enabled()) << panel;
    }
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        EXPECT_FALSE(screen().txtEdit(i).locked()) << i;
    }
    EXPECT_FALSE(screen().txtBrand.locked());
    EXPECT_FALSE(screen().txtModel.locked());
}

TEST_F(Grid, TheGateClosesAtTheNextFocusOnly) {
    switchModify();
    visit(8);
    click(frame().Command2);
    EXPECT_FALSE(screen().txtEdit(8).locked());
    visit(9);
    EXPECT_TRUE(screen().txtEdit(8).locked());
    EXPECT_FALSE(screen().Hints(1).enabled());
}

TEST_F(Grid, FocusSelectsTheWholeText) {
    visit(8);
    EXPECT_EQ(screen().txtEdit(8).selStart(), 0);
    EXPECT_EQ(screen().txtEdit(8).selLength(), 2);
}

TEST_F(Grid, FocusPutsTheChecksumRight) {
    // Six cells FF: 1530 is 250 modulo 256, and 6 is missing.
    switchModify();
    EXPECT_EQ(cell(127), "06");
    EXPECT_EQ(workbench.EDIDModified, flagTrue);
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagTrue);
    EXPECT_EQ(workbench.Block0ChecksumLast, "06");
    EXPECT_EQ(workbench.Block0ChecksumAsLoaded, "00");
}

TEST_F(Grid, TypedCharactersAreInUpperCase) {
    switchModify();
    visit(0);
    program.type("fa");
    EXPECT_EQ(cell(0), "FA");
}

TEST_F(Grid, TheSecondCharacterDecodesTheField) {
    switchModify();
    visit(8);
    EXPECT_EQ(screen().lbVendor(0).caption(), "Manufacturer - @@@");
    program.type("0");
    EXPECT_EQ(screen().lbVendor(0).caption(), "Manufacturer - @@@");
    program.type("4");
    EXPECT_EQ(screen().lbVendor(0).caption(), "Manufacturer - A@@");
    EXPECT_EQ(cell(8), "04");
    EXPECT_EQ(cell(127), "02") << "6 less 4";
}

TEST_F(Grid, AThirdCharacterStaysUntilTheFocusLeaves) {
    switchModify();
    visit(8);
    program.type("048");
    EXPECT_EQ(cell(8), "048");
    EXPECT_TRUE(program.takeBoxes().empty());
    moveFocus(screen().txtEdit(20));
    EXPECT_EQ(program.takeBoxes(), Texts{"Please Make Your Values In Hex"});
    EXPECT_EQ(focused(), cellName(8));
    EXPECT_EQ(cell(8), "048");
    EXPECT_TRUE(screen().Hints(1).visible());
}

TEST_F(Grid, ACellThatIsCalledBackDoesNotSeek) {
    switchModify();
    visit(8);
    program.type("048");
    click(frame().Command3); // leaves the cell, which comes back, and is worked all the same
    EXPECT_EQ(workbench.AutoCellSeekOn, flagTrue);
    program.takeBoxes();
    moveFocus(screen().txtEdit(20));
    EXPECT_EQ(program.takeBoxes(), Texts{"Please Make Your Values In Hex"});
    EXPECT_EQ(focused(), cellName(8));
}

TEST_F(Grid, AShortTextPasses) {
    switchModify();
    visit(8);
    program.type("4");
    visit(0);
    EXPECT_TRUE(program.takeBoxes().empty());
    EXPECT_EQ(cell(8), "4");
    EXPECT_EQ(cell(127), "C6") << "one digit counts as 40: 250 and 64 are 58 modulo 256";
}

TEST_F(Grid, DigitsAreNotTested) {
    visit(16);
    workbench.frmEDID().txtEdit(16).setLocked(false);
    program.type("Z");
    EXPECT_TRUE(program.takeBoxes().empty());
    program.type("Z");
    EXPECT_EQ(program.takeBoxes(), (Texts{invalidCall, invalidCall})) << "the helper's and the decoder's";
    visit(0);
    EXPECT_TRUE(program.takeBoxes().empty()) << "no test of the cell that is left";
    EXPECT_EQ(cell(16), "ZZ");
}

TEST_F(Grid, AFailureLeavesTheDispatchWithItsFlag) {
    program.setCells(18, {"ZZ"});
    moveFocus(screen().txtEdit(18));
    // The version decoder fails, then the dispatch itself at the text of its input box.
    EXPECT_EQ(program.takeBoxes(), (Texts{invalidCall, invalidCall, invalidCall, invalidCall}));
    EXPECT_EQ(screen().InFocusDispatch, flagTrue);
    EXPECT_EQ(screen().txtEdit(18).selLength(), 0);
    visit(0);
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
}

TEST_F(Grid, KeysOfTheHeaderAndTheChecksumDecodeNothing) {
    switchModify();
    screen().lbEDID(7).setCaption("untouched");
    for (const int index : {0, 7, 127}) {
        visit(index == 0 ? 1 : 0);
        visit(index);
        screen().lbEDID(7).setCaption("untouched");
        program.type("00");
        EXPECT_EQ(screen().lbEDID(7).caption(), "untouched") << index;
    }
}

struct Decoded {
    int cell;
    const char* typed;
    const char* control;
    int index;
    const char* caption;
};

/// One row of typed text for each decoder, in a new image.
const Decoded decodedFields[] = {
    {9, "63", "lbVendor", 0, "Manufacturer - @CC"},        {10, "41", "lbVendor", 1, "Product Code - 0041(A)"},
    {11, "42", "lbVendor", 1, "Product Code - 4200"},      {12, "07", "lbVendor", 2, "Serial Number - 00007"},
    {15, "01", "lbVendor", 2, "Serial Number - 16777216"}, {16, "0C", "lbVendor", 3, "Week Manufacture - 12"},
    {17, "0F", "lbVendor", 4, "Year Manufacture - 2005"},  {18, "01", "lbEDID", 0, "Version Number - 1"},
    {19, "03", "lbEDID", 1, "Revision Number - 3"},        {21, "1E", "Basic", 0, "Max Horiz Size 300 mm"},
    {22, "17", "Basic", 1, "Max Vert Size 230 mm"},        {23, "78", "Basic", 2, "Gamma  2.20"},
    {27, "80", "chkChroma", 0, "Red X - 0.500"},           {26, "03", "chkChroma", 7, "White Y - 0.003"},
    {38, "D1", "STOpt", 0, "1920 X 1200 @60Hz"},           {53, "40", "STOpt", 7, "248 X 186 @60Hz"},
};

TEST_F(Grid, ATypedCellDecodesItsField) {
    switchModify();
    for (const Decoded& row : decodedFields) {
        SCOPED_TRACE(entryName(row.cell, row.typed));
        const std::string before = cell(row.cell);
        visit(row.cell);
        program.type(row.typed);
        EXPECT_EQ(screen().find(row.control, row.index)->caption(), row.caption);
        screen().txtEdit(row.cell).setText(before);
    }
}

TEST_F(Grid, ATypedBitCellDecodesItsField) {
    switchModify();
    visit(20);
    program.type("80");
    EXPECT_TRUE(screen().VideoMode(1).selected());
    visit(24);
    program.type("88");
    EXPECT_EQ(screen().FSupport(0).value(), 1);
    EXPECT_TRUE(screen().DisplayType(1).selected());
    visit(35);
    program.type("40");
    EXPECT_EQ(screen().ET1(1).value(), 1);
    visit(36);
    program.type("20");
    EXPECT_EQ(screen().ET2(2).value(), 1);
    visit(37);
    program.type("80");
    EXPECT_EQ(screen().ET3(7).value(), 1);
    program.setCells(54, {"01"});
    visit(57);
    program.type("20");
    EXPECT_EQ(screen().DT(2).caption(), "Blanking Time - 32 pixels");
    visit(125);
    EXPECT_EQ(focused(), cellName(125));
}

TEST_F(Grid, AnOpenReportFollowsAtTheNextChangeOfCell) {
    switchModify();
    visit(8);
    click(frame().Command1);
    const Control& report = workbench.frmDocument().rtftext;
    EXPECT_THAT(report.text(), HasSubstr("=   @@@"));
    visit(8); // the change of the check sum that Modify brought makes the report anew
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    visit(8);
    EXPECT_EQ(focused(), cellName(8));
    program.type("04");
    EXPECT_THAT(report.text(), HasSubstr("=   @@@")) << "never at a keystroke";
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagTrue);
    moveFocus(screen().txtEdit(9));
    EXPECT_THAT(report.text(), HasSubstr("=   A@@"));
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagFalse);
    EXPECT_EQ(focused(), "frmDocument.rtftext") << "a rebuilt report takes the focus";
}

TEST_F(Grid, WithoutAReportNothingIsRebuilt) {
    switchModify();
    visit(8);
    program.type("04");
    visit(9);
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagTrue);
    EXPECT_EQ(workbench.loaded(ScreenId::Document), nullptr);
}

std::string seekTarget(int cell) {
    const auto within = [cell](int first, int last) { return cell >= first && cell <= last; };
    if (within(8, 17)) {
        return "frmEDID.VendorInfo";
    }
    if (within(18, 19)) {
        return "frmEDID.VerRev";
    }
    if (within(21, 23)) {
        return "frmEDID.BasicInput";
    }
    if (within(27, 34)) {
        return "frmEDID.ChromaValue";
    }
    if (within(38, 53)) {
        return "frmEDID.STAInput";
    }
    const int offset = (cell - 54) % 18;
    if (within(54, 125) && offset != 4 && offset != 7 && offset != 14 && offset != 17) {
        return "frmEDID.DTInput";
    }
    return "frmEDID.txtEdit(" + std::to_string(cell) + ')';
}

TEST_F(Grid, SeekGoesOnToTheInputBox) {
    program.setCells(54, {"01"});
    program.setCells(72, {"01"});
    program.setCells(90, {"01"});
    program.setCells(108, {"01"});
    switchModify();
    switchSeek();
    for (int i = 0; i < BlockScreen::cellCount; ++i) {
        visit(i);
        EXPECT_EQ(focused(), seekTarget(i)) << i;
        const Control& holder = *workbench.focus.current();
        EXPECT_EQ(holder.selStart(), 0) << i;
        EXPECT_EQ(holder.selLength(), static_cast<int>(holder.text().size())) << i;
    }
}

TEST_F(Grid, SeekNeedsModify) {
    switchModify();
    switchSeek();
    switchModify();
    ASSERT_EQ(workbench.AutoCellSeekOn, flagTrue);
    for (const int index : {8, 18, 21, 27, 38}) {
        visit(index);
        EXPECT_EQ(focused(), cellName(index));
    }
}

class DoubleClick : public Editor {
protected:
    void doubleClick(int panel) { ASSERT_TRUE(input::doubleClick(screen().Hints(panel))) << panel; }
    /// All cells from 8 on get a value of their own kind, so that blanking shows.
    void fill() {
        for (int i = 8; i <= 126; ++i) {
            screen().txtEdit(i).setText("11");
        }
    }
    /// Which cells are blank as the double click leaves them.
    void expectBlanked(int base) {
        for (int i = 8; i <= 126; ++i) {
            const bool inside = i >= base && i < base + 18;
            EXPECT_EQ(cell(i), i == base + 3 ? "FF" : inside ? "00" : "11") << i;
        }
        EXPECT_EQ(focused(), cellName(base + 3));
    }
};

TEST_F(DoubleClick, BlanksTheBlockInHand) {
    switchModify();
    fill();
    visit(80);
    doubleClick(9);
    expectBlanked(72);
    EXPECT_TRUE(screen().Hints(11).visible()) << "the blank block is a serial number";
    EXPECT_TRUE(screen().DTa(0).selected());
}

TEST_F(DoubleClick, OnAnyPanelBlanksTheLastBlock) {
    switchModify();
    for (const auto& [cell, panel] : {std::pair{8, 1}, {18, 2}, {20, 3}, {25, 4}, {35, 5}, {36, 6}, {37, 7}}) {
        SCOPED_TRACE(screen().Hints(panel).fullName());
        fill();
        visit(90);
        visit(cell);
        doubleClick(panel);
        expectBlanked(90);
    }
}

TEST_F(DoubleClick, AfterAStandardTimingBlanksFromItsPair) {
    switchModify();
    fill();
    visit(40);
    doubleClick(8);
    expectBlanked(41);
}

TEST_F(DoubleClick, BeforeAnyBlockBlanksTheHead) {
    switchModify();
    doubleClick(0);
    EXPECT_EQ(cells(0, 18), "00 00 00 FF 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(focused(), cellName(3));
}

TEST_F(DoubleClick, OnTheLastPanelDoesNothing) {
    switchModify();
    fill();
    visit(90);
    visit(126);
    doubleClick(13);
    EXPECT_EQ(cell(93), "11");
    EXPECT_EQ(focused(), cellName(126));
}

TEST_F(DoubleClick, WithModifyOffDoesNothing) {
    fill();
    visit(90);
    EXPECT_FALSE(input::doubleClick(screen().Hints(9)));
    block0::Hints_DblClick(workbench, 9);
    EXPECT_EQ(cell(93), "11");
}

TEST_F(Grid, ClosingAsksAfterAChangedChecksum) {
    visit(8);
    ASSERT_TRUE(input::choose(frame().mnuFileClose));
    EXPECT_TRUE(program.takeBoxes().empty());
    input::choose(frame().mnuFileNew);
    program.takeBoxes();
    switchModify();
    input::choose(frame().mnuFileClose);
    EXPECT_EQ(program.takeBoxes(), Texts{"Save Changes?"});
}

TEST_F(Grid, AChangeThatKeepsTheChecksumIsNotNoticed) {
    program.setCells(127, {"06"});
    workbench.Block0ChecksumAsLoaded = "06";
    workbench.Block0ChecksumLast = "06";
    switchModify();
    program.setCells(8, {"01", "FF"});
    visit(20);
    EXPECT_EQ(workbench.EDIDModified, flagFalse);
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagFalse);
}

} // namespace
} // namespace wb::test
