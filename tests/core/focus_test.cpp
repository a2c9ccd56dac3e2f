#include "core/focus.h"

#include <gtest/gtest.h>

#include <map>

#include "core/input.h"
#include "core/workbench.h"
#include "platform/headless/headless_platform.h"

namespace wb {
namespace {

/// What the handlers of the test screens do, beside writing their name: a focus move, if one is planned for that event.
struct Plan {
    std::vector<std::string> events;
    std::map<std::string, std::string> moves; ///< event to control
};

Plan* plan = nullptr;

Control& controlNamed(Workbench& workbench, const std::string& name) {
    if (name == "brand") {
        return workbench.frmEDID().txtBrand;
    }
    if (name == "info") {
        return workbench.frmEDID().VendorInfo; // on a hidden panel
    }
    return workbench.frmEDID().txtEdit(std::stoi(name));
}

void happen(Workbench& workbench, const std::string& event) {
    plan->events.push_back(event);
    const auto move = plan->moves.find(event);
    if (move != plan->moves.end()) {
        const std::string target = move->second;
        plan->moves.erase(move);
        workbench.focus.moveTo(controlNamed(workbench, target));
    }
}

void connect(Screen& screen) {
    auto& block = static_cast<FrmEdid&>(screen);
    block.txtEdit.on.gotFocus = [](Workbench& workbench, int i) { happen(workbench, "got " + std::to_string(i)); };
    block.txtEdit.on.lostFocus = [](Workbench& workbench, int i) { happen(workbench, "lost " + std::to_string(i)); };
    block.txtBrand.on.gotFocus = [](Workbench& workbench, int) { happen(workbench, "got brand"); };
}

class FocusTest : public testing::Test {
protected:
    FocusTest() : workbench(platform.services(), wiring) {
        plan = &plan_;
        workbench.windows.show(workbench.frmEDID());
        plan_.events.clear();
    }

    void move(const std::string& to) { workbench.focus.moveTo(controlNamed(workbench, to)); }
    std::string focused() { return workbench.focus.current()->fullName(); }

    static Wiring makeWiring() {
        Wiring made{};
        made[static_cast<std::size_t>(ScreenId::Edid)].connect = &connect;
        return made;
    }

    using Events = std::vector<std::string>;
    Plan plan_;
    platform::headless::HeadlessPlatform platform;
    const Wiring wiring = makeWiring();
    Workbench workbench;
};

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
    plan_.moves["got 5"] = "brand";
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 5", "lost 5", "got brand"}));
}

TEST_F(FocusTest, AMoveAskedForInLostFocusReplacesTheOneThatCausedIt) {
    plan_.moves["lost 0"] = "7";
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 7"}));
}

TEST_F(FocusTest, AControlThatCallsItselfBackGetsFocusAgainAndItsMoveIsDropped) {
    plan_.moves["lost 0"] = "0";
    plan_.moves["got 0"] = "brand";
    move("5");
    EXPECT_EQ(plan_.events, (Events{"lost 0", "got 0"}));
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusTest, AControlThatCannotTakeItIsAFailure) {
    EXPECT_THROW(move("info"), Failure);
    workbench.frmEDID().txtEdit(5).setEnabled(false);
    EXPECT_THROW(move("5"), Failure);
    EXPECT_EQ(focused(), "frmEDID.txtEdit(0)");
}

TEST_F(FocusTest, AFailureInAHandlerLeavesTheFocusWorking) {
    plan_.moves["got 5"] = "info";
    EXPECT_THROW(move("5"), Failure);
    move("6");
    EXPECT_EQ(focused(), "frmEDID.txtEdit(6)");
    move("7");
    EXPECT_EQ(plan_.events.back(), "got 7");
}

TEST_F(FocusTest, GoingBackToAScreenFindsTheControlThatLastHadIt) {
    move("9");
    workbench.windows.show(workbench.frmDocument());
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(workbench.windows.activeChild()->name(), "frmDocument");
    workbench.focus.moveTo(workbench.frmEDID());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(9)");
    EXPECT_EQ(workbench.windows.activeChild()->name(), "frmEDID");
}

TEST_F(FocusTest, HidingTheActiveScreenMovesOnWithEvents) {
    workbench.windows.show(workbench.frmDocument());
    plan_.events.clear();
    workbench.windows.hide(workbench.frmDocument());
    EXPECT_EQ(plan_.events, Events{"got 0"});
    EXPECT_FALSE(workbench.frmDocument().shown());
}

TEST_F(FocusTest, UnloadingTheActiveScreenRunsNoLostFocus) {
    workbench.windows.show(workbench.frmDocument());
    workbench.focus.moveTo(workbench.frmEDID());
    plan_.events.clear();
    EXPECT_TRUE(workbench.windows.unload(ScreenId::Edid));
    EXPECT_TRUE(plan_.events.empty());
    EXPECT_EQ(focused(), "frmDocument.rtftext");
    EXPECT_EQ(workbench.loaded(ScreenId::Edid), nullptr);
}

TEST_F(FocusTest, AModalScreenGivesTheFocusBack) {
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

TEST_F(FocusTest, AFocusMoveShowsAHiddenScreen) {
    workbench.windows.hide(workbench.frmEDID());
    EXPECT_EQ(workbench.focus.current(), nullptr);
    move("4");
    EXPECT_TRUE(workbench.frmEDID().shown());
    EXPECT_EQ(focused(), "frmEDID.txtEdit(4)");
}

} // namespace
} // namespace wb
