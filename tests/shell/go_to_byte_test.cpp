#include "shell/go_to_byte.h"

#include <gtest/gtest.h>

#include "support/program.h"

namespace wb::shell {
namespace {

class GoToByte : public testing::Test {
protected:
    void newImage(platform::Answer extension) {
        program.platform.queueAnswer(extension);
        input::choose(workbench.frmMain().mnuFileNew);
        program.takeBoxes();
    }
    std::string focused() {
        return workbench.focus.current() == nullptr ? "none" : workbench.focus.current()->fullName();
    }

    test::Program program;
    Workbench& workbench = program.workbench;
};

TEST_F(GoToByte, MovesTheFocusWithTheEventsOfAUsersClick) {
    newImage(platform::Answer::No);
    EXPECT_TRUE(goToByte(workbench, 16));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(16)");
    EXPECT_TRUE(workbench.frmEDID().Hints(1).visible()) << "the panel of vendor and product";
}

TEST_F(GoToByte, OpensTheExtensionByItsButton) {
    newImage(platform::Answer::Yes);
    ASSERT_EQ(workbench.CEAScreenOpen, flagFalse);
    EXPECT_TRUE(goToByte(workbench, 130));
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(2)");
    EXPECT_EQ(workbench.CEAScreenOpen, flagTrue);
    EXPECT_TRUE(goToByte(workbench, 20)) << "both screens are shown";
    EXPECT_EQ(focused(), "frmEDID.txtEdit(20)");
    EXPECT_TRUE(goToByte(workbench, 255));
    EXPECT_EQ(focused(), "frmCEA_EXT.txtEdit(127)");
}

TEST_F(GoToByte, KnowsTheCellsOfBothScreensByTheirBytes) {
    EXPECT_EQ(cellOf(workbench, 5), nullptr) << "nothing is open";
    EXPECT_EQ(byteOf(nullptr), std::nullopt);
    newImage(platform::Answer::Yes);
    for (const int byte : {0, 5, 127, 128, 133, 255}) {
        ASSERT_TRUE(goToByte(workbench, byte)) << byte;
        EXPECT_EQ(cellOf(workbench, byte), workbench.focus.current());
        EXPECT_EQ(byteOf(cellOf(workbench, byte)), byte);
        EXPECT_EQ(focusedByte(workbench), byte);
    }
    EXPECT_EQ(cellOf(workbench, -1), nullptr);
    EXPECT_EQ(cellOf(workbench, 256), nullptr);
    EXPECT_EQ(byteOf(&workbench.frmEDID().txtBrand), std::nullopt);
}

TEST_F(GoToByte, GoesNowhereWhereNoScreenHoldsTheByte) {
    EXPECT_FALSE(goToByte(workbench, 0)) << "nothing is open";
    newImage(platform::Answer::No);
    for (const int byte : {-1, 128, 256}) {
        EXPECT_FALSE(goToByte(workbench, byte)) << byte;
    }
    EXPECT_EQ(workbench.loaded(ScreenId::CeaExt), nullptr) << "looked at, not touched";
}

TEST_F(GoToByte, ArrivesThoughTheReportIsOutOfDate) {
    newImage(platform::Answer::No);
    input::click(workbench.frmMain().Command2);
    input::click(workbench.frmMain().Command1);
    ASSERT_TRUE(goToByte(workbench, 23));
    program.type("64");
    ASSERT_NE(workbench.EDIDRedecodeNeeded, flagFalse);
    EXPECT_TRUE(goToByte(workbench, 30));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(30)");
}

TEST_F(GoToByte, ArrivesInThePanelWithTheSeek) {
    newImage(platform::Answer::No);
    input::click(workbench.frmMain().Command2);
    input::click(workbench.frmMain().Command3);
    EXPECT_TRUE(goToByte(workbench, 16));
    EXPECT_EQ(focused(), "frmEDID.VendorInfo");
}

TEST_F(GoToByte, LeavesTheFocusInACellThatCallsItBack) {
    newImage(platform::Answer::No);
    input::click(workbench.frmMain().Command2);
    input::moveFocus(workbench.frmEDID().txtEdit(23));
    input::edit(workbench.frmEDID().txtEdit(23), "123", 3, 0, 0);
    EXPECT_FALSE(goToByte(workbench, 30));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(23)");
    EXPECT_EQ(program.takeBoxes(), std::vector<std::string>{"Please Make Your Values In Hex"}) << "once";
}

TEST_F(GoToByte, StaysOutBehindAModalScreen) {
    newImage(platform::Answer::No);
    input::choose(workbench.frmMain().mnuHelpAbout);
    EXPECT_FALSE(goToByte(workbench, 8));
}

} // namespace
} // namespace wb::shell
