// What stays when an entry or a click meets a cell that cannot be read, and what a flag left by a failure stops.

#include "block0/editor.h"

namespace wb::test {
namespace {

class Failures : public Editor {
protected:
    Failures() { switchModify(); }
    /// The helper's box and that of the handler.
    static Texts unreadable() { return Texts(2, "Invalid procedure call or argument"); }
    void visitQuietly(int cell) {
        visit(cell);
        program.takeBoxes();
    }
};

TEST_F(Failures, ATimingsLowCellIsWrittenBeforeItsUpperOneIsRead) {
    program.setCells(54, {"01", "00", "11", "22", "ZZ"});
    visitQuietly(56);
    ASSERT_EQ(screen().DT.firstSelected(), 1);
    screen().DT(0).setCaption("stale");
    enter(screen().DTInput, "1280");
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cells(54, 58), "01 00 00 22 ZZ");
    EXPECT_EQ(screen().DT(0).caption(), "stale") << "no decoder";
    EXPECT_EQ(screen().DTInput.text(), "1280");
}

TEST_F(Failures, AVerticalSyncWritesTheFirstOfItsCells) {
    program.setCells(54, {"01"});
    program.setCells(64, {"11", "ZZ"});
    visitQuietly(64);
    ASSERT_EQ(screen().DT.firstSelected(), 7);
    enter(screen().DTInput, "63");
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cells(64, 65), "F1 ZZ");
}

TEST_F(Failures, ACoordinateReadsItsLowBitsBeforeItWritesAnything) {
    program.setCells(25, {"ZZ"});
    visitQuietly(27);
    enter(screen().ChromaValue, "0.640");
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cells(25, 27), "ZZ 00 00");
    EXPECT_EQ(screen().ChromaValue.text(), "0.640");
}

TEST_F(Failures, AWhitePointReadsItsLowBitsBeforeItWritesAnything) {
    program.setCells(54, {"00", "00", "00", "FB", "00", "01", "00", "11", "22", "33", "02"});
    visitQuietly(61);
    ASSERT_EQ(screen().DtaOptWhite.firstSelected(), 0);
    program.setCells(60, {"ZZ"});
    enter(screen().DTaInput, "0.5");
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cells(60, 61), "ZZ 11");
    program.setCells(59, {"ZZ", "00"});
    enter(screen().DTaInput, "0.5");
    EXPECT_EQ(program.takeBoxes(), unreadable()) << "the index of the point";
    EXPECT_EQ(cells(59, 61), "ZZ 00 11");
}

TEST_F(Failures, ARateThatCannotBeCombinedKeepsTheEntry) {
    program.setCells(38, {"31", "ZZ"});
    visitQuietly(38);
    screen().STOpt(0).setCaption("stale");
    enter(screen().STAInput, "85");
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cells(38, 39), "31 ZZ");
    EXPECT_EQ(screen().STAInput.text(), "85");
    EXPECT_EQ(screen().STOpt(0).caption(), "stale") << "no decoder";
}

TEST_F(Failures, AFlagByteThatCannotBeReadStays) {
    program.setCells(54, {"01"});
    visit(71);
    program.setCells(71, {"ZZ"});
    screen().Freq(0).setCaption("stale");
    click(screen().SyncLine);
    EXPECT_EQ(program.takeBoxes(), unreadable());
    click(screen().DTStereo(1));
    EXPECT_EQ(program.takeBoxes(), unreadable());
    click(screen().DT1);
    EXPECT_EQ(program.takeBoxes(), unreadable());
    EXPECT_EQ(cell(71), "ZZ");
    EXPECT_EQ(screen().Freq(0).caption(), "stale") << "no decoder";
}

TEST_F(Failures, AFlagLeftByOneStopsTheBasicPanel) {
    program.setCells(20, {"00", "05", "05", "05", "00"});
    visit(21);
    screen().InFocusDispatch = flagTrue;
    screen().BasicInput.setText("520");
    moveFocus(screen().BasicInput);
    EXPECT_EQ(screen().BasicInput.selLength(), 0) << "not even the selection";
    ASSERT_TRUE(input::enter(workbench));
    click(screen().Basic(1));
    EXPECT_EQ(focused(), "frmEDID.Basic(1)");
    visit(20);
    screen().InFocusDispatch = flagTrue;
    click(screen().VideoMode(1));
    visit(24);
    screen().InFocusDispatch = flagTrue;
    click(screen().FSupport(0));
    click(screen().DisplayType(3));
    EXPECT_EQ(cells(20, 24), "00 05 05 05 00");
}

TEST_F(Failures, ABoxWithoutTheFlagTestWorksOn) {
    program.setCells(8, {"04", "43"});
    visit(8);
    screen().InFocusDispatch = flagTrue;
    enter(screen().VendorInfo, "HLV");
    EXPECT_EQ(cells(8, 9), "21 96");
    visit(27);
    screen().InFocusDispatch = flagTrue;
    enter(screen().ChromaValue, "0.5");
    EXPECT_EQ(cell(27), "80");
}

} // namespace
} // namespace wb::test
