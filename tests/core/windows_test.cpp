#include "core/windows.h"

#include <gtest/gtest.h>

#include "core/input.h"
#include "core/traced_focus.h"

namespace wb {
namespace {

class WindowsTest : public test::FocusTest {};

TEST_F(WindowsTest, AScreenWhoseLastControlCannotTakeItGoesToItsFirst) {
    move("9");
    workbench.windows.show(workbench.frmDocument());
    disable("9");
    workbench.focus.moveTo(workbench.frmEDID());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.focus.moveTo(workbench.frmDocument());
    disable("0");
    disable("1");
    workbench.focus.moveTo(workbench.frmEDID());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(2)");
}

TEST_F(WindowsTest, GoingBackToAScreenFindsTheControlThatLastHadIt) {
    move("9");
    workbench.windows.show(workbench.frmDocument());
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(workbench.windows.activeChild()->name(), "frmDocument");
    workbench.focus.moveTo(workbench.frmEDID());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(9)");
    EXPECT_EQ(workbench.windows.activeChild()->name(), "frmEDID");
}

TEST_F(WindowsTest, HidingTheActiveScreenMovesOnWithEvents) {
    workbench.windows.show(workbench.frmDocument());
    plan_.events.clear();
    workbench.windows.hide(workbench.frmDocument());
    EXPECT_EQ(plan_.events, Events{"got 0"});
    EXPECT_FALSE(workbench.frmDocument().shown());
}

TEST_F(WindowsTest, UnloadingTheActiveScreenRunsNoLostFocus) {
    workbench.windows.show(workbench.frmDocument());
    workbench.focus.moveTo(workbench.frmEDID());
    plan_.events.clear();
    EXPECT_TRUE(workbench.windows.unload(ScreenId::Edid));
    EXPECT_TRUE(plan_.events.empty());
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(WindowsTest, HidingAScreenWhoseControlCallsTheFocusBackShowsItAgain) {
    workbench.windows.reveal(workbench.frmDocument());
    planMoves("lost 0", {"0"});
    workbench.windows.hide(workbench.frmEDID());
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 0"}));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(workbench.frmEDID().shown());
    EXPECT_EQ(active(), "frmEDID");
}

TEST_F(WindowsTest, HidingTheLastScreenLeavesTheFocusNowhere) {
    workbench.windows.hide(workbench.frmEDID());
    EXPECT_EQ(plan_.events, Events{"lost 0"});
    EXPECT_EQ(focused(), "none");
    EXPECT_EQ(active(), "none");
}

TEST_F(WindowsTest, AScreenBehindTheActiveOneComesAndGoesUnnoticed) {
    workbench.windows.reveal(workbench.frmDocument());
    workbench.windows.hide(workbench.frmDocument());
    workbench.windows.reveal(workbench.frmDocument());
    EXPECT_TRUE(workbench.windows.unload(ScreenId::Document));
    EXPECT_TRUE(plan_.events.empty());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(WindowsTest, AnUnloadedScreenIsFollowedByTheNextAlsoFromAButtonOfTheFrame) {
    workbench.windows.show(workbench.frmDocument());
    workbench.focus.moveTo(workbench.frmMain().Command5);
    EXPECT_EQ(active(), "frmDocument") << "the frame is no child";
    plan_.events.clear();
    workbench.windows.unload(ScreenId::Document);
    EXPECT_EQ(plan_.events, Events{"got 0"});
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(WindowsTest, BringingAScreenToTheFrontMovesNoFocus) {
    workbench.windows.reveal(workbench.frmDocument());
    workbench.windows.raise(workbench.frmDocument());
    EXPECT_EQ(active(), "frmDocument");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    workbench.windows.raise(workbench.frmHexCalculator());
    EXPECT_FALSE(workbench.frmHexCalculator().shown());
    move("0");
    EXPECT_EQ(active(), "frmEDID") << "the focus makes its screen the active one";
    EXPECT_TRUE(plan_.events.empty());
}

TEST_F(WindowsTest, AScreenThatGoesWithTheFocusLeavesItToTheActiveOne) {
    workbench.windows.reveal(workbench.frmDocument());
    workbench.windows.raise(workbench.frmDocument());
    workbench.windows.hide(workbench.frmEDID());
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(plan_.events, Events{"lost 0"});
    move("0");
    workbench.windows.raise(workbench.frmDocument());
    plan_.events.clear();
    workbench.windows.unload(ScreenId::Edid);
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_TRUE(plan_.events.empty());
}

TEST_F(WindowsTest, AModalScreenGivesNothingBackWhereNothingHadIt) {
    workbench.windows.hide(workbench.frmEDID());
    workbench.windows.showModal(workbench.frmHelp());
    workbench.windows.unload(ScreenId::Help);
    EXPECT_EQ(focused(), "none");
}

TEST_F(WindowsTest, AControlThatWasDisabledMeanwhileIsNotGivenItBack) {
    workbench.windows.showModal(workbench.frmHelp());
    disable("0");
    plan_.events.clear();
    workbench.windows.unload(ScreenId::Help);
    EXPECT_EQ(focused(), "none");
    EXPECT_TRUE(plan_.events.empty());
}

TEST_F(WindowsTest, ACellThatCallsTheFocusBackKeepsItBehindAModalScreen) {
    planMoves("lost 0", {"0"});
    workbench.windows.showModal(workbench.frmHelp());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_FALSE(input::typeCharacter(workbench, '1')) << "out of the user's reach";
    EXPECT_TRUE(input::click(workbench.frmHelp().Command1));
    EXPECT_EQ(focused(), "frmHelp.Command1");
    workbench.windows.unload(ScreenId::Help);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(WindowsTest, AModalScreenGivesTheFocusBack) {
    move("3");
    plan_.events.clear();
    workbench.windows.showModal(workbench.frmHelp());
    EXPECT_EQ(focused(), "frmHelp.Command1");
    EXPECT_EQ(plan_.events, Events{"lost 3"});
    EXPECT_FALSE(input::reachable(workbench.frmEDID().txtEdit(3)));
    workbench.windows.unload(ScreenId::Help);
    EXPECT_EQ(plan_.events, (Events{"lost 3", "got 3"}));
    EXPECT_TRUE(input::reachable(workbench.frmEDID().txtEdit(3)));
}

TEST_F(WindowsTest, AFocusMoveShowsAHiddenScreen) {
    workbench.windows.hide(workbench.frmEDID());
    EXPECT_EQ(workbench.focus.current(), nullptr);
    move("4");
    EXPECT_TRUE(workbench.frmEDID().shown());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(4)");
}

} // namespace
} // namespace wb
