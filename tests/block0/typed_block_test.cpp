// Cells of the 18-byte blocks as they are typed: the block keeps its kind until the next visit.

#include "block0/editor.h"

namespace wb::test {
namespace {

class TypedBlock : public Editor {
protected:
    TypedBlock() { switchModify(); }
};

TEST_F(TypedBlock, ADescriptorStaysOneUntilTheNextVisit) {
    program.setCells(54, {"00", "00", "00", "FE", "00", "41", "0A"});
    visit(54);
    screen().DT(0).setCaption("untouched");
    program.type("01");
    EXPECT_EQ(cell(54), "01");
    EXPECT_EQ(screen().DT(0).caption(), "untouched");
    EXPECT_EQ(workbench.DetailedBlockText(0), "\r\n         ASCII Data:\r\n         A\r\n\r\n");
    visit(55);
    EXPECT_TRUE(screen().Hints(9).visible());
    EXPECT_EQ(screen().DT(0).caption(), "Pixel Clock - 0.01 MHz");
}

TEST_F(TypedBlock, ATimingBecomesADescriptorAtTheKey) {
    program.setCells(54, {"01", "00", "00", "FE", "00", "41", "0A"});
    visit(54);
    EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagFalse);
    program.type("00");
    EXPECT_EQ(workbench.DetailedBlockText(0), "\r\n         ASCII Data:\r\n         A\r\n\r\n") << "by its cells";
    EXPECT_EQ(screen().CurrentBlockIsDescriptor, flagFalse) << "a visit alone sets the flag";
    EXPECT_TRUE(screen().Hints(9).visible()) << "nor does the panel change";
    EXPECT_EQ(screen().InFocusDispatch, flagFalse);
}

TEST_F(TypedBlock, ATypedTagOpensTheStandardTimingsAndSeeks) {
    program.setCells(72, {"00", "00", "00", "FF"});
    switchSeek();
    visit(75);
    EXPECT_EQ(focused(), cellName(75)) << "a text has no seek";
    program.type("f");
    EXPECT_EQ(focused(), cellName(75));
    program.type("a");
    EXPECT_FALSE(screen().Hints(11).visible());
    EXPECT_TRUE(screen().Hints(12).visible());
    EXPECT_EQ(focused(), "frmEDID.ExtStaInput");
}

TEST_F(TypedBlock, ATypedFlagSerratesTheSync) {
    program.setCells(90, {"01"});
    visit(107);
    program.type("14");
    EXPECT_EQ(screen().SyncSerrate.value(), 1);
    visit(107);
    program.type("1E");
    EXPECT_EQ(cell(107), "1A") << "a separate sync takes the check and with it the bit away";
    EXPECT_EQ(blockSum(), 0);
}

TEST_F(TypedBlock, ADoubleClickAtTheTagItselfShowsThePanelAsItWas) {
    program.setCells(72, {"00", "00", "00", "FE", "00", "41", "0A"});
    visit(75);
    ASSERT_TRUE(screen().DTa(1).selected());
    ASSERT_TRUE(input::doubleClick(screen().Hints(11)));
    EXPECT_EQ(cells(72, 78), "00 00 00 FF 00 00 00");
    EXPECT_EQ(focused(), cellName(75));
    EXPECT_TRUE(screen().DTa(1).selected()) << "the focus is there already, so that nothing is decoded";
    visit(76);
    EXPECT_TRUE(screen().DTa(0).selected());
}

} // namespace
} // namespace wb::test
