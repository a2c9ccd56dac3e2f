#include "core/focus.h"

#include <gtest/gtest.h>

#include "core/traced_focus.h"

namespace wb {
namespace {

using FocusTest = test::FocusTest;

TEST_F(FocusTest, ShowingAScreenGoesToItsFirstControl) {
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusTest, AMoveRunsLostThenGot) {
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5"}));
}

TEST_F(FocusTest, AMoveToTheFocusedControlDoesNothing) {
    move("0");
    EXPECT_TRUE(plan_.events.empty());
}

TEST_F(FocusTest, AMoveAskedForInGotFocusWaits) {
    planMoves("got 5", {"brand"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5", "lost 5", "got brand"}));
}

TEST_F(FocusTest, AMoveAskedForInLostFocusReplacesTheOneThatCausedIt) {
    planMoves("lost 0", {"7"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 7"}));
}

TEST_F(FocusTest, AControlThatCallsItselfBackGetsFocusAgainAndItsMoveIsDropped) {
    planMoves("lost 0", {"0"});
    planMoves("got 0", {"brand"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 0"}));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusTest, TheLatestWaitingRequestWins) {
    planMoves("got 5", {"7", "9"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5", "lost 5", "got 9"}));
}

TEST_F(FocusTest, ARequestForTheFocusedControlReplacesAWaitingOne) {
    planMoves("got 5", {"7", "5"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5"}));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(5)");
}

TEST_F(FocusTest, TheLatestRequestOfLostFocusWins) {
    planMoves("lost 0", {"0", "7"});
    planMoves("got 7", {"brand"});
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 7", "lost 7", "got brand"})) << "no call-back: its moves count";
}

TEST_F(FocusTest, AWaitingRequestThatCanNoLongerBeServedIsDropped) {
    plan_.actions["got 5"] = [&] {
        move("7");
        disable("7");
    };
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5"}));
    plan_.actions["lost 5"] = [&] {
        move("8");
        test::controlNamed(workbench, "8").setVisible(false);
    };
    move("6");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5", "lost 5", "got 6"})) << "the move that caused it goes on";
}

TEST_F(FocusTest, ARequestThatFailsInAHandlerIsThatOfItsProcedure) {
    plan_.actions["got 5"] = [&] {
        EXPECT_THROW(move("info"), Failure);
        move("6");
    };
    move("5");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(6)");
}

TEST_F(FocusTest, AWaitingMoveToAnotherScreenShowsItAndMakesItActive) {
    plan_.actions["got 5"] = [&] { workbench.windows.show(workbench.frmDocument()); };
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5", "lost 5"}));
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(active(), "frmDocument");
}

TEST_F(FocusTest, AScreenShownByACallBackStaysBehind) {
    planMoves("lost 0", {"0"});
    plan_.actions["got 0"] = [&] { workbench.windows.show(workbench.frmDocument()); };
    move("5");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(workbench.frmDocument().shown());
    EXPECT_EQ(active(), "frmEDID");
}

TEST_F(FocusTest, AWaitingMoveShowsAScreenThatWasHiddenMeanwhile) {
    plan_.actions["got 5"] = [&] {
        workbench.windows.show(workbench.frmDocument());
        workbench.windows.hide(workbench.frmDocument());
    };
    move("5");
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_TRUE(workbench.frmDocument().shown());
    EXPECT_EQ(active(), "frmDocument");
}

TEST_F(FocusTest, AMoveToAScreenThatItsLostFocusUnloadsEndsNowhere) {
    workbench.windows.reveal(workbench.frmDocument());
    plan_.actions["lost 0"] = [&] { workbench.windows.unload(ScreenId::Document); };
    workbench.focus.moveTo(workbench.frmDocument());
    EXPECT_EQ(focused(), "none");
    EXPECT_EQ(workbench.windows.children(), std::vector<Screen*>{&workbench.frmEDID()});
    move("0");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 0"}));
}

TEST_F(FocusTest, AControlThatCannotTakeItIsAFailure) {
    EXPECT_THROW(move("info"), Failure);
    workbench.frmEDID().Hints(1).setVisible(true);
    workbench.frmEDID().Hints(1).setEnabled(false);
    EXPECT_THROW(move("info"), Failure) << "a disabled panel disables all it contains";
    disable("5");
    EXPECT_THROW(move("5"), Failure);
    EXPECT_THROW(workbench.focus.moveTo(workbench.frmEDID().Label3), Failure);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(plan_.events.empty());
}

TEST_F(FocusTest, AFailureInAHandlerLeavesTheFocusWorking) {
    planMoves("got 5", {"info"});
    EXPECT_THROW(move("5"), Failure);
    move("6");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(6)");
    move("7");
    EXPECT_EQ(plan_.events.back(), "got 7");
}

TEST_F(FocusTest, AFailureInLostFocusEndsTheMove) {
    planMoves("lost 0", {"info"});
    EXPECT_THROW(move("5"), Failure);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    move("6");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "lost 0", "got 6"}));
}

TEST_F(FocusTest, HidingOrDisablingTheControlThatHasItMovesNothing) {
    disable("0");
    workbench.frmEDID().txtEdit(0).setVisible(false);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
    EXPECT_TRUE(plan_.events.empty());
}

} // namespace
} // namespace wb
