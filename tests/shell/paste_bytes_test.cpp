#include "shell/paste_bytes.h"

#include <gtest/gtest.h>

#include "shell/find_bytes.h"
#include "shell/history.h"
#include "support/program.h"

namespace wb::shell {
namespace {

/// A new image with editing on: 00, six times FF, and nothing but 00 behind.
class Bytes : public testing::Test {
protected:
    Bytes() {
        keepHistory(workbench);
        input::choose(workbench.frmMain().mnuFileNew);
        input::click(workbench.frmMain().Command2);
        program.takeBoxes();
    }

    void focus(int cell) { input::moveFocus(workbench.frmEDID().txtEdit(cell)); }
    std::string focused() { return workbench.focus.current()->fullName(); }
    std::string cells(int first, int count) {
        std::string texts;
        for (int i = first; i < first + count; ++i) {
            texts += program.cell(i);
        }
        return texts;
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(Bytes, ArePastedFromTheFocusOnInOneStep) {
    focus(12);
    const Pasted pasted = pasteBytes(workbench, "01 02,0x0a;0BfF\n");
    EXPECT_EQ(pasted.pairs, 5);
    EXPECT_TRUE(pasted.all);
    EXPECT_EQ(cells(12, 6), "01020A0BFF00");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(16)");
    EXPECT_EQ(workbench.history->undoName(), "Pasted bytes");
    workbench.history->undo();
    EXPECT_EQ(cells(12, 6), "000000000000");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(12)");
    EXPECT_FALSE(workbench.history->canUndo());
}

TEST_F(Bytes, AreDecodedAsTypedOnes) {
    focus(8);
    pasteBytes(workbench, "04 43");
    EXPECT_EQ(workbench.IDManufacturerName, "ABC");
}

TEST_F(Bytes, EndAtWhatIsNoPair) {
    focus(12);
    const Pasted pasted = pasteBytes(workbench, "01 02 3 04");
    EXPECT_EQ(pasted.pairs, 2);
    EXPECT_FALSE(pasted.all);
    EXPECT_EQ(cells(12, 3), "010200");
}

TEST_F(Bytes, EndWithTheGrid) {
    focus(125);
    const Pasted pasted = pasteBytes(workbench, "01 00 02 03");
    EXPECT_EQ(pasted.pairs, 3);
    EXPECT_FALSE(pasted.all);
    EXPECT_EQ(cells(125, 2), "0100");
}

TEST_F(Bytes, AreNotPastedIntoLockedCells) {
    input::click(workbench.frmMain().Command2);
    focus(12);
    const Pasted pasted = pasteBytes(workbench, "01");
    EXPECT_EQ(pasted.pairs, 0);
    EXPECT_FALSE(pasted.all);
    EXPECT_EQ(program.cell(12), "00");
    EXPECT_FALSE(workbench.history->canUndo());
}

TEST_F(Bytes, AreNotPastedElsewhere) {
    focus(12);
    input::moveFocus(workbench.frmEDID().VendorInfo);
    EXPECT_EQ(pasteBytes(workbench, "01").pairs, 0);
}

TEST_F(Bytes, AnOpenReportIsMadeAnewOnce) {
    input::click(workbench.frmMain().Command1);
    focus(12);
    focus(12); // the first visit has made the report anew and given it the focus
    EXPECT_TRUE(pasteBytes(workbench, "01 02 03").all);
    EXPECT_EQ(cells(12, 3), "010203");
    EXPECT_EQ(workbench.EDIDRedecodeNeeded, flagTrue) << "at the next visit of a cell";
}

TEST_F(Bytes, AreFoundAsBytesAndAsText) {
    focus(71);
    pasteBytes(workbench, "00 00 00 FC 00 41 62 63");
    focus(0);
    EXPECT_TRUE(findBytes(workbench, "fc 00", Direction::Forward));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(74)");
    EXPECT_TRUE(findBytes(workbench, "abC", Direction::Backward)) << "characters in any case; no pairs of digits";
    EXPECT_EQ(focused(), "frmEDID.txtEdit(76)");
    EXPECT_FALSE(findBytes(workbench, "FCFC", Direction::Forward));
    EXPECT_FALSE(findBytes(workbench, "", Direction::Forward));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(76)");
}

TEST_F(Bytes, AreFoundRoundTheEnd) {
    focus(3);
    EXPECT_TRUE(findBytes(workbench, "00FF", Direction::Forward));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(findBytes(workbench, "FF", Direction::Backward));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(6)");
    EXPECT_TRUE(findBytes(workbench, "FF", Direction::Backward));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(5)");
}

} // namespace
} // namespace wb::shell
