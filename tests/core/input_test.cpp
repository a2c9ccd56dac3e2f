#include "core/input.h"

#include <gtest/gtest.h>

#include "core/workbench.h"
#include "platform/headless/headless_platform.h"

namespace wb {
namespace {

std::vector<std::string>* events = nullptr;

void note(const std::string& event) {
    events->push_back(event);
}

void connect(Screen& screen) {
    auto& block = static_cast<FrmEdid&>(screen);
    block.txtEdit.on.keyPress = [](Workbench&, int, int& key) {
        note("press " + std::to_string(key));
        if (key == 'x') {
            key = 0;
        } else if (key == 'a') {
            key = 'A';
        }
    };
    block.txtEdit.on.keyUp = [](Workbench&, int, int code) { note("up " + std::to_string(code)); };
    block.txtEdit.on.lostFocus = [](Workbench& workbench, int i) {
        if (workbench.frmEDID().txtEdit(i).text() == "bad") {
            note("called back");
            workbench.focus.moveTo(workbench.frmEDID().txtEdit(i));
        }
    };
    block.txtVersion.on.keyPress = [](Workbench&, int, int&) { throw Failure(FailureKind::Overflow); };
    block.txtVersion.on.keyUp = [](Workbench&, int, int) { note("up"); };
    block.SyncLine.on.click = [](Workbench&, int) { note("sync line"); };
    block.Sync.on.click = [](Workbench&, int i) { note("sync " + std::to_string(i)); };
    block.Signal.on.click = [](Workbench&, int i) { note("signal " + std::to_string(i)); };
    block.Hints.on.dblClick = [](Workbench&, int i) { note("dblclick " + std::to_string(i)); };
}

class InputTest : public testing::Test {
protected:
    InputTest() : workbench(platform.services(), wiring) {
        events = &events_;
        platform.onBox = [this](const std::string& text) { boxes.push_back(text); };
        workbench.windows.show(workbench.frmEDID());
        screen().Hints(3).setVisible(true);
    }

    FrmEdid& screen() { return workbench.frmEDID(); }
    void type(std::string_view text) {
        for (const char c : text) {
            input::typeCharacter(workbench, c);
        }
    }
    static Wiring makeWiring() {
        Wiring made{};
        made[static_cast<std::size_t>(ScreenId::Edid)].connect = &connect;
        return made;
    }

    using Events = std::vector<std::string>;
    Events events_;
    std::vector<std::string> boxes;
    platform::headless::HeadlessPlatform platform;
    const Wiring wiring = makeWiring();
    Workbench workbench;
};

TEST_F(InputTest, ATypedCharacterMayBeReplacedOrDropped) {
    type("ax1");
    EXPECT_EQ(screen().txtEdit(0).text(), "A1");
    EXPECT_EQ(events_, (Events{"press 97", "up 65", "press 120", "up 88", "press 49", "up 49"}));
}

TEST_F(InputTest, TypingReplacesTheSelection) {
    screen().txtEdit(0).setText("123");
    screen().txtEdit(0).setSelection(1, 2);
    type("4");
    EXPECT_EQ(screen().txtEdit(0).text(), "14");
    EXPECT_EQ(screen().txtEdit(0).selStart(), 2);
}

TEST_F(InputTest, MaxLengthLimitsTypingOnly) {
    Control& box = screen().txtBrand;
    box.setMaxLength(2);
    box.setText("abcd");
    EXPECT_EQ(box.text(), "abcd");
    input::moveFocus(box);
    type("e");
    EXPECT_EQ(box.text(), "abcd");
    SelectAllInControl(box);
    type("efg");
    EXPECT_EQ(box.text(), "ef");
}

TEST_F(InputTest, ALockedTextKeepsItsTextButItsKeyEventsRun) {
    screen().txtEdit(0).setLocked(true);
    type("1");
    EXPECT_EQ(screen().txtEdit(0).text(), "");
    EXPECT_EQ(events_, (Events{"press 49", "up 49"}));
}

TEST_F(InputTest, EnterTypesNoText) {
    input::enter(workbench);
    EXPECT_EQ(screen().txtEdit(0).text(), "");
    EXPECT_EQ(events_, (Events{"press 13", "up 13"}));
}

TEST_F(InputTest, BackspaceTakesBackACharacterOrTheSelection) {
    type("12\b");
    EXPECT_EQ(screen().txtEdit(0).text(), "1");
    EXPECT_EQ(events_.back(), "up 8");
    SelectAllInControl(screen().txtEdit(0));
    type("\b\b");
    EXPECT_EQ(screen().txtEdit(0).text(), "");
}

TEST_F(InputTest, AFailureInKeyPressEndsTheKeyAndTheProgramGoesOn) {
    input::moveFocus(screen().txtVersion);
    events_.clear();
    EXPECT_TRUE(input::typeCharacter(workbench, '1'));
    EXPECT_EQ(boxes, Events{"Overflow"});
    EXPECT_EQ(screen().txtVersion.text(), "");
    EXPECT_TRUE(events_.empty()) << "no KeyUp";
    EXPECT_TRUE(input::moveFocus(screen().txtModel));
    type("M");
    EXPECT_EQ(screen().txtModel.text(), "M");
}

TEST_F(InputTest, AKeyThatWouldPassMaxLengthStillRunsItsEvents) {
    screen().txtEdit(0).setMaxLength(1);
    screen().txtEdit(0).setText("1");
    type("2");
    EXPECT_EQ(screen().txtEdit(0).text(), "1");
    EXPECT_EQ(events_, (Events{"press 50", "up 50"}));
}

TEST_F(InputTest, ALockedTextTakesTheFocusAndKeepsItsBackspacedText) {
    screen().txtEdit(3).setLocked(true);
    screen().txtEdit(3).setText("12");
    EXPECT_TRUE(input::click(screen().txtEdit(3)));
    EXPECT_EQ(workbench.focus.current(), &screen().txtEdit(3));
    SelectAllInControl(screen().txtEdit(3));
    type("\b");
    EXPECT_EQ(screen().txtEdit(3).text(), "12");
    EXPECT_TRUE(input::edit(screen().txtEdit(3), "9", 1, 0, 46));
    EXPECT_EQ(screen().txtEdit(3).text(), "12");
}

TEST_F(InputTest, KeyCodesAreThoseOfTheUpperCaseCharacter) {
    EXPECT_EQ(input::keyCodeOf('a'), 65);
    EXPECT_EQ(input::keyCodeOf('Z'), 90);
    EXPECT_EQ(input::keyCodeOf('7'), 55);
    EXPECT_EQ(input::keyCodeOf('\xE4'), 0xE4);
    EXPECT_EQ(input::keyCodeOf('`'), 192) << "96 is a digit of the number pad";
    type("f");
    EXPECT_EQ(events_.back(), "up 70");
    input::typeCharacter(workbench, '+', 107);
    EXPECT_EQ(events_.back(), "up 107");
}

TEST_F(InputTest, ATypedKeyNeedsAControlInReach) {
    screen().txtEdit(0).setEnabled(false);
    EXPECT_FALSE(input::typeCharacter(workbench, '1'));
    screen().txtEdit(0).setEnabled(true);
    EXPECT_TRUE(input::typeCharacter(workbench, '1'));
    workbench.windows.showModal(workbench.frmHelp());
    EXPECT_EQ(workbench.focus.current(), &workbench.frmHelp().Command1);
    EXPECT_TRUE(input::typeCharacter(workbench, '2')) << "the button takes the key and does nothing with it";
    workbench.windows.unload(ScreenId::Help);
    workbench.windows.hide(screen());
    EXPECT_FALSE(input::typeCharacter(workbench, '3'));
    EXPECT_FALSE(input::keyCode(workbench, 13));
    EXPECT_EQ(screen().txtEdit(0).text(), "1");
}

TEST_F(InputTest, ABareKeyCodeGoesToTheActiveScreen) {
    EXPECT_TRUE(input::keyCode(workbench, 46));
    EXPECT_EQ(events_, Events{"up 46"}) << "no KeyPress";
    workbench.windows.reveal(workbench.frmMain());
    EXPECT_TRUE(input::click(workbench.frmMain().Command1));
    events_.clear();
    EXPECT_TRUE(input::keyCode(workbench, 46));
    EXPECT_TRUE(events_.empty()) << "no control of the active screen has the focus";
}

TEST_F(InputTest, AClickOnALabelOrFrameLeavesTheFocus) {
    screen().Hints(10).setVisible(true);
    EXPECT_TRUE(input::click(screen().SyncLine));
    EXPECT_TRUE(input::click(screen().Hints(10)));
    EXPECT_EQ(events_, Events{"sync line"});
    EXPECT_EQ(workbench.focus.current(), &screen().txtEdit(0));
}

TEST_F(InputTest, AClickOnAButtonOfTheFrameMovesTheFocusThereAndAMenuEntryDoesNot) {
    workbench.windows.reveal(workbench.frmMain());
    EXPECT_TRUE(input::choose(workbench.frmMain().mnuFileClose));
    EXPECT_TRUE(input::toolBar(workbench, "New"));
    EXPECT_EQ(workbench.focus.current(), &screen().txtEdit(0));
    EXPECT_TRUE(input::click(workbench.frmMain().Command5));
    EXPECT_EQ(workbench.focus.current(), &workbench.frmMain().Command5);
    EXPECT_EQ(workbench.windows.activeChild(), &screen());
}

TEST_F(InputTest, AClickGoesOnWhenLostFocusCalledTheFocusBack) {
    screen().txtEdit(0).setText("bad");
    EXPECT_TRUE(input::click(screen().Signal(2)));
    EXPECT_EQ(events_, (Events{"called back", "signal 2"}));
    EXPECT_TRUE(screen().Signal(2).selected());
    EXPECT_EQ(workbench.focus.current(), &screen().txtEdit(0));
}

TEST_F(InputTest, TheOptionsOfOneArrayAreOneGroup) {
    screen().VideoMode(1).setValue(-1);
    screen().Signal(0).setValue(-1);
    screen().Signal(3).setValue(1);
    EXPECT_TRUE(screen().VideoMode(1).selected());
    EXPECT_FALSE(screen().Signal(0).selected());
    EXPECT_EQ(screen().Signal(3).value(), -1);
    EXPECT_EQ(events_, (Events{"signal 0", "signal 3"})) << "the one deselected raises nothing";
}

TEST_F(InputTest, AnAssignedTextPutsTheSelectionToItsStart) {
    screen().txtEdit(0).setText("123");
    SelectAllInControl(screen().txtEdit(0));
    EXPECT_EQ(screen().txtEdit(0).selLength(), 3);
    screen().txtEdit(0).setText("12345");
    EXPECT_EQ(screen().txtEdit(0).selStart(), 0);
    EXPECT_EQ(screen().txtEdit(0).selLength(), 0);
    type("0");
    EXPECT_EQ(screen().txtEdit(0).text(), "012345");
}

TEST_F(InputTest, VisibleTellsWhetherAControlIsShownAndEnabledItsOwnFlag) {
    EXPECT_TRUE(screen().Signal(0).visible());
    screen().Analog.setVisible(false);
    EXPECT_FALSE(screen().Signal(0).visible());
    screen().Analog.setVisible(true);
    screen().Hints(3).setVisible(false);
    EXPECT_FALSE(screen().Signal(0).visible());
    screen().Hints(3).setVisible(true);
    screen().Hints(3).setEnabled(false);
    EXPECT_TRUE(screen().Signal(0).enabled());
    workbench.windows.hide(screen());
    EXPECT_FALSE(screen().Signal(0).visible());
    EXPECT_FALSE(screen().txtEdit(0).visible());
}

TEST_F(InputTest, AfterTheEndNothingIsInReachAndNoScreenComesBack) {
    workbench.ended = true;
    workbench.windows.unload(ScreenId::Edid);
    EXPECT_FALSE(input::toolBar(workbench, "New"));
    EXPECT_FALSE(input::keyCode(workbench, 13));
    EXPECT_FALSE(input::typeCharacter(workbench, '1'));
    EXPECT_EQ(workbench.loaded(ScreenId::Main), nullptr);
}

TEST_F(InputTest, AnAssignmentOfAnOptionRaisesClickOnlyWhenItBecomesSelected) {
    screen().Signal(1).setValue(-1);
    screen().Signal(1).setValue(-1);
    screen().Signal(2).setValue(-1);
    screen().Signal(2).setValue(0);
    EXPECT_EQ(events_, (Events{"signal 1", "signal 2"}));
    EXPECT_FALSE(screen().Signal(1).selected());
    EXPECT_FALSE(screen().Signal(2).selected());
}

TEST_F(InputTest, AUsersClickOnAnOptionAlwaysRaisesClick) {
    input::click(screen().Signal(1));
    input::click(screen().Signal(1));
    EXPECT_EQ(events_, (Events{"signal 1", "signal 1"}));
    EXPECT_EQ(workbench.focus.current(), &screen().Signal(1));
}

TEST_F(InputTest, ACheckRaisesClickWheneverItsValueChanges) {
    screen().Sync(0).setValue(1);
    screen().Sync(0).setValue(1);
    screen().Sync(0).setValue(0);
    input::click(screen().Sync(0));
    EXPECT_EQ(events_, (Events{"sync 0", "sync 0", "sync 0"}));
    EXPECT_EQ(screen().Sync(0).value(), 1);
}

TEST_F(InputTest, DeselectingAnArrayRaisesTheClicksOfItsChecksInTheirOrder) {
    for (const int i : {4, 3, 1}) {
        screen().Sync(i).changeValue(1);
    }
    screen().Sync.deselect(3);
    EXPECT_EQ(events_, (Events{"sync 1", "sync 3"}));
    EXPECT_EQ(screen().Sync.firstSelected(), 4);
    screen().Sync.deselect();
    EXPECT_EQ(events_, (Events{"sync 1", "sync 3", "sync 4"}));
    screen().Signal(2).changeValue(-1);
    screen().Signal.deselect();
    EXPECT_EQ(screen().Signal.firstSelected(), -1);
    EXPECT_EQ(events_.size(), 3U) << "options that are deselected raise nothing";
}

TEST_F(InputTest, WhatIsHiddenOrDisabledIsOutOfReach) {
    screen().Analog.setEnabled(false);
    EXPECT_FALSE(input::click(screen().Sync(0)));
    EXPECT_FALSE(input::doubleClick(screen().Hints(4)));
    EXPECT_TRUE(input::doubleClick(screen().Hints(3)));
    EXPECT_FALSE(input::click(screen().VendorInfo));
    EXPECT_FALSE(input::moveFocus(screen().Label3));
    EXPECT_EQ(events_, Events{"dblclick 3"});
    workbench.ended = true;
    EXPECT_FALSE(input::click(screen().txtEdit(1)));
}

TEST_F(InputTest, AnEditOfTheWidgetReportsItsOutcomeAndTheKey) {
    EXPECT_TRUE(input::edit(screen().txtEdit(0), "7", 1, 0, 46));
    EXPECT_EQ(screen().txtEdit(0).text(), "7");
    EXPECT_EQ(events_, Events{"up 46"});
}

TEST_F(InputTest, PickingARowMovesTheFocusAndRaisesClick) {
    FrmCeaExt& extension = workbench.frmCEA_EXT();
    workbench.windows.show(extension);
    extension.Hints(14).setVisible(true);
    static int clicks = 0;
    extension.NativeCBox.on.click = [](Workbench&, int) { ++clicks; };
    EXPECT_TRUE(input::pick(extension.NativeCBox, 3));
    EXPECT_TRUE(input::pick(extension.NativeCBox, 3));
    EXPECT_EQ(clicks, 2);
    EXPECT_EQ(extension.NativeCBox.text(), "03");
    extension.NativeCBox.setValue(3);
    extension.NativeCBox.setValue(4);
    EXPECT_EQ(clicks, 3);
    extension.NativeCBox.setText("05");
    EXPECT_EQ(clicks, 3);
    EXPECT_EQ(extension.NativeCBox.value(), 5);
    extension.NativeCBox.setText("no row");
    EXPECT_EQ(extension.NativeCBox.value(), -1);
    EXPECT_TRUE(input::click(extension.NativeCBox));
    EXPECT_EQ(clicks, 3) << "opening the list picks nothing";
    EXPECT_TRUE(input::pick(extension.NativeCBox, 16));
    EXPECT_EQ(boxes, Events{"Invalid procedure call or argument"});
    EXPECT_EQ(clicks, 3);
}

} // namespace
} // namespace wb
