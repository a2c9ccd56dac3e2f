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
    block.Sync.on.click = [](Workbench&, int i) { note("sync " + std::to_string(i)); };
    block.Signal.on.click = [](Workbench&, int i) { note("signal " + std::to_string(i)); };
    block.Hints.on.dblClick = [](Workbench&, int i) { note("dblclick " + std::to_string(i)); };
}

class InputTest : public testing::Test {
protected:
    InputTest() : workbench(platform.services(), wiring) {
        events = &events_;
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
}

} // namespace
} // namespace wb
